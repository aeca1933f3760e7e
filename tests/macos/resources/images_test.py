# Checks the images of Brisel.app: complete, equal to the drawings, visible on a menu bar.
# SPDX-License-Identifier: MIT
#
# usage: images_test.py ROOT [-v]
import math
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

from pictures import decode, render
from status_icon_checks import BARS, StatusIconChecks

ROOT = pathlib.Path(sys.argv.pop(1))
PICTURES = ROOT / "resources/macos"
IMAGES = PICTURES / "images"
# Height and width of a status image, for a menu bar of 22 points.
POINTS = 18
# The lightest and darkest colours of a menu bar.
BACKGROUNDS = {"dark": ((0, 0, 0), (0x36, 0x3B, 0x40)),
               "light": ((255, 255, 255), (0xE0, 0xE0, 0xE0))}
# Renderers round differently; a larger distance is another drawing. Releases of librsvg blend the
# icon's edges differently, by up to 16.
MOST_APART = 4
MOST_APART_AT_EDGES = 24
PNG = b"\x89PNG\r\n\x1a\n"
# The elements of colours and of masks; applications do not show a PNG of these sizes.
MASKS = {"is32": "s8mk", "il32": "l8mk"}


def read(file):
    return decode(file.read_bytes())


def size(picture):
    return len(picture[0]), len(picture)


def premultiplied(pixel):
    return [channel * pixel[3] / 255 for channel in pixel[:3]] + [pixel[3]]


def apart(one, other):
    """The largest difference of a channel, 0 to 255; 255 if the sizes differ."""
    if size(one) != size(other):
        return 255
    return max(abs(a - b) for rows in zip(one, other) for pixels in zip(*rows)
               for a, b in zip(*map(premultiplied, pixels)))


def elements(icns):
    """The type and data of each element of an icon file."""
    name, length = struct.unpack_from(">4sI", icns)
    if (name, length) != (b"icns", len(icns)):
        raise ValueError("no icon file, or not all of it")
    position = 8
    while position < len(icns):
        kind, length = struct.unpack_from(">4sI", icns, position)
        yield kind.decode("ascii"), icns[position + 8:position + length]
        position += length


def unpacked(data):
    """Bytes from an icon's runs: up to 128 as they are, or one repeated 3 to 130 times."""
    found = b""
    while data:
        run = data[0]
        found += data[1:run + 2] if run < 128 else data[1:2] * (run - 125)
        data = data[run + 2:] if run < 128 else data[2:]
    return found


def small_picture(found, kind):
    """The pixels of a size whose colours and mask are elements of their own."""
    mask = found[MASKS[kind]]
    area, side = len(mask), math.isqrt(len(mask))
    colours = unpacked(found[kind])
    planes = [colours[start:start + area] for start in range(0, len(colours), area)] + [mask]
    pixels = list(zip(*planes, strict=True))
    return [pixels[start:start + side] for start in range(0, area, side)]


def names_asked_for():
    """The image names that the program composes from colour and bar."""
    source = (ROOT / "src/app/StatusIcon.cpp").read_text(encoding="utf-8")
    prefix = re.search(r'std::string name = "([^"]+)"', source).group(1)
    colours = re.findall(r'return "(\w+-)"', source)
    bars = re.search(r'\? "(\w+)" : "(\w+)"', source).groups()
    return {prefix + colour + bar for colour in colours for bar in bars}


class StatusImages(StatusIconChecks, unittest.TestCase):
    sizes = (POINTS, 2 * POINTS)
    backgrounds = BACKGROUNDS

    def picture(self, colour, bar, size):
        return read(IMAGES / f"brisel-status-{colour}-{bar}{'' if size == POINTS else '@2x'}.png")

    def test_are_those_that_the_program_asks_for(self):
        names = names_asked_for()
        self.assertEqual(len(names), 5 * len(BARS))
        self.assertEqual({file.name for file in IMAGES.iterdir()},
                         {name + ending for name in names for ending in (".png", "@2x.png")})

    def test_fit_a_menu_bar_at_either_scale(self):
        for file in IMAGES.iterdir():
            with self.subTest(file=file.name):
                side = 2 * POINTS if file.stem.endswith("@2x") else POINTS
                self.assertEqual(size(read(file)), (side, side))


class Icon(unittest.TestCase):
    # Pixels of each element type, Retina types included.
    SIZES = {"ic11": 32, "ic12": 64, "ic07": 128, "ic13": 256,
             "ic08": 256, "ic14": 512, "ic09": 512, "ic10": 1024}

    def test_has_every_size_as_a_picture_of_that_size(self):
        found = dict(elements((PICTURES / "Brisel.icns").read_bytes()))
        self.assertEqual(set(found), {*self.SIZES, *MASKS, *MASKS.values()})
        for kind, side in self.SIZES.items():
            with self.subTest(kind=kind):
                self.assertEqual(found[kind][:8], PNG)
                self.assertEqual(struct.unpack_from(">II", found[kind], 16), (side, side))

    def test_has_the_drawing_in_the_smallest_sizes(self):
        found = dict(elements((PICTURES / "Brisel.icns").read_bytes()))
        for kind, side in (("is32", 16), ("il32", 32)):
            with self.subTest(kind=kind):
                drawing = render(ROOT / "resources/org.brisel.Brisel.svg", side)
                self.assertLessEqual(apart(small_picture(found, kind), drawing),
                                     MOST_APART_AT_EDGES)


class Exports(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = pathlib.Path(cls.scratch.name) / "macos"
        script = str(ROOT / "scripts/export-images")
        subprocess.run([sys.executable, "-B", script, cls.scratch.name], check=True)

    def test_are_the_status_images_that_are_kept(self):
        made = {file.name for file in (self.folder / "images").iterdir()}
        self.assertEqual(made, {file.name for file in IMAGES.iterdir()})
        for name in made:
            with self.subTest(name=name):
                self.assertLessEqual(
                    apart(read(self.folder / "images" / name), read(IMAGES / name)), MOST_APART)

    def test_are_the_icon_that_is_kept(self):
        made = dict(elements((self.folder / "Brisel.icns").read_bytes()))
        kept = dict(elements((PICTURES / "Brisel.icns").read_bytes()))
        self.assertEqual(set(made), set(kept))
        # Larger ones have the same drawing, but are slow to compare.
        for kind in ("ic11", "ic12", "ic07"):
            with self.subTest(kind=kind):
                self.assertLessEqual(apart(decode(made[kind]), decode(kept[kind])),
                                     MOST_APART_AT_EDGES)
        for kind in MASKS:
            with self.subTest(kind=kind):
                self.assertLessEqual(apart(small_picture(made, kind), small_picture(kept, kind)),
                                     MOST_APART_AT_EDGES)

    def test_are_the_linux_icon_that_is_kept(self):
        name = "linux/org.brisel.Brisel.png"
        kept = read(ROOT / "resources" / name)
        self.assertEqual(size(kept), (48, 48))
        self.assertLessEqual(apart(read(self.folder.parent / name), kept), MOST_APART_AT_EDGES)


if __name__ == "__main__":
    unittest.main()
