#!/usr/bin/env bash
# Installs the Debian packages that building needs and, with "package", what making the
# Debian package needs too, with "test", everything the tests need, or with "windows",
# that and the Windows build and its tests under Wine; only those that are missing.
# Uses sudo only when not root.
set -euo pipefail

packages=(cmake ninja-build g++ qt6-base-dev qt6-qpa-plugins libgl-dev fonts-dejavu-core)
# CPack reads the programs' library dependencies with dpkg-shlibdeps, which needs file.
packaging=(dpkg-dev file)
case "${1:-}" in
package) packages+=("${packaging[@]}") ;;
test | windows)
    packages+=("${packaging[@]}" xvfb xauth xdotool xclip python3 python3-xlib desktop-file-utils
        appstream dbus at-spi2-core python3-pyatspi libmpfr-dev)
    ;;&
windows)
    packages+=(g++-mingw-w64-x86-64-posix wine wine64 fonts-wine msitools wixl librsvg2-bin
        icoutils locales osslsigncode openssl)
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
