#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the five icons of the console, each at one, two and three times its size, as PNG files.

    tools/make_console_icons.py src/Icons

A shape is a signed distance from its edge, in units of a 24 x 24 square, so every size has smooth edges. The colours
are of middle lightness, so that the icons read on light and on dark palettes.
"""

import math
import pathlib
import sys

from png_image import png

UNIT = 24
RED, AMBER, GREEN = (0xD9, 0x3A, 0x3A), (0xE3, 0xA0, 0x1B), (0x2E, 0x9E, 0x4F)
BLUE, GREY, WHITE, INK = (0x3B, 0x7D, 0xD8), (0x7D, 0x8A, 0x9C), (0xFF, 0xFF, 0xFF), (0x3A, 0x2A, 0x05)


def disc(x, y, cx, cy, r):
    return math.hypot(x - cx, y - cy) - r


def stroke(x, y, ax, ay, bx, by, r):
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy or 1)))
    return math.hypot(x - ax - t * dx, y - ay - t * dy) - r


def box(x, y, left, top, right, bottom, r):
    dx = abs(x - (left + right) / 2) - (right - left) / 2 + r
    dy = abs(y - (top + bottom) / 2) - (bottom - top) / 2 + r
    return math.hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0) - r


def polygon(x, y, points, r):
    inside, edge = False, float("inf")
    for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
        edge = min(edge, stroke(x, y, ax, ay, bx, by, 0))
        if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
            inside = not inside
    return (-edge if inside else edge) - r


def errors(x, y):
    cross = min(stroke(x, y, 8.5, 8.5, 15.5, 15.5, 1.3), stroke(x, y, 15.5, 8.5, 8.5, 15.5, 1.3))
    return [(disc(x, y, 12, 12, 10), RED), (cross, WHITE)]


def warnings(x, y):
    mark = min(stroke(x, y, 12, 9.3, 12, 14, 1.2), disc(x, y, 12, 17.4, 1.4))
    return [(polygon(x, y, [(12, 4.2), (21, 19.8), (3, 19.8)], 1.8), AMBER), (mark, INK)]


def infos(x, y):
    letter = min(stroke(x, y, 12, 11.2, 12, 16.8, 1.4), disc(x, y, 12, 7.4, 1.6))
    return [(disc(x, y, 12, 12, 10), GREEN), (letter, WHITE)]


def clear(x, y):
    lid = min(box(x, y, 4, 5, 20, 7.2, 1.1), box(x, y, 9, 2.4, 15, 5, 1))
    bin_ = polygon(x, y, [(6.6, 9.4), (17.4, 9.4), (16.6, 20.8), (7.4, 20.8)], 1)
    slots = min(stroke(x, y, 10, 12, 10.3, 18, 0.8), stroke(x, y, 14, 12, 13.7, 18, 0.8))
    return [(min(lid, bin_), GREY), (slots, WHITE)]


def save(x, y):
    corner = (x + 3 - y) / math.sqrt(2) - 12.2
    disk = max(box(x, y, 2.5, 2.5, 21.5, 21.5, 2), corner)
    return [(disk, BLUE), (box(x, y, 7, 2.5, 15.5, 8.5, 0.6), WHITE), (box(x, y, 12, 3.6, 14, 7.3, 0.4), BLUE),
            (box(x, y, 6, 12.5, 18, 21.5, 0.8), WHITE), (stroke(x, y, 8.6, 15.5, 15.4, 15.5, 0.6), BLUE),
            (stroke(x, y, 8.6, 18.4, 15.4, 18.4, 0.6), BLUE)]


def pixel(shape, x, y, scale):
    red, green, blue, alpha = 0.0, 0.0, 0.0, 0.0
    for distance, colour in shape(x / scale, y / scale):
        cover = max(0.0, min(1.0, 0.5 - distance * scale))
        rest = alpha * (1 - cover)
        total = cover + rest
        if total:
            red, green, blue = ((c * cover + old * rest) / total for c, old in zip(colour, (red, green, blue)))
        alpha = total
    return bytes(round(v) for v in (red, green, blue, alpha * 255))


def icon(shape, scale):
    return png(UNIT * scale, lambda x, y: pixel(shape, x + 0.5, y + 0.5, scale))


folder = pathlib.Path(sys.argv[1])
for shape in (errors, warnings, infos, clear, save):
    for scale in (1, 2, 3):
        suffix = f"@{scale}x" if scale > 1 else ""
        (folder / f"{shape.__name__}{suffix}.png").write_bytes(icon(shape, scale))
