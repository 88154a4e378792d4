# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Neon Rain: one umbrella in a wet street between bright signs."""

import numpy as np

from scene import Scene, ramp, smooth
from theme import LARGE, Picture, Theme

PINK, CYAN, AMBER, VIOLET = "FF2E88", "2EE6F0", "FFB43C", "8A4CFF"


def tube(scene, points, colour, width=0.9, glow=1.0):
    """A neon tube: a white-hot core in a coloured line with a wide glow."""
    line = scene.line(points, width)
    scene.light(colour, np.clip(scene.blur(line, 4.5) * 2.2 * glow, 0, 1))
    scene.light(colour, np.clip(scene.blur(line, 1.2) * 1.6 * glow, 0, 1))
    scene.paint(colour, line)
    scene.paint("FFFFFF", scene.line(points, width * 0.45) * 0.8)


def house(scene, left, right, top, colour, seed, lit=0.3):
    """A dark block with a grid of windows, some of them lit."""
    wall = scene.box(left, top, right, 90)
    scene.paint(colour, wall)
    random = np.random.default_rng(seed)
    tones = (AMBER, "FFE0A0", "7FA8E0", PINK)
    for x in np.arange(left + 2, right - 2, 3.6):
        for y in np.arange(top + 3, 82, 4.4):
            if random.random() < lit:
                tone = tones[random.choice(4, p=[0.45, 0.3, 0.2, 0.05])]
                bright = 0.35 + 0.5 * random.random()
                scene.paint(tone, scene.box(x, y, x + 1.7, y + 2.1) * bright)


def signs(scene):
    """The signs on both sides of the street."""
    for x, y, w, h, colour in ((14, 24, 9, 40, PINK), (109, 18, 10, 34, CYAN)):
        scene.paint("14081E", scene.box(x, y, x + w, y + h, 1))
        tube(scene, [(x, y), (x + w, y), (x + w, y + h), (x, y + h), (x, y)], colour, 0.8)
    for row in range(4):
        y = 29 + row * 8.8
        tube(scene, [(16.2, y), (20.8, y)], AMBER, 0.8, 0.6)
        tube(scene, [(18.5, y - 2), (18.5, y + 4)], AMBER, 0.8, 0.6)
        tube(scene, [(16.2, y + 4), (20.8, y + 2.5)], AMBER, 0.8, 0.6)
    for row in range(3):
        y = 23 + row * 9.5
        tube(scene, [(111.5, y), (116.5, y), (116.5, y + 4.5), (111.5, y + 4.5)], PINK, 0.8, 0.6)
    tube(scene, [(92, 62), (104, 62)], AMBER, 1.0)
    tube(scene, [(92, 65), (104, 65)], PINK, 1.0)
    ring = [(36 + 4.6 * np.cos(a), 53 + 4.6 * np.sin(a)) for a in np.linspace(0, 2 * np.pi, 22)]
    tube(scene, ring, CYAN, 0.8)
    tube(scene, [(33.6, 53), (36, 55.6), (38.8, 50.6)], VIOLET, 0.8)


def street(scene, horizon):
    """Mirror what stands above the horizon in the wet ground."""
    s = scene.scale
    line = int(horizon * s)
    depth = scene.y[line:] - horizon
    ripple = scene.noise((9, 1.8), 77, 3)[line:] - 0.5
    columns = np.arange(scene.shape[1])[None, :] + ripple * depth * s * 0.42
    columns = np.clip(columns, 0, scene.shape[1] - 1).astype(int)
    rows = np.clip(line - depth * s * 1.55 - 1, 0, line - 1).astype(int)
    mirrored = scene.pixels[rows, columns]
    smear = 4 * s
    padded = np.pad(mirrored, ((smear, smear), (0, 0), (0, 0)), mode="edge")
    total = np.cumsum(padded, axis=0)
    mirrored = (total[2 * smear:] - total[:-2 * smear]) / (2 * smear)
    fade = np.clip(0.95 - depth / 95, 0, 1)[..., None]
    scene.pixels[line:] = np.clip(mirrored * fade * 1.7 + np.array([10, 7, 24]), 0, 255)


def walker(scene, x, ground):
    """A figure with a red umbrella, seen from behind."""
    scene.paint("05030C", scene.ellipse(x, ground + 0.4, 8, 1.5) * 0.7)
    coat = [(x - 3.0, ground - 19), (x + 3.0, ground - 19),
            (x + 4.6, ground - 6), (x - 4.6, ground - 6)]
    for shape in (scene.polygon(coat),
                  scene.line([(x - 1.7, ground - 7), (x - 2.0, ground - 0.5)], 2.0),
                  scene.line([(x + 1.7, ground - 7), (x + 1.9, ground - 0.8)], 2.0),
                  scene.ellipse(x, ground - 21, 2.5, 2.9)):
        scene.paint("0C0818", shape)
    scene.light(PINK, scene.line([(x - 3.4, ground - 18), (x - 4.4, ground - 7)], 0.7) * 0.8)
    scene.light(CYAN, scene.line([(x + 3.4, ground - 18), (x + 4.4, ground - 7)], 0.7) * 0.8)
    dome = scene.ellipse(x, ground - 22, 15, 11.5) * (scene.y < ground - 22)
    for number in range(6):
        dome = dome * (1 - scene.ellipse(x - 12.5 + number * 5, ground - 21.6, 2.5, 1.3))
    u = (scene.x - x) / 15
    folds = np.mod(np.floor((np.arcsin(np.clip(u, -1, 1)) / np.pi + 0.5) * 6), 2)
    scene.paint(ramp([(0, "B8102E"), (1, "E8203C")], folds), dome)
    scene.light("FF9AA8", dome * smooth(ground - 26, ground - 34, scene.y) * 0.35)
    scene.paint("300814", scene.line([(x, ground - 33.5), (x, ground - 35.5)], 0.7))


def rain(scene, count, seed, strength):
    """Slanted threads of rain."""
    random = np.random.default_rng(seed)
    drops = np.zeros(scene.shape)
    for _ in range(count):
        x, y = random.random(2) * (scene.width + 10, scene.height)
        length = 3 + 6 * random.random()
        drops = np.maximum(drops, scene.line([(x, y), (x - length * 0.18, y + length)], 0.3)
                           * (0.3 + 0.7 * random.random()))
    scene.light("BFD0FF", drops * strength)


def wallpaper():
    """The street, the mirror, the walker and the rain."""
    scene = Scene(128, 127, "0A0618")
    scene.paint(scene.down([(0, "1A0E3C"), (0.4, "4A1C66"), (0.68, "A83A80"), (1, "A83A80")]))
    house(scene, 44, 60, 46, "3A1858", 1, 0.35)
    house(scene, 58, 72, 36, "321452", 2, 0.35)
    house(scene, 70, 88, 50, "3E1A5A", 3, 0.35)
    scene.light("FF5AA0", scene.halo(66, 82, 46, 1.6) * 0.5)
    house(scene, 26, 46, 34, "1E0E3C", 4, 0.28)
    house(scene, 84, 106, 28, "1E0E3C", 5, 0.28)
    house(scene, -2, 28, 8, "120928", 6, 0.2)
    house(scene, 103, 131, 4, "120928", 7, 0.2)
    signs(scene)
    street(scene, 84)
    walker(scene, 66, 109)
    rain(scene, 170, 8, 0.42)
    scene.paint("05030C", smooth(12, -4, scene.y) * 0.5)
    scene.paint("05030C", smooth(106, 128, scene.y) * 0.45)
    return scene


def desktop():
    """The signs far out of focus behind a wet pane."""
    scene = Scene(128, 127)
    scene.paint(scene.down([(0, "1A0E38"), (0.6, "32144E"), (1, "1C0C34")]))
    random = np.random.default_rng(21)
    for number in range(24):
        x, y = 128 * (number * 0.618 % 1), 127 * random.random()
        size = 5 + 10 * random.random()
        colour = (PINK, CYAN, AMBER, VIOLET)[random.integers(4)]
        disc = scene.blur(scene.ellipse(x, y, size), 0.5)
        ring = disc - scene.blur(scene.ellipse(x, y, size - 1.1), 0.5) * 0.75
        scene.light(colour, np.clip(disc * 0.16 + ring * 0.20, 0, 1))
    return scene


def title():
    """A pink tube below the title, its glow on a dark wall in the rain."""
    scene = Scene(128, 23)
    scene.paint(scene.down([(0, "140A2A"), (1, "261040")]))
    rain(scene, 18, 12, 0.34)
    tube(scene, [(-6, 20.5), (134, 20.5)], PINK, 1.0, 0.8)
    return scene


def highlight():
    """A violet bar with a cyan tube at its left edge and foot."""
    scene = Scene(123, 16)
    scene.paint(ramp([(0, "A0146A"), (0.6, "6A1C8C"), (1, "3A1A78")], scene.x / 123))
    scene.paint("FFFFFF", smooth(8, 0, scene.y) * 0.10)
    tube(scene, [(-4, 15.2), (127, 15.2)], CYAN, 0.9, 0.25)
    tube(scene, [(-4, 0.6), (127, 0.6)], PINK, 0.8, 0.25)
    return scene


THEME = Theme("Neon Rain", LARGE, {
    "Standby_operatorname_text": "FFFFFF", "Standby_operatorname_outline": "1A0A38",
    "Standby_time": "7FF4FA", "Standby_time_outline": "0A0618",
    "Desktop_background": "261040", "Desktop_title": "FFD0E6", "Desktop_title_outline": "0A0518",
    "Softkeys_background": "4A1C78", "Softkeys_text": "7FF4FA", "Softkeys_text_shadow": "140A2A",
    "Softkeys_disabled_text": "9C84C0", "Softkeys_disabled_text_shadow": "24104A",
    "Softkeys_background_activated": "B01468",
    "Title": "261040", "Title_text": "FFE6F2", "Title_text_shadow": "7A1450",
    "Background": "160B2C", "Text": "E6DAFA", "Disabled_text": "7A68A0",
    "Prompt": "FFB43C", "Cursor": "2EE6F0",
    "Highlight": "8A187C", "Highlight_text": "FFFFFF", "Highlight_disabled_text": "E0A4DC",
    "Scrollbar": "FF2E88", "Scrollbar_frame": "2C1450",
    "Morelist_title": "B01468", "Morelist_title_text": "FFE6F2",
    "Morelist_title_text_shadow": "4A0428",
    "Morelist_background": "2E1650", "Morelist_text": "F0E6FF", "Morelist_text_shadow": "0A0518",
    "Morelist_disabled_text": "8C78B4", "Morelist_prompt": "FFB43C", "Morelist_cursor": "2EE6F0",
    "Morelist_highlight": "14A0B4", "Morelist_highlight_text": "0A0618",
    "Morelist_highlight_disabled_text": "0C5A6C",
    "Morelist_popup_frame": "FF2E88", "Morelist_popup_shadow": "6A0A44",
    "Morelist_scrollbar": "2EE6F0", "Morelist_scrollbar_frame": "1A0A38",
    "Notes_background": "0E3C5A", "Notes_text": "C8F8FC",
    "Calendar_weekend_text": "FF6AA8", "Calendar_weekend_highlight": "D6186E",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "B01468", "Wapbrowser_tableborder": "4A1C78",
}, {
    "Wallpaper_image": Picture("street.jpg", wallpaper),
    "Desktop_background_image": Picture("lights.gif", desktop, 48, 5),
    "Title_image": Picture("title.gif", title, 48, 6),
    "Highlight_image": Picture("highlight.gif", highlight, 48, 6),
})
