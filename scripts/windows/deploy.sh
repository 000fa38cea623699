#!/usr/bin/env bash
# deploy.sh QT FOLDER PROGRAM...: puts beside the Windows programs in FOLDER what they
# load: the Qt platform plugin and style, then every library that these and the
# programs import, followed from one library to the next, taken from QT or from the
# compiler's runtime. Windows' own libraries are left out. Prints what it added.
set -euo pipefail
qt=$1 folder=$2
shift 2

# The platform plugin draws the windows; the styles give the controls Windows' look:
# windows11 on Windows 11, windowsvista on Windows 10, in one plugin.
plugins=(platforms/qwindows.dll styles/qmodernwindowsstyle.dll)
compiler=x86_64-w64-mingw32-g++-posix

imports() {
    x86_64-w64-mingw32-objdump -p "$folder/$1" | awk '/DLL Name:/ { print $3 }'
}

# A library of Qt or of the compiler's runtime, or nothing for one of Windows' own.
library_source() {
    if [[ -f $qt/bin/$1 ]]; then
        echo "$qt/bin/$1"
        return
    fi
    local runtime
    runtime=$("$compiler" -print-file-name="$1")
    [[ $runtime == /* ]] && echo "$runtime"
    return 0
}

queue=("$@")
for plugin in "${plugins[@]}"; do
    mkdir -p "$folder/$(dirname "$plugin")"
    cp "$qt/plugins/$plugin" "$folder/$plugin"
    echo "$plugin"
    queue+=("$plugin")
done
declare -A seen=()
while [[ ${#queue[@]} -gt 0 ]]; do
    file=${queue[0]}
    queue=("${queue[@]:1}")
    for library in $(imports "$file"); do
        [[ -z ${seen[$library]:-} ]] || continue
        seen[$library]=1
        source=$(library_source "$library")
        [[ -n $source ]] || continue
        cp "$source" "$folder/$library"
        echo "$library"
        queue+=("$library")
    done
done
