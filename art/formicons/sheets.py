#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Contact sheets for looking at the icons: python3 sheets.py OUTPUT-FOLDER"""

import pathlib
import sys

from PIL import Image, ImageDraw

from make import FORM_ICONS, NUMBERS, PROGRAM_ICONS

GROUNDS = {"grey": "#EFEFEF", "white": "#FFFFFF", "dark": "#2E2E2E"}
TOOLBAR = [(104, 131, 105), (113, 114, 111), (115, 118, 120), (121, 112),
           (122, 123, 124), (125, 127)]


def load(number):
    return Image.open(FORM_ICONS / f"{number}.png").convert("RGBA")


def contact_sheet(numbers, ground, scale=8, columns=8):
    cell_w = max(load(n).width for n in numbers) * scale + 16
    cell_h = cell_w + 14
    lines = -(-len(numbers) // columns)
    sheet = Image.new("RGB", (columns * cell_w, lines * cell_h), ground)
    pen = ImageDraw.Draw(sheet)
    for place, number in enumerate(numbers):
        x, y = place % columns * cell_w + 8, place // columns * cell_h + 14
        picture = load(number)
        large = picture.resize((picture.width * scale, picture.height * scale),
                               Image.NEAREST)
        sheet.paste(large, (x, y), large)
        pen.text((x, y - 13), str(number), fill="#808080")
    return sheet


def toolbar(ground):
    bar = Image.new("RGB", (450, 32), ground)
    x = 10
    for group in TOOLBAR:
        for number in group:
            width = 10 if number == 131 else 27
            picture = load(number)
            place = (x + (width - 16) // 2, 3 + 5)
            if number == 131:
                picture = picture.crop((3, 0, 13, 16))
                place = (x, 8)
            bar.paste(picture, place, picture)
            x += width
        pen = ImageDraw.Draw(bar)
        pen.line((x + 2, 6, x + 2, 26), fill="#9A968E")
        x += 4
    return bar


def program_sheet(ground):
    """All sizes at 1x, and the small ones enlarged."""
    sheet = Image.new("RGB", (1130, 520), ground)
    for line, name in enumerate(("quillane", "quillane-theme")):
        x, y = 8, 8 + line * 262
        for size in (16, 32, 48, 64, 128, 256):
            path = PROGRAM_ICONS / f"{name}-{size}.png"
            if not path.exists():
                continue
            picture = Image.open(path).convert("RGBA")
            sheet.paste(picture, (x, y), picture)
            x += size + 8
        x = 580
        for size, scale in ((16, 8), (32, 6), (48, 4)):
            picture = Image.open(PROGRAM_ICONS / f"{name}-{size}.png").convert("RGBA")
            large = picture.resize((size * scale,) * 2, Image.NEAREST)
            sheet.paste(large, (x, y), large)
            x += size * scale + 12
    return sheet


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    sixteen = [n for n in NUMBERS if load(n).width == 16]
    larger = [n for n in NUMBERS if load(n).width != 16]
    for name, ground in GROUNDS.items():
        half = len(sixteen) // 2
        contact_sheet(sixteen[:half], ground).save(folder / f"a-{name}.png")
        contact_sheet(sixteen[half:], ground).save(folder / f"b-{name}.png")
        contact_sheet(larger, ground, 6, 5).save(folder / f"c-{name}.png")
        program_sheet(ground).save(folder / f"program-{name}.png")
    bars = Image.new("RGB", (450, 96))
    for row, ground in enumerate(("#D4D0C8", "#EFEFEF", "#2E2E2E")):
        bars.paste(toolbar(ground), (0, row * 32))
    bars.save(folder / "toolbar.png")
    bars.resize((1350, 288), Image.NEAREST).save(folder / "toolbar-3x.png")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
