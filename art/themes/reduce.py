# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Brings a picture down to a few colours and writes it as a small file."""

import numpy as np
from PIL import Image

BAYER = np.array([[0, 8, 2, 10], [12, 4, 14, 6],
                  [3, 11, 1, 9], [15, 7, 13, 5]]) / 16.0 - 0.5


def _palette(image, colours):
    """The colours that serve a picture best, sorted from dark to light."""
    few = image.quantize(colours, method=Image.Quantize.MEDIANCUT, kmeans=6)
    used = sorted({index for _, index in few.getcolors()})
    values = np.array(few.getpalette()).reshape(-1, 3)[used]
    values = np.unique(values, axis=0)
    order = np.lexsort((values[:, 2], values[:, 1], values[:, 0], values.sum(axis=1)))
    return values[order]


def _nearest(pixels, palette):
    """For each pixel the index of the colour that looks closest."""
    weights = np.sqrt([0.30, 0.59, 0.11])
    flat = (pixels.reshape(-1, 3) * weights)[:, None, :]
    distance = ((flat - (palette * weights)[None, :, :]) ** 2).sum(axis=2)
    return distance.argmin(axis=1).reshape(pixels.shape[:2])


def indexed(picture, colours=64, dither=10.0):
    """The picture in a palette, gradients broken up by an ordered pattern."""
    clear = None
    if picture.mode == "RGBA":
        clear = np.asarray(picture)[:, :, 3] == 0
        colours -= 1
    image = picture.convert("RGB")
    pixels = np.asarray(image).astype(float)
    if clear is not None:
        seen = pixels[~clear].astype("uint8").reshape(1, -1, 3)
        palette = _palette(Image.fromarray(seen), colours)
    else:
        palette = _palette(image, colours)
    height, width = pixels.shape[:2]
    pattern = np.tile(BAYER, (height // 4 + 1, width // 4 + 1))[:height, :width]
    indices = _nearest(np.clip(pixels + pattern[..., None] * dither, 0, 255), palette)
    table = palette.reshape(-1).tolist()
    if clear is not None:
        indices = np.where(clear, len(palette), indices)
        table += [255, 0, 255]
    result = Image.fromarray(indices.astype("uint8"), "P")
    result.putpalette(table)
    if clear is not None:
        result.info["transparency"] = len(palette)
    return result


def save_gif(picture, path, colours=64, dither=10.0):
    """Write a GIF; the same picture always gives the same bytes."""
    image = indexed(picture, colours, dither)
    options = {}
    if "transparency" in image.info:
        options["transparency"] = image.info.pop("transparency")
    image.save(path, "GIF", optimize=False, interlace=False, **options)


def save_jpeg(picture, path, quality=80):
    """Write a JPEG without any metadata."""
    picture.convert("RGB").save(path, "JPEG", quality=quality, optimize=True,
                                subsampling=0)
