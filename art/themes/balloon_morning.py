# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Balloon Morning: striped balloons above hills in the first mist of the day."""

import numpy as np

from scene import Scene, ramp, rgb, smooth
from theme import SMALL, Picture, Theme

SKY = [(0.0, "4F7FC0"), (0.30, "8FB4DC"), (0.55, "F3D3B4"), (0.70, "FFE9BE"), (1, "FFE9BE")]
DEEP_SKY = [(0.0, "27407F"), (0.6, "3D5FA0"), (1, "6C7FB4")]
HILLS = [("E3B3A6", 55, 10, 60), ("B98DA4", 61, 10, 44),
         ("86699B", 67, 11, 36), ("544A80", 73, 10, 30), ("2B2A57", 80, 9, 26)]
CHERRY = ("C8323C", "FFF1D6")
TEAL = ("1E8C8A", "FFD257")
ORANGE = ("F08A24", "6B2F6E")


def balloon(scene, x, y, size, fabric):
    """A balloon of seven gores whose envelope is about 2 sizes high."""
    u = (scene.x - x) / size
    v = (scene.y - y) / size
    dome = np.hypot(u, v) <= 1
    half = np.sqrt(np.clip(1 - (v / 1.62) ** 2, 0, 1)) - 0.16 * v
    taper = (v > 0) & (v < 1.35) & (np.abs(u) <= half)
    body = scene.blur((dome & (v <= 0)) | taper, 0.18)
    waist = np.sqrt(np.clip(1 - np.clip(np.abs(v) / 1.62, 0, 1) ** 2, 0.01, 1))
    round_v = np.where(v < 0, np.sqrt(np.clip(1 - v * v, 0.01, 1)), waist - 0.16 * np.clip(v, 0, 2))
    angle = np.arcsin(np.clip(u / np.maximum(round_v, 0.05), -1, 1))
    gore = (np.floor(angle / np.pi * 7 + 0.5).astype(int) % 2) == 0
    colours = np.where(gore[..., None], rgb(fabric[0]), rgb(fabric[1]))
    shade = 0.62 + 0.46 * smooth(-0.9, 0.7, -u * 0.8 - v * 0.35)
    scene.paint(np.clip(colours * shade[..., None], 0, 255), body)
    for side in (-1, 1):
        scene.paint("3A2A2E", scene.line([(x + side * size * 0.36, y + size * 1.32),
                                          (x + side * size * 0.15, y + size * 1.68)], 0.3))
    scene.paint("6B4226", scene.box(x - size * 0.2, y + size * 1.66,
                                    x + size * 0.2, y + size * 1.98, size * 0.05))


def hills(scene, drop=0.0, squeeze=1.0, seed=3):
    """Five ranges, each darker and nearer, with mist in the valleys."""
    for number, (colour, base, height, cell) in enumerate(HILLS):
        base = scene.height - (80 - base) * squeeze + drop
        line = scene.ridge(base, height * squeeze, cell, seed + number, 4, 0.42)
        depth = (scene.y - line[None, :]) / max(4.0, 13 * squeeze)
        misty = ramp([(0, colour), (1, "F6D9C2")], np.clip(depth, 0, 1) * (0.62 - 0.13 * number))
        scene.paint(misty, scene.below(line))


def wallpaper():
    """The whole view, the large balloon to the right."""
    scene = Scene(101, 80)
    scene.paint(scene.down(SKY))
    wisps = smooth(0.5, 0.85, scene.noise((60, 9), 11)) * smooth(45, 20, scene.y)
    scene.paint("FFF0E0", wisps * 0.55)
    scene.light("FFD98A", scene.halo(20, 49, 46, 2.2))
    scene.paint("FFFBE2", scene.blur(scene.ellipse(20, 47, 5.2), 0.3))
    hills(scene)
    balloon(scene, 73, 29, 13.5, CHERRY)
    balloon(scene, 36, 31, 6.5, TEAL)
    balloon(scene, 53, 46, 3.4, ORANGE)
    return scene


def desktop():
    """A pale sky, so that the symbols stand clear; balloons far away."""
    scene = Scene(101, 80)
    scene.paint(scene.down([(0, "A9C8EA"), (0.5, "D9E4EC"), (0.8, "FBE6CC"), (1, "FFE3BE")]))
    scene.paint("FFFFFF", smooth(0.45, 0.8, scene.noise((50, 12), 5)) * 0.7)
    for number, colour in enumerate(("F0CFC0", "DDB4B8", "C49DB4")):
        line = scene.ridge(74 + 3.5 * number, 7, 40 - 8 * number, 20 + number, 4, 0.4)
        scene.paint(colour, scene.below(line))
    return scene


def title_small():
    """High, dark sky with a balloon at each end."""
    scene = Scene(101, 20)
    scene.paint(scene.down(DEEP_SKY))
    scene.paint("8FA5D0", smooth(0.55, 0.9, scene.noise((46, 5), 8)) * 0.35)
    scene.paint("F3B98E", scene.below(scene.ridge(19.5, 3, 20, 4)))
    scene.paint("7A5F98", scene.below(scene.ridge(21, 3.5, 16, 9)))
    balloon(scene, 11, 6.5, 5, CHERRY)
    balloon(scene, 92, 8, 3.8, TEAL)
    return scene


def title_medium():
    """The ranges below a dark sky, one balloon rising at the left."""
    scene = Scene(101, 27)
    scene.paint(scene.down([(0, "27407F"), (0.55, "4A69A8"), (0.8, "EFB48E"), (1, "FFD9A8")]))
    hills(scene, drop=0.5, squeeze=0.34, seed=30)
    balloon(scene, 10, 9, 6.2, ORANGE)
    balloon(scene, 91, 6, 3.4, CHERRY)
    return scene


def title_large():
    """The teal fabric seen from near, gore beside gore."""
    scene = Scene(101, 16)
    u = (scene.x - 50.5) / 60 + 0.0006 * (scene.y - 8) ** 2 * np.sign(scene.x - 50.5)
    gore = (np.floor(np.arcsin(np.clip(u, -1, 1)) / np.pi * 18 + 0.5).astype(int) % 2) == 0
    colours = np.where(gore[..., None], rgb("217C80"), rgb("17606B"))
    shade = 1.12 - 0.5 * scene.y / 16 - 0.25 * u * u
    scene.paint(np.clip(colours * shade[..., None], 0, 255))
    scene.paint("FFD98A", smooth(1.6, 0.2, np.abs(scene.y - 15.5)) * 0.95)
    return scene


def title_asian():
    """Dusk-blue cloud bands and three small balloons on the right."""
    scene = Scene(101, 16)
    scene.paint(scene.down([(0, "27407F"), (0.65, "455A98"), (0.88, "565290"), (1, "C98FA0")]))
    banks = smooth(0.5, 0.85, scene.noise((40, 4), 17)) * smooth(11, 16, scene.y)
    scene.paint("F0B7A6", banks * 0.5)
    for x, y, size, fabric in ((83, 5, 2.6, CHERRY), (90, 7.5, 3.2, TEAL), (97, 4.5, 2.2, ORANGE)):
        balloon(scene, x, y, size, fabric)
    return scene


THEME = Theme("Balloon Morning", SMALL, {
    "Standby_operatorname": "FFFFFF", "Standby_operatorname_outline": "1F3468",
    "Standby_time": "FFF1D6", "Standby_time_outline": "2B2A57",
    "Desktop_background": "D9E4EC",
    "Desktop_title": "8C1B2B", "Desktop_title_outline": "FFF6E6",
    "Title": "33508F", "Title_text": "FFF6E6", "Title_text_shadow": "16244F",
    "Background": "FFF3E0", "Text": "322B5C", "Disabled_text": "A8979F",
    "Prompt": "A8242F", "Cursor": "C8323C",
    "Highlight": "C8323C", "Highlight_text": "FFFFFF", "Highlight_disabled_text": "F2B9A8",
    "Popup_title": "A8242F", "Popup_title_text": "FFF1D6", "Popup_title_text_shadow": "5C0F1B",
    "Popup_background": "DCE8F4", "Popup_text": "22305E", "Popup_disabled_text": "8898B4",
    "Popup_Prompt": "22305E", "Popup_Cursor": "A8242F",
    "Popup_highlight": "1E7F86", "Popup_highlight_text": "FFFFFF",
    "Popup_highlight_disabled_text": "9CD2CC",
    "Popup_frame": "33508F", "Popup_shadow": "544A80",
    "Notes_background": "FFE2A0", "Notes_text": "4A2A50",
    "Calendar_weekend_text": "C8323C", "Calendar_weekend_highlight": "1E7F86",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "1A757C", "Wapbrowser_tableborder": "33508F",
}, {
    "Background_image": Picture("background.gif", wallpaper, 64, 12),
    "Desktop_background_image": Picture("desktop.gif", desktop, 32, 10),
    "Title_image_small": Picture("title_small.gif", title_small, 96, 10),
    "Title_image_medium": Picture("title_medium.gif", title_medium, 96, 10),
    "Title_image_large": Picture("title_large.gif", title_large, 24, 10),
    "Title_image_asian": Picture("title_asian.gif", title_asian, 96, 10),
})
