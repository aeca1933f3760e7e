# Checks that links in the documents lead to what they say, and that pictures are there and used.
# SPDX-License-Identifier: MIT
#
# usage: links_test.py ROOT
import pathlib
import re
import sys

from documents import all_documents

PICTURES = "docs/pictures"
LARGEST_PICTURE = 60_000


def target_of(document, target):
    """File and anchor that a relative link leads to."""
    path, _, anchor = target.partition("#")
    return (document.path.parent / path).resolve() if path else document.path.resolve(), anchor


def complaint_about(document, target, anchors):
    file, anchor = target_of(document, target)
    if not file.exists():
        return f"there is no {target}"
    if anchor and anchor not in anchors.get(file, ()):
        return f"{target.split('#')[0] or 'this document'} has no heading for #{anchor}"
    return None


def complaints_about_names(document):
    """A sentence for each link to a name that its file does not have."""
    for line, name, target in document.names():
        file, _ = target_of(document, target)
        word = re.escape(name.split("::")[-1])
        if file.is_file() and not re.search(rf"\b{word}\b", file.read_text(encoding="utf-8")):
            yield f"{document.name}:{line}: {target} has no {name}."


def complaints(root):
    """A sentence for each link or picture that is not as it should be."""
    documents = all_documents(root)
    anchors = {document.path.resolve(): set(document.anchors()) for document in documents}
    used = set()
    for document in documents:
        for line, target in document.links():
            if "://" in target or target.startswith("mailto:"):
                continue
            used.add(target_of(document, target)[0])
            if complaint := complaint_about(document, target, anchors):
                yield f"{document.name}:{line}: {complaint}."
        yield from complaints_about_names(document)
    for picture in sorted((root / PICTURES).glob("*")):
        if picture.resolve() not in used:
            yield f"{PICTURES}/{picture.name} is in no document: show it or remove it."
        if picture.stat().st_size > LARGEST_PICTURE:
            yield f"{PICTURES}/{picture.name} has more than {LARGEST_PICTURE} bytes."


def main():
    found = list(complaints(pathlib.Path(sys.argv[1]).resolve()))
    for complaint in found:
        print(complaint)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
