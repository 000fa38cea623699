"""sbom.py FILES_DIR QT_PREFIX VERSION OUT.json: writes the CycloneDX 1.6 SBOM of the
Windows installer, made from the files it installs (FILES_DIR, as staged for the MSI).

Each .exe and .dll is a component with its SHA-256, its version (from its version
resource, else from the Debian package that gave the file) and what it imports. Each
file comes from Qt (QT_PREFIX has a file of that name), from the compiler's runtime (a
Debian package, found with dpkg) or, for a program found in neither, from this project.
Qt itself, with the libraries compiled into it, is described by QT_PREFIX's
share/vorkan/qt-origin.json, which the Qt build writes from Debian's source.

The output depends on the inputs only (the files, qt-origin.json and the versions of
the installed Debian packages): lists are sorted, the serial number is a name-based UUID
of the content, and the time is SOURCE_DATE_EPOCH when set, else the modification time
of the newest input file (the shipped programs and libraries, and qt-origin.json)."""

import datetime
import hashlib
import json
import os
import pathlib
import re
import struct
import subprocess
import sys
import urllib.parse
import uuid

from peversion import describe, section_offset, version_block

COMPILER = "x86_64-w64-mingw32-g++-posix"
IMPORT_DIRECTORY = 1
PRODUCT = "vorkan-mac"
# A compound SPDX expression, as Qt's attribution files write some licences.
COMPOUND = re.compile(r"\s(AND|OR|WITH)\s|[()]")


class Failure(Exception):
    pass


def pe_files(folder):
    """Paths below folder (with "/") of every program and library, sorted."""
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*")
                  if path.is_file() and path.suffix.lower() in (".exe", ".dll"))


def pe_version(data):
    block = version_block(data)
    return describe(block)[0] if block is not None else None


def pe_imports(data):
    """The names of the libraries a PE file imports, from its import directory."""
    pe = struct.unpack_from("<I", data, 0x3C)[0]
    optional = pe + 24
    magic = struct.unpack_from("<H", data, optional)[0]
    directories = optional + (112 if magic == 0x20B else 96)
    rva, size = struct.unpack_from("<II", data, directories + 8 * IMPORT_DIRECTORY)
    names = []
    entry = section_offset(data, rva) if size else None
    while entry is not None:
        name = struct.unpack_from("<I", data, entry + 12)[0]
        if not name:
            break
        start = section_offset(data, name)
        names.append(data[start:data.index(b"\0", start)].decode("ascii"))
        entry += 20
    return names


def command(*arguments):
    result = subprocess.run(arguments, capture_output=True, text=True)
    return result.stdout.strip() if result.returncode == 0 else None


def debian_package(path):
    """(package, version, architecture, source, source version) that installed path."""
    owner = None
    # The compiler prints paths with "..", dpkg knows them without.
    for candidate in (os.path.normpath(path), os.path.realpath(path)):
        found = command("dpkg-query", "-S", candidate)
        lines = [line for line in (found or "").splitlines()
                 if not line.startswith("diversion by")]
        if lines:
            owner = lines[0].split(": ", 1)[0].split(", ")[0]
            break
    if owner is None:
        raise Failure(f"{path}: no Debian package installed it")
    fields = command("dpkg-query", "-W", "-f",
                     "${Package}\t${Version}\t${Architecture}\t${source:Package}\t"
                     "${source:Version}", owner)
    return tuple(fields.split("\t"))


def runtime_file(name):
    """The compiler's own copy of a runtime library, or None."""
    try:
        path = command(COMPILER, f"-print-file-name={name}")
    except FileNotFoundError:
        return None
    return path if path and os.path.isabs(path) and os.path.isfile(path) else None


def origin(path, qt_prefix):
    """"qt", a Debian package tuple, or PRODUCT for one of this project's programs."""
    name = pathlib.PurePosixPath(path).name
    if (qt_prefix / "bin" / name).is_file() or (qt_prefix / "plugins" / path).is_file():
        return "qt"
    runtime = runtime_file(name)
    if runtime:
        return debian_package(runtime)
    if path.lower().endswith(".exe") and "/" not in path:
        return PRODUCT
    raise Failure(f"{path}: neither Qt's, nor the compiler's, nor one of the programs")


def purl_version(version):
    # Package URLs escape "+" and ":" (an epoch) in versions.
    return urllib.parse.quote(version, safe="")


def licences(expression, name=None):
    """CycloneDX licences of an SPDX expression, or of a licence known by name only."""
    if expression:
        if COMPOUND.search(expression) or expression.startswith("LicenseRef-"):
            return [{"expression": expression}]
        return [{"license": {"id": expression}}]
    return [{"license": {"name": name}}] if name else []


def one_of(value):
    """The first of a value that Qt's attribution files give as a text or a list."""
    return (value[0] if value else None) if isinstance(value, list) else value


def with_version(text, version):
    """Qt 6.8's package URLs and CPEs name the version as $<VERSION>, or dashed
    ($<VERSION_DASHED>: 2-13-3) or with underscores; a text without one is left as is."""
    if not text or not version:
        return text
    version = str(version)
    for name, separator in (("VERSION", "."), ("VERSION_DASHED", "-"),
                            ("VERSION_UNDERSCORED", "_")):
        text = text.replace(f"$<{name}>", version.replace(".", separator))
    return text


def bundled(entry):
    """The component of a library compiled into Qt, from its qt_attribution.json entry,
    and the warning to print when it lacks a version or licence."""
    identifier = entry.get("Id") or entry["Name"]
    version = entry.get("Version")
    component = {"type": "library", "bom-ref": f"qt/{identifier}",
                 "name": entry.get("Name", identifier)}
    properties = [{"name": "vorkan:qt-attribution-id", "value": identifier}]
    problems = []
    if version:
        component["version"] = str(version)
    else:
        problems.append("version")
        properties.append({"name": "vorkan:version-missing",
                           "value": "Qt's attribution file names no version"})
    component["licenses"] = licences(entry.get("LicenseId"), entry.get("License"))
    if not component["licenses"]:
        problems.append("licence")
    copyright = entry.get("Copyright")
    if copyright:
        component["copyright"] = "\n".join(copyright) if isinstance(copyright, list) \
            else copyright
    if entry.get("Description"):
        component["description"] = entry["Description"]
    for key, field, prefix in (("PURL", "purl", "pkg:"), ("CPE", "cpe", "cpe:")):
        value = with_version(one_of(entry.get(key)), version)
        if value and value.startswith(prefix) and "$<" not in value:
            component[field] = value
    references = [{"type": kind, "url": entry[key]} for key, kind in
                  (("Homepage", "website"), ("DownloadLocation", "distribution"))
                  if entry.get(key)]
    if references:
        component["externalReferences"] = references
    if entry.get("QtUsage"):
        properties.append({"name": "vorkan:qt-usage", "value": entry["QtUsage"]})
    component["properties"] = properties
    warning = f"no {' and no '.join(problems)} for {identifier}" if problems else None
    return component, warning


def qt_component(qt_origin, locations):
    source, debian_version = qt_origin["source"], qt_origin["version"]
    version = qt_origin["qt_version"]
    return {
        "type": "framework", "bom-ref": "qt", "name": "qtbase", "version": version,
        "description": f"Qt {version} (Core, Gui, Widgets and plugins), cross-built for "
                       f"Windows from Debian's {source} source {debian_version}",
        "licenses": licences("LGPL-3.0-only"),
        "purl": f"pkg:deb/debian/{source}@{purl_version(debian_version)}?arch=source",
        "cpe": f"cpe:2.3:a:qt:qt:{version}:*:*:*:*:*:*:*",
        "properties": [{"name": "vorkan:debian-source-version", "value": debian_version}],
        "evidence": {"occurrences": [{"location": path} for path in locations]},
    }


def package_component(package, locations):
    name, version, architecture, source, source_version = package
    return {
        "type": "library", "bom-ref": f"deb/{name}", "name": name, "version": version,
        "purl": f"pkg:deb/debian/{name}@{purl_version(version)}?arch={architecture}",
        "properties": [{"name": "vorkan:debian-source",
                        "value": f"{source} {source_version}"}],
        "evidence": {"occurrences": [{"location": path} for path in locations]},
    }


def file_component(path, data, source):
    """A shipped file's component, and the bom-ref of what it comes from."""
    version, where = pe_version(data), "version resource"
    if version is None and isinstance(source, tuple):
        version, where = source[1], f"Debian package {source[0]}"
    if version is None:
        raise Failure(f"{path}: no version resource, and not from a Debian package")
    component = {
        "type": "application" if path.lower().endswith(".exe") else "library",
        "bom-ref": f"file/{path}", "name": path, "version": version,
        "hashes": [{"alg": "SHA-256", "content": hashlib.sha256(data).hexdigest()}],
        "properties": [{"name": "vorkan:version-source", "value": where}],
    }
    if source == PRODUCT:
        component["licenses"] = licences("MIT")
    parent = "qt" if source == "qt" else PRODUCT if source == PRODUCT else f"deb/{source[0]}"
    return component, parent


def shipped(files_dir, qt_prefix, qt_origin):
    """The components and dependencies of the shipped files and of where they come from."""
    components, depends, sources = {}, {}, {}
    paths = pe_files(files_dir)
    by_name = {pathlib.PurePosixPath(path).name.lower(): path for path in paths}
    for path in paths:
        data = (files_dir / path).read_bytes()
        source = origin(path, qt_prefix)
        component, parent = file_component(path, data, source)
        components[component["bom-ref"]] = component
        imported = {by_name[name.lower()] for name in pe_imports(data)
                    if name.lower() in by_name}
        depends[component["bom-ref"]] = {f"file/{name}" for name in imported}
        sources.setdefault(parent, (source, []))[1].append(path)
        if parent != PRODUCT:
            depends[component["bom-ref"]].add(parent)
    if "qt" in sources:
        core = components.get("file/Qt6Core.dll", {}).get("version", "")
        if not core.startswith(qt_origin["qt_version"] + "."):
            raise Failure(f"Qt6Core.dll is version {core or 'unknown'}, but "
                          f"qt-origin.json says Qt {qt_origin['qt_version']}")
        components["qt"] = qt_component(qt_origin, sources["qt"][1])
    for parent, (source, locations) in sources.items():
        if parent.startswith("deb/"):
            components[parent] = package_component(source, locations)
    return components, depends, sources.get(PRODUCT, (None, []))[1]


def add_bundled(entries, components, depends):
    """The libraries compiled into Qt, as parts of it; says which lack what."""
    warnings = []
    for entry in entries:
        component, warning = bundled(entry)
        if component["bom-ref"] in components:
            raise Failure(f"qt-origin.json names {component['bom-ref']} twice")
        warnings += [warning] if warning else []
        components[component["bom-ref"]] = component
        depends.setdefault("qt", set()).add(component["bom-ref"])
    if warnings:
        print(f"sbom.py: warning: Qt's attribution gives {'; '.join(warnings)}",
              file=sys.stderr)


def timestamp(inputs):
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    seconds = int(epoch) if epoch else max(int(path.stat().st_mtime) for path in inputs)
    moment = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc)
    return moment.strftime("%Y-%m-%dT%H:%M:%SZ")


def bom(files_dir, qt_prefix, version):
    origin_file = qt_prefix / "share/vorkan/qt-origin.json"
    # Qt's attribution texts may hold raw tabs, which strict JSON refuses.
    qt_origin = json.loads(origin_file.read_text(encoding="utf-8"), strict=False)
    components, depends, programs = shipped(files_dir, qt_prefix, qt_origin)
    if not programs:
        raise Failure(f"{files_dir}: no program of this project")
    if "qt" in components:
        add_bundled(qt_origin.get("bundled", []), components, depends)
    depends[PRODUCT] = {f"file/{path}" for path in programs}
    inputs = [files_dir / path for path in pe_files(files_dir)] + [origin_file]
    document = {
        "$schema": "http://cyclonedx.org/schema/bom-1.6.schema.json",
        "bomFormat": "CycloneDX", "specVersion": "1.6", "version": 1,
        "metadata": {
            "timestamp": timestamp(inputs),
            "tools": {"components": [{"type": "application", "name": "sbom.py",
                                      "description": "Vorkan MAC's scripts/windows/sbom.py",
                                      "version": version}]},
            "component": {"type": "application", "bom-ref": PRODUCT, "name": "Vorkan MAC",
                          "version": version, "licenses": licences("MIT")},
        },
        "components": [components[ref] for ref in sorted(components)],
        "dependencies": [{"ref": ref, "dependsOn": sorted(depends.get(ref, ()))}
                         for ref in sorted({PRODUCT, *components})],
    }
    # The serial number is the content's own, so that equal inputs give equal files.
    content = json.dumps(document, sort_keys=True, separators=(",", ":"))
    serial = uuid.uuid5(uuid.NAMESPACE_URL, "urn:vorkan-mac:sbom:" + content)
    return {"$schema": document.pop("$schema"), "bomFormat": document.pop("bomFormat"),
            "specVersion": document.pop("specVersion"), "serialNumber": serial.urn,
            **document}


def main(arguments):
    if len(arguments) != 4:
        print(__doc__.split("\n\n")[0], file=sys.stderr)
        return 2
    files_dir, qt_prefix, version, output = arguments
    try:
        document = bom(pathlib.Path(files_dir), pathlib.Path(qt_prefix), version)
    except KeyError as error:
        print(f"sbom.py: qt-origin.json lacks the field {error}", file=sys.stderr)
        return 1
    except (Failure, OSError, ValueError, struct.error) as error:
        print(f"sbom.py: {error}", file=sys.stderr)
        return 1
    text = json.dumps(document, indent=2, ensure_ascii=False) + "\n"
    pathlib.Path(output).write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
