#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Redraws the form icons and the program's own icons, then checks them."""

import pathlib
import sys

from appicon import program_icon, theme_icon
from icons import ICONS

ROOT = pathlib.Path(__file__).resolve().parents[2]
FORM_ICONS = ROOT / "src" / "preview" / "icons"
PROGRAM_ICONS = ROOT / "data" / "icons"

NUMBERS = [*range(101, 149), *range(211, 215)]


def expected_size(number):
    if number in (101, 102, 132, 133, 134, 135):
        return 20
    if number == 108:
        return 32
    return 24 if number > 200 else 16


def most_colours(number):
    return {116: 16, 131: 2}.get(number, 256)


def faults_of(number, picture):
    """What is wrong with one form icon; empty when all is well."""
    size = expected_size(number)
    if picture.size != (size, size):
        yield f"{number}: is {picture.size}, not {size} x {size}"
    pixels = list(picture.convert("RGBA").getdata())
    if any(alpha not in (0, 255) for *_, alpha in pixels):
        yield f"{number}: has half-transparent pixels"
    colours = {pixel[:3] for pixel in pixels if pixel[3]}
    if not colours:
        yield f"{number}: is empty"
    if len(colours) > most_colours(number):
        yield f"{number}: has {len(colours)} colours"


def main():
    FORM_ICONS.mkdir(parents=True, exist_ok=True)
    faults = [f"{number}: missing" for number in NUMBERS if number not in ICONS]
    for number, draw in sorted(ICONS.items()):
        picture = draw().image()
        faults += faults_of(number, picture)
        picture.save(FORM_ICONS / f"{number}.png", optimize=True)
    PROGRAM_ICONS.mkdir(parents=True, exist_ok=True)
    for size in (16, 32, 48, 64, 128, 256):
        program_icon(size).save(PROGRAM_ICONS / f"quillane-{size}.png", optimize=True)
    for size in (16, 32, 48, 64, 128):
        theme_icon(size).save(PROGRAM_ICONS / f"quillane-theme-{size}.png",
                              optimize=True)
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
