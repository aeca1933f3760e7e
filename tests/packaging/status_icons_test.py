# Checks that the status images can be seen on their menu bars, and told apart without colours.
# SPDX-License-Identifier: MIT
#
# usage: status_icons_test.py FOLDER [-v]
import collections
import itertools
import pathlib
import sys
import unittest

from pictures import render

FOLDER = pathlib.Path(sys.argv.pop(1))
COLOURS = ("grey", "green", "blue", "orange", "red")
# The lightest and the darkest of what desktops have for each.
BARS = {"dark": ((0, 0, 0), (0x36, 0x3B, 0x40)), "light": ((255, 255, 255), (0xE0, 0xE0, 0xE0))}
SIZES = (16, 22, 44)
LEAST_CONTRAST = 3.0
# Whole pixels of a colour at the smallest size; fewer are a speck.
LEAST_PIXELS = 6
# The part of what two images cover together that only one of them covers.
LEAST_DIFFERENCE = 0.15


def drawing(colour, bar):
    return FOLDER / f"brisel-status-{colour}-{bar}.svg"


def luminance(colour):
    def linear(channel):
        part = channel / 255
        return part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = (linear(channel) for channel in colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def whole_pixels(svg, size):
    """How many pixels each colour covers entirely."""
    return collections.Counter(
        pixel[:3] for row in render(svg, size) for pixel in row if pixel[3] == 255)


def mask(svg, size):
    return [pixel[3] / 255 for row in render(svg, size) for pixel in row]


def difference(one, other):
    apart = sum(abs(a - b) for a, b in zip(one, other))
    together = sum(max(a, b) for a, b in zip(one, other))
    return apart / together


class StatusIcons(unittest.TestCase):
    def test_have_one_ink_and_a_sign_in_another_colour(self):
        for colour, bar in itertools.product(COLOURS, BARS):
            with self.subTest(colour=colour, bar=bar):
                wanted = 1 if colour == "grey" else 2
                self.assertEqual(len(whole_pixels(drawing(colour, bar), 44)), wanted)

    def test_stand_out_from_their_bars(self):
        for colour, bar in itertools.product(COLOURS, BARS):
            for shade, background in itertools.product(
                    whole_pixels(drawing(colour, bar), 44), BARS[bar]):
                with self.subTest(colour=colour, bar=bar, shade=shade, background=background):
                    self.assertGreaterEqual(contrast(shade, background), LEAST_CONTRAST)

    def test_keep_ink_and_sign_at_small_sizes(self):
        for colour, bar, size in itertools.product(COLOURS, BARS, SIZES):
            shades = whole_pixels(drawing(colour, bar), 44)
            counts = whole_pixels(drawing(colour, bar), size)
            for shade in shades:
                with self.subTest(colour=colour, bar=bar, size=size, shade=shade):
                    self.assertGreaterEqual(counts[shade], LEAST_PIXELS)

    def test_differ_in_shape(self):
        for size in SIZES:
            masks = {colour: mask(drawing(colour, "dark"), size) for colour in COLOURS}
            for one, other in itertools.combinations(COLOURS, 2):
                with self.subTest(size=size, one=one, other=other):
                    self.assertGreaterEqual(
                        difference(masks[one], masks[other]), LEAST_DIFFERENCE)

    def test_have_the_same_shape_on_either_bar(self):
        for colour in COLOURS:
            with self.subTest(colour=colour):
                self.assertEqual(mask(drawing(colour, "dark"), 44),
                                 mask(drawing(colour, "light"), 44))


if __name__ == "__main__":
    unittest.main()
