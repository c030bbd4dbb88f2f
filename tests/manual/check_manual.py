#!/usr/bin/python3
"""Looks at the manual that was built.

Usage: check_manual.py PDF MANUAL

Passes when its outline has every heading of the chapters, every link within it leads to a page, no page
is empty, the pictures that the chapters name are those that there are, and the file of its links beside it has the same
links.
"""
import pathlib
import re
import sys

from pypdf import PdfReader

HEADING = re.compile(r"^(#{1,2}) (.*?)(?: \{.*\})?$", re.MULTILINE)


def chapters(manual):
    return [file.read_text(encoding="utf-8") for file in sorted((manual / "chapters").glob("*.md"))]


def headings(texts):
    return [(len(marks), re.sub(r"[*`]", "", title)) for text in texts for marks, title in HEADING.findall(text)]


def outline(items, level=1):
    """The outline as (level, title), in order."""
    found = []
    for item in items:
        found += outline(item, level + 1) if isinstance(item, list) else [(level, item.title)]
    return found


def links_within(reader):
    """The destination of every link that stays in the document."""
    for page in reader.pages:
        for annotation in page.get("/Annots", []):
            link = annotation.get_object()
            if "/Dest" in link:
                yield link["/Dest"]
            elif link.get("/A", {}).get("/S") == "/GoTo":
                yield link["/A"]["/D"]


def page_of(destination, reader):
    """The page object that a destination, by name or in place, leads to; None where it leads nowhere."""
    if isinstance(destination, (str, bytes)):
        named = reader.named_destinations.get(str(destination))
        return named.page.get_object() if named is not None else None
    return destination[0].get_object() if destination else None


def faults_of_pages(reader, texts):
    wanted, found = headings(texts), outline(reader.outline)
    if wanted != found:
        yield f"the outline differs from the headings: {sorted(set(wanted) ^ set(found))}"
    pages = [page.get_object() for page in reader.pages]
    links = list(links_within(reader))
    if len(links) < len(wanted):
        yield f"{len(links)} links for {len(wanted)} lines of contents"
    yield from (f"a link leads nowhere: {link}" for link in links if page_of(link, reader) not in pages)
    yield from (f"page {number} is empty" for number, page in enumerate(reader.pages, 1)
                if not page.extract_text().strip())


def links_by_page(reader):
    """From which page to which one there are links."""
    pages = [page.get_object() for page in reader.pages]
    for number, page in enumerate(reader.pages):
        for annotation in page.get("/Annots", []):
            link = annotation.get_object()
            destination = link.get("/Dest") or link.get("/A", {}).get("/D")
            if destination and page_of(destination, reader) in pages:
                yield number, pages.index(page_of(destination, reader))


def faults_of_links(pdf, reader):
    lines = pathlib.Path(pdf).with_suffix(".links").read_text(encoding="utf-8").splitlines()
    fields = [line.split("\t") for line in lines]
    beside = {(int(each[0]), int(each[5])) for each in fields}
    if beside != set(links_by_page(reader)):
        yield f"other links lie beside the manual: {sorted(beside ^ set(links_by_page(reader)))}"
    width, height = (float(length) for length in reader.pages[0].mediabox[2:])
    for each in fields:
        left, top, across, down = (float(length) for length in each[1:5])
        if not (0 <= left < left + across <= width and 0 <= top < top + down <= height):
            yield f"a link lies outside its page: {each}"


def faults_of_pictures(manual, texts):
    named = {name for text in texts for name in re.findall(r'src="(.*?)"', text)}
    there = {str(file.relative_to(manual)) for file in (manual / "pictures").iterdir()}
    yield from (f"no such picture: {name}" for name in sorted(named - there))
    yield from (f"a picture that no chapter shows: {name}" for name in sorted(there - named))


def main(pdf, manual):
    manual = pathlib.Path(manual)
    reader, texts = PdfReader(pdf), chapters(manual)
    faults = [*faults_of_pages(reader, texts), *faults_of_links(pdf, reader),
              *faults_of_pictures(manual, texts)]
    print("\n".join(faults) or f"{len(reader.pages)} pages, {len(headings(texts))} headings")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
