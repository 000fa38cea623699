#!/usr/bin/env bash
# Clean Debian roots of either supported release, so that one Debian machine proves both.
# A root is made by mmdebstrap from its default mirror, once a week, into a cache outside
# the repository; each "new" unpacks a fresh copy into build/roots/NAME (by default
# <release>-<variant>) with a clone of this checkout in its /src. "run" first copies the
# checkout's files there again, uncommitted changes included, then runs a command as
# root in /src, in mount and process namespaces of its own: the mounts and every process
# it leaves end with it. The cache folder (~/.cache/vorkan-mac) is the root's own
# /root/.cache/vorkan-mac, and each folder of the checkout named in VORKAN_ROOT_BIND is
# the same folder of /src, so that what is built there stays after the root.
#
# Usage: scripts/debian-root.sh new RELEASE VARIANT [NAME]   (prints the root's folder)
#        scripts/debian-root.sh run ROOT COMMAND...
#   RELEASE  bookworm (Debian 12) or trixie (Debian 13)
#   VARIANT  minbase: a minimal system, as a fresh machine has, with git to clone;
#            buildd: that and build-essential, the root a Debian package is built in
set -euo pipefail
cd "$(dirname "$0")/.."
repo=$PWD

usage() {
    sed -n 's/^# \{0,1\}//;/^Usage/,/^ *buildd/p' "$0" >&2
    exit 2
}

cache=${XDG_CACHE_HOME:-$HOME/.cache}/vorkan-mac

new_root() {
    local release=$1 variant=$2 name=${3:-$1-$2}
    [[ $release =~ ^(bookworm|trixie)$ && $variant =~ ^(minbase|buildd)$ ]] || usage
    command -v mmdebstrap >/dev/null || scripts/deps.sh roots >&2
    local tarball=$cache/debian-$release-$variant-$(date +%G-W%V).tar
    if [[ ! -f $tarball ]]; then
        mkdir -p "$cache"
        rm -f "$cache/debian-$release-$variant-"*.tar
        local extra=(--include=git)
        [[ $variant == minbase ]] || extra+=(--include=build-essential)
        # mmdebstrap reads the format off the name's end.
        # A root lives for one run: dpkg need not sync each file it unpacks.
        mmdebstrap --quiet --variant=minbase --dpkgopt=force-unsafe-io "${extra[@]}" "$release" \
            "${tarball%.tar}.part.tar" >&2
        mv "${tarball%.tar}.part.tar" "$tarball"
    fi
    local root=$repo/build/roots/$name
    rm -rf "$root"
    mkdir -p "$root"
    tar -xf "$tarball" -C "$root"
    git clone -q "$repo" "$root/src"
    echo "$root"
}

run_in_root() {
    local root=$1
    shift
    # The checkout's last commit (the build number counts commits), then its uncommitted
    # changes, so that a developer tests what the tree holds.
    git -C "$root/src" fetch -q "$repo" HEAD
    git -C "$root/src" reset -q --hard FETCH_HEAD
    git ls-files -z --cached --others --exclude-standard |
        tar --null --files-from=- -c | tar -x -C "$root/src"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    local binds=("$cache" /root/.cache/vorkan-mac)
    local folder
    for folder in ${VORKAN_ROOT_BIND:-}; do
        mkdir -p "$repo/$folder"
        binds+=("$repo/$folder" "/src/$folder")
    done
    # The locale, apt behaviour and PATH of a fresh machine, whatever the caller's are;
    # the project's own settings (VORKAN_*) go in.
    local inside=(env -i HOME=/root LANG=C.UTF-8 TERM=dumb DEBIAN_FRONTEND=noninteractive
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "CI=${CI:-}")
    # npm, over https, trusts the authorities that this machine trusts, a site's own too.
    if [[ -f /etc/ssl/certs/ca-certificates.crt ]]; then
        cp /etc/ssl/certs/ca-certificates.crt "$root/etc/machine-ca-certificates.crt"
        inside+=(NODE_EXTRA_CA_CERTS=/etc/machine-ca-certificates.crt)
    fi
    local setting
    while read -r setting; do
        [[ $setting == VORKAN_ROOT_BIND || -z $setting ]] || inside+=("$setting=${!setting}")
    done < <(compgen -e | grep '^VORKAN_' || true)
    mkdir -p "$cache"
    unshare --mount --pid --fork --propagation private bash -c '
        root=$1 binds=$2
        shift 2
        while read -r from to; do
            mkdir -p "$root$to"
            mount --bind "$from" "$root$to"
        done <<<"$binds"
        mount -t proc proc "$root/proc"
        mount --rbind /sys "$root/sys"
        mount --rbind /dev "$root/dev"
        mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
        mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
        exec chroot "$root" "$@"
    ' root "$root" "$(printf '%s %s\n' "${binds[@]}")" "${inside[@]}" bash -c 'cd /src && "$@"' command "$@"
}

[[ $# -ge 3 ]] || usage
if [[ $(id -u) -ne 0 ]]; then
    exec sudo "$0" "$@"
fi
case $1 in
new)
    shift
    new_root "$@"
    ;;
run)
    shift
    run_in_root "$@"
    ;;
*) usage ;;
esac
