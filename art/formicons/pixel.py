# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The shared palette and the small letter canvas every form icon is drawn on.

A canvas is a grid of one-letter colour codes; "." is transparent. Icons are
built by stamping letter pictures on a canvas and by filling shapes that get
their outline, light and shade from one rule (light from the upper left).
"""

from PIL import Image

# One palette for the whole family. Each material has its own dark outline.
PALETTE = {
    # neutral: ink, slate (paper and metal outline), greys, paper
    "K": "#2B3040", "k": "#565E73", "g": "#8A93A6",
    "h": "#BCC3D0", "i": "#E4E8EF", "W": "#FFFFFF",
    # amber: folders, wood, stars
    "O": "#7A4E12", "o": "#C88A22", "Y": "#F2BE42", "y": "#FFE698",
    # blue: floppies, screens, navigation
    "N": "#1C3A70", "B": "#2F68B8", "b": "#66A0E0", "c": "#BCDCF8",
    # green: transfers, consent
    "D": "#1B5227", "G": "#3A9A3E", "e": "#8CD66C",
    # red: removal, failure
    "M": "#7A1A1C", "R": "#D03A32", "r": "#F48C78",
    # violet and orange: swatches
    "P": "#4C2A74", "V": "#9460C4", "q": "#E8762C",
    # wood
    "t": "#E8BE8C",
}

# (outline, shade, body, light) of a material
BLUE = "NBbc"
GREEN = "DGGe"
RED = "MRRr"
AMBER = "OoYy"
METAL = "kghW"
DISABLED = "ghhi"

_RGBA = {letter: tuple(int(code[i:i + 2], 16) for i in (1, 3, 5)) + (255,)
         for letter, code in PALETTE.items()}
_RGBA["."] = (0, 0, 0, 0)


def rows_of(picture):
    """Splits a triple-quoted letter picture into its rows."""
    rows = [line.strip() for line in picture.strip().splitlines()]
    width = len(rows[0])
    for number, row in enumerate(rows):
        if len(row) != width:
            raise ValueError(f"row {number} is {len(row)} wide, not {width}: {row}")
    return rows


def mirrored(picture):
    return "\n".join(row[::-1] for row in rows_of(picture))


def flipped(picture):
    return "\n".join(reversed(rows_of(picture)))


def turned(picture):
    return "\n".join("".join(column) for column in zip(*rows_of(picture)))


class Canvas:
    def __init__(self, width, height=None):
        self.width = width
        self.height = height or width
        self.cells = [["."] * self.width for _ in range(self.height)]

    def put(self, x, y, letter):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.cells[y][x] = letter

    def stamp(self, picture, x=0, y=0, recolour=None):
        """Paints a letter picture; "." leaves the ground, "_" clears it."""
        for dy, row in enumerate(rows_of(picture)):
            for dx, letter in enumerate(row):
                if letter == "_":
                    self.put(x + dx, y + dy, ".")
                elif letter != ".":
                    self.put(x + dx, y + dy, (recolour or {}).get(letter, letter))
        return self

    def rect(self, x, y, width, height, letter):
        for row in range(y, y + height):
            for column in range(x, x + width):
                self.put(column, row, letter)
        return self

    def solid(self, mask, ramp, x=0, y=0):
        """Fills a "#" mask as a lit solid: outline, upper-left light,
        lower-right shade."""
        rows = rows_of(mask)
        inside = {(dx, dy) for dy, row in enumerate(rows)
                  for dx, letter in enumerate(row) if letter == "#"}
        return self.solid_points(inside, ramp, x, y)

    def solid_points(self, inside, ramp, x=0, y=0):
        outline, shade, body, light = ramp
        edge = {(px, py) for px, py in inside
                if any(n not in inside for n in
                       ((px - 1, py), (px + 1, py), (px, py - 1), (px, py + 1)))}
        for px, py in inside:
            lit = (px - 1, py) in edge or (px, py - 1) in edge
            dim = (px + 1, py) in edge or (px, py + 1) in edge
            if (px, py) in edge:
                letter = outline
            elif lit and dim:
                letter = light if (px, py - 1) in edge else body
            elif lit:
                letter = light
            elif dim:
                letter = shade
            else:
                letter = body
            self.put(x + px, y + py, letter)
        return self

    def recoloured(self, table):
        self.cells = [[table.get(letter, letter) for letter in row]
                      for row in self.cells]
        return self

    def image(self):
        picture = Image.new("RGBA", (self.width, self.height))
        picture.putdata([_RGBA[letter] for row in self.cells for letter in row])
        return picture


def disc(cx, cy, radius):
    """The pixels whose centre lies in a circle; half coordinates allowed."""
    reach = range(int(-radius) - 1, int(cx + cy + 2 * radius) + 2)
    return {(x, y) for x in reach for y in reach
            if (x - cx) ** 2 + (y - cy) ** 2 <= radius * radius}
