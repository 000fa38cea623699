#!/usr/bin/env bash
# Prints the folder of a Qt built for 64-bit Windows, building it first when the cache
# lacks it. No Debian package gives Qt for mingw-w64, so it is cross-built, once per
# Qt version, from Debian's own source of the Qt this machine has: qtbase only, with
# Qt's build tools taken from Debian's Qt. The cache lives outside the repository, and
# only a finished build ever takes the cache's name.
set -euo pipefail
repo=$(cd "$(dirname "$0")/../.." && pwd)

debian_version=$(dpkg-query -W -f='${Version}' qt6-base-dev)
version=${debian_version%%+*}
cache=${XDG_CACHE_HOME:-$HOME/.cache}/vorkan-mac
qt=$cache/qt6-mingw-$version
if [[ -f $qt/lib/cmake/Qt6/Qt6Config.cmake ]]; then
    echo "$qt"
    exit 0
fi

# The build folder outlives a failed or interrupted run, which then goes on from where
# it stopped; it is removed once Qt is in place.
work=$cache/.qt6-mingw-$version.build
mkdir -p "$work"
stage=$(mktemp -d "$cache/.qt6-mingw-$version.XXXXXX")
trap 'rm -rf "$stage"' EXIT
echo "Building Qt $version for Windows once, into $qt (about 35 minutes on 2 cores)" >&2

# Debian's source from the archive that gave the installed Qt, through a sources list
# and package lists of this run's own, so the machine's apt setup is left as it was.
read -r _ uri dist _ < <(apt-cache policy qt6-base-dev | awk '/^ \*\*\*/ { getline; print; exit }')
mkdir -p "$work/apt/lists/partial" "$work/apt/cache/archives/partial" "$work/apt/parts"
echo "deb-src $uri ${dist%/*} ${dist#*/}" >"$work/apt/sources.list"
apt_options=(-o "Dir::Etc::SourceList=$work/apt/sources.list"
    -o "Dir::Etc::SourceParts=$work/apt/parts" -o "Dir::State::Lists=$work/apt/lists"
    -o "Dir::Cache=$work/apt/cache" -o "APT::Sandbox::User=$(id -un)")
source_dir=$(find "$work" -maxdepth 1 -type d -name 'qt6-base-*' | head -n 1)
if [[ -z $source_dir ]]; then
    apt-get "${apt_options[@]}" update -qq >&2
    (cd "$work" && apt-get "${apt_options[@]}" source -qq "qt6-base=$debian_version" >&2)
    source_dir=$(find "$work" -maxdepth 1 -type d -name 'qt6-base-*' | head -n 1)
fi

# Debian's trimmed source lacks the tablet (wintab) header. The modules the programs
# do not use are left out to shorten the build.
cmake -G Ninja -S "$source_dir" -B "$work/build" \
    -DCMAKE_TOOLCHAIN_FILE="$repo/cmake/mingw-w64-x86_64.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_pkg_config=OFF \
    -DFEATURE_tabletevent=OFF -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF \
    -DFEATURE_printsupport=OFF >&2
# The machine is shared: two jobs at most.
cmake --build "$work/build" -j 2 >&2
DESTDIR=$stage cmake --install "$work/build" >&2
rm -rf "$qt"
mv "$stage$qt" "$qt"
rm -rf "$work"
echo "$qt"
