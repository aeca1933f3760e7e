# The pictures that a play leaves.
# SPDX-License-Identifier: MIT
import os

from stage.programs import run

from .desktop import SIZE
from .screen import Box


def surrounding(boxes):
    """The smallest box with all the boxes."""
    left, top = min(box.left for box in boxes), min(box.top for box in boxes)
    return Box(left, top, max(box.left + box.width for box in boxes) - left,
               max(box.rows.stop for box in boxes) - top)


# The size of a part of the screen that a picture shows.
PART = (540, 330)
# The width of the small picture.
WIDTH = 900


class Album:
    """A folder of pictures: whole screens, and parts that become one small picture."""

    def __init__(self, desktop, folder):
        self._desktop = desktop
        self._folder = folder
        self._parts = []
        os.makedirs(folder, exist_ok=True)

    def keep_screen(self, name):
        """Keeps the whole screen; returns the file."""
        file = os.path.join(self._folder, f"{name.replace(' ', '-')}.png")
        self._desktop.screenshot(file)
        return file

    def keep(self, name, *boxes):
        """Keeps the screen, and the part around the boxes for the small picture."""
        file = self.keep_screen(name)
        box = surrounding(boxes)
        left, top = (min(max(start + length // 2 - part // 2, 0), size - part)
                     for start, length, part, size in zip(
                         (box.left, box.top), (box.width, box.height), PART, SIZE))
        self._parts.append([file, "-crop", f"{PART[0]}x{PART[1]}+{left}+{top}", "+repage"])

    def compose(self, file):
        """Makes the small picture: the first two parts, side by side."""
        parts = [word for part in self._parts[:2] for word in ("(", *part, ")")]
        run("convert", *parts, "+append", "-resize", str(WIDTH), "-strip", "+dither",
            "-colors", "64", f"PNG8:{file}")
