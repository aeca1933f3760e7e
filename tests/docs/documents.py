# What stands in the documents: what programs print, links and headings.
# SPDX-License-Identifier: MIT
import re
from dataclasses import dataclass

FENCE = re.compile(r"^\s*```(\S*)\s*$")
SPAN = re.compile(r"(?<!`)`((?:(?!\n\n)[^`])+)`(?!`)")
# A link whose text is a name in the sources.
NAME_LINK = re.compile(r"\[`([^`\[\]]+)`\]\(([^()\s#]+)\)")
LINK = re.compile(r"\[(?:[^\[\]]|\[[^\]]*\])*\]\(([^()\s]+)\)")
HEADING = re.compile(r"^#+\s+(.*?)\s*$", re.MULTILINE)


@dataclass
class Block:
    """What stands between fences. `kind` is the word behind the first fence."""

    kind: str
    line: int
    lines: list


class Document:
    """One file in Markdown."""

    def __init__(self, root, path):
        self.path = path
        self.name = str(path.relative_to(root))
        self.blocks = []
        self._prose = self._read(path.read_text(encoding="utf-8").splitlines())

    def _read(self, lines):
        """Takes the blocks out; what is left, in as many lines."""
        prose = []
        block = None
        for number, line in enumerate(lines, 1):
            fence = FENCE.match(line)
            prose.append("" if block or fence else line)
            if fence and block:
                self.blocks.append(block)
                block = None
            elif fence:
                block = Block(fence.group(1), number, [])
            elif block:
                block.lines.append(line)
        return "\n".join(prose)

    def links(self):
        """Line and target of each link and picture."""
        # As long as it was, so that lines stay where they are.
        text = SPAN.sub(lambda span: re.sub(r"[^\n]", "x", span.group(0)), self._prose)
        for found in LINK.finditer(text):
            yield self._line(found), found.group(1)

    def names(self):
        """Line, name and target of each link to a name in a file."""
        for found in NAME_LINK.finditer(self._prose):
            yield self._line(found), found.group(1), found.group(2)

    def anchors(self):
        """What may stand behind # in a link to this document, made as web pages make it."""
        seen = {}
        for found in HEADING.finditer(self._prose):
            anchor = re.sub(r"[^\w\- ]", "", found.group(1).lower()).replace(" ", "-")
            count = seen.get(anchor, 0)
            seen[anchor] = count + 1
            yield f"{anchor}-{count}" if count else anchor

    def _line(self, found):
        return self._prose.count("\n", 0, found.start()) + 1


def all_documents(root):
    """Everything in Markdown that is for readers."""
    files = [*sorted(root.glob("*.md")), *sorted((root / "docs").rglob("*.md"))]
    return [Document(root, file) for file in files]
