#!/usr/bin/env bash
# Builds Vorkan MAC for 64-bit Windows on this Debian machine, makes its installer
# build/windows/vorkan-mac-<version>-x64.msi, and tests both under Wine: every QtTest
# suite, then the installed program and its companions. Installs what is missing; the
# first run also builds Qt for Windows once (see scripts/windows/qt.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
repo=$PWD
build=$repo/build/windows

step() {
    echo "== $1 ($SECONDS s)"
}

step "Debian packages"
scripts/deps.sh windows
step "Qt for Windows"
qt=$(scripts/windows/qt.sh)

step "Cross-building the programs and their tests"
cmake --preset windows -DCMAKE_PREFIX_PATH="$qt" >/dev/null
cmake --build --preset windows

step "Libraries beside the programs and the tests"
programs=(vorkan-mac.exe lumetra.app.exe pendulo.app.exe)
mapfile -t shipped < <(scripts/windows/deploy.sh "$qt" "$build/src" "${programs[@]}")
printf '  %s\n' "${shipped[@]}"
# Qt's setup gathers the test programs of a Windows build in its top folder.
(cd "$build" && "$repo/scripts/windows/deploy.sh" "$qt" . tst_*.exe >/dev/null)

step "Installer"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
msi=$build/vorkan-mac-$version-x64.msi
# wixl takes relative paths only: it runs beside the installer's description and icon.
installer=$build/packaging/windows
rm -rf "$installer/files"
mkdir -p "$installer/files"
(cd "$build/src" && cp --parents "${programs[@]}" "${shipped[@]}" "$installer/files")
cd "$installer"
{ find files -maxdepth 1 -type f | sort; find files -mindepth 2 -type f | sort; } |
    wixl-heat -p files/ --directory-ref INSTALLDIR --component-group ProgramFiles \
        --var var.SourceDir --win64 >files.wxs
wixl -a x64 -D SourceDir=files -D Win64=yes -o "$msi" vorkan-mac.wxs files.wxs
cd "$repo"
echo "  $msi: $(du -k "$msi" | cut -f1) KiB"

step "Under Wine"
/usr/bin/python3 tests/wine/wine_checks.py "$build" "$msi"
step "Done"
