# Checks that status images are visible on their menu bars, and distinct without colour.
# SPDX-License-Identifier: MIT
#
# usage: status_icons_test.py FOLDER [-v]
import pathlib
import sys
import unittest

from pictures import render
from status_icon_checks import StatusIconChecks

FOLDER = pathlib.Path(sys.argv.pop(1))


class StatusIcons(StatusIconChecks, unittest.TestCase):
    sizes = (16, 22, 44)

    def picture(self, colour, bar, size):
        return render(FOLDER / f"brisel-status-{colour}-{bar}.svg", size)


if __name__ == "__main__":
    unittest.main()
