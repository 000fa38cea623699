#!/usr/bin/env bash
# Installs the Debian packages that building needs and, with "package", what making the
# Debian package needs too, with "check", that and the tools that check the package
# (scripts/check-package.sh), with "bench", what counting instructions needs, with "roots",
# what makes clean Debian roots, with "test", everything the tests need, or with
# "windows", that and the Windows build and its tests under Wine; only those that are
# missing.
# Uses sudo only when not root.
set -euo pipefail

# rsvg-convert draws the icons from their SVG.
packages=(cmake ninja-build g++ qt6-base-dev qt6-qpa-plugins libgl-dev fonts-dejavu-core
    librsvg2-bin)
# dpkg-buildpackage and debhelper, as debian/control's Build-Depends name them, and
# build-essential, which dpkg-buildpackage checks for and Debian assumes on a build machine.
packaging=(dpkg-dev debhelper build-essential)
# lintian, and hardening-check from devscripts.
checking=(lintian devscripts)
# mmdebstrap makes the clean roots of the other Debian release and of the Windows build
# (scripts/debian-root.sh).
roots=(mmdebstrap)
case "${1:-}" in
package) packages+=("${packaging[@]}") ;;
check) packages+=("${packaging[@]}" "${checking[@]}") ;;
bench) packages+=(valgrind) ;;
roots) packages=("${roots[@]}") ;;
test | windows)
    packages+=("${packaging[@]}" "${checking[@]}" xvfb xauth xdotool xclip python3 python3-xlib
        desktop-file-utils appstream dbus at-spi2-core python3-pyatspi python3-gmpy2
        "${roots[@]}")
    ;;&
windows)
    packages+=(g++-mingw-w64-x86-64-posix wine wine64 fonts-wine msitools wixl
        icoutils locales osslsigncode openssl python3-jsonschema npm)
    ;;
esac

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
[[ $(id -u) -eq 0 ]] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
