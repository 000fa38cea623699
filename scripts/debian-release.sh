#!/usr/bin/env bash
# The Linux half of scripts/test.sh on another supported Debian release, in clean roots of
# it (scripts/debian-root.sh). The Debian package is built first as Debian's build daemons
# build it, in a root that has only build-essential and the package's Build-Depends, so
# that a missing one fails the build. Then, in a minimal root as on a fresh machine, the
# README's two commands: scripts/run.sh alone builds and starts the program, and
# scripts/test.sh runs the whole suite and checks that package.
# Usage: scripts/debian-release.sh bookworm|trixie
set -euo pipefail
cd "$(dirname "$0")/.."

# Inside the minimal root.
if [[ ${1:-} == --fresh-machine ]]; then
    # Offscreen: a fresh machine has no X server, and run.sh installs none.
    QT_QPA_PLATFORM=offscreen scripts/run.sh &
    program=$!
    until [[ $(readlink "/proc/$program/exe" 2>/dev/null) == */vorkan-mac ]]; do
        kill -0 "$program" 2>/dev/null || {
            echo "scripts/run.sh ended before the program started" >&2
            exit 1
        }
        sleep 1
    done
    sleep 3
    kill -0 "$program" 2>/dev/null || {
        echo "the program started by scripts/run.sh ended at once" >&2
        exit 1
    }
    kill "$program"
    echo "scripts/run.sh: the program built and started"
    exec env VORKAN_WINDOWS=0 VORKAN_OTHER_RELEASE=0 VORKAN_BUILT_PACKAGE=build/package \
        scripts/test.sh
fi

release=$1
echo "== Debian $release: the package, in a root with only its Build-Depends ($SECONDS s)"
builder=$(scripts/debian-root.sh new "$release" buildd)
scripts/debian-root.sh run "$builder" bash -c 'umask 077 && scripts/package.sh --build-depends'
echo "== Debian $release: a fresh machine ($SECONDS s)"
fresh=$(scripts/debian-root.sh new "$release" minbase)
mkdir -p "$fresh/src/build"
cp -a "$builder/src/build/package" "$fresh/src/build/"
scripts/debian-root.sh run "$fresh" scripts/debian-release.sh --fresh-machine
echo "== Debian $release: passed ($SECONDS s)"
