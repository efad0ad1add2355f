#!/usr/bin/env python3
"""Draws the 16x16 command icons and writes them beside this script as
GIF89a files with a transparent background.

An icon is drawn on a grid of characters, one a pixel: small pictures are
typed in as rows of text, slanted and round shapes (cube, gear, check mark,
arrow, cross, nut) are computed from their geometry. PALETTE names the colour of each character;
"." stays transparent. Only the standard library is used, so the GIF writer,
LZW encoder included, is our own.

Run it again after changing a drawing:  python3 make_icons.py
"""

import math
import pathlib

SIZE = 16
CLEAR = "."

PALETTE = {
    "k": (40, 40, 48),  # outline
    "w": (255, 255, 255),
    "g": (176, 176, 184),  # light grey
    "G": (104, 104, 112),  # dark grey
    "s": (208, 212, 220),  # steel
    "S": (150, 156, 168),  # steel, shaded
    "b": (40, 100, 210),  # blue
    "B": (20, 56, 140),  # dark blue
    "l": (150, 190, 240),  # light blue
    "y": (252, 214, 88),  # folder yellow
    "Y": (214, 160, 40),  # folder, shaded
    "o": (236, 150, 70),  # copper, lit
    "O": (196, 104, 40),  # copper
    "D": (132, 64, 24),  # copper, shaded
    "e": (40, 168, 64),  # green
    "r": (216, 40, 40),  # red
}
# The colour behind a transparent pixel, for viewers that ignore
# transparency: the usual colour key of Windows image strips.
KEY_COLOUR = (255, 0, 255)


class Canvas:
    """A 16x16 grid of palette characters."""

    def __init__(self):
        self.pixels = [[CLEAR] * SIZE for _ in range(SIZE)]

    def blit(self, rows, left=0, top=0):
        """Copies typed rows onto the canvas; "." leaves what is below."""
        for y, row in enumerate(rows):
            for x, char in enumerate(row):
                if char != CLEAR:
                    self.pixels[top + y][left + x] = char

    def fill(self, inside, colour, outline=None):
        """Paints every pixel whose centre lies inside the shape; with an
        outline colour, the pixels at the shape's edge get that instead. A
        colour of None leaves the inside as it is and draws the outline only."""
        mask = [[inside(x + 0.5, y + 0.5) for x in range(SIZE)] for y in range(SIZE)]

        def covered(x, y):
            return 0 <= x < SIZE and 0 <= y < SIZE and mask[y][x]

        for y in range(SIZE):
            for x in range(SIZE):
                if not mask[y][x]:
                    continue
                edge = not all(
                    covered(x + dx, y + dy) for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1))
                )
                paint = outline if outline and edge else colour
                if paint:
                    self.pixels[y][x] = paint

    def rows(self):
        return ["".join(row) for row in self.pixels]


def distance_to_segment(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)))
    return math.hypot(px - (ax + t * dx), py - (ay + t * dy))


def stroke(points, width):
    """A polyline drawn with a round pen of the given width."""

    def inside(x, y):
        return any(
            distance_to_segment(x, y, *a, *b) <= width / 2 for a, b in zip(points, points[1:])
        )

    return inside


def polygon(points):
    """Even-odd rule over the polygon's corners."""

    def inside(x, y):
        result = False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
                result = not result
        return result

    return inside


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def gear(cx, cy, tip, root, teeth):
    """A spur gear seen from the front: teeth alternate with the root circle."""

    def inside(x, y):
        angle = math.atan2(y - cy, x - cx) * teeth / (2 * math.pi)
        radius = tip if (angle % 1.0) < 0.5 else root
        return math.hypot(x - cx, y - cy) <= radius

    return inside


def draw_cube(canvas, left, top, size, lit, side, shade):
    """An isometric cube: three faces in three shades, one outline around."""
    right, bottom = left + size, top + size
    middle, quarter = left + size / 2, size / 4
    centre = (middle, top + 2 * quarter)
    upper_left, upper_right = (left, top + quarter), (right, top + quarter)
    lower_left, lower_right = (left, bottom - quarter), (right, bottom - quarter)
    faces = (
        ([(middle, top), upper_right, centre, upper_left], lit),
        ([upper_left, centre, (middle, bottom), lower_left], side),
        ([centre, upper_right, lower_right, (middle, bottom)], shade),
    )
    for corners, colour in faces:
        canvas.fill(polygon(corners), colour)
    silhouette = [(middle, top), upper_right, lower_right, (middle, bottom), lower_left, upper_left]
    canvas.fill(polygon(silhouette), None, outline="k")


def bom_show():
    canvas = Canvas()
    canvas.blit([
        "................",
        "kkkkkkkkkkkkkkk.",
        "kbbbkbbbbbbbbbk.",
        "kbbbkbbbbbbbbbk.",
        "kkkkkkkkkkkkkkk.",
        "kwwwkwwwwwwwwwk.",
        "kwGwkwGGGGGGGwk.",
        "kwwwkwwwwwwwwwk.",
        "kgggkgggggggggk.",
        "kwwwkwwwwwwwwwk.",
        "kwGwkwGGGGGwwwk.",
        "kwwwkwwwwwwwwwk.",
        "kgggkgggggggggk.",
        "kwwwkwwwwwwwwwk.",
        "kwGwkwGGGGGGwwk.",
        "kkkkkkkkkkkkkkk.",
    ])
    return canvas


def bom_set():
    canvas = Canvas()
    canvas.blit([
        "kkkkkkkkkkkk....",
        "kbbkbbbbbbbk....",
        "kkkkkkkkkkkk....",
        "kwwkwwwwwwwk....",
        "kGwkwGGGGGwk....",
        "kwwkwwwwwwwk....",
        "kggggggggggk....",
        "kwwkwwwwk.......",
        "kGwkwGGk........",
        "kwwkwwk.........",
        "kggggk..........",
        "kwwkk...........",
        "kkkk............",
    ])
    canvas.fill(gear(10.5, 10.5, 5.5, 4.0, 6), "S", outline="k")
    canvas.fill(disc(10.5, 10.5, 1.8), CLEAR)
    return canvas


def model_check():
    canvas = Canvas()
    canvas.blit([
        "kkkkkkkkkkk.....",
        "kwwwwwwwwwk.....",
        "kwGGGGGGwwk.....",
        "kwwwwwwwwwk.....",
        "kwGGGGGwwwk.....",
        "kwwwwwwwwwk.....",
        "kwGGGGGGwwk.....",
        "kwwwwwwwwwk.....",
        "kwGGGGwwwwk.....",
        "kwwwwwwwwwk.....",
        "kwwwwwwwwwk.....",
        "kwwwwwwwwwk.....",
        "kwwwwwwwwwk.....",
        "kkkkkkkkkkk.....",
    ], top=1)
    canvas.fill(stroke([(4.5, 9.5), (8.0, 13.0), (14.5, 4.0)], 3.4), "e", outline="k")
    return canvas


def parameter():
    canvas = Canvas()
    canvas.blit([
        "................",
        "..kkkkkkkkkkkk..",
        ".kbbbbbbbbbbbbk.",
        ".kbbwwwwwwbbbbk.",
        ".kbbwwbbbwwbbbk.",
        ".kbbwwbbbbwwbbk.",
        ".kbbwwbbbbwwbbk.",
        ".kbbwwbbbwwbbbk.",
        ".kbbwwwwwwbbbbk.",
        ".kbbwwbbbbbbbbk.",
        ".kbbwwbbbbbbbbk.",
        ".kbbwwbbbbbbbbk.",
        ".kbbwwbbbbbbbbk.",
        ".kbbbbbbbbbbbbk.",
        "..kkkkkkkkkkkk..",
        "................",
    ])
    return canvas


def material():
    canvas = Canvas()
    draw_cube(canvas, 0.5, 0.5, 15.0, "o", "O", "D")
    return canvas


def relations():
    canvas = Canvas()
    canvas.blit([
        "................",
        "................",
        "......BB........",
        "......BB........",
        "......BB........",
        "..BBBBBB........",
        ".BB...BB..rrrrrr",
        ".BB...BB..rrrrrr",
        ".BB...BB........",
        ".BB...BB........",
        ".BB...BB..rrrrrr",
        ".BB...BB..rrrrrr",
        "..BBBBBB........",
        "................",
        "................",
        "................",
    ])
    return canvas


def rename_model():
    canvas = Canvas()
    canvas.blit([
        "................",
        "................",
        "...........rrr..",
        "kkkkkkkkkkkkrkkk",
        "kwwwwwwwwwwwrwwk",
        "kwwwBBwwwwwwrwwk",
        "kwwBBBBwBwwwrwwk",
        "kwBBwwBBBwwwrwwk",
        "kwBBwwBBBBBwrwwk",
        "kwBBBBBBBwBwrwwk",
        "kwBBwwBBBwBwrwwk",
        "kwBBwwBBBBBwrwwk",
        "kwwwwwwwwwwwrwwk",
        "kkkkkkkkkkkkrkkk",
        "...........rrr..",
        "................",
    ])
    return canvas


def export_model():
    canvas = Canvas()
    draw_cube(canvas, 0.5, 0.5, 11.0, "l", "b", "B")
    canvas.fill(stroke([(5.5, 12.5), (12.5, 12.5)], 2.6), "e", outline="k")
    canvas.fill(polygon([(10.5, 8.5), (16.0, 12.5), (10.5, 16.0)]), "e", outline="k")
    return canvas


def open_work_dir():
    canvas = Canvas()
    canvas.blit([
        "................",
        "................",
        ".kkkk...........",
        "kYYYYk..........",
        "kYYYYYkkkkkkk...",
        "kYYYYYYYYYYYk...",
        "kYYYkkkkkkkkkkkk",
        "kYYkyyyyyyyyyyyk",
        "kYYkyyyyyyyyyyk.",
        "kYkyyyyyyyyyyyk.",
        "kYkyyyyyyyyyyk..",
        "kkyyyyyyyyyyyk..",
        "kkyyyyyyyyyyk...",
        "kkkkkkkkkkkkk...",
        "................",
        "................",
    ])
    return canvas


def new_drawing():
    canvas = Canvas()
    canvas.blit([
        "................",
        "....kkkkkkkkkkkk",
        "....kwwwwwwwwwwk",
        "....kwwwwbwwwwwk",
        "....kwwbbbbbwwwk",
        "....kwwbwbwbwwwk",
        "....kwbbbbbbbwwk",
        "....kwwbwbwbwwwk",
        "....kwwbbbbbwwwk",
        "....kwwwwbwwwwwk",
        "....kwwwwwkkkkkk",
        "....kwwwwwkwGwGk",
        "....kwwwwwkkkkkk",
        "....kwwwwwkwGGwk",
        "....kkkkkkkkkkkk",
        "................",
    ])
    canvas.blit([
        "..kkk..",
        "..kek..",
        "kkkekkk",
        "keeeeek",
        "kkkekkk",
        "..kek..",
        "..kkk..",
    ])
    return canvas


def save_as():
    canvas = Canvas()
    canvas.blit([
        "kkkkkkkkkkkkkkk.",
        "kbbkssssssskbbkk",
        "kbbksssskssskbbk",
        "kbbksssskssskbbk",
        "kbbksssskssskbbk",
        "kbbkssssssskbbbk",
        "kbbbkkkkkkkbbbbk",
        "kbbbbbbbbbbbbbbk",
        "kbbkkkkkkkkkkbbk",
        "kbbkwwwwwwwwkbbk",
        "kbbkwGGGGGGwkbbk",
        "kbbkwwwwwwwwkbbk",
        "kbbkwGGGGGGwkbbk",
        "kbbkwwwwwwwwkbbk",
        "kbbkwwwwwwwwkbbk",
        "kkkkkkkkkkkkkkkk",
    ])
    return canvas


def delete_old_versions():
    canvas = Canvas()
    canvas.blit([
        "kkkkkkkkk.......",
        "kgggggggk.......",
        "kgkkkkkkkkk.....",
        "kgkgggggggk.....",
        "kgkgkkkkkkkkk...",
        "kgkgkwwwwwwwk...",
        "kgkgkwGGGGGwk...",
        "kkkgkwwwwwwwk...",
        "..kgkwGGGGwwk...",
        "..kkkwwwwwwwk...",
        "....kwGGGGGwk...",
        "....kwwwwwwwk...",
        "....kkkkkkkkk...",
        "................",
        "................",
        "................",
    ])
    cross = [(8.5, 8.5), (15.0, 15.0)], [(15.0, 8.5), (8.5, 15.0)]
    for line in cross:
        canvas.fill(stroke(line, 3.2), "r", outline="k")
    for line in cross:
        canvas.fill(stroke(line, 1.4), "r")
    return canvas


def standard_part():
    canvas = Canvas()
    corners = [
        (8.0 + 7.9 * math.cos(math.radians(a)), 8.0 + 7.9 * math.sin(math.radians(a)))
        for a in range(0, 360, 60)
    ]
    canvas.fill(polygon(corners), "s", outline="k")
    canvas.fill(disc(8.0, 8.0, 6.4), None, outline="S")
    canvas.fill(disc(8.0, 8.0, 3.4), CLEAR, outline="k")
    return canvas


ICONS = {
    "BOMShow.gif": bom_show,
    "BOMSet.gif": bom_set,
    "modelcheck.gif": model_check,
    "parameter.gif": parameter,
    "material.gif": material,
    "relations.gif": relations,
    "ResetMdlName.gif": rename_model,
    "ExportMdl.gif": export_model,
    "openwrkdir.gif": open_work_dir,
    "NewDrw.gif": new_drawing,
    "saveas.gif": save_as,
    "modeldeloldver.gif": delete_old_versions,
    "spl.gif": standard_part,
}


def lzw_encode(indices, min_code_size):
    """GIF's variable-width LZW, codes packed from the least significant bit."""
    clear = 1 << min_code_size
    end = clear + 1
    out = bytearray()
    bits = 0
    bit_count = 0

    def emit(code, width):
        nonlocal bits, bit_count
        bits |= code << bit_count
        bit_count += width
        while bit_count >= 8:
            out.append(bits & 0xFF)
            bits >>= 8
            bit_count -= 8

    def fresh_table():
        return {(i,): i for i in range(clear)}, end + 1, min_code_size + 1

    table, next_code, width = fresh_table()
    emit(clear, width)
    word = (indices[0],)
    for index in indices[1:]:
        extended = word + (index,)
        if extended in table:
            word = extended
            continue
        emit(table[word], width)
        if next_code < 4096:
            table[extended] = next_code
            next_code += 1
            # The decoder learns each code one step later, so it widens when
            # the code after the one just added no longer fits.
            if next_code > (1 << width) and width < 12:
                width += 1
        else:
            emit(clear, width)
            table, next_code, width = fresh_table()
        word = (index,)
    emit(table[word], width)
    # The decoder adds its lagging entry after the last code as well, and may
    # widen before it reads the end code.
    if next_code == (1 << width) and width < 12:
        width += 1
    emit(end, width)
    if bit_count:
        out.append(bits & 0xFF)
    return bytes(out)


def gif_bytes(rows):
    chars = sorted({c for row in rows for c in row} - {CLEAR})
    colours = [KEY_COLOUR] + [PALETTE[c] for c in chars]
    index_of = {CLEAR: 0, **{c: i + 1 for i, c in enumerate(chars)}}
    depth = max(1, (len(colours) - 1).bit_length())
    colours += [(0, 0, 0)] * ((1 << depth) - len(colours))

    header = b"GIF89a" + SIZE.to_bytes(2, "little") * 2
    header += bytes([0x80 | 0x70 | (depth - 1), 0, 0])  # global table, 8-bit source
    table = b"".join(bytes(c) for c in colours)
    transparency = bytes([0x21, 0xF9, 4, 0x01, 0, 0, 0, 0])  # index 0 is see-through
    descriptor = b"\x2c" + bytes(4) + SIZE.to_bytes(2, "little") * 2 + b"\x00"

    min_code_size = max(2, depth)
    data = lzw_encode([index_of[c] for row in rows for c in row], min_code_size)
    chunks = [data[i : i + 255] for i in range(0, len(data), 255)]
    blocks = b"".join(bytes([len(chunk)]) + chunk for chunk in chunks)
    image = bytes([min_code_size]) + blocks + b"\x00"
    return header + table + transparency + descriptor + image + b"\x3b"


def main():
    folder = pathlib.Path(__file__).resolve().parent
    for name, draw in ICONS.items():
        rows = draw().rows()
        assert len(rows) == SIZE and all(len(row) == SIZE for row in rows), name
        (folder / name).write_bytes(gif_bytes(rows))


if __name__ == "__main__":
    main()
