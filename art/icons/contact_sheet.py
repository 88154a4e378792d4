# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Contact sheets at 8x and mock screens, for looking at the icons closely.

Usage: contact_sheet.py FOLDER
"""

import math
import pathlib
import sys

from PIL import Image

import large_desktop
import small_desktop
from draw import ICONS

ZOOM = 8


def wallpaper(width, height):
    """A busy ground of strong colours."""
    image = Image.new("RGB", (width, height))
    for y in range(height):
        for x in range(width):
            image.putpixel((x, y), (
                round(128 + 110 * math.sin(x / 5 + 2 * math.sin(y / 9))),
                round(128 + 110 * math.sin(y / 4 - x / 11)),
                round(128 + 110 * math.sin((x + y) / 7 + math.sin(x / 3)))))
    return image


def plain(colour):
    return lambda width, height: Image.new("RGB", (width, height), colour)


GROUNDS = {"white": plain("#ffffff"), "black": plain("#000000"),
           "blue": plain("#2860e0"), "busy": wallpaper}


def load():
    return {int(path.stem): Image.open(path).convert("RGBA")
            for path in ICONS.glob("*.png")}


def place(image, icon, x, y):
    image.paste(icon, (x, y), icon)


def rows(icons, numbers, width, ground):
    """Icons in reading order on a ground."""
    places, x, y, tall = [], 2, 2, 0
    for number in numbers:
        icon = icons[number]
        if x + icon.width + 2 > width:
            x, y, tall = 2, y + tall + 2, 0
        places.append((icon, x, y))
        x, tall = x + icon.width + 2, max(tall, icon.height)
    image = ground(width, y + tall + 2)
    for icon, x, y in places:
        place(image, icon, x, y)
    return image


def small_standby(icons, ground, step):
    image = ground(101, 80)
    place(image, icons[1200 + step % 6], 0, 71)
    place(image, icons[1300 + step % 2], 0, 67)
    place(image, icons[1100 + step * 2 % 11], 81, 70)
    place(image, icons[1400 + step % 2], 20, 71)
    place(image, icons[1500], 32, 69)
    return image


def small_desktop_screen(icons, ground, cell):
    image = ground(101, 80)
    image.paste("#203c90", (0, 0, 101, 13))
    place(image, icons[1000], 0, 0)
    if cell:
        place(image, icons[1000 + cell], *small_desktop.CELLS[cell - 1])
    return image


def large_screen(icons, ground, cell):
    image = ground(138, 165)
    image.paste("#4060b0", (5, 20, 133, 40))
    place(image, icons[2300 + cell % 2], 6, 6)
    place(image, icons[2200 + cell % 6], 6, 10)
    place(image, icons[2100 + cell % 11], 114, 7)
    place(image, icons[2000], 5, 19)
    if cell:
        x, y = large_desktop.CELLS[cell - 1]
        place(image, icons[2000 + cell], 5 + x, 19 + y)
    place(image, icons[2400], 63, 150)
    place(image, icons[2500], 8, 151)
    place(image, icons[2501], 22, 151)
    return image


def grid(images, columns):
    width, height = images[0].width + 3, images[0].height + 3
    count = math.ceil(len(images) / columns)
    sheet = Image.new("RGB", (width * columns, height * count), "#808080")
    for index, image in enumerate(images):
        row, column = divmod(index, columns)
        sheet.paste(image, (column * width, row * height))
    return sheet


def enlarge(image, zoom=ZOOM):
    return image.resize((image.width * zoom, image.height * zoom),
                        Image.Resampling.NEAREST)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    icons = load()
    families = {
        "small-desktop": (range(1000, 1010), 142),
        "small-status": ([n for n in sorted(icons) if 1100 <= n < 2000],
                         136),
        "large-desktop": (range(2000, 2013), 172),
        "large-status": ([n for n in sorted(icons) if 2100 <= n < 2600],
                         126)}
    for name, (numbers, width) in families.items():
        for ground, paint in GROUNDS.items():
            enlarge(rows(icons, numbers, width, paint)).save(
                folder / f"{name}-{ground}.png")
    enlarge(icons[2600]).save(folder / "picture.png")
    grounds = list(GROUNDS.values())
    screens = {
        "small-standby": grid([small_standby(icons, grounds[i % 4], i)
                               for i in range(8)], 4),
        "small-screens": grid([small_desktop_screen(
            icons, grounds[i % 4], i) for i in range(10)], 5),
        "large-screens": grid([large_screen(icons, grounds[i % 4], i)
                               for i in range(13)], 5)}
    for name, image in screens.items():
        enlarge(image, 3).save(folder / f"{name}.png")


if __name__ == "__main__":
    main()
