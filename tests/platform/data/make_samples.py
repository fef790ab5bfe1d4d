#!/usr/bin/python3
"""Draws the sample images of the tests, each 16 by 8 pixels, into its own folder.

Needs the Python Imaging Library (python3-pil).
"""
import pathlib
import struct
import zlib

from PIL import Image

WIDTH, HEIGHT = 16, 8
FOLDER = pathlib.Path(__file__).parent


def grey(x, y):
    return (x * 15 + y * 3) % 256


def chunk(kind, data):
    checksum = zlib.crc32(kind + data)
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)


def interlaced_png():
    """The seven passes of a PNG, which the imaging library cannot write."""
    passes = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]
    rows = b""
    for left, top, right, down in passes:
        for y in range(top, HEIGHT, down):
            row = bytes(grey(x, y) for x in range(left, WIDTH, right))
            rows += b"\0" + row if row else b""
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 0, 0, 0, 1)
    parts = [(b"IHDR", header), (b"IDAT", zlib.compress(rows)), (b"IEND", b"")]
    return b"\x89PNG\r\n\x1a\n" + b"".join(chunk(*part) for part in parts)


picture = Image.new("L", (WIDTH, HEIGHT))
picture.putdata([grey(x, y) for y in range(HEIGHT) for x in range(WIDTH)])
picture.save(FOLDER / "plain.png")
(FOLDER / "interlaced.png").write_bytes(interlaced_png())
picture.save(FOLDER / "baseline.jpg", quality=10, optimize=True)
picture.save(FOLDER / "progressive.jpg", quality=10, progressive=True)
picture.save(FOLDER / "still.gif")
picture.save(FOLDER / "animated.gif", save_all=True, append_images=[picture.rotate(180)], duration=100)
picture.save(FOLDER / "picture.bmp")
picture.save(FOLDER / "picture.tif", compression="tiff_lzw")
