# Pictures of the screen, and what differs between two of them.
# SPDX-License-Identifier: MIT
from collections import Counter
from dataclasses import dataclass

# Bytes of a pixel.
DEPTH = 3
# Text stands out from its background by at least this contrast, a shadow by less.
TEXT_CONTRAST = 2.5
# The height of the lowest text; separators are lower.
TEXT_HEIGHT = 5
# Pixels nearer to the background than this belong to it.
BACKGROUND_CONTRAST = 1.2
# Parts of a difference have at least this many columns between them.
GAP = 3


@dataclass(frozen=True)
class Box:
    """A part of the screen."""

    left: int
    top: int
    width: int
    height: int

    def at(self, across, down):
        """The point at these fractions of the width and the height."""
        return round(self.left + across * self.width), round(self.top + down * self.height)

    def grown(self, margin, picture):
        """The box with a margin around it, within the picture."""
        left, top = max(self.left - margin, 0), max(self.top - margin, 0)
        return Box(left, top, min(self.left + self.width + margin, picture.width) - left,
                   min(self.top + self.height + margin, picture.height) - top)

    @property
    def rows(self):
        return range(self.top, self.top + self.height)


def luminance(colour):
    """The relative luminance by WCAG."""
    def linear(value):
        value /= 255
        return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
    red, green, blue = map(linear, colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """The contrast ratio by WCAG, from 1 to 21."""
    low, high = sorted((luminance(one), luminance(other)))
    return (high + 0.05) / (low + 0.05)


def box_around(pixels):
    """The smallest box with all the pixels, which are columns by row."""
    left = min(columns[0] for columns in pixels.values())
    right = max(columns[-1] for columns in pixels.values()) + 1
    return Box(left, min(pixels), right - left, max(pixels) + 1 - min(pixels))


class Picture:
    """The pixels of the screen."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self._pixels = pixels

    def __eq__(self, other):
        return self._pixels == other._pixels

    def _row(self, y, left=0, right=None):
        start = y * self.width
        right = self.width if right is None else right
        return self._pixels[(start + left) * DEPTH:(start + right) * DEPTH]

    def _colours(self, y, box):
        row = self._row(y, box.left, box.left + box.width)
        return [tuple(row[at:at + DEPTH]) for at in range(0, len(row), DEPTH)]

    def equals_in(self, box, other):
        """True if the pixels in a box are those of another picture."""
        return all(self._colours(y, box) == other._colours(y, box) for y in box.rows)

    def _differing(self, before, rows):
        """The differing pixels in these rows: their columns by row."""
        rows = [y for y in rows or range(self.height) if self._row(y) != before._row(y)]
        whole = Box(0, 0, self.width, self.height)
        return {y: [x for x, (one, other) in enumerate(zip(self._colours(y, whole),
                                                           before._colours(y, whole)))
                    if one != other] for y in rows}

    def difference(self, before, rows=None):
        """The smallest box with all that differs in these rows; None without a difference."""
        found = self._differing(before, rows)
        return box_around(found) if found else None

    def main_difference(self, before, rows):
        """Of the parts that differ, with gaps between, the one with the most pixels; or None.

        Something new in a row pushes its neighbours a little aside.
        """
        found = self._differing(before, rows)
        counts = Counter(x for columns in found.values() for x in columns)
        parts = []
        for x in sorted(counts):
            if parts and x - parts[-1][-1] <= GAP:
                parts[-1].append(x)
            else:
                parts.append([x])
        if not parts:
            return None
        main = set(max(parts, key=lambda part: sum(counts[x] for x in part)))
        return box_around({y: kept for y, columns in found.items()
                            if (kept := [x for x in columns if x in main])})

    def contrast_in(self, box):
        """The contrast of the most common colour, the background, and of the next that differs."""
        found = Counter(colour for y in box.rows for colour in self._colours(y, box))
        ground = found.most_common(1)[0][0]
        ratios = (contrast(colour, ground) for colour, _ in found.most_common())
        return next((ratio for ratio in ratios if ratio > BACKGROUND_CONTRAST), 1.0)

    def text_lines(self, box):
        """The middle row of each line of text, from top to bottom."""
        inner = Box(box.left + box.width // 10, box.top, box.width * 8 // 10, box.height)
        lines, start = [], None
        for y in [*inner.rows, None]:
            if y is not None and self._has_text(y, inner):
                start = y if start is None else start
            elif start is not None:
                end = y if y is not None else inner.rows.stop
                if end - start >= TEXT_HEIGHT:
                    lines.append((start + end) // 2)
                start = None
        return lines

    def _has_text(self, y, box):
        found = Counter(self._colours(y, box))
        ground = found.most_common(1)[0][0]
        return any(contrast(colour, ground) > TEXT_CONTRAST for colour in found)
