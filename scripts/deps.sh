#!/usr/bin/env bash
# Installs the Debian packages that building (and, with "test", testing; with
# "windows", the Windows build and its tests under Wine) needs, only those that are
# missing. Uses sudo only when not root.
set -euo pipefail

packages=(cmake ninja-build g++ qt6-base-dev qt6-qpa-plugins libgl-dev fonts-dejavu-core)
if [[ "${1:-}" == test || "${1:-}" == windows ]]; then
    packages+=(xvfb xauth xdotool xclip python3 python3-xlib desktop-file-utils appstream dpkg-dev
        dbus at-spi2-core python3-pyatspi)
fi
if [[ "${1:-}" == windows ]]; then
    packages+=(g++-mingw-w64-x86-64-posix wine wine64 fonts-wine msitools wixl librsvg2-bin icoutils
        locales)
fi

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
