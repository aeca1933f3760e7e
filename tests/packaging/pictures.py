# Renders SVG files to pixels with rsvg-convert.
# SPDX-License-Identifier: MIT
import struct
import subprocess
import zlib

BYTES_PER_PIXEL = 4


def render(svg, size):
    """The drawing at `size` by `size` pixels: rows of (red, green, blue, alpha), 0 to 255."""
    png = subprocess.run(
        ["rsvg-convert", "--width", str(size), "--height", str(size), str(svg)],
        check=True, stdout=subprocess.PIPE).stdout
    return decode(png)


def decode(png):
    """The pixels of a PNG from rsvg-convert: 8 bits per channel, not interlaced."""
    chunks = list(read_chunks(png))
    width, _, depth, colour_type, _, _, interlace = struct.unpack(">IIBBBBB", chunks[0][1])
    if (depth, colour_type, interlace) != (8, 6, 0):
        raise ValueError("not an RGBA picture of 8 bits a channel")
    data = zlib.decompress(b"".join(body for name, body in chunks if name == b"IDAT"))
    return [pixels(line) for line in unfilter(data, width * BYTES_PER_PIXEL)]


def read_chunks(png):
    position = 8
    while position < len(png):
        length, name = struct.unpack_from(">I4s", png, position)
        yield name, png[position + 8:position + 8 + length]
        position += length + 12


def unfilter(data, stride):
    above = bytes(stride)
    for start in range(0, len(data), stride + 1):
        kind, line = data[start], bytearray(data[start + 1:start + 1 + stride])
        for i in range(stride):
            left = line[i - BYTES_PER_PIXEL] if i >= BYTES_PER_PIXEL else 0
            corner = above[i - BYTES_PER_PIXEL] if i >= BYTES_PER_PIXEL else 0
            line[i] = (line[i] + predict(kind, left, above[i], corner)) % 256
        yield line
        above = line


def predict(kind, left, up, corner):
    if kind == 4:
        estimate = left + up - corner
        return min((left, up, corner), key=lambda value: abs(estimate - value))
    return (0, left, up, (left + up) // 2)[kind]


def pixels(line):
    return [tuple(line[i:i + BYTES_PER_PIXEL]) for i in range(0, len(line), BYTES_PER_PIXEL)]
