# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Picture 2600: a mountain lake at evening, painted by rule, then dithered."""

import math
import random

from PIL import Image

from kit import mix, rgb

WIDTH, HEIGHT = 110, 103
FINE = 3                       # samples per pixel and direction
SHORE = 62.0                   # height of the water line
SUN = (66.0, 44.0)

SKY = [(0, "#1c2460"), (14, "#3c3a88"), (28, "#8a4c98"), (40, "#e0688a"),
       (50, "#ff9c64"), (58, "#ffd070"), (64, "#fff0a8")]


def gradient(stops, at):
    """Colour of a list of (position, colour) stops at a position."""
    if at <= stops[0][0]:
        return rgb(stops[0][1])
    for (p, a), (q, b) in zip(stops, stops[1:]):
        if at < q:
            return mix(rgb(a), rgb(b), (at - p) / (q - p))
    return rgb(stops[-1][1])


class Noise:
    """Smooth noise of one or two coordinates, always the same."""

    def __init__(self, seed):
        source = random.Random(seed)
        self.values = [source.random() * 2 - 1 for _ in range(4096)]

    def at(self, x, y=0.0):
        ix, iy = math.floor(x), math.floor(y)
        fx, fy = x - ix, y - iy
        fx, fy = fx * fx * (3 - 2 * fx), fy * fy * (3 - 2 * fy)

        def value(i, j):
            return self.values[(i * 73 + j * 1031) % 4096]
        top = value(ix, iy) * (1 - fx) + value(ix + 1, iy) * fx
        low = value(ix, iy + 1) * (1 - fx) + value(ix + 1, iy + 1) * fx
        return top * (1 - fy) + low * fy

    def layers(self, x, y=0.0, count=4):
        return sum(self.at(x * 2 ** i, y * 2 ** i) / 2 ** i
                   for i in range(count))


CLOUD, ROCK, TREES, WATER = Noise(11), Noise(5), Noise(23), Noise(42)


def ridge(peaks, x, rough):
    """Height of a mountain line: the highest of its peaks, roughened."""
    top = min(py + abs(x - px) * (left if x < px else right)
              for px, py, left, right in peaks)
    return top + rough * ROCK.layers(x / 9.0, top * 0.02)


FAR = [(8, 44, 0.5, 0.45), (52, 45, 0.3, 0.35), (80, 43, 0.42, 0.4),
       (108, 38, 0.5, 0.4)]
NEAR = [(28, 18, 0.95, 0.98), (8, 32, 0.8, 0.75), (41, 36, 0.8, 1.0),
        (97, 25, 1.02, 0.85), (112, 35, 0.75, 0.7), (85, 42, 1.0, 0.8)]


def sky(x, y):
    colour = gradient(SKY, y)
    glow = math.exp(-((x - SUN[0]) ** 2 + 1.5 * (y - SUN[1]) ** 2) / 500)
    colour = mix(colour, rgb("#ffe890"), 0.75 * glow)
    if math.hypot(x - SUN[0], y - SUN[1]) < 4.6:
        return rgb("#fffce0")
    bank = CLOUD.layers(x / 26.0 + 3, y / 5.5) - abs(y - 24) / 20
    if bank > -0.35:
        lit = gradient([(8, "#8c5ca8"), (22, "#ff8c8c"), (38, "#ffc880")], y)
        deep = gradient([(8, "#3c3478"), (40, "#a85488")], y)
        under = CLOUD.layers(x / 26.0 + 3, (y + 2.2) / 5.5) - abs(y - 22) / 20
        face = mix(deep, lit, max(0, min(1, 0.55 + 1.6 * (bank - under))))
        colour = mix(colour, face, max(0, min(0.85, (bank + 0.35) * 2.2)))
    return colour


STARS = [(7, 4), (34, 3), (77, 6), (101, 9), (51, 7), (19, 9), (63, 2),
         (88, 3), (45, 13), (94, 14), (13, 15), (26, 5), (70, 11), (106, 2)]


def star(x, y):
    """Colour of a star: the first ones bright, the others dimmer."""
    at = (int(x), int(y))
    if at not in STARS:
        return None
    return rgb("#fff6e0" if STARS.index(at) < 4 else "#a8a0d8")


def facing_sun(x, y):
    """1 on slopes that face the sun, -1 on the others, soft at the spines."""
    px, py = min(NEAR, key=lambda p: p[1] + abs(x - p[0])
                 * (p[2] if x < p[0] else p[3]))[:2]
    down = max(0.0, y - py)
    spine = px + 2.2 * ROCK.at(y / 5.0, px) * min(1, down / 5) \
        + (0.16 if px < SUN[0] else -0.16) * down
    side = max(-1.0, min(1.0, (x - spine) / 1.6))
    return side if px < SUN[0] else -side


def mountain(x, y, top):
    """Rock and snow of the near range, lit from the sun in its gap."""
    depth = y - top
    grain = ROCK.layers(x / 5.0 + 0.12 * depth, y / 8.0 + x / 9.0)
    lit = max(0.0, min(1.0, 0.45 + 0.36 * facing_sun(x, y) + 0.42 * grain))
    snowline = 10 + 6 * ROCK.at(x / 3.0, 7) + 4 * ROCK.at(x / 1.3, 3)
    high = max(0.0, 1 - max(0, top - 18) / 24)
    if depth < snowline * high:
        return mix(rgb("#5c5ca4"), rgb("#ffd4a4"), lit)
    rock = mix(rgb("#28265a"), rgb("#b45c6c"), lit * 0.85)
    return mix(rock, rgb("#80548c"), max(0, min(0.6, (y - 42) / 28)))


def forest_top(x):
    """Tree line of the far shore: pointed firs of changing height."""
    base = SHORE - 4.5 - 3.2 * abs(x - 64) / 50 - 1.4 * TREES.at(x / 7.0)
    pitch = 3.1
    off = abs((x + 1.3 * TREES.at(x / 6.0, 9)) % pitch - pitch / 2)
    return base - 2.4 + off * 1.7 - 0.8 * TREES.at(math.floor(x / pitch), 4)


def land(x, y):
    """Colour of everything above the water."""
    if y > forest_top(x):
        shade = max(0, min(1, (y - forest_top(x)) / 7))
        near_sun = math.exp(-((x - SUN[0]) / 16) ** 2)
        top = mix(rgb("#243450"), rgb("#6c4848"), near_sun)
        return mix(top, rgb("#101c30"), shade)
    top = ridge(NEAR, x, 1.6)
    if y > top:
        return mountain(x, y, top)
    far = ridge(FAR, x, 1.2)
    if y > far:
        haze = max(0, min(1, (y - far) / 18))
        glow = math.exp(-((x - SUN[0]) / 22) ** 2)
        return mix(mix(rgb("#7c5c9c"), rgb("#e88c7c"), 0.7 * glow),
                   rgb("#f0a488"), haze * 0.7)
    return star(x, y) or sky(x, y)


def lake(x, y):
    """The land mirrored in the water, broken by ripples."""
    depth = y - SHORE
    wave = WATER.layers(x / (7 + depth * 0.25), y * (1.15 - depth * 0.01), 2)
    mirrored = SHORE - depth * 1.25 - 0.6 + wave * (0.4 + depth * 0.07)
    if mirrored < 0:
        mirrored = 0
    colour = land(x + wave * (0.3 + depth * 0.05), min(mirrored, SHORE - 0.2))
    colour = mix(colour, rgb("#20306c"), 0.18 + 0.008 * depth)
    path = math.exp(-((x - SUN[0]) / (2.2 + depth * 0.16)) ** 2)
    spark = WATER.layers(x / 2.6, y * 1.3 + 40, 2)
    if depth > 0.8:
        colour = mix(colour, rgb("#ffe08c"),
                     max(0, min(0.95, path * (0.62 + 0.75 * spark))))
    if depth < 1:
        near_sun = math.exp(-((x - SUN[0]) / 20) ** 2)
        colour = mix(colour, rgb("#ffc890"), 0.10 + 0.5 * near_sun)
    return colour


def fir(x, y, foot, base, height, width):
    """Whether a point lies in a fir tree standing at foot."""
    off = abs(x - foot)
    if off < 0.7 and base - height <= y < base + 3:
        return True
    up = (base - y + 0.45 * off) / height
    if not 0 <= up <= 1:
        return False
    tiers = max(4, height / 6.5)
    droop = 1 - (up * tiers) % 1
    return off < width * ((1 - up) * (0.42 + 0.62 * droop) + 0.03)


FIRS = [(4.5, 97, 60, 10), (16, 99, 42, 8), (105.5, 98, 54, 9.5),
        (95.5, 100, 31, 6.4), (25.5, 101, 21, 5)]
BIRDS = {(52, 31), (53, 32), (54, 31), (58, 27), (59, 28), (60, 27),
         (75, 34), (76, 35), (77, 34)}


def bank(x):
    """Top of the dark foreground meadow."""
    return (96 - 8 * math.exp(-(x / 22) ** 2)
            - 6 * math.exp(-((x - 110) / 20) ** 2)
            + 1.2 * TREES.layers(x / 6.0, 17))


def boat(x, y):
    """A rowing boat with somebody in it; None beside it."""
    u = (x - 44) / 8.0
    if abs(u) < 1:
        rim = 80.6 - 1.8 * u * u
        keel = rim + 3.4 * (1 - abs(u) ** 3)
        if rim < y < keel:
            return rgb("#e89460") if y < rim + 0.9 else rgb("#4c2438")
        if keel <= y < keel + 3 * (1 - u * u):
            return rgb("#2c285c")
    if math.hypot(x - 45.5, (y - 75.4)) < 1.2:
        return rgb("#f0b080")
    if abs(x - 45.3) < 1.7 - 0.25 * (80.6 - y) and 76.4 < y < 80.8:
        return rgb("#a83848") if x > 45.2 else rgb("#5c2040")
    return None


def point(x, y):
    for foot, base, height, width in FIRS:
        if fir(x, y, foot, base, height, width):
            side = (x - foot) / width
            warm = max(0, side if foot < 55 else -side)
            needle = TREES.at(x * 1.3, y * 1.1)
            return mix(rgb("#0c1428"), rgb("#5c3c48"),
                       max(0, min(1, warm * 1.6 + 0.12 * needle)))
    if y > bank(x) - 1.6 * max(0, TREES.at(x * 1.7, 2)):
        depth = max(0, min(1, (y - bank(x)) / 7))
        return mix(rgb("#2c2c40"), rgb("#0a1020"), depth)
    afloat = boat(x, y)
    if afloat:
        return afloat
    if (int(x), int(y)) in BIRDS:
        return rgb("#4c2c5c")
    return land(x, y) if y < SHORE else lake(x, y)


def picture():
    """The scene as a palette image with at most 224 colours."""
    image = Image.new("RGB", (WIDTH, HEIGHT))
    offsets = [(i + 0.5) / FINE for i in range(FINE)]
    for y in range(HEIGHT):
        for x in range(WIDTH):
            parts = [point(x + i, y + j) for i in offsets for j in offsets]
            image.putpixel((x, y), tuple(
                round(sum(channel) / len(parts)) for channel in zip(*parts)))
    palette = image.quantize(224, Image.Quantize.MEDIANCUT, kmeans=3)
    return image.quantize(palette=palette,
                          dither=Image.Dither.FLOYDSTEINBERG)
