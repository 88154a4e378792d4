# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Check the icons on disk: sizes, masks, colour counts, cells.

Prints every fault and ends with status 1 if there is one.
"""

import pathlib
import sys

from PIL import Image

import large_desktop
import small_desktop
from draw import ICONS

SIZES = {1000: (101, 80), 1008: (33, 20), 1500: (8, 11), 2000: (128, 127),
         2400: (11, 11), 2600: (110, 103)}
for numbers, size in ((range(1001, 1008), (33, 21)), ((1009,), (33, 21)),
                      (range(1100, 1111), (20, 10)),
                      (range(1200, 1206), (16, 9)), ((1300, 1301), (16, 8)),
                      ((1400, 1401), (9, 9)), (range(2001, 2013), (40, 25)),
                      (range(2100, 2111), (18, 9)),
                      (range(2200, 2206), (16, 9)), ((2300, 2301), (14, 8)),
                      ((2500, 2501), (10, 10))):
    SIZES.update(dict.fromkeys(numbers, size))


def solid(image):
    """The opaque pixels of an image."""
    alpha = image.getchannel("A")
    return {(x, y) for x in range(image.width) for y in range(image.height)
            if alpha.getpixel((x, y))}


def check_file(number, image):
    if image.size != SIZES[number]:
        yield f"{number}: size {image.size}, not {SIZES[number]}"
    alphas = {value for _, value in image.getchannel("A").getcolors()}
    if not alphas <= {0, 255}:
        yield f"{number}: alpha values {sorted(alphas)}"
    if number == 2600 and alphas != {255}:
        yield f"{number}: not opaque"
    limit = 16 if number in (1400, 1401) else 256
    colours = len(image.getcolors(image.width * image.height))
    if colours > limit:
        yield f"{number}: {colours} colours, more than {limit}"


def check_board(base, cells, images):
    """Every board pixel lies in a cell and under that cell's selected form."""
    left = solid(images[base])
    for cell, (x, y) in enumerate(cells, 1):
        image = images[base + cell]
        frame = {(x + i, y + j) for i in range(image.width)
                 for j in range(image.height)}
        symbol = left & frame
        cover = {(x + i, y + j) for i, j in solid(image)}
        if not symbol:
            yield f"{base}: cell {cell} is empty"
        if symbol - cover:
            yield f"{base + cell}: {len(symbol - cover)} pixels not covered"
        left -= frame
    if left:
        yield f"{base}: {len(left)} pixels outside the cells"


def check_levels(images):
    """Neighbouring levels look different."""
    for first, last in ((1100, 1110), (1200, 1205), (1300, 1301),
                        (1400, 1401), (2100, 2110), (2200, 2205),
                        (2300, 2301), (2500, 2501)):
        for number in range(first, last):
            if images[number].tobytes() == images[number + 1].tobytes():
                yield f"{number}: same as {number + 1}"


def faults(folder):
    found = {int(path.stem) for path in folder.glob("*.png")
             if int(path.stem) >= 1000}  # Below: buttons, drawn elsewhere.
    for number in sorted(found ^ set(SIZES)):
        yield f"{number}: {'not expected' if number in found else 'missing'}"
    images = {number: Image.open(folder / f"{number}.png").convert("RGBA")
              for number in sorted(found & set(SIZES))}
    for number, image in images.items():
        yield from check_file(number, image)
    if found >= set(SIZES):
        yield from check_board(1000, small_desktop.CELLS, images)
        yield from check_board(2000, large_desktop.CELLS, images)
        yield from check_levels(images)


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ICONS
    bad = list(faults(folder))
    print("\n".join(bad) if bad else f"{len(SIZES)} icons are in order")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
