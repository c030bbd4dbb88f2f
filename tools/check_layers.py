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
    "linguistics": (("base",), ("unicode/",)),
    "analysis/tagger": (("base",), ()),
    "ports": (("base",), ()),
    "analysis": (("analysis/tagger", "ports", "base"), ("unicode/",)),
    "document": (("analysis", "ports", "base"), ()),
    "platform/linguistics": (("linguistics", "analysis/tagger", "base"), ("unicode/",)),
    "platform/qt": (
        ("document", "analysis", "analysis/tagger", "ports", "platform/linguistics", "linguistics", "base"),
        ("Q", "unicode/"),
    ),
    "tools": (
        ("document", "analysis", "analysis/tagger", "ports", "platform/linguistics", "linguistics", "base"),
        ("CLI/", "unicode/"),
    ),
}
# Within a folder that holds folders of its own: which of them each may use.
INSIDE = {
    "platform/qt/theme": (),
    "platform/qt/panes": ("platform/qt/theme",),
    "platform/qt/adapters": ("platform/qt/panes", "platform/qt/theme"),
    "tools/lexiform-cli": (),
    "tools/train": (),
}
STANDARD = re.compile(r"^[a-z_0-9]+(\.h)?$|^sys/|^netinet/")


def layer_of(path, table):
    """The longest folder of the table that holds the path, or None."""
    held = [folder for folder in table if path.startswith(folder + "/")]
    return max(held, key=len, default=None)


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
                allowed = bool(STANDARD.match(header)) or header.startswith(tuple(libraries) or ("\0",))
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
