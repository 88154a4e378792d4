# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program icon and the icon of theme files.

The program icon is a quill over a phone screen; the quill's vane is a fan of
colour swatches. Both icons are drawn large and scaled down, with a looser
drawing (fewer swatches, thicker lines) for the small sizes. The theme file
icon takes the two smallest sizes from the form icons.
"""

import math

from PIL import Image, ImageDraw

from icons import theme_file, theme_sheet
from pixel import PALETTE, Canvas

OVERSAMPLING = 8

# too small for scaling: set by hand
PROGRAM_16 = """
......NNNDDD....
.....NcbBDeGD...
.....NcbBDeGDOO.
.....NbbBDeGOyYO
.kkkkkNbBDGOyYYO
kWWWWWNbBDGOYYO.
kWNNNNNbBGOYOMM.
kWNbbbbNBKKOrRRM
kWNbbbccKWWKRRM.
kWNccccKWWKMMM..
kWNcccKWhKgk....
kWNccKKKcNgk....
kWNGKKeeeNgk....
kWNeKeeeeNgk....
kWNNNNNNNNgk....
.kkkkkkkkkk.....
"""

# (outline, body, light) from the left of the fan to its right
SWATCHES = [("P", "V", "h"), ("N", "B", "b"), ("D", "G", "e"),
            ("O", "Y", "y"), ("O", "q", "Y"), ("M", "R", "r")]


class Sketch:
    """Draws in units of the finished icon's pixels."""

    def __init__(self, size):
        self.size = size
        self.scale = OVERSAMPLING
        self.picture = Image.new("RGBA", (size * self.scale,) * 2)
        self.pen = ImageDraw.Draw(self.picture)

    def box(self, left, top, right, bottom, letter, radius=0):
        corners = [round(v * self.scale) for v in (left, top, right, bottom)]
        corners[2] -= 1
        corners[3] -= 1
        self.pen.rounded_rectangle(corners, radius * self.scale, PALETTE[letter])

    def shape(self, points, letter):
        self.pen.polygon([(x * self.scale, y * self.scale) for x, y in points],
                         PALETTE[letter])

    def spot(self, x, y, radius, letter):
        self.box(x - radius, y - radius, x + radius, y + radius, letter, radius)

    def finished(self):
        # scaling with premultiplied alpha keeps the rims free of black
        small = self.picture.convert("RGBa").resize((self.size,) * 2, Image.BOX)
        return small.convert("RGBA")


def along(pivot, degrees, distance, aside=0.0):
    """A point seen from the pivot; 0 degrees is straight up, 90 is right."""
    turn = math.radians(degrees)
    return (pivot[0] + distance * math.sin(turn) + aside * math.cos(turn),
            pivot[1] - distance * math.cos(turn) + aside * math.sin(turn))


def blade(pivot, degrees, near, far, root, tip):
    """One swatch of the fan: narrow at the pivot, a rounded end outside."""
    left, right = [], []
    for step in range(9):
        part = step / 8
        half = root + (tip - root) * part
        left.append(along(pivot, degrees, near + (far - near) * part, -half))
        right.append(along(pivot, degrees, near + (far - near) * part, half))
    cap = [along(pivot, degrees, far + tip * 0.8 * math.sin(math.pi * k / 8),
                 -tip * math.cos(math.pi * k / 8)) for k in range(9)]
    return left + cap + right[::-1]


def landscape(sketch, left, top, right, bottom):
    """The little picture on a phone screen: sky, sun, hills."""
    width, height = right - left, bottom - top
    sketch.box(left, top, right, bottom, "c")
    sketch.box(left, top, right, top + height * 0.35, "b")
    foot = bottom
    sketch.shape([(left, foot), (left, top + height * 0.78),
                  (left + width * 0.3, top + height * 0.55),
                  (left + width * 0.75, foot)], "G")
    sketch.shape([(left + width * 0.2, foot),
                  (left + width * 0.68, top + height * 0.62),
                  (right, top + height * 0.84), (right, foot)], "e")


def program_icon(size):
    if size == 16:
        return Canvas(16).stamp(PROGRAM_16).image()
    sketch = Sketch(size)
    unit = size / 64
    line = 1.3 if size == 32 else max(1.5, 2 * unit)

    # the phone screen, its edges on whole pixels
    left, top = round(5 * unit), round(19 * unit)
    right, bottom = round(43 * unit), size - round(1.5 * unit)
    rim = max(1, round(2 * unit))
    case = max(1, round(3 * unit))
    sketch.box(left, top, right, bottom, "k", 6 * unit)
    sketch.box(left + rim, top + rim, right - rim, bottom - rim, "g", 4.5 * unit)
    sketch.box(left + rim, top + rim, right - rim - unit, bottom - rim - unit,
               "i", 4.5 * unit)
    inset = rim + case
    sketch.box(left + inset, top + inset, right - inset, bottom - inset,
               "N", 1.5 * unit)
    inner = inset + rim
    landscape(sketch, left + inner, top + inner, right - inner, bottom - inner)

    # the vane: a fan of swatches, the upper left one on top
    swatches = SWATCHES if size >= 48 else SWATCHES[1:4] + SWATCHES[5:]
    pivot = (28.5 * unit, 37.5 * unit)
    first, last = (-2, 86) if size >= 48 else (2, 84)
    count = len(swatches)
    for place in range(count - 1, -1, -1):
        outline, body, light = swatches[place]
        share = place / (count - 1)
        degrees = first + (last - first) * share
        far = (24.5 + 10 * math.sin(math.pi * share)) * unit
        root, tip = 2.6 * unit, (5.4 if size >= 48 else 6.2) * unit
        sketch.shape(blade(pivot, degrees, -unit, far, root + line / 2,
                           tip + line / 2), outline)
        sketch.shape(blade(pivot, degrees, 0, far, root - line / 2,
                           tip - line / 2), body)
        sketch.shape([along(pivot, degrees, 6 * unit, -root + 0.4 * line),
                      along(pivot, degrees, far, -tip + 0.5 * line),
                      along(pivot, degrees, far, -tip * 0.45),
                      along(pivot, degrees, 6 * unit, -root * 0.3)], light)

    # shaft and nib
    nib = along(pivot, 225, 27 * unit)
    width = 3.0 * unit
    sketch.shape([along(pivot, 45, 20 * unit), along(pivot, 45, 0, width + line),
                  along(pivot, 225, 15 * unit, -width * 1.2 - line),
                  nib, along(pivot, 225, 15 * unit, width * 1.2 + line),
                  along(pivot, 45, 0, -width - line)], "K")
    sketch.shape([along(pivot, 45, 18 * unit), along(pivot, 45, 0, width),
                  along(pivot, 225, 14 * unit, -width),
                  along(pivot, 225, 14 * unit, width),
                  along(pivot, 45, 0, -width)], "h")
    sketch.shape([along(pivot, 45, 18 * unit), along(pivot, 45, 0),
                  along(pivot, 225, 14 * unit),
                  along(pivot, 225, 14 * unit, width),
                  along(pivot, 45, 0, -width)], "W")
    if size >= 64:
        slit = 0.35 * unit
        sketch.spot(*along(pivot, 225, 17.5 * unit), 1.1 * unit, "g")
        sketch.shape([along(pivot, 225, 17.5 * unit, -slit), nib,
                      along(pivot, 225, 17.5 * unit, slit)], "g")
    return sketch.finished()


def theme_icon(size):
    if size == 16:
        return theme_sheet(2, 1).image()
    if size == 32:
        return theme_file().image()
    sketch = Sketch(size)
    unit = size / 32
    line = round(unit + 0.2)

    def snapped(value):
        return round(value * unit)

    # the sheet with its folded corner
    left, top, right, bottom = (snapped(v) for v in (4, 1, 28, 31))
    fold = snapped(6)
    rest = 1 / OVERSAMPLING  # a polygon covers its right and lower end as well

    def sheet(inset, letter):
        cut = fold + inset * 0.4
        far, low = right - inset - rest, bottom - inset - rest
        sketch.shape([(left + inset, top + inset), (right - cut, top + inset),
                      (far, top + cut), (far, low), (left + inset, low)], letter)

    sheet(0, "k")
    sheet(line, "i")
    sketch.shape([(left + line, top + line), (right - fold - line, top + line),
                  (right - 2 * line - rest, top + fold + 2 * line),
                  (right - 2 * line - rest, bottom - 2 * line - rest),
                  (left + line, bottom - 2 * line - rest)], "W")
    crease, ridge = right - fold - line * 0.4, top + fold + line * 0.4
    sketch.shape([(crease, top), (crease, ridge), (right - rest, ridge)], "k")
    sketch.shape([(right - fold + line * 0.6, top + line * 1.8),
                  (right - fold + line * 0.6, top + fold - line * 0.6),
                  (right - line * 1.8, top + fold - line * 0.6)], "i")

    # the phone; its details need thinner lines than the sheet
    hair = max(1, round(unit * 0.7))
    l, t, r, b = (snapped(v) for v in (7, 7, 19, 28))
    sketch.box(l, t, r, b, "k", 2 * unit)
    sketch.box(l + hair, t + hair, r - hair, b - hair, "g", 1.3 * unit)
    sketch.box(l + hair, t + hair, r - 2 * hair, b - 2 * hair, "h", 1.3 * unit)
    sketch.box(l + hair, t + hair, l + 2 * hair, b - 2 * hair, "W", hair / 2)
    sl, st, sr, sb = l + 2 * hair, t + 3 * hair, r - 2 * hair, t + snapped(12)
    sketch.box(sl, st, sr, sb, "N", 0.5 * unit)
    landscape(sketch, sl + hair, st + hair, sr - hair, sb - hair)
    sketch.box(sl + hair, st + hair, sr - hair, st + hair + snapped(1), "V")
    key = (sr - sl - 2 * hair) / 3
    for row in range(3):
        for column in range(3):
            x = sl + column * (key + hair)
            y = sb + snapped(1.5) + row * snapped(2)
            letter = "k"
            if row == 0:
                letter = "GNR"[column]
            sketch.box(x, y, x + key, y + snapped(1.1), letter, 0.3 * unit)

    # the swatches
    for row, (edge, body, light) in enumerate(("MRr", "OYy", "DGe", "NBb")):
        x, y = snapped(20.5), snapped(11) + row * snapped(4.2)
        w, h = snapped(5.2), snapped(3.6)
        sketch.box(x, y, x + w, y + h, edge, 0.6 * unit)
        sketch.box(x + hair, y + hair, x + w - hair, y + h - hair, body)
        sketch.box(x + hair, y + hair, x + w - hair, y + hair * 1.6, light)
    return sketch.finished()
