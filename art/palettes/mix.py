#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Mixes the palettes that the program ships: art/palettes/mix.py data/Palettes

Each is a list of rows of eight, as the colour picker shows them.
"""
import math
import pathlib
import sys


def lch(light, chroma, hue):
    """A colour by perceived lightness (0 to 1), chroma (0 to about 0.3) and hue in degrees."""
    a = chroma * math.cos(math.radians(hue))
    b = chroma * math.sin(math.radians(hue))
    long = (light + 0.3963377774 * a + 0.2158037573 * b) ** 3
    middle = (light - 0.1055613458 * a - 0.0638541728 * b) ** 3
    short = (light - 0.0894841775 * a - 1.2914855480 * b) ** 3
    linear = (
        4.0767416621 * long - 3.3077115913 * middle + 0.2309699292 * short,
        -1.2684380046 * long + 2.6097574011 * middle - 0.3413193965 * short,
        -0.0041960863 * long - 0.7034186147 * middle + 1.7076147010 * short,
    )
    return tuple(encoded(part) for part in linear)


def encoded(part):
    part = min(max(part, 0), 1)
    curve = 12.92 * part if part <= 0.0031308 else 1.055 * part ** (1 / 2.4) - 0.055
    return round(255 * curve)


def early_phone():
    """Two bits a part. Four fields, one for each blue, mirrored so that they meet alike."""
    levels = (0, 85, 170, 255)
    mirrored = levels + levels[::-1]
    blues = ((0, 85), (255, 170))
    return [
        [(mirrored[x], mirrored[y], blues[y // 4][x // 4]) for x in range(8)] for y in range(8)
    ]


def pastels():
    """A hue in each row, from barely tinted to the strongest that is still soft."""
    hues = (5, 50, 90, 125, 165, 215, 265, 315)
    return [
        [lch(0.97 - 0.027 * x, 0.018 + 0.0125 * x, hue) for x in range(8)] for hue in hues
    ]


def inks():
    """Eight inks on cream paper, thinned from the full pen to the last wash."""
    paper = (250, 245, 232)
    full = (
        (22, 22, 28),  # lamp black
        (70, 44, 30),  # sepia
        (122, 24, 38),  # oxblood
        (196, 44, 24),  # vermilion
        (30, 84, 52),  # verdigris
        (14, 96, 116),  # turquoise
        (20, 40, 112),  # blue-black
        (76, 30, 110),  # violet
    )

    def washed(ink, share):
        # Thinned ink takes light away by the power of its share.
        return tuple(round(p * (i / p) ** share) for i, p in zip(ink, paper))

    shares = (1, 0.8, 0.62, 0.46, 0.32, 0.2, 0.11, 0.04)
    return [[washed(ink, share) for share in shares] for ink in full]


def backlights():
    """Displays without colour, from the dark segment to the lit ground."""
    pairs = (
        ((24, 38, 18), (168, 200, 96)),  # pea green
        ((44, 22, 6), (255, 176, 56)),  # amber
        ((10, 18, 58), (122, 176, 255)),  # blue
        ((26, 28, 34), (226, 232, 236)),  # white
    )

    def between(dark, lit, x):
        return tuple(round(d + (l - d) * x / 7) for d, l in zip(dark, lit))

    return [[between(dark, lit, x) for x in range(8)] for dark, lit in pairs]


def main():
    folder = pathlib.Path(sys.argv[1])
    for mix in (early_phone, pastels, inks, backlights):
        colours = [colour for row in mix() for colour in row]
        lines = ["JASC-PAL", "0100", str(len(colours))]
        lines += [" ".join(map(str, colour)) for colour in colours]
        name = mix.__name__.replace("_", " ").capitalize() + ".pal"
        (folder / name).write_text("\r\n".join(lines) + "\r\n", newline="")


main()
