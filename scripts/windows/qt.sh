#!/usr/bin/env bash
# Prints the folder of a Qt built for 64-bit Windows, building it first when the cache
# lacks it. No Debian package gives Qt for mingw-w64, so it is cross-built from the
# source of Debian 13's Qt (a long-term-support series, which Debian's security team
# patches), with Qt's build tools of the same version from Debian 13's own packages; on
# another release this runs in a Debian 13 root (scripts/windows/root.sh). Only qtbase,
# and of it only what the programs and their tests load. The cache lives outside the
# repository, one folder per Debian version of the source and build set-up (so a
# security update or a change to either builds anew), and only a finished build ever
# takes its name. Beside Qt, share/vorkan/qt-origin.json names its source and the
# third-party code compiled into it, for the installer's bill of materials.
set -euo pipefail
repo=$(cd "$(dirname "$0")/../.." && pwd)
. /etc/os-release
[[ $VERSION_CODENAME == trixie ]] || exec "$repo/scripts/windows/root.sh" scripts/windows/qt.sh
toolchain=$repo/cmake/mingw-w64-x86_64.cmake
harfbuzz=$repo/cmake/qt-harfbuzz-unity.cmake

# Debian's tablet (wintab) header is missing from its trimmed source. The rest is left
# out because nothing the programs do or show uses it: modules and plugins they do not
# load, the Direct2D platform plugin (not its DirectWrite font engine, which the
# windows plugin uses), and classes they never create, most of them widgets, with what
# only those classes need; not those that the Windows styles or Qt's own compatibility
# code include whatever the set-up (tool bars, tabs, spin boxes, text editors, tables,
# input dialogs, radio buttons, and for the Windows 11 style graphics views, shadow
# effects, command link buttons and style sheets). FreeType stays: under Wine, text in
# fields shows only with its font engine. Optimised for size, as the Linux program is:
# smaller libraries, and less time to build. Compiled as unity sources, Qt's own set-up
# knowing which files must compile alone, HarfBuzz as one unit
# (cmake/qt-harfbuzz-unity.cmake): half the time.
# Qt's own bill of materials expects every file of a whole build installed; the
# installer's (scripts/windows/sbom.py) names what ships.
options=(-DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_GENERATE_SBOM=OFF
    -DFEATURE_pkg_config=OFF
    -DFEATURE_optimize_size=ON -DFEATURE_tabletevent=OFF
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_printsupport=OFF
    -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF -DINPUT_opengl=no
    -DFEATURE_vulkan=OFF -DFEATURE_direct2d1_1=OFF
    -DFEATURE_jpeg=OFF -DFEATURE_gif=OFF -DFEATURE_ico=OFF
    -DFEATURE_pdf=OFF -DFEATURE_textodfwriter=OFF -DFEATURE_textmarkdownreader=OFF
    -DFEATURE_textmarkdownwriter=OFF -DFEATURE_undocommand=OFF -DFEATURE_movie=OFF
    -DQT_UNITY_BUILD=ON -DFEATURE_style_fusion=OFF
    -DFEATURE_calendarwidget=OFF -DFEATURE_datetimeedit=OFF
    -DFEATURE_dial=OFF -DFEATURE_dockwidget=OFF -DFEATURE_fontcombobox=OFF
    -DFEATURE_keysequenceedit=OFF -DFEATURE_lcdnumber=OFF -DFEATURE_mdiarea=OFF
    -DFEATURE_splashscreen=OFF -DFEATURE_splitter=OFF -DFEATURE_textbrowser=OFF
    -DFEATURE_toolbox=OFF -DFEATURE_colordialog=OFF
    -DFEATURE_errormessage=OFF -DFEATURE_filedialog=OFF -DFEATURE_fontdialog=OFF
    -DFEATURE_progressdialog=OFF -DFEATURE_wizard=OFF
    -DFEATURE_columnview=OFF -DFEATURE_datawidgetmapper=OFF -DFEATURE_undoview=OFF
    -DFEATURE_listwidget=OFF -DFEATURE_tablewidget=OFF
    -DFEATURE_completer=OFF -DFEATURE_progressbar=OFF -DFEATURE_rubberband=OFF
    -DFEATURE_sizegrip=OFF -DFEATURE_gestures=OFF -DFEATURE_scroller=OFF
    -DFEATURE_whatsthis=OFF -DFEATURE_systemtrayicon=OFF -DFEATURE_syntaxhighlighter=OFF
    -DFEATURE_picture=OFF -DFEATURE_filesystemmodel=OFF -DFEATURE_filesystemwatcher=OFF
    -DFEATURE_mimetype=OFF -DFEATURE_timezone=OFF -DFEATURE_hijricalendar=OFF
    -DFEATURE_islamiccivilcalendar=OFF -DFEATURE_jalalicalendar=OFF -DFEATURE_sharedmemory=OFF
    -DFEATURE_systemsemaphore=OFF -DFEATURE_future=OFF -DFEATURE_commandlineparser=OFF
    -DFEATURE_identityproxymodel=OFF -DFEATURE_concatenatetablesproxymodel=OFF
    -DFEATURE_transposeproxymodel=OFF)
# The libraries, platform plugin and styles (windowsvista and windows11) that the
# programs and tests load.
targets=(Core Gui Widgets Test EntryPointImplementation QWindowsIntegrationPlugin
    QModernWindowsStylePlugin)

debian_version=$(dpkg-query -W -f='${Version}' qt6-base-dev)
setup=$(printf '%s\n' "${options[@]}" "${targets[@]}" |
    cat - "$toolchain" "$harfbuzz" "$repo/scripts/windows/qt-origin.py" | sha256sum)
setup=${setup:0:8}
cache=${XDG_CACHE_HOME:-$HOME/.cache}/vorkan-mac
qt=$cache/qt6-mingw-$debian_version-$setup
if [[ -f $qt/lib/cmake/Qt6/Qt6Config.cmake ]]; then
    echo "$qt"
    exit 0
fi

# The build folder outlives a failed or interrupted run, which then goes on from where
# it stopped; it is removed once Qt is in place.
work=$cache/.qt6-mingw-$debian_version-$setup.build
mkdir -p "$work"
stage=$(mktemp -d "$cache/.qt6-mingw-$debian_version.XXXXXX")
trap 'rm -rf "$stage"' EXIT
echo "Building Qt $debian_version for Windows once, into $qt (about 20 minutes on 2 cores)" >&2

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

cmake -G Ninja -S "$source_dir" -B "$work/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DCMAKE_PROJECT_QtBase_INCLUDE="$harfbuzz" "${options[@]}" >&2
# The machine is shared: two jobs at most.
cmake --build "$work/build" -j 2 --target "${targets[@]}" >&2
# The install rules of the folders that made them, each folder's own only, and of the
# top folder: Qt's CMake set-up.
folders=(. src src/{corelib,gui,widgets,testlib,entrypoint} src/3rdparty
    src/plugins/{platforms/windows,styles/modernwindows})
for folder in "${folders[@]/#/$work/build/}" "$work"/build/src/3rdparty/*; do
    rules=$folder/cmake_install.cmake
    [[ ! -f $rules ]] || DESTDIR=$stage cmake -DCMAKE_INSTALL_LOCAL_ONLY=ON -P "$rules" >&2
done
# The top folder also names the support modules of plugins that were not built.
for module in "$stage$qt"/lib/cmake/*/; do
    compgen -G "$module*Config.cmake" >/dev/null || rm -r "$module"
done
mkdir -p "$stage$qt/share/vorkan"
/usr/bin/python3 "$repo/scripts/windows/qt-origin.py" "$work/build" "$source_dir" \
    "$debian_version" >"$stage$qt/share/vorkan/qt-origin.json"
rm -rf "$qt"
mv "$stage$qt" "$qt"
rm -rf "$work"
echo "$qt"
