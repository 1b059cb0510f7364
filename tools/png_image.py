# SPDX-License-Identifier: MIT
"""Writes PNG images with nothing but Python's own library."""
import struct
import zlib


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(size, pixel):
    """A square RGBA image; pixel(x, y) gives the four bytes of the pixel at column x, row y."""
    rows = b"".join(b"\0" + b"".join(pixel(x, y) for x in range(size)) for y in range(size))
    head = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", head) + _chunk(b"IDAT", zlib.compress(rows, 9))
            + _chunk(b"IEND", b""))
