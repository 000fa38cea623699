#!/usr/bin/env bash
# installer.sh BUILD QT FILE...: makes the installer BUILD/vorkan-mac-<version>-x64.msi
# from the programs and libraries FILE... (paths below BUILD/src), taken from the Qt in
# QT, and prints its path. The files go in stripped, their debug information to
# BUILD/debug, with the licences and a bill of materials (CycloneDX), a copy of which
# lies beside the installer; every program, library and the installer are signed
# (scripts/windows/sign.sh).
set -euo pipefail
repo=$(cd "$(dirname "$0")/../.." && pwd)
build=$1 qt=$2
shift 2
installer=$build/packaging/windows
files=$installer/files
debug=$build/debug
version=$(<"$installer/release-version")
msi=$build/vorkan-mac-$version-x64.msi
web=$(sed -n 's/^VORKAN_WEB_ADDRESS:STRING=//p' "$build/CMakeCache.txt")

rm -rf "$files" "$debug" "$build/signing" "$build"/vorkan-mac-*-x64.{msi,cdx.json}
mkdir -p "$files/licences" "$debug"
(cd "$build/src" && cp --parents "$@" "$files")

# Each file keeps the name and checksum of its debug information (.gnu_debuglink), by
# which gdb finds it when given this folder or when it lies beside the file.
for file in "$@"; do
    mkdir -p "$debug/$(dirname "$file")"
    x86_64-w64-mingw32-objcopy --only-keep-debug "$files/$file" "$debug/$file.debug"
    x86_64-w64-mingw32-strip --strip-unneeded "$files/$file"
    x86_64-w64-mingw32-objcopy --add-gnu-debuglink="$debug/$file.debug" "$files/$file"
done

# The program's licence, what the libraries are and where their source is, and their
# licences as Debian gives them with the packages they came from.
cp "$repo/LICENSE" "$files/LICENSE.txt"
qt_source=$(dpkg-query -W -f='${Version}' qt6-base-dev)
sed "s/\(qt6-base source package, version \)[^ ,]*,/\1$qt_source,/;
     s/\(qt6-base=\)[^\"]*\"/\1$qt_source\"/" \
    "$repo/packaging/THIRD-PARTY-NOTICES.txt" >"$files/THIRD-PARTY-NOTICES.txt"
cp /usr/share/common-licenses/LGPL-3 "$files/licences/LGPL-3.txt"
cp /usr/share/common-licenses/GPL-3 "$files/licences/GPL-3.txt"
# Debian 13 names the library libqt6core6t64.
cp /usr/share/doc/libqt6core6*/copyright "$files/licences/qt6-base.copyright.txt"
cp /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright \
    "$files/licences/gcc-mingw-w64.copyright.txt"
cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$files/licences/mingw-w64.copyright.txt"

(cd "$files" && "$repo/scripts/windows/sign.sh" "$build/signing" "$web" "$@")
# Made from the files as they are installed, signed: what IT's inventory will hash.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$repo" log -1 --format=%ct 2>/dev/null)} \
    /usr/bin/python3 "$repo/scripts/windows/sbom.py" "$files" "$qt" "$version" \
    "$files/sbom.cdx.json" >&2

# wixl takes relative paths only: it runs beside the installer's description and icon.
cd "$installer"
{ find files -maxdepth 1 -type f | sort; find files -mindepth 2 -type f | sort; } |
    wixl-heat -p files/ --directory-ref INSTALLDIR --component-group ProgramFiles \
        --var var.SourceDir --win64 >files.wxs
wixl -a x64 -D SourceDir=files -D Win64=yes -o "$msi" vorkan-mac.wxs files.wxs
# What wixl leaves out: the files' versions, French as the package's language, and
# the replacing of an installed build of the same version (a rebuild).
/usr/bin/python3 "$repo/scripts/windows/msiversions.py" "$msi" files.wxs files >&2
summary=$(msiinfo suminfo "$msi")
msibuild "$msi" -s "$(sed -n 's/^Subject: //p' <<<"$summary")" \
    "$(sed -n 's/^Author: //p' <<<"$summary")" "x64;1036"
# The upgrade's highest version includes this one (VersionMaxInclusive, 512).
msiinfo export "$msi" Upgrade |
    sed 's/\t1\t\tWIX_UPGRADE_DETECTED\r$/\t513\t\tWIX_UPGRADE_DETECTED\r/' >Upgrade.idt
grep -q $'\t513\t' Upgrade.idt
msibuild "$msi" -i Upgrade.idt
"$repo/scripts/windows/sign.sh" "$build/signing" "$web" "$msi"
cp "$files/sbom.cdx.json" "${msi%.msi}.cdx.json"
echo "$msi"
