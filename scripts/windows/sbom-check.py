"""sbom-check.py SBOM.json FILES_DIR: checks the Windows installer's SBOM. It must be
valid against the CycloneDX 1.6 JSON schema, name every .exe and .dll in FILES_DIR
with the file's SHA-256, and name no file that FILES_DIR lacks. Exits 1 and says what
is wrong otherwise (2 when the check itself cannot run).

The schemas are CycloneDX's own, as the npm package @cyclonedx/cyclonedx-library ships
them for offline use. The package, at a pinned version whose checksum is checked, is
fetched once with "npm pack" (nothing is installed) into a cache outside the
repository; validation then resolves the schemas' references from that cache only."""

import base64
import hashlib
import json
import os
import pathlib
import subprocess
import sys
import tarfile
import tempfile
import urllib.parse

try:
    import jsonschema
except ImportError:
    print("sbom-check.py: needs Python's jsonschema (Debian: python3-jsonschema)",
          file=sys.stderr)
    sys.exit(2)

PACKAGE = "@cyclonedx/cyclonedx-library"
VERSION = "10.3.0"
# The registry's own checksum of that version's package (npm view ... dist.integrity).
INTEGRITY = ("sha512-RIT28sp1U0PCHaaeF3yNRwk6Jig/XJ8UsYAVOMYaHQ+0VVOvsjcp0PTWQFLUqJFF8"
             "XMud+Kdq6G+wtDAh+QJFA==")
# The package names its copies of the schemas so, and refers to them by these names.
SCHEMAS = ("bom-1.6.SNAPSHOT.schema.json", "spdx.SNAPSHOT.schema.json",
           "jsf-0.82.SNAPSHOT.schema.json")
SHOWN_ERRORS = 20


class Failure(Exception):
    """The check could not run (as opposed to the SBOM failing it)."""


def cache_folder():
    base = os.environ.get("XDG_CACHE_HOME") or os.path.join(os.path.expanduser("~"), ".cache")
    return pathlib.Path(base, "vorkan-mac", f"cyclonedx-{VERSION}")


def fetch_schemas(folder):
    """Fetches the package and keeps its schemas in folder, which appears only whole."""
    folder.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(dir=folder.parent, prefix=".cyclonedx-") as work:
        work = pathlib.Path(work)
        try:
            packed = subprocess.run(["npm", "pack", "--ignore-scripts", "--no-update-notifier",
                                     f"{PACKAGE}@{VERSION}"],
                                    cwd=work, capture_output=True, text=True)
        except OSError as error:
            raise Failure(f"npm: {error} (Debian: npm)") from error
        if packed.returncode != 0:
            said = "\n".join(packed.stderr.strip().splitlines()[-5:])
            raise Failure(f"npm pack {PACKAGE}@{VERSION} failed:\n{said}")
        tarball, = work.glob("*.tgz")
        digest = hashlib.sha512(tarball.read_bytes()).digest()
        if "sha512-" + base64.b64encode(digest).decode() != INTEGRITY:
            raise Failure(f"{tarball.name}: not the pinned {PACKAGE} {VERSION} (checksum)")
        schemas = work / "schemas"
        schemas.mkdir()
        with tarfile.open(tarball) as archive:
            for name in SCHEMAS:
                member = archive.extractfile(f"package/res/schema/{name}")
                (schemas / name).write_bytes(member.read())
        schemas.rename(folder)


def load_schemas():
    """{URI: schema} of the CycloneDX 1.6 schema and of those it refers to."""
    folder = cache_folder()
    if not folder.is_dir():
        fetch_schemas(folder)
    loaded = {name: json.loads((folder / name).read_text(encoding="utf-8"))
              for name in SCHEMAS}
    # References are relative to the main schema's $id; each also has an $id of its own.
    base = loaded[SCHEMAS[0]]["$id"]
    schemas = {}
    for name, schema in loaded.items():
        schemas[urllib.parse.urljoin(base, name)] = schema
        schemas.setdefault(schema["$id"], schema)
    return base, schemas


def refuse_network(uri):
    raise Failure(f"the schema refers to {uri}, which is not in the cache")


def make_validator(base, schemas):
    """A draft-07 validator that resolves references among schemas only: through
    "referencing" (jsonschema 4.18 and later), else through RefResolver (4.10)."""
    main = schemas[base]
    try:
        from referencing import Registry, Resource
        from referencing.jsonschema import DRAFT7
    except ImportError:
        pass
    else:
        registry = Registry().with_resources(
            (uri, Resource.from_contents(schema, default_specification=DRAFT7))
            for uri, schema in schemas.items())
        try:
            return jsonschema.Draft7Validator(main, registry=registry)
        except TypeError:
            pass  # "referencing" installed beside a jsonschema older than 4.18
    resolver = jsonschema.RefResolver(base, main, store=dict(schemas),
                                      handlers={scheme: refuse_network for scheme in
                                                ("http", "https", "ftp", "file")})
    return jsonschema.Draft7Validator(main, resolver=resolver)


def schema_errors(bom):
    base, schemas = load_schemas()
    try:
        errors = sorted(make_validator(base, schemas).iter_errors(bom),
                        key=lambda error: [str(part) for part in error.absolute_path])
    except Exception as error:  # each jsonschema names its unresolved references apart
        raise Failure(f"the schema could not be applied: {error}") from error
    messages = []
    for error in errors:
        # "Valid under none of the given schemas" says little; the alternative that
        # went deepest into the SBOM before failing says most.
        while error.context:
            error = max(error.context, key=lambda inner: len(inner.absolute_path))
        where = "/" + "/".join(str(part) for part in error.absolute_path)
        # An enumeration's message lists every SPDX licence: the start is enough.
        message = error.message if len(error.message) < 200 else error.message[:200] + "..."
        messages.append(f"schema: at {where}: {message}")
    return messages


def all_components(bom):
    """Every component, nested ones and the described product included."""
    pending = [bom.get("metadata", {}).get("component")] + list(bom.get("components", []))
    while pending:
        component = pending.pop()
        if isinstance(component, dict):
            yield component
            pending += component.get("components", [])


def shipped_files(folder):
    return {path.relative_to(folder).as_posix(): path for path in folder.rglob("*")
            if path.is_file() and path.suffix.lower() in (".exe", ".dll")}


def named_path(folder, name):
    """The file a component names, or None for one outside the folder."""
    relative = pathlib.PurePosixPath(name.replace("\\", "/"))
    if relative.is_absolute() or ".." in relative.parts:
        return None
    return folder / relative


def file_errors(bom, folder):
    """What the SBOM says wrongly or leaves unsaid about the files in folder."""
    files, named, errors = shipped_files(folder), set(), []
    for component in all_components(bom):
        name = str(component.get("name", ""))
        locations = [occurrence.get("location", "") for occurrence in
                     component.get("evidence", {}).get("occurrences", [])]
        for location in locations:
            path = named_path(folder, str(location))
            if path is None or not path.is_file():
                errors.append(f"{component.get('bom-ref', name)}: names {location}, "
                              "which is not shipped")
        if not name.lower().endswith((".exe", ".dll")):
            continue
        path = named_path(folder, name)
        if path is None or not path.is_file():
            errors.append(f"component {name}: no such file in {folder}")
            continue
        if name in named:
            errors.append(f"{name}: more than one component")
        named.add(name)
        hashes = [entry.get("content", "").lower() for entry in component.get("hashes", [])
                  if entry.get("alg") == "SHA-256"]
        actual = hashlib.sha256(path.read_bytes()).hexdigest()
        if hashes != [actual]:
            errors.append(f"{name}: SHA-256 {', '.join(hashes) or 'missing'} in the SBOM, "
                          f"{actual} for the file")
        if not component.get("version"):
            errors.append(f"{name}: no version")
    errors += [f"{name}: shipped, but in no component" for name in sorted(set(files) - named)]
    return errors


def unversioned(bom):
    return sorted(component.get("bom-ref", component.get("name", "?"))
                  for component in all_components(bom) if not component.get("version"))


def main(arguments):
    if len(arguments) != 2:
        print(__doc__.split("\n\n")[0], file=sys.stderr)
        return 2
    sbom, folder = pathlib.Path(arguments[0]), pathlib.Path(arguments[1])
    try:
        bom = json.loads(sbom.read_text(encoding="utf-8"))
        errors = schema_errors(bom) + file_errors(bom, folder)
    except (Failure, OSError, ValueError) as error:
        print(f"sbom-check.py: cannot check {sbom}: {error}", file=sys.stderr)
        return 2
    if unversioned(bom):
        print(f"sbom-check.py: warning: no version for {', '.join(unversioned(bom))}",
              file=sys.stderr)
    if errors:
        for error in errors[:SHOWN_ERRORS]:
            print(f"sbom-check.py: {sbom}: {error}", file=sys.stderr)
        if len(errors) > SHOWN_ERRORS:
            print(f"sbom-check.py: ... and {len(errors) - SHOWN_ERRORS} more", file=sys.stderr)
        return 1
    count = len(shipped_files(folder))
    print(f"{sbom}: valid CycloneDX 1.6; the {count} programs and libraries in {folder} "
          "match it")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
