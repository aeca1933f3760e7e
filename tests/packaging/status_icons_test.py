# Checks that status images are visible on any panel, have a margin, and are distinct without colour.
# SPDX-License-Identifier: MIT
#
# usage: status_icons_test.py FOLDER [-v]
#
# FOLDER is the icon theme's.
import itertools
import pathlib
import sys
import unittest

from pictures import render
from status_icon_checks import BARS, COLOURS, StatusIconChecks

FOLDER = pathlib.Path(sys.argv.pop(1))
# A dark and a light panel; either may stand beside applications of either kind.
PANELS = ((0x1E, 0x1E, 0x1E), (0xF6, 0xF5, 0xF4))
# Pixels free at each side: 3 of 22, as in KDE; GNOME leaves less at 16.
MARGINS = {16: 1, 22: 3, 24: 3, 44: 6}


def free_border(picture):
    """The least number of transparent rows or columns at a side."""
    sides = [picture, picture[::-1], list(zip(*picture)), list(zip(*picture))[::-1]]
    return min(next(number for number, line in enumerate(side) if any(pixel[3] for pixel in line))
               for side in sides)


class StatusIcons(StatusIconChecks, unittest.TestCase):
    sizes = tuple(MARGINS)
    backgrounds = dict.fromkeys(BARS, PANELS)

    def picture(self, colour, bar, size):
        drawings = FOLDER / ("16x16" if size == 16 else "scalable") / "status"
        return render(drawings / f"brisel-status-{colour}-{bar}.svg", size)

    def test_leave_a_margin(self):
        for colour, bar, size in itertools.product(COLOURS, BARS, self.sizes):
            with self.subTest(colour=colour, bar=bar, size=size):
                self.assertGreaterEqual(free_border(self.picture(colour, bar, size)), MARGINS[size])


if __name__ == "__main__":
    unittest.main()
