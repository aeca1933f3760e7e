# Checks that the drawing of the architecture shows the includes there are, and is drawn anew.
# SPDX-License-Identifier: MIT
#
# usage: diagram_test.py ROOT
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree

DOT = "docs/architecture.dot"
DRAWING = "docs/pictures/architecture.svg"
FOLDERS = ["src", "simulator"]
INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s+"([^"]+)"', re.MULTILINE)
ARROW = re.compile(r'"([^"]+)" -> "([^"]+)"')


def part_of(path):
    """The part of the house that a path from src/ or from the root belongs to."""
    folders = path.removeprefix("src/").split("/")[:-1]
    return "/".join(folders[:2] if folders[:1] in (["platform"], ["entry"]) else folders[:1])


def included(root):
    """Pairs of parts of which one includes the other."""
    files = [file for folder in FOLDERS for file in (root / folder).rglob("*")
             if file.suffix in (".h", ".cpp", ".mm")]
    parts = {part_of(str(file.relative_to(root))) for file in files}
    pairs = set()
    for file in files:
        here = part_of(str(file.relative_to(root)))
        there = {part_of(path) for path in INCLUDE.findall(file.read_text(encoding="utf-8"))}
        pairs |= {(here, part) for part in there & parts - {here}}
    return pairs


def drawn(root):
    """The solid arrows, which come before the first dashed one."""
    text = (root / DOT).read_text(encoding="utf-8")
    return set(ARROW.findall(text.split("style=dashed")[0]))


def reachable(arrows, start, end):
    return any(there == end or reachable(arrows, there, end)
               for here, there in arrows if here == start)


def complaints_about_arrows(root):
    """A sentence for each arrow that is missing or too many."""
    arrows, pairs = drawn(root), included(root)
    for here, there in sorted(pairs):
        if not reachable(arrows, here, there):
            yield f"{here} includes {there}, which is not drawn."
    for here, there in sorted(arrows):
        if (here, there) not in pairs:
            yield f"{here} -> {there} is drawn, and no file of {here} includes one of {there}."
        elif reachable(arrows - {(here, there)}, here, there):
            yield f"{here} -> {there} is drawn, and follows from other arrows."


def words(svg):
    """All that can be read in a drawing, and the names of its nodes and arrows."""
    return sorted(element.text for element in xml.etree.ElementTree.fromstring(svg).iter()
                  if element.tag.endswith(("}text", "}title")) and element.text)


def complaints_about_drawing(root):
    made = subprocess.run(["dot", "-Tsvg", root / DOT], capture_output=True, check=True).stdout
    if words(made) != words((root / DRAWING).read_bytes()):
        yield f"{DRAWING} is not what {DOT} draws: run `make diagram`."


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    found = [*complaints_about_arrows(root), *complaints_about_drawing(root)]
    for complaint in found:
        print(complaint)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
