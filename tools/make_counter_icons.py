#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the icons of the performance-counter tool into src/PerfCounter/Icons, each also at twice its size.

Colours are middle tones, so that the icons read on light and on dark palettes. Only Python's own library is needed.
"""
import math
import pathlib
import sys

from png_image import png

BLUE, GREEN, ORANGE, RED, GREY = (74, 127, 181), (76, 160, 90), (217, 136, 44), (196, 76, 70), (125, 132, 140)
SAMPLES = 6  # per pixel and direction


def rect(x0, y0, x1, y1):
    return lambda x, y: x0 <= x <= x1 and y0 <= y <= y1


def disc(cx, cy, r, inner=0.0):
    return lambda x, y: inner <= math.hypot(x - cx, y - cy) <= r


def line(points, width):
    def inside(x, y):
        for (ax, ay), (bx, by) in zip(points, points[1:]):
            dx, dy = bx - ax, by - ay
            t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
            if math.hypot(x - ax - t * dx, y - ay - t * dy) <= width / 2:
                return True
        return False
    return inside


def triangle(a, b, c):
    def side(p, q, x, y):
        return (q[0] - p[0]) * (y - p[1]) - (q[1] - p[1]) * (x - p[0])

    def inside(x, y):
        s = (side(a, b, x, y), side(b, c, x, y), side(c, a, x, y))
        return all(v >= 0 for v in s) or all(v <= 0 for v in s)
    return inside


def arrow_up(x, y):
    return triangle((8, 1.5), (2.5, 8), (13.5, 8))(x, y) or rect(6, 8, 10, 14.5)(x, y)


def reload_arrow(x, y):
    arc = disc(8, 8, 6.2, 4.4)(x, y) and not (x > 8 and y < 8)
    return arc or triangle((8, 0.6), (8, 7.2), (12.4, 3.9))(x, y)


# Shapes in a square of 16 by 16, painted one over the other.
ICONS = {
    "m_text.PNG": [(rect(2, 2.5, 14, 4.5), GREY), (rect(2, 7, 11, 9), GREY), (rect(2, 11.5, 13, 13.5), GREY)],
    "m_graph.PNG": [(rect(2, 8, 5, 14), BLUE), (rect(6.5, 3, 9.5, 14), ORANGE), (rect(11, 6, 14, 14), GREEN)],
    "m_curve.PNG": [(line([(2, 2), (2, 14), (14.5, 14)], 1.4), GREY),
                    (line([(3, 11), (6, 6), (9, 9), (14, 3)], 1.8), BLUE)],
    "player_pause.png": [(rect(3.5, 2.5, 6.5, 13.5), BLUE), (rect(9.5, 2.5, 12.5, 13.5), BLUE)],
    "player_play.png": [(triangle((4, 2), (4, 14), (13.5, 8)), GREEN)],
    "edit_add.png": [(rect(6.8, 2.5, 9.2, 13.5), GREEN), (rect(2.5, 6.8, 13.5, 9.2), GREEN)],
    "edit_remove.png": [(rect(2.5, 6.8, 13.5, 9.2), RED)],
    "up-32.png": [(arrow_up, BLUE)],
    "down-32.png": [(lambda x, y: arrow_up(x, 16 - y), BLUE)],
    "newdirectory-16.png": [(rect(1.5, 3, 7, 6), ORANGE), (rect(1.5, 4.8, 14.5, 13), ORANGE)],
    "fileopen.png": [(rect(1.5, 3, 7, 6), ORANGE), (rect(1.5, 4.8, 14.5, 13), ORANGE),
                     (rect(3.5, 7.5, 12.5, 8.7), (255, 255, 255)), (rect(3.5, 10, 12.5, 11.2), (255, 255, 255))],
    "filesave.png": [(rect(2, 2, 14, 14), BLUE), (rect(5, 2, 11, 6), (230, 234, 238)),
                     (rect(4, 8.5, 12, 14), (230, 234, 238)), (rect(8.6, 2.6, 10, 5.4), BLUE)],
    "reload_translations.png": [(reload_arrow, GREEN)],
    "edit.png": [(line([(4.2, 11.8), (12, 4)], 3.0), ORANGE), (triangle((2, 14), (3.1, 10.7), (5.3, 12.9)), GREY)],
}


def pixel(shapes, x, y, scale):
    total = [0.0, 0.0, 0.0, 0.0]
    for i in range(SAMPLES):
        for j in range(SAMPLES):
            px, py = (x + (i + 0.5) / SAMPLES) / scale, (y + (j + 0.5) / SAMPLES) / scale
            colour = next((c for shape, c in reversed(shapes) if shape(px, py)), None)
            if colour:
                for k in range(3):
                    total[k] += colour[k]
                total[3] += 1
    covered = total[3]
    if not covered:
        return bytes(4)
    return bytes([round(v / covered) for v in total[:3]] + [round(255 * covered / SAMPLES ** 2)])


def icon(shapes, size):
    return png(size, lambda x, y: pixel(shapes, x, y, size / 16))


def main():
    folder = pathlib.Path(__file__).resolve().parent.parent / "src/PerfCounter/Icons"
    folder.mkdir(parents=True, exist_ok=True)
    for name, shapes in ICONS.items():
        size = 32 if "-32" in name else 16
        stem, suffix = name.rsplit(".", 1)
        (folder / name).write_bytes(icon(shapes, size))
        (folder / f"{stem}@2x.{suffix}").write_bytes(icon(shapes, 2 * size))
    resource = ['<RCC>', '    <qresource prefix="/PerfCounter_icons">']
    resource += [f"        <file>Icons/{path.name}</file>" for path in sorted(folder.iterdir())]
    resource += ['    </qresource>', '</RCC>', '']
    (folder.parent / "PerfCounter.qrc").write_text("\n".join(resource))


if __name__ == "__main__":
    sys.exit(main())
