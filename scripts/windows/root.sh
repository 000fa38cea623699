#!/usr/bin/env bash
# root.sh COMMAND...: runs COMMAND (a path in the checkout) where Windows is built and
# tested: on Debian 13 here; elsewhere in a Debian 13 root, build/roots/windows, made
# once (scripts/debian-root.sh) with what scripts/deps.sh windows installs. Qt for
# Windows is built from Debian 13's source with Debian 13's tools of the same version,
# mingw-w64 g++ 14, and tested under its Wine 10. The root shares this machine's cache
# folder (the Qt build) and build/windows (the programs, installer and its bill of
# materials), and takes the signing certificate given in the environment.
set -euo pipefail
cd "$(dirname "$0")/../.."
. /etc/os-release
[[ $VERSION_CODENAME != trixie ]] || exec "$@"

root=$PWD/build/roots/windows
if [[ ! -f $root/.ready ]]; then
    root=$(scripts/debian-root.sh new trixie minbase windows)
    scripts/debian-root.sh run "$root" scripts/deps.sh windows
    touch "$root/.ready"
fi
if [[ -n ${VORKAN_SIGN_PKCS12:-} ]]; then
    mkdir -p build/windows
    install -m 600 "$VORKAN_SIGN_PKCS12" build/windows/.signer.p12
    export VORKAN_SIGN_PKCS12=/src/build/windows/.signer.p12
fi
VORKAN_ROOT_BIND=build/windows exec scripts/debian-root.sh run "$root" "$@"
