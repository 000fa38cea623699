"""peversion.py [--strings] FILE...: the version resource of Windows programs and
libraries, read from the files themselves. For each file that has one, prints
"FILE VERSION LANGUAGE" (1.0.69.0 1036), and with --strings its texts below, one
"  Name: text" a line. Files without a version resource print nothing.

The installer's file list takes versions and languages from here (wixl does not read
them), and the README's checks use it to show what Explorer would."""

import struct
import sys

RT_VERSION = 16


def section_offset(data, rva):
    """The file offset of a relative virtual address, through the section table."""
    pe = struct.unpack_from("<I", data, 0x3C)[0]
    sections, optional_size = struct.unpack_from("<H12xH", data, pe + 6)
    table = pe + 24 + optional_size
    for index in range(sections):
        size, address, _, raw = struct.unpack_from("<4I", data, table + 40 * index + 8)
        if address <= rva < address + max(size, 1):
            return raw + rva - address
    raise ValueError(f"address {rva:#x} is in no section")


def resource_root(data):
    """The file offset of the resource directory, or None."""
    if data[:2] != b"MZ":
        return None
    pe = struct.unpack_from("<I", data, 0x3C)[0]
    if data[pe:pe + 4] != b"PE\0\0":
        return None
    optional = pe + 24
    magic = struct.unpack_from("<H", data, optional)[0]
    directories = optional + (112 if magic == 0x20B else 96)
    rva, size = struct.unpack_from("<II", data, directories + 8 * 2)
    return section_offset(data, rva) if size else None


def first_entry(data, root, directory, wanted=None):
    """The offset field of a directory's first entry (whose id is wanted, if given)."""
    named, numbered = struct.unpack_from("<HH", data, root + directory + 12)
    for index in range(named + numbered):
        name, offset = struct.unpack_from("<II", data, root + directory + 16 + 8 * index)
        if wanted is None or (not name & 0x80000000 and name == wanted):
            return offset
    return None


def version_block(data):
    """The raw VS_VERSIONINFO of a PE file, or None: type, then name, then language."""
    root = resource_root(data)
    if root is None:
        return None
    offset = first_entry(data, root, 0, RT_VERSION)
    for _ in range(2):
        if offset is None or not offset & 0x80000000:
            return None
        offset = first_entry(data, root, offset & 0x7FFFFFFF)
    if offset is None or offset & 0x80000000:
        return None
    rva, size = struct.unpack_from("<II", data, root + offset)
    start = section_offset(data, rva)
    return data[start:start + size]


def align(offset):
    return (offset + 3) & ~3


def nodes(block, start=0, end=None):
    """The nodes of a version block at one level: (key, value bytes, children span)."""
    end = len(block) if end is None else end
    while start + 6 <= end:
        length, value_length, text = struct.unpack_from("<HHH", block, start)
        if length == 0:
            break
        key_end = start + 6
        while block[key_end:key_end + 2] != b"\0\0":
            key_end += 2
        key = block[start + 6:key_end].decode("utf-16-le")
        value = align(key_end + 2)
        value_end = value + value_length * (2 if text else 1)
        yield key, block[value:value_end], (align(value_end), start + length)
        start = align(start + length)


def describe(block):
    """(file version, language, {name: text}) of a version block."""
    (key, fixed, children), = list(nodes(block))[:1]
    signature, _, high, low = struct.unpack_from("<4I", fixed)
    if key != "VS_VERSION_INFO" or signature != 0xFEEF04BD:
        raise ValueError("not a version resource")
    version = f"{high >> 16}.{high & 0xFFFF}.{low >> 16}.{low & 0xFFFF}"
    language, texts = 0, {}
    for name, _, span in nodes(block, *children):
        for table, value, entries in nodes(block, *span):
            if name == "VarFileInfo" and table == "Translation" and len(value) >= 2:
                language = struct.unpack_from("<H", value)[0]
            elif name == "StringFileInfo":
                for text_name, text, _ in nodes(block, *entries):
                    texts[text_name] = text.decode("utf-16-le").rstrip("\0")
    return version, language, texts


def main(arguments):
    strings = arguments[:1] == ["--strings"]
    for path in arguments[1:] if strings else arguments:
        with open(path, "rb") as file:
            block = version_block(file.read())
        if block is None:
            continue
        version, language, texts = describe(block)
        print(path, version, language)
        if strings:
            for name, text in texts.items():
                print(f"  {name}: {text}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
