#!/usr/bin/env python3
"""Writes the lists in tests/app/plist/hostile, each named for its one fault. Run it in that folder."""
import struct

XML = '<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0">%s</plist>\n'


def binary(objects, root=0, offset_width=1, reference_width=1, count=None, table=None, offsets=None):
    """A binary list of these objects, with whatever its trailer is to claim."""
    data = b"bplist00"
    places = []
    for item in objects:
        places.append(len(data))
        data += item
    places = places if offsets is None else offsets
    end = len(data) if table is None else table
    data += b"".join(place.to_bytes(max(offset_width, 1), "big") for place in places)
    count = len(objects) if count is None else count
    return data + struct.pack(">6xBBQQQ", offset_width, reference_width, count, root, end)


def nested(start, end, depth):
    return start * depth + end * depth


MOST = 2**64 - 1
TRUE = b"\x09"

LISTS = {
    # XML
    "xml-entity-bomb": '<!DOCTYPE plist [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">'
    '<!ENTITY c "&b;&b;&b;&b;&b;&b;&b;&b;">]><plist><string>&c;&c;&c;&c;</string></plist>',
    "xml-entity-of-a-file": '<!DOCTYPE plist [<!ENTITY a SYSTEM "file:///etc/hostname">]>'
    "<plist><string>&a;</string></plist>",
    "xml-entity-from-outside": '<!DOCTYPE plist SYSTEM "http://127.0.0.1/list.dtd">'
    "<plist><string>&a;</string></plist>",
    "xml-parameter-entity": '<!DOCTYPE plist [<!ENTITY % a SYSTEM "file:///etc/hostname"> %a;]>'
    "<plist><true/></plist>",
    "xml-entity-undeclared": XML % "<string>&nbsp;</string>",
    "xml-element-declared": "<!DOCTYPE plist [<!ELEMENT plist ANY>]><plist><true/></plist>",
    "xml-attribute-default": '<!DOCTYPE plist [<!ATTLIST plist a CDATA "b">]><plist><true/></plist>',
    "xml-too-deep": XML % nested("<array>", "</array>", 129),
    "xml-far-too-deep": XML % nested("<array>", "</array>", 3000),
    "xml-deep-and-open": "<plist>" + "<array>" * 3000,
    "xml-cut-short": "<plist><array><string>a</string>",
    "xml-tags-crossed": XML % "<array><dict></array></dict>",
    "xml-two-roots": XML % "<array/><array/>",
    "xml-no-root": XML % "",
    "xml-text-in-array": XML % "<array>a</array>",
    "xml-key-in-array": XML % "<array><key>a</key></array>",
    "xml-key-without-value": XML % "<dict><key>a</key></dict>",
    "xml-value-without-key": XML % "<dict><true/></dict>",
    "xml-integer-too-large": XML % "<integer>99999999999999999999</integer>",
    "xml-real-of-words": XML % "<real>one half</real>",
    "xml-date-of-no-month": XML % "<date>2026-13-01T00:00:00Z</date>",
    "xml-data-not-base64": XML % "<data>****</data>",
    "xml-page": "<!DOCTYPE html>\n<html><head><title>404</title></head><body><p>Gone</p></body></html>\n",
    "xml-other-format": '<?xml version="1.0"?>\n<feed><entry/></feed>\n',
    "xml-bytes-not-utf-8": b"<plist><string>\xc3\x28</string></plist>",
    "xml-utf-16-half-a-unit": "\ufeff<plist><true/></plist>".encode("utf-16-be") + b"\x00",
    "xml-utf-16-lone-surrogate": b"\xfe\xff" + "<string>".encode("utf-16-be") + b"\xd8\x00"
    + "</string>".encode("utf-16-be"),
    # Binary
    "binary-mark-alone": b"bplist00",
    "binary-trailer-of-zeros": b"bplist00\x09" + bytes(32),
    "binary-holds-itself": binary([b"\xa1\x00"]),
    "binary-circle-of-dictionaries": binary([b"\xd1\x02\x01", b"\xd1\x02\x00", b"\x51a"]),
    "binary-shared-without-end": binary([bytes([0xA2, i, i]) for i in range(1, 65)] + [TRUE]),
    "binary-shared-texts": binary(
        [b"\xaf\x11" + struct.pack(">H", 9000) + b"\x01" * 9000, b"\x5f\x11\x40\x00" + b"a" * 0x4000],
        offset_width=4,
    ),
    "binary-too-deep": binary([bytes([0xA1, i]) for i in range(1, 130)] + [b"\xa0"], offset_width=2),
    "binary-count-overflows": binary([b"\xaf\x13" + struct.pack(">Q", MOST)]),
    "binary-text-past-the-end": binary([b"\x5f\x12\x7f\xff\xff\xffabc"]),
    "binary-reference-past-the-end": binary([b"\xa1\x07"]),
    "binary-offset-past-the-end": binary([TRUE], offsets=[200]),
    "binary-offset-into-the-mark": binary([TRUE], offsets=[0]),
    "binary-table-past-the-end": binary([TRUE], table=MOST),
    "binary-objects-without-end": binary([TRUE], count=2**61),
    "binary-no-objects": binary([TRUE], count=0),
    "binary-root-past-the-end": binary([TRUE], root=1),
    "binary-offsets-without-width": binary([TRUE], offset_width=0),
    "binary-references-without-width": binary([b"\xa1\x00"], reference_width=0),
    "binary-references-too-wide": binary([TRUE], reference_width=255),
    "binary-key-is-an-array": binary([b"\xd1\x01\x01", b"\xa0"]),
    "binary-kind-unknown": binary([b"\xf0"]),
    "binary-integer-of-32-bytes": binary([b"\x15" + bytes(32)]),
    "binary-ascii-above-127": binary([b"\x51\xe9"]),
    "binary-utf-16-lone-surrogate": binary([b"\x61\xd8\x00"]),
    # The old text form
    "text-too-deep": nested("(", ")", 129),
    "text-deep-and-open": "{a=" * 3000,
    "text-string-open": '( "a )',
    "text-comment-open": "( a ) /* b",
    "text-two-lists": "( a ) ( b )",
    "text-no-semicolon": "{ a = b }",
    "text-key-is-an-array": "{ ( a ) = b; }",
    "text-half-a-byte": "<0fb>",
    "text-half-a-character": '"\\UD83D"',
    "text-escape-at-the-end": '"a\\',
    "text-prose": "The list that you asked for has moved to another place.\n",
    "text-zeros": bytes(64),
}

for name, content in LISTS.items():
    with open(name + ".plist", "wb") as file:
        file.write(content if isinstance(content, bytes) else content.encode())
print(len(LISTS), "lists")
