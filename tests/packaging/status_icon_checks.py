# Checks of status images in any format: visible on bars and panels, and distinct in shape.
# SPDX-License-Identifier: MIT
import collections
import itertools

COLOURS = ("grey", "green", "blue", "orange", "red")
BARS = ("dark", "light")
LEAST_CONTRAST = 3.0
# Fully covered pixels of a colour at the smallest size.
LEAST_PIXELS = 6
# The fraction of two images' joint area that only one of them covers.
LEAST_DIFFERENCE = 0.15
# The fraction of an image's area that contrasts with the bar; soft edges do not.
LEAST_PART_SEEN = 0.6


def luminance(colour):
    def linear(channel):
        part = channel / 255
        return part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = (linear(channel) for channel in colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def whole_pixels(picture):
    """The number of opaque pixels of each colour."""
    return collections.Counter(pixel[:3] for row in picture for pixel in row if pixel[3] == 255)


def mask(picture):
    return [pixel[3] / 255 for row in picture for pixel in row]


def difference(one, other):
    apart = sum(abs(a - b) for a, b in zip(one, other))
    together = sum(max(a, b) for a, b in zip(one, other))
    return apart / together


def laid_on(pixel, background):
    part = pixel[3] / 255
    return [part * over + (1 - part) * under for over, under in zip(pixel, background)]


def part_seen(picture, background):
    """The fraction of the picture's area that contrasts with the background."""
    covered = [pixel for row in picture for pixel in row]
    seen = [pixel for pixel in covered
            if contrast(laid_on(pixel, background), background) >= LEAST_CONTRAST]
    return sum(pixel[3] for pixel in seen) / sum(pixel[3] for pixel in covered)


class StatusIconChecks:
    """Mixin for test cases with `picture`, `sizes`, smallest first, and `backgrounds`, the colours
    behind the images for each bar."""

    sizes = ()
    backgrounds = {}

    def picture(self, colour, bar, size):
        """The image at `size` pixels: rows of (red, green, blue, alpha)."""
        raise NotImplementedError

    def shades(self, colour, bar):
        return whole_pixels(self.picture(colour, bar, self.sizes[-1]))

    def test_have_one_ink_and_a_sign_in_another_colour(self):
        for colour, bar in itertools.product(COLOURS, BARS):
            with self.subTest(colour=colour, bar=bar):
                self.assertEqual(len(self.shades(colour, bar)), 1 if colour == "grey" else 2)

    def test_have_colours_that_stand_out_from_their_bars(self):
        for colour, bar in itertools.product(COLOURS, BARS):
            for shade, background in itertools.product(self.shades(colour, bar),
                                                       self.backgrounds[bar]):
                with self.subTest(colour=colour, bar=bar, shade=shade, background=background):
                    self.assertGreaterEqual(contrast(shade, background), LEAST_CONTRAST)

    def test_are_seen_on_their_bars(self):
        for colour, bar, size in itertools.product(COLOURS, BARS, self.sizes):
            for background in self.backgrounds[bar]:
                with self.subTest(colour=colour, bar=bar, size=size, background=background):
                    picture = self.picture(colour, bar, size)
                    self.assertGreaterEqual(part_seen(picture, background), LEAST_PART_SEEN)

    def test_keep_ink_and_sign_at_small_sizes(self):
        for colour, bar, size in itertools.product(COLOURS, BARS, self.sizes):
            counts = whole_pixels(self.picture(colour, bar, size))
            for shade in self.shades(colour, bar):
                with self.subTest(colour=colour, bar=bar, size=size, shade=shade):
                    self.assertGreaterEqual(counts[shade], LEAST_PIXELS)

    def test_differ_in_shape(self):
        for bar, size in itertools.product(BARS, self.sizes):
            masks = {colour: mask(self.picture(colour, bar, size)) for colour in COLOURS}
            for one, other in itertools.combinations(COLOURS, 2):
                with self.subTest(bar=bar, size=size, one=one, other=other):
                    self.assertGreaterEqual(
                        difference(masks[one], masks[other]), LEAST_DIFFERENCE)

    def test_have_the_same_shape_on_either_bar(self):
        for colour, size in itertools.product(COLOURS, self.sizes):
            with self.subTest(colour=colour, size=size):
                self.assertEqual(mask(self.picture(colour, "dark", size)),
                                 mask(self.picture(colour, "light", size)))
