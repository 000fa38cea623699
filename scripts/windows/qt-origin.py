"""qt-origin.py BUILD SOURCE DEBIAN_VERSION: prints, as JSON, where the Qt built in BUILD
came from (the Debian source package and its version, Qt's own version) and the entries of
Qt's attribution files (qt_attribution.json) for the third-party code that the build
actually compiled, read off the dependencies ninja recorded for every object built."""

import json
import os
import re
import subprocess
import sys


def compiled_files(build):
    deps = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True,
                          capture_output=True, text=True).stdout
    return {os.path.normpath(os.path.join(build, line.strip()))
            for line in deps.splitlines() if line.startswith("    ")}


def attribution_folders(source):
    folders = {}
    for top, _, names in os.walk(os.path.join(source, "src")):
        if "qt_attribution.json" in names:
            folders[top] = os.path.join(top, "qt_attribution.json")
    return folders


def used_folders(files, folders):
    """Each attribution folder with the compiled files below it."""
    used = {}
    for path in files:
        folder = os.path.dirname(path)
        while folder not in folders and len(folder) > 1:
            folder = os.path.dirname(folder)
        if folder in folders:
            used.setdefault(folder, set()).add(path)
    return used


def compiled_entries(attribution, compiled):
    """The file's entries; one that names its files, only when one of them was compiled."""
    with open(attribution, encoding="utf-8") as file:
        # Some of Qt's attribution files hold raw control characters in their texts.
        data = json.load(file, strict=False)
    folder = os.path.dirname(attribution)
    for entry in data if isinstance(data, list) else [data]:
        names = entry.get("Files", [])
        names = names.split() if isinstance(names, str) else names
        named = {os.path.join(folder, name) for name in names}
        if not named or named & compiled:
            yield entry


def qt_version(source):
    with open(os.path.join(source, ".cmake.conf"), encoding="utf-8") as file:
        return re.search(r'QT_REPO_MODULE_VERSION "([^"]+)"', file.read()).group(1)


def main(build, source, debian_version):
    source = os.path.realpath(source)
    files = {os.path.realpath(path) for path in compiled_files(build)}
    folders = attribution_folders(source)
    bundled = [entry for folder, compiled in sorted(used_folders(files, folders).items())
               for entry in compiled_entries(folders[folder], compiled)]
    origin = {"source": "qt6-base", "version": debian_version,
              "qt_version": qt_version(source),
              "bundled": sorted(bundled, key=lambda entry: entry.get("Id", ""))}
    json.dump(origin, sys.stdout, indent=1, ensure_ascii=False)
    print()


if __name__ == "__main__":
    main(*sys.argv[1:])
