#!/usr/bin/env python3
"""compare_with_plistlib.py PROGRAM [LISTS [SEED]]: reads random lists, in XML and in the binary form, whole
and with bytes changed, with PROGRAM and with Python's own reader.

Every whole list must be the same to both, and so must every changed one that both take for a list. Prints how
many there were; exit 1 when two differ.
"""
import datetime
import math
import plistlib
import random
import subprocess
import sys
import warnings

EPOCH = datetime.datetime(2001, 1, 1)
LETTERS = "abz <&>\"'\n\t09é€本\U0001f600\ufffd"


def text(chance):
    return "".join(chance.choice(LETTERS) for _ in range(chance.choice([0, 1, 3, 20, 300])))


def value(chance, depth=0):
    kinds = ["bool", "int", "real", "date", "text", "data"] + ["array", "dict"] * (3 if depth < 4 else 0)
    kind = chance.choice(kinds)
    if kind == "bool":
        return chance.random() < 0.5
    if kind == "int":
        return chance.choice([0, 1, -1, 255, 256, 65536, 2**32, 2**63 - 1, -(2**63), chance.getrandbits(40)])
    if kind == "real":
        return chance.choice([0.0, -0.0, 1.5, 1e300, 5e-324, math.inf, -math.inf, math.nan, chance.random()])
    if kind == "date":
        return EPOCH + datetime.timedelta(seconds=chance.randrange(-(2**34), 2**34))
    if kind == "text":
        return text(chance)
    if kind == "data":
        return chance.randbytes(chance.choice([0, 1, 2, 3, 16, 300]))
    count = chance.choice([0, 1, 2, 5, 20])
    if kind == "array":
        return [value(chance, depth + 1) for _ in range(count)]
    return {text(chance): value(chance, depth + 1) for _ in range(count)}


def changed(chance, data):
    data = bytearray(data)
    for _ in range(chance.randrange(1, 4)):
        place = chance.randrange(len(data))
        what = chance.randrange(3)
        if what == 0:
            data[place] = chance.randrange(256)
        elif what == 1:
            data[place] ^= 1 << chance.randrange(8)
        elif len(data) > 1:
            del data[place]
    return bytes(data)


def printed(item):
    """The form in which the program prints a list."""
    if isinstance(item, bool):
        return "T" if item else "F"
    if isinstance(item, plistlib.UID):
        return f"i{item.data}"
    if isinstance(item, int):
        return f"i{item}"
    if isinstance(item, float):
        return "rnan" if math.isnan(item) else "r%.17g" % item
    if isinstance(item, datetime.datetime):
        return "d%.17g" % math.floor((item - EPOCH).total_seconds())
    if isinstance(item, str):
        return "s" + item.encode("utf-8", "surrogatepass").hex()
    if isinstance(item, bytes):
        return "x" + item.hex()
    if isinstance(item, list):
        return "[" + "".join(printed(part) + "," for part in item) + "]"
    parts = sorted((key.encode("utf-8", "surrogatepass"), part) for key, part in item.items())
    return "{" + "".join(f"{key.hex()}:{printed(part)}," for key, part in parts) + "}"


def read_here(data):
    form = plistlib.FMT_BINARY if data.startswith(b"bplist00") else plistlib.FMT_XML
    try:
        return printed(plistlib.loads(data, fmt=form))
    except Exception:  # Python's reader lets errors of every kind through
        return "none"


def main():
    warnings.simplefilter("ignore")
    program = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 300
    chance = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    lists = []
    for _ in range(count):
        whole = value(chance)
        for form in (plistlib.FMT_XML, plistlib.FMT_BINARY):
            data = plistlib.dumps(whole, fmt=form, sort_keys=False)
            lists.append((True, data))
            lists.extend((False, changed(chance, data)) for _ in range(4))
    given = b"".join(b"%d\n%s" % (len(data), data) for _, data in lists)
    there = subprocess.run([program], input=given, stdout=subprocess.PIPE, check=True).stdout.decode().split("\n")
    counts = {"whole": 0, "both": 0, "neither": 0, "only Python": 0, "only the program": 0}
    differences = 0
    for (is_whole, data), theirs in zip(lists, there, strict=False):
        ours = read_here(data)
        key = "whole" if is_whole else "both"
        if not is_whole and "none" in (ours, theirs):
            key = "neither" if ours == theirs else "only the program" if ours == "none" else "only Python"
        elif ours != theirs:
            differences += 1
            print("differs:", data[:300], "\n  Python: ", ours[:300], "\n  program:", theirs[:300])
        counts[key] += 1
        if key.startswith("only") and "-v" in sys.argv:
            print(key, data[:300], "\n  Python: ", ours[:200], "\n  program:", theirs[:200])
    print(", ".join(f"{key} {number}" for key, number in counts.items()), f"; {differences} differ")
    return 1 if differences or len(there) != len(lists) + 1 else 0


if __name__ == "__main__":
    sys.exit(main())
