"""msiversions.py MSI FILES_WXS FOLDER: writes into the installer's File table the version
and language of each file that has a version resource, as Windows Installer's own tools
would; wixl leaves both empty. FILES_WXS is wixl-heat's list of the files, which are
in FOLDER. Then reads the table back and prints each file with its version."""

import pathlib
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

from peversion import describe, version_block

WIX = "{http://schemas.microsoft.com/wix/2006/wi}"
SOURCE = "$(var.SourceDir)/"


def listed_files(files_wxs):
    """(File key, path below the folder) of every file in the list."""
    for file in ElementTree.parse(files_wxs).iter(f"{WIX}File"):
        source = file.get("Source")
        if not source.startswith(SOURCE):
            raise ValueError(f"{source}: not in the installer's folder")
        yield file.get("Id"), source[len(SOURCE):]


def file_table(msi):
    """{File key: (name, version)} as the installer holds them."""
    text = subprocess.run(["msiinfo", "export", msi, "File"], check=True,
                          capture_output=True, text=True).stdout
    rows = [line.split("\t") for line in text.splitlines()[3:]]
    return {row[0]: (row[2].split("|")[-1], row[4]) for row in rows}


def main(msi, files_wxs, folder):
    queries, expected = [], {}
    for key, path in listed_files(files_wxs):
        block = version_block((pathlib.Path(folder) / path).read_bytes())
        if block is None:
            continue
        version, language, _ = describe(block)
        expected[key] = version
        queries += ["-q", f"UPDATE `File` SET `Version` = '{version}', "
                          f"`Language` = '{language}' WHERE `File` = '{key}'"]
    if queries:
        subprocess.run(["msibuild", msi, *queries], check=True)
    table = file_table(msi)
    for key, (name, version) in sorted(table.items(), key=lambda item: item[1][0]):
        print(f"  {name} {version or '(no version)'}")
    wrong = [key for key, version in expected.items() if table.get(key, ("", ""))[1] != version]
    if wrong:
        print(f"versions not written for {', '.join(wrong)}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
