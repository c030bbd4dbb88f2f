#!/usr/bin/env python3
"""Holds every include against the order of levels: arrows point down only.

A folder may include itself, the folders that its row names, the standard library, and the libraries
that its row names by the start of their headers. Prints each include that breaks this; exit 1.
"""
import re
import subprocess
import sys

# folder: (folders that it may use, library headers that it may use)
LAYERS = {
    "base": ((), ("unicode/",)),
    "linguistics": (("base",), ("unicode/", "cld2/")),
    "analysis/tagger": (("base",), ()),
    "ports": (("base",), ()),
    "analysis": (("analysis/tagger", "ports", "base"), ("unicode/",)),
    "document": (("analysis", "ports", "base"), ()),
    "app": (("document", "analysis", "ports", "base"), ()),
    "platform/linguistics": (("linguistics", "analysis/tagger", "base"), ("unicode/",)),
    "platform/qt": (
        ("app", "document", "analysis", "analysis/tagger", "ports", "platform/linguistics", "linguistics", "base"),
        ("Q", "unicode/"),
    ),
    "tools": (
        ("document", "analysis", "analysis/tagger", "ports", "platform/linguistics", "linguistics", "base"),
        ("CLI/", "nlohmann/", "unicode/"),
    ),
}
# Within a folder that holds folders of its own: which of them each may use.
INSIDE = {
    "platform/qt/theme": (),
    "platform/qt/panes": ("platform/qt/theme",),
    "platform/qt/adapters": ("platform/qt/panes", "platform/qt/theme"),
    "platform/qt/windows": ("platform/qt/adapters", "platform/qt/panes", "platform/qt/theme"),
    "platform/qt/documents": (
        "platform/qt/windows", "platform/qt/adapters", "platform/qt/panes", "platform/qt/theme",
    ),
    "platform/qt/shell": ("platform/qt/windows",),
    "platform/qt/sidewindows": (
        "platform/qt/windows", "platform/qt/adapters", "platform/qt/panes", "platform/qt/theme",
    ),
    "linguistics/text": (),
    "linguistics/file": ("linguistics/text",),
    "linguistics/segmentation": ("linguistics/text", "linguistics/file"),
    "linguistics/language": ("linguistics/text", "linguistics/file"),
    "linguistics/tagging": ("linguistics/text", "linguistics/file"),
    "linguistics/network": ("linguistics/text", "linguistics/file", "linguistics/tagging"),
    "linguistics/lemmas": ("linguistics/text", "linguistics/file"),
    "linguistics/model": (
        "linguistics/text", "linguistics/file", "linguistics/segmentation", "linguistics/language",
        "linguistics/tagging", "linguistics/network", "linguistics/lemmas",
    ),
    "document/format": (),
    "document/text": ("document/format",),
    "document/markup": (),
    "document/xml": ("document/format", "document/text", "document/markup"),
    "document/package": ("document/format",),
    "document/rtf": ("document/format", "document/text"),
    "document/html": ("document/format", "document/text", "document/markup"),
    "document/odf": ("document/format", "document/text", "document/xml", "document/package"),
    "document/docx": ("document/format", "document/text", "document/xml", "document/package"),
    "document/epub": ("document/format", "document/xml", "document/package", "document/html"),
    "document/detection": (
        "document/format", "document/package", "document/rtf", "document/html", "document/odf",
        "document/docx", "document/epub",
    ),
    "app/plist": (),
    "app/windows": (),
    "tools/lexiform-cli": (),
    "tools/train/file": (),
    "tools/train/corpora": (),
    "tools/train/sources": ("tools/train/corpora",),
    "tools/train/lexicon": ("tools/train/corpora", "tools/train/sources"),
    "tools/train/chain": (
        "tools/train/corpora", "tools/train/lexicon", "tools/train/sources", "tools/train/file",
    ),
    "tools/train/silver": (
        "tools/train/corpora", "tools/train/lexicon", "tools/train/sources", "tools/train/file", "tools/train/chain",
        "tools/train/segmentation",
    ),
    "tools/train/lemmas": ("tools/train/corpora", "tools/train/sources", "tools/train/file"),
    "tools/train/language": ("tools/train/corpora", "tools/train/file"),
    "tools/train/segmentation": ("tools/train/corpora", "tools/train/sources", "tools/train/file"),
    "tools/train/network": (
        "tools/train/corpora", "tools/train/lexicon", "tools/train/sources", "tools/train/file",
    ),
    "tools/train/evaluation": ("tools/train/corpora",),
    "tools/train/commands": (
        "tools/train/corpora", "tools/train/lexicon", "tools/train/sources", "tools/train/file",
        "tools/train/chain", "tools/train/silver", "tools/train/network", "tools/train/segmentation",
        "tools/train/lemmas", "tools/train/language", "tools/train/evaluation",
    ),
    "tools/train": (),
}
# Within such a folder: the library headers that it alone may use.
LIBRARIES_INSIDE = {
    "document/text": ("unicode/",),
    "document/rtf": ("unicode/utf16.h",),
    "document/html": ("libxml/",),
    "document/xml": ("libxml/",),
    "document/package": ("zip.h",),
}
STANDARD = re.compile(r"^[a-z_0-9]+(\.h)?$|^sys/|^netinet/")


def layer_of(path, table):
    """The longest folder of the table that holds the path, or None."""
    held = [folder for folder in table if path.startswith(folder + "/")]
    return max(held, key=len, default=None)


def libraries_of(path, libraries):
    return tuple(libraries) + LIBRARIES_INSIDE.get(layer_of(path, INSIDE), ())


def is_standard(header):
    return bool(STANDARD.match(header)) and header != "zip.h"


def faults_of(path):
    layer = layer_of(path, LAYERS)
    if layer is None:
        return
    layers, libraries = LAYERS[layer]
    with open(path, encoding="utf-8") as source:
        for number, line in enumerate(source, 1):
            match = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', line)
            if not match:
                continue
            own, header = match.group(1) == '"', match.group(2)
            if own:
                target = layer_of(header, LAYERS)
                allowed = target is not None and (target == layer or target in layers)
                inside, target_inside = layer_of(path, INSIDE), layer_of(header, INSIDE)
                if allowed and target == layer and inside is not None:
                    allowed = header.startswith(inside + "/") or target_inside in INSIDE[inside]
            else:
                allowed = header.startswith(libraries_of(path, libraries)) or is_standard(header)
            if not allowed:
                yield f"{path}:{number}: {inside_name(path, layer)} may not include {header}"


def inside_name(path, layer):
    return layer_of(path, INSIDE) or layer


def main():
    listed = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.cpp", "*.h"],
        check=True, capture_output=True, text=True,
    ).stdout.split()
    faults = [fault for path in listed for fault in faults_of(path)]
    print("\n".join(faults) if faults else f"layers: {len(listed)} files, all arrows point down")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
