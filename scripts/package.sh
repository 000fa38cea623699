#!/usr/bin/env bash
# Builds the Debian package the way Debian builds its own (dpkg-buildpackage, debhelper,
# debian/) and puts it in build/package with its debug symbols, .buildinfo and .changes.
# Two builds of one commit give bit-identical packages (debian/rules).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh package
out=build/package
rm -rf "$out"
# Binary packages only, unsigned, on at most two cores; the source tree is left clean.
dpkg-buildpackage --build=binary --no-sign -j2 --post-clean
# dpkg-buildpackage writes beside the source tree; the names come from the changelog.
mkdir -p "$out"
name="vorkan-mac_$(dpkg-parsechangelog -S Version)_$(dpkg-architecture -q DEB_HOST_ARCH)"
mv "../$name.deb" "../${name/_/-dbgsym_}.deb" "../$name.buildinfo" "../$name.changes" "$out"
ls -l "$out"
