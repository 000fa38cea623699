#!/usr/bin/env bash
# Builds the Debian package the way Debian builds its own (dpkg-buildpackage, debhelper,
# debian/) and puts it in build/package with its debug symbols, .buildinfo and .changes.
# Two builds of one commit give bit-identical packages (debian/rules).
# With --build-depends, in a clean root (scripts/debian-release.sh), it installs only the
# Build-Depends of debian/control, as Debian's build daemons do, instead of the project's
# own list.
set -euo pipefail
cd "$(dirname "$0")/.."

if [[ ${1:-} == --build-depends ]]; then
    apt-get update -qq
    apt-get build-dep -y -qq --no-install-recommends ./ >/dev/null
else
    scripts/deps.sh package
fi
out=build/package
rm -rf "$out"
# Binary packages only, unsigned, on at most two cores; the source tree is left clean.
dpkg-buildpackage --build=binary --no-sign -j2 --post-clean
# dpkg-buildpackage writes beside the source tree; the names come from the changelog.
mkdir -p "$out"
name="vorkan-mac_$(dpkg-parsechangelog -S Version)_$(dpkg-architecture -q DEB_HOST_ARCH)"
mv "../$name.deb" "../${name/_/-dbgsym_}.deb" "../$name.buildinfo" "../$name.changes" "$out"
ls -l "$out"
