#!/usr/bin/env bash
# Checks the Debian package that scripts/package.sh built, as a distribution or a
# hospital's IT would: lintian (no error, no warning), hardening-check on each program,
# no RUNPATH (readelf -d), and the files' modes. With --reproducible it first builds the
# last commit twice, from two clones in different folders under different umasks, and
# compares the packages' SHA-256 (a few minutes for each build).
# Usage: scripts/check-package.sh [--reproducible] [folder with the .changes]
set -euo pipefail
cd "$(dirname "$0")/.."

reproducible=0
if [[ ${1:-} == --reproducible ]]; then
    reproducible=1
    shift
fi
out=$(realpath "${1:-build/package}")
scripts/deps.sh check >/dev/null

if ((reproducible)); then
    repo=$PWD
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    for build in "a/vorkan-mac" "second/copy/vorkan-mac"; do
        git clone -q "$repo" "$work/$build"
        log=$work/${build%%/*}.log
        if ! (cd "$work/$build" && if [[ $build == a/* ]]; then umask 077; fi &&
            scripts/package.sh >"$log" 2>&1); then
            tail -20 "$log" >&2
            exit 1
        fi
        echo "== $work/$build"
        (cd "$work/$build/build/package" && sha256sum ./*.deb)
    done
    cmp <(cd "$work/a/vorkan-mac/build/package" && sha256sum ./*.deb) \
        <(cd "$work/second/copy/vorkan-mac/build/package" && sha256sum ./*.deb)
    echo "reproducible: the two builds' packages are bit-identical"
    out=$work/a/vorkan-mac/build/package
fi

changes=("$out"/vorkan-mac_*.changes)
deb=$(ls "$out"/vorkan-mac_*.deb)
echo "== lintian $(basename "${changes[0]}")"
lintian --fail-on error,warning --display-info --pedantic "${changes[0]}"
echo "lintian: no error, no warning"

root=$(mktemp -d)
trap 'rm -rf "$root" "${work:-}"' EXIT
dpkg-deb -x "$deb" "$root"
programs=$root/usr/libexec/vorkan-mac
echo "== hardening-check"
# Every test the release's own programs pass, ours pass too. Two cannot hold on amd64,
# and the system's /bin/ls fails them as well: control-flow integrity (the x86 IBT and
# shadow stack mark, which the linker sets only when every object has it, and the C
# start-up files of Debian 12 and 13 have not), and branch protection (an arm64 mark,
# tested by Debian 13's hardening-check only). The companions call none of the functions
# fortify guards.
system=$(hardening-check /bin/ls || true)
skipped=()
grep -q 'Control flow integrity: no' <<<"$system" && skipped+=(--nocfprotection)
grep -q 'Branch Protection: no' <<<"$system" && skipped+=(--nobranchprotection)
echo "not required, as /bin/ls fails them: ${skipped[*]:-none}"
hardening-check "${skipped[@]}" "$programs/vorkan-mac"
hardening-check "${skipped[@]}" --nofortify "$programs/lumetra.app" "$programs/pendulo.app"

echo "== readelf -d"
for program in "$programs"/*; do
    if readelf -d "$program" | grep -E 'RPATH|RUNPATH'; then
        echo "$(basename "$program") has a search path" >&2
        exit 1
    fi
    echo "$(basename "$program"): no RPATH, no RUNPATH"
done

echo "== dpkg-deb -c: modes"
# Folders 755, programs 755, other files 644, whatever the umask of the build.
for package in "$out"/*.deb; do
    if dpkg-deb -c "$package" |
        grep -Ev '^(drwxr-xr-x |-rwxr-xr-x .* \./usr/libexec/vorkan-mac/|-rw-r--r-- |lrwxrwxrwx )'; then
        echo "$(basename "$package"): unexpected modes above" >&2
        exit 1
    fi
    echo "$(basename "$package"): folders drwxr-xr-x, programs -rwxr-xr-x, files -rw-r--r--"
done
