#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the 16 x 16 pictograms of the field editors and writes them as XPM data.

    tools/make_editor_icons.py > src/FieldEditors/EditorIconData.h

Each shape is a test on the pixel's centre; its grey runs from dark at the bottom to lighter at the top, so that it
reads on light and on dark palettes. XPM knows no half-transparent pixels, hence plain greys.
"""

SIZE = 16
CHARS = " .+@#$%&*=-;>,')!~{]^/(_:<[}|1234567890abcdefghijklmnopqrstuvwxyz"


def ring(x, y, cx, cy, outer, inner):
    d = ((x - cx) ** 2 + (y - cy) ** 2) ** 0.5
    return inner <= d <= outer


def add(x, y):
    return (abs(x - 8) < 1.5 and 2 < y < 14) or (abs(y - 8) < 1.5 and 2 < x < 14)


def delete(x, y):
    return abs(y - 8) < 1.5 and 2 < x < 14


def up(x, y):
    return (2 < y < 9 and abs(x - 8) < y - 2) or (9 <= y < 14 and abs(x - 8) < 2)


def down(x, y):
    return up(x, SIZE - y)


def default(x, y):
    # An arrow that turns back.
    arc = ring(x, y, 8, 9, 5.8, 3.8) and not (x < 8 and y < 9)
    head = 0.5 < x < 7 and abs(y - 5) < (x - 0.5) * 0.62
    return arc or head or (7 <= x < 8 and 3.2 < y < 5.2)


def ignore(x, y):
    return ring(x, y, 8, 8, 6.8, 5.0) or (abs(x - y) < 1.3 and ring(x, y, 8, 8, 6.8, 0))


def edit(x, y):
    if y >= 13:
        return 2 < x < 14 and y < 14.5
    along = (x - y + 16) / 2
    across = abs(x + y - 15)
    body = across < 2.6 and 5.2 < along < 13.2 and y < 12
    return body or (across < along - 3 and 3 < along <= 5.2)


# Name, shape and the number of colours, transparent included.
ICONS = [
    ("Add", add, 62), ("Delete", delete, 64), ("Up", up, 64), ("Down", down, 64),
    ("Default", default, 64), ("Ignore", ignore, 63), ("Edit", edit, 64),
]


def xpm(name, shape, colours):
    greys = colours - 1
    lines = [f'"{SIZE} {SIZE} {colours} 1"', f'"{CHARS[0]} c None"']
    for i in range(greys):
        value = 0x62 + i * (0x94 - 0x62) // (greys - 1)
        lines.append(f'"{CHARS[i + 1]} c #{value:02x}{value:02x}{value:02x}"')
    for row in range(SIZE):
        grey = (SIZE - 1 - row) * (greys - 1) // (SIZE - 1)
        pixels = "".join(
            CHARS[grey + 1] if shape(column + 0.5, row + 0.5) else CHARS[0] for column in range(SIZE))
        lines.append(f'"{pixels}"')
    body = ",\n    ".join(lines)
    return f"constexpr const char* {name}Xpm[] = {{\n    {body}}};\n"


print("// SPDX-License-Identifier: MIT\n// Made by tools/make_editor_icons.py; change the shapes there.\n// clang-format off\n#pragma once\n")
print("namespace editorIcons\n{\n")
print("\n".join(xpm(*icon) for icon in ICONS))
print("} // namespace editorIcons")
