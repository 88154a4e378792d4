# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Shared drawing kit: pixel masks, materials, light, outlines and plates.

A mask is a set of (x, y) pixels.  Shapes are given in continuous coordinates
(pixel n covers n..n+1), sampled on a fine grid and thresholded, so that every
pixel is either in or out.  Light falls from the upper left.
"""

import math

from PIL import Image

SAMPLES = 6
LIGHT = (-0.50, -0.58, 0.64)


# --- colour -----------------------------------------------------------------

def rgb(text):
    """'#rrggbb' as a tuple."""
    return tuple(int(text[i:i + 2], 16) for i in (1, 3, 5))


def mix(a, b, part):
    """Colour between a (part 0) and b (part 1)."""
    return tuple(round(p + (q - p) * part) for p, q in zip(a, b))


NIGHT = rgb("#0c1024")
WHITE = rgb("#ffffff")


class Material:
    """Five tones of one colour: 0 line, 1 shade, 2 base, 3 light, 4 shine."""

    def __init__(self, base, shade=None, light=None, shine=None, line=None):
        base = rgb(base)
        self.tones = [
            rgb(line) if line else mix(base, NIGHT, 0.82),
            rgb(shade) if shade else mix(base, rgb("#141a48"), 0.38),
            base,
            rgb(light) if light else mix(base, rgb("#fffbe8"), 0.42),
            rgb(shine) if shine else mix(base, WHITE, 0.85),
        ]

    @property
    def line(self):
        return self.tones[0]

    def tone(self, value, step=1.0):
        """Tone at a height between 1 and 4, rounded to the family's step."""
        value = max(1.0, min(4.0, round(value / step) * step))
        low = min(3, int(value))
        return mix(self.tones[low], self.tones[low + 1], value - low)


STEEL = Material("#a9b4c8", shade="#6d7992", light="#d5dce8")
DARK = Material("#4a5470", shade="#2f3750", light="#7b87a6")
PAPER = Material("#eef0f6", shade="#b9c0d2", light="#ffffff", line="#1c2238")
CREAM = Material("#fbeec2", shade="#d3b878", light="#fffbe6", line="#3a2a12")
BLUE = Material("#2f6fe0", light="#78b0ff")
SKY = Material("#38a8f0", light="#8edcff")
GREEN = Material("#35b548", light="#92e878")
LIME = Material("#8ad22c", light="#d0f87c")
RED = Material("#e2342e", shade="#9c1634", light="#ff8a6c")
ORANGE = Material("#f88a18", shade="#b8500c", light="#ffc862")
GOLD = Material("#fcc41c", shade="#c87c08", light="#fff07c", line="#402404")
VIOLET = Material("#8450d8", light="#bc98ff")
PINK = Material("#e84aa4", light="#ff9cd0")
TEAL = Material("#18a8a0", light="#74e4d0")


# --- masks ------------------------------------------------------------------

def shape(inside, box):
    """Pixels of box (x0, y0, x1, y1) at least half covered by inside(x, y)."""
    x0, y0, x1, y1 = (math.floor(box[0]) - 1, math.floor(box[1]) - 1,
                      math.ceil(box[2]) + 1, math.ceil(box[3]) + 1)
    need = SAMPLES * SAMPLES / 2
    offsets = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    return {(x, y) for x in range(x0, x1) for y in range(y0, y1)
            if sum(1 for i in offsets for j in offsets
                   if inside(x + i, y + j)) >= need}


def rect(x, y, w, h):
    return {(i, j) for i in range(x, x + w) for j in range(y, y + h)}


def rounded(x, y, w, h, cut=1):
    """Rectangle with its corners cut: the cut is the corner's pixel radius."""
    def inside(px, py):
        dx = max(x + cut - px, px - (x + w - cut), 0)
        dy = max(y + cut - py, py - (y + h - cut), 0)
        return (x <= px <= x + w and y <= py <= y + h
                and dx * dx + dy * dy <= cut * cut)
    if cut == 1:
        corners = {(x, y), (x + w - 1, y), (x, y + h - 1),
                   (x + w - 1, y + h - 1)}
        return rect(x, y, w, h) - corners
    return shape(inside, (x, y, x + w, y + h))


def ellipse(cx, cy, rx, ry=None):
    ry = rx if ry is None else ry
    return shape(lambda x, y: ((x - cx) / rx) ** 2 + ((y - cy) / ry) ** 2 <= 1,
                 (cx - rx, cy - ry, cx + rx, cy + ry))


def polygon(*points):
    def inside(x, y):
        odd = False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            if (ay > y) != (by > y):
                if x < (bx - ax) * (y - ay) / (by - ay) + ax:
                    odd = not odd
        return odd
    xs, ys = zip(*points)
    return shape(inside, (min(xs), min(ys), max(xs), max(ys)))


def stroke(points, width):
    """A line of some width through the points, with round ends."""
    half = width / 2

    def near(x, y):
        for (ax, ay), (bx, by) in zip(points, points[1:]):
            dx, dy = bx - ax, by - ay
            length = dx * dx + dy * dy
            t = ((x - ax) * dx + (y - ay) * dy) / length if length else 0
            t = max(0.0, min(1.0, t))
            if (x - ax - t * dx) ** 2 + (y - ay - t * dy) ** 2 <= half * half:
                return True
        return False
    xs, ys = zip(*points)
    return shape(near, (min(xs) - half, min(ys) - half,
                        max(xs) + half, max(ys) + half))


def arc_points(cx, cy, rx, ry, start, end, tilt=0.0, steps=24):
    """Points of an elliptic arc; angles in degrees, clockwise from right."""
    ct, st = math.cos(math.radians(tilt)), math.sin(math.radians(tilt))
    points = []
    for i in range(steps + 1):
        a = math.radians(start + (end - start) * i / steps)
        x, y = rx * math.cos(a), ry * math.sin(a)
        points.append((cx + x * ct - y * st, cy + x * st + y * ct))
    return points


def star(cx, cy, outer, inner, count, turn=-90.0):
    points = []
    for i in range(count * 2):
        r = inner if i % 2 else outer
        a = math.radians(turn + 180.0 * i / count)
        points.append((cx + r * math.cos(a), cy + r * math.sin(a)))
    return polygon(*points)


def drawn(x, y, rows, marks="#"):
    """Mask from text rows: every character found in marks is a pixel."""
    return {(x + i, y + j) for j, row in enumerate(rows)
            for i, mark in enumerate(row) if mark in marks}


def grown(mask):
    """The mask and its four neighbours everywhere."""
    return mask | {(x + dx, y + dy) for x, y in mask
                   for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1))}


def moved(mask, dx, dy):
    return {(x + dx, y + dy) for x, y in mask}


def bounds(mask):
    xs, ys = zip(*mask)
    return min(xs), min(ys), max(xs), max(ys)


# --- canvas -----------------------------------------------------------------

class Canvas:
    """Opaque pixels on a transparent ground.

    step is the fineness of the tones: 1 gives the small phone's hard tones,
    0.5 the large phone's softer ones.
    """

    def __init__(self, width, height, step=1.0):
        self.width, self.height, self.step = width, height, step
        self.pixels = {}

    def put(self, mask, colour):
        """Colour all pixels of the mask that lie on the canvas."""
        colour = rgb(colour) if isinstance(colour, str) else colour
        for x, y in mask:
            if 0 <= x < self.width and 0 <= y < self.height:
                self.pixels[x, y] = colour

    def text(self, x, y, rows, colours):
        """Paint text rows; colours maps characters to colours."""
        for mark, colour in colours.items():
            self.put(drawn(x, y, rows, mark), colour)

    def _edge(self, mask, x, y):
        lit = (x - 1, y) not in mask or (x, y - 1) not in mask
        dim = (x + 1, y) not in mask or (x, y + 1) not in mask
        return lit - dim

    def panel(self, mask, material, line=True, fall=0.9, edge=1.0, gloss=0.0):
        """A flat face: soft fall of light, lit and shaded edges.

        gloss lifts the part of the face above a shallow curve.
        """
        if line:
            self.outline(mask, material)
        x0, y0, x1, y1 = bounds(mask)
        for x, y in mask:
            u = (x + 0.5 - x0) / (x1 - x0 + 1) - 0.5
            v = (y + 0.5 - y0) / (y1 - y0 + 1) - 0.5
            value = 2.1 - fall * (u + v) + edge * self._edge(mask, x, y)
            if gloss and v + 0.12 * (1 - 4 * u * u) < 0.02:
                value += gloss
            self.put({(x, y)}, material.tone(value, self.step))

    def ball(self, mask, material, centre=None, radius=None, line=True):
        """A round body, lit as a sphere (or an ellipsoid)."""
        if line:
            self.outline(mask, material)
        x0, y0, x1, y1 = bounds(mask)
        cx, cy = centre or ((x0 + x1 + 1) / 2, (y0 + y1 + 1) / 2)
        rx, ry = radius or ((x1 - x0 + 1) / 2, (y1 - y0 + 1) / 2)
        for x, y in mask:
            nx, ny = (x + 0.5 - cx) / rx, (y + 0.5 - cy) / ry
            nz = math.sqrt(max(0.0, 1 - nx * nx - ny * ny))
            lit = nx * LIGHT[0] + ny * LIGHT[1] + nz * LIGHT[2]
            self.put({(x, y)}, material.tone(0.75 + 3.1 * lit, self.step))

    def outline(self, mask, material):
        self.put(grown(mask) - mask, material.line)

    def paste(self, other, dx=0, dy=0):
        for (x, y), colour in other.pixels.items():
            self.put({(x + dx, y + dy)}, colour)

    def recoloured(self, change):
        result = Canvas(self.width, self.height, self.step)
        result.pixels = {at: change(c) for at, c in self.pixels.items()}
        return result

    def image(self):
        image = Image.new("RGBA", (self.width, self.height), (0, 0, 0, 0))
        for at, colour in self.pixels.items():
            image.putpixel(at, colour + (255,))
        return image


def muted(colour, saturation, lift):
    """A colour made paler, for symbols that are not selected.

    Dark colours are lifted less, so that outlines stay crisp.
    """
    r, g, b = colour
    grey = round(0.30 * r + 0.59 * g + 0.11 * b)
    pale = tuple(round(grey + (c - grey) * saturation) for c in colour)
    return mix(pale, (206, 212, 226), lift * (0.4 + 0.6 * grey / 255))


def plate(width, height, rim, ring, top, bottom, cut=4, gloss=None, step=1.0):
    """The opaque tile behind a selected symbol: rim, bright ring, face."""
    def inner(mask):
        return {(x, y) for x, y in mask if rect(x - 1, y - 1, 3, 3) <= mask}

    canvas = Canvas(width, height, step)
    face = rounded(0, 0, width, height, cut)
    canvas.put(face, rim)
    for colour in ring:
        face = inner(face)
        canvas.put(face, colour)
    face = inner(face)
    y0, y1 = bounds(face)[1], bounds(face)[3]
    for x, y in face:
        part = (y - y0) / (y1 - y0)
        colour = mix(rgb(top), rgb(bottom), round(part * 8) / 8)
        bend = 6 * ((x - width / 2) / width) ** 2
        if gloss and y - y0 < (y1 - y0) * 0.42 - bend:
            colour = mix(colour, WHITE, gloss)
        canvas.put({(x, y)}, colour)
    return canvas


def selected(symbol, tile, shadow):
    """The symbol on its tile, lifted by a shadow at its lower right."""
    result = Canvas(symbol.width, symbol.height, symbol.step)
    result.paste(tile)
    face = set(tile.pixels)
    body = set(symbol.pixels)
    for at in (moved(body, 1, 1) - body) & face:
        result.put({at}, mix(tile.pixels[at], rgb(shadow), 0.45))
    result.paste(symbol)
    return result


def board(width, height, cells, symbols, saturation, lift):
    """All symbols, muted, on one transparent ground."""
    result = Canvas(width, height)
    for (x, y), symbol in zip(cells, symbols):
        result.paste(symbol.recoloured(
            lambda c: muted(c, saturation, lift)), x, y)
    return result
