# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A canvas that is painted several times too large and then averaged down.

All coordinates are those of the finished picture, in pixels with fractions;
masks are arrays from 0 to 1 in the size of the large canvas.
"""

import numpy as np
from PIL import Image, ImageDraw, ImageFilter


def rgb(colour):
    """The three numbers of an RRGGBB text."""
    return np.array([int(colour[i:i + 2], 16) for i in (0, 2, 4)], float)


def ramp(stops, position):
    """Colours at the given positions of a gradient [(position, RRGGBB), ...]."""
    places = [place for place, _ in stops]
    colours = np.array([rgb(colour) for _, colour in stops])
    return np.stack([np.interp(position, places, colours[:, c])
                     for c in range(3)], axis=-1)


def smooth(low, high, value):
    """0 below low, 1 above high, an S-shaped curve between."""
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def clouds(shape, cell, seed, octaves=4):
    """Soft noise from 0 to 1; cell is the (x, y) size of the largest blobs."""
    random = np.random.default_rng(seed)
    height, width = shape
    total, weight, share = np.zeros(shape), 0.0, 1.0
    for octave in range(octaves):
        columns = max(2, round(width / cell[0] * 2 ** octave) + 1)
        rows = max(2, round(height / cell[1] * 2 ** octave) + 1)
        grid = Image.fromarray(random.random((rows, columns)).astype("float32"))
        grid = grid.resize((width, height), Image.Resampling.BICUBIC)
        total += share * np.asarray(grid)
        weight += share
        share /= 2
    total /= weight
    return (total - total.min()) / (total.max() - total.min())


def ridge(x, base, height, cell, seed, octaves=5, rough=0.5):
    """A mountain line: one y for each x; small y is high up."""
    random = np.random.default_rng(seed)
    line, share, total = np.zeros_like(x), 1.0, 0.0
    for octave in range(octaves):
        step = cell / 2 ** octave
        values = random.random(int((x.max() - x.min()) / step) + 3)
        line += share * np.interp((x - x.min()) / step,
                                  np.arange(len(values)), values)
        total += share
        share *= rough
    return base - height * line / total


class Scene:
    """A picture in the making."""

    def __init__(self, width, height, ground="000000", scale=4):
        self.width, self.height, self.scale = width, height, scale
        self.shape = (height * scale, width * scale)
        rows, columns = np.mgrid[0:self.shape[0], 0:self.shape[1]]
        self.x = (columns + 0.5) / scale
        self.y = (rows + 0.5) / scale
        self.pixels = np.zeros(self.shape + (3,)) + rgb(ground)
        self.cover = None

    def noise(self, cell, seed, octaves=4):
        """Soft noise whose largest blobs have the given (x, y) size."""
        return clouds(self.shape, (cell[0] * self.scale, cell[1] * self.scale),
                      seed, octaves)

    def ridge(self, base, height, cell, seed, octaves=5, rough=0.5):
        """A mountain line across the picture, one y for each column."""
        return ridge(self.x[0], base, height, cell, seed, octaves, rough)

    def down(self, stops):
        """Colours that run from top (0) to bottom (1)."""
        return ramp(stops, self.y / self.height)

    def paint(self, colour, mask=1.0):
        """Lay a colour, or an array of colours, over the canvas."""
        if isinstance(colour, str):
            colour = rgb(colour)
        mask = np.asarray(mask, float)
        mask = mask[..., None] if mask.ndim == 2 else mask
        self.pixels = self.pixels * (1 - mask) + colour * mask

    def light(self, colour, mask):
        """Add light: what is bright stays bright, black takes the colour."""
        glow = rgb(colour) * np.asarray(mask)[..., None]
        self.pixels = 255 - (255 - self.pixels) * (255 - np.clip(glow, 0, 255)) / 255

    def _drawn(self, draw):
        image = Image.new("L", (self.shape[1], self.shape[0]))
        draw(ImageDraw.Draw(image))
        return np.asarray(image) / 255.0

    def _scaled(self, points):
        return [(x * self.scale, y * self.scale) for x, y in points]

    def polygon(self, points):
        """The mask of a filled polygon."""
        return self._drawn(lambda d: d.polygon(self._scaled(points), fill=255))

    def line(self, points, width):
        """The mask of a line with round joints and ends."""
        dots = self._scaled(points)
        radius = width * self.scale / 2

        def draw(canvas):
            canvas.line(dots, fill=255, width=max(1, round(2 * radius)))
            for x, y in dots:
                canvas.ellipse((x - radius, y - radius, x + radius, y + radius),
                               fill=255)
        return self._drawn(draw)

    def box(self, left, top, right, bottom, radius=0.0):
        """The mask of a box, its corners rounded by a radius."""
        s = self.scale
        return self._drawn(lambda d: d.rounded_rectangle(
            (left * s, top * s, right * s - 1, bottom * s - 1), radius * s, 255))

    def ellipse(self, x, y, across, down=None):
        """The mask of an ellipse given by its centre and half axes."""
        down = across if down is None else down
        reach = np.hypot((self.x - x) / across, (self.y - y) / down)
        return (reach <= 1).astype(float)

    def halo(self, x, y, reach, power=2.0):
        """Light that fades from a centre to nothing at the given reach."""
        distance = np.hypot(self.x - x, self.y - y) / reach
        return np.clip(1 - distance, 0, 1) ** power

    def below(self, line):
        """The mask of everything under a line of one y a column."""
        return np.clip((self.y - line[None, :]) * self.scale, 0, 1)

    def blur(self, mask, radius):
        """The mask softened by a radius in picture pixels."""
        image = Image.fromarray((np.clip(mask, 0, 1) * 255).astype("uint8"))
        image = image.filter(ImageFilter.GaussianBlur(radius * self.scale))
        return np.asarray(image) / 255.0

    def shift(self, mask, right, down):
        """The mask moved by whole picture pixels; nothing comes in."""
        right, down = right * self.scale, down * self.scale
        padded = np.pad(mask, ((down, 0), (right, 0)))
        return padded[:self.shape[0], :self.shape[1]]

    def keep(self, mask):
        """Only what the mask covers stays; the rest becomes transparent."""
        self.cover = mask

    def _reduced(self, array):
        s = self.scale
        return array.reshape((self.height, s, self.width, s) + array.shape[2:]
                             ).mean(axis=(1, 3))

    def picture(self):
        """The finished picture, RGB, or RGBA with fully clear pixels."""
        small = np.clip(self._reduced(self.pixels) + 0.5, 0, 255).astype("uint8")
        if self.cover is None:
            return Image.fromarray(small, "RGB")
        cover = self._reduced(np.asarray(self.cover, float)) >= 0.5
        return Image.fromarray(np.dstack([small, cover * np.uint8(255)]), "RGBA")
