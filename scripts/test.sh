#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test under AddressSanitizer,
# UndefinedBehaviorSanitizer and LeakSanitizer. Needs no display. Then builds the Debian
# package and checks it, does the same on the other supported Debian release, in clean
# roots of it (scripts/debian-release.sh), and builds for Windows and tests that under
# Wine (scripts/windows.sh). VORKAN_OTHER_RELEASE=0 leaves the other release out and
# VORKAN_WINDOWS=0 Windows, for a quick local run.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh test
windows=${VORKAN_WINDOWS:-1}
if [[ $windows != 0 ]]; then
    # Qt for Windows, when the cache lacks it, builds beside the Linux half and takes
    # only the time that half leaves the processors idle (tests waiting on a display,
    # package tools on one core). Its own process group, so that it stops with us.
    mkdir -p build
    setsid nice -n 19 scripts/windows/qt.sh >build/qt-windows.log 2>&1 &
    qt_build=$!
    trap 'kill -- -$qt_build 2>/dev/null || true' EXIT
fi

cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan
# The Debian package as the README builds it, under a umask that would show any mode left
# to chance, and checked as a distribution would (tests/e2e/e2e_package.py). In the other
# release's root the package comes built from a root of its own (scripts/debian-release.sh).
package=${VORKAN_BUILT_PACKAGE:-}
if [[ -z $package ]]; then
    (umask 077 && scripts/package.sh)
    package=build/package
fi
/usr/bin/python3 tests/e2e/e2e_package.py "$package"

if [[ ${VORKAN_OTHER_RELEASE:-1} != 0 ]]; then
    . /etc/os-release
    case $VERSION_CODENAME in
    bookworm) scripts/debian-release.sh trixie ;;
    *) scripts/debian-release.sh bookworm ;;
    esac
fi

if [[ $windows != 0 ]]; then
    wait "$qt_build" || {
        cat build/qt-windows.log
        exit 1
    }
    scripts/windows.sh
fi
