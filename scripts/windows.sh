#!/usr/bin/env bash
# Builds Vorkan MAC for 64-bit Windows on this Debian machine, makes its installer
# build/windows/vorkan-mac-<version>-x64.msi (scripts/windows/installer.sh, which also
# signs it), and tests both under Wine: every QtTest suite, then the installed program
# and its companions. Installs what is missing; the first run also builds Qt for
# Windows once (see scripts/windows/qt.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
# Built and tested with Debian 13's Qt tools, compilers and Wine (scripts/windows/root.sh).
. /etc/os-release
[[ $VERSION_CODENAME == trixie ]] || exec scripts/windows/root.sh scripts/windows.sh
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
# With debug information, which the installer keeps apart from the programs.
# Afresh: the folder may remember another Qt.
cmake --preset windows --fresh -DCMAKE_PREFIX_PATH="$qt" -DCMAKE_CXX_FLAGS=-g >/dev/null
cmake --build --preset windows

step "Libraries beside the programs and the tests"
programs=(vorkan-mac.exe lumetra.app.exe pendulo.app.exe)
mapfile -t shipped < <(scripts/windows/deploy.sh "$qt" "$build/src" "${programs[@]}")
printf '  %s\n' "${shipped[@]}"
# Qt's setup gathers the test programs of a Windows build in its top folder.
(cd "$build" && "$repo/scripts/windows/deploy.sh" "$qt" . tst_*.exe >/dev/null)

step "Installer"
msi=$(scripts/windows/installer.sh "$build" "$qt" "${programs[@]}" "${shipped[@]}")
echo "  $msi: $(du -k "$msi" | cut -f1) KiB"
step "Bill of materials"
/usr/bin/python3 scripts/windows/sbom-check.py "${msi%.msi}.cdx.json" \
    "$build/packaging/windows/files"

step "Under Wine"
/usr/bin/python3 tests/wine/wine_checks.py "$build" "$msi"
step "Done"
