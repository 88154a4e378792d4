# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Polar Night: northern lights above fir trees, peaks and fresh snow."""

import numpy as np

from scene import Scene, ramp, smooth
from theme import LARGE, Picture, Theme

SKY = [(0, "060B26"), (0.45, "0C1D48"), (0.72, "1F4272"), (1, "2C5A86")]


def stars(scene, count, seed, depth=1.0):
    """Small stars in the upper part of the canvas."""
    random = np.random.default_rng(seed)
    for _ in range(count):
        x = np.floor(random.random() * scene.width) + 0.5
        y = np.floor(random.random() * scene.height * depth) + 0.5
        bright = 0.25 + 0.75 * random.random() ** 2
        scene.light("DDE8FF", scene.box(x - 0.5, y - 0.5, x + 0.5, y + 0.5) * bright)


def curtain(scene, base, height, seed, strength=1.0, colours=("3CFF9A", "2FB8C8", "7A4AE0")):
    """One band of light: bright along its lower edge, rays rising from it."""
    rise = base[None, :] - scene.y
    rays = scene.noise((5, 400), seed, 3) * 0.65 + scene.noise((26, 400), seed + 1, 2) * 0.55
    reach = height * (0.45 + rays)
    edge = 1.2 + 5 * scene.noise((22, 400), seed + 2, 2)
    fade = np.where(rise > 0, np.exp(-np.clip(rise, 0, None) / (reach * 0.42)),
                    np.exp(np.clip(rise, -60, 0) / edge))
    drift = 0.35 + 0.85 * scene.noise((44, 400), seed + 4, 2)
    glow = np.clip(fade * drift * (0.30 + 0.95 * rays ** 1.4), 0, 1) * strength
    part = np.clip(rise / (height * 1.05), 0, 1)
    for colour, weight in zip(colours, (smooth(0.5, 0, part), smooth(0.6, 0.3, np.abs(part - 0.4)),
                                        smooth(0.25, 0.8, part))):
        scene.light(colour, glow * weight)


def wave(scene, middle, swing, length, phase):
    """A slow double wave, one y for each column."""
    x = scene.x[0]
    return (middle + swing * np.sin(2 * np.pi * x / length + phase)
            + 0.4 * swing * np.sin(2 * np.pi * x / length * 2.3 + 1.7 * phase))


def fir(scene, x, ground, height, colour, snow=0.0):
    """A fir tree of layered branches, with snow on its left side."""
    layers = 6
    shape = scene.box(x - 0.5, ground - height * 0.2, x + 0.5, ground + 1)
    for number in range(layers):
        top = ground - height + height * 0.84 * number / layers
        foot = top + height * 0.30
        half = height * (0.07 + 0.21 * (number + 1) / layers)
        shape = np.maximum(shape, scene.polygon([
            (x, top), (x + half, foot), (x + half * 0.3, foot - height * 0.05),
            (x - half * 0.3, foot - height * 0.05), (x - half, foot)]))
    scene.paint(colour, shape)
    if snow:
        edge = shape * (1 - scene.shift(shape, 1, 1))
        scene.paint("B9DCEB", edge * (scene.x < x + 1) * snow)


def peaks(scene, corners, seed, dark, light):
    """A snowy range along a line of corners, lit from the left."""
    x = scene.x[0]
    line = np.interp(x, *zip(*corners)) - scene.ridge(0, 2.4, 5, seed, 3)
    depth = np.clip(scene.y - line[None, :], 0, None)
    shift = (scene.noise((7, 5), seed + 1, 3) - 0.5) * (3 + depth * 0.7)
    rise = np.gradient(np.interp(x, *zip(*corners)), x)
    lit = np.interp(scene.x + shift, x, (rise < 0).astype(float))
    haze = np.clip(depth / 34, 0, 1)
    tone = lit * (1 - 0.5 * haze) + 0.10 * haze
    scene.paint(ramp([(0, dark), (1, light)], tone), scene.below(line))


def wallpaper():
    """Curtains of light, the range, the wood and a snow field."""
    scene = Scene(128, 127)
    scene.paint(scene.down(SKY))
    stars(scene, 90, 1, 0.62)
    curtain(scene, wave(scene, 40, 7, 120, 0.4), 34, 3, 0.75, ("38D8B0", "3A78D8", "8A3AD0"))
    curtain(scene, wave(scene, 63, 9, 150, 2.3), 48, 12, 1.0)
    peaks(scene, [(-6, 92), (9, 79), (16, 85), (29, 72), (41, 89), (50, 83), (68, 95),
                  (82, 86), (101, 66), (112, 80), (119, 75), (136, 92)], 7, "122A56", "B4E2E4")
    peaks(scene, [(-6, 104), (14, 96), (30, 103), (56, 89), (66, 97), (73, 92), (92, 103),
                  (112, 95), (134, 106)], 19, "0D2046", "6CA2B8")
    scene.light("2FA070", smooth(58, 92, scene.y) * smooth(104, 88, scene.y) * 0.22)
    random = np.random.default_rng(5)
    for x in np.arange(-2, 131, 3.1):
        fir(scene, x + random.random() * 2, 104 + random.random() * 2,
            7 + 7 * random.random(), "0A1A34")
    snow = scene.ridge(108, 6, 60, 21, 3, 0.4)
    field = ramp([(0, "7FB4BC"), (0.35, "35618A"), (1, "152C58")],
                 np.clip((scene.y - snow[None, :]) / 24, 0, 1))
    scene.paint(field, scene.below(snow))
    sheen = scene.noise((30, 3), 8) * smooth(122, 104, scene.y) * 0.35
    scene.light("3CE8A0", scene.below(snow) * sheen)
    fir(scene, 13, 121, 42, "06122A", 0.55)
    fir(scene, 27, 117, 26, "08162F", 0.5)
    fir(scene, 118, 119, 34, "06122A", 0.55)
    return scene


def desktop():
    """The same sky without the wood, dimmer, so that symbols stand out."""
    scene = Scene(128, 127)
    scene.paint(scene.down([(0, "0A1336"), (0.6, "14305C"), (1, "1E4A70")]))
    stars(scene, 60, 31, 0.8)
    curtain(scene, wave(scene, 84, 12, 170, 1.0), 70, 40, 0.55)
    peaks(scene, [(-6, 122), (16, 112), (34, 121), (60, 108), (76, 119), (104, 109),
                  (134, 124)], 50, "10254A", "4A7C98")
    return scene


def statusbar():
    """Dark sky that brightens towards the middle."""
    scene = Scene(128, 14)
    scene.paint(scene.down([(0, "3A5A88"), (0.12, "2A4878"), (1, "132B58")]))
    curtain(scene, wave(scene, 14, 2, 90, 0.7), 13, 61, 0.5)
    scene.paint("0A1A3A", (scene.y > 13) * 1.0)
    return scene


def softkeys():
    """Two keys of blue ice with room for the symbol between them."""
    scene = Scene(128, 19)
    scene.paint(scene.down([(0, "0A1A3A"), (1, "060F26")]))
    for left, right in ((1, 57), (71, 127)):
        scene.paint("02081A", scene.blur(scene.box(left, 2, right, 18.6, 4), 0.5))
        key = scene.box(left, 1, right, 17, 4)
        ice = [(0, "4F86B4"), (0.42, "2C5F93"), (0.48, "1D4A7E"), (1, "2A6E96")]
        scene.paint(scene.down(ice), key)
        rim = key - scene.box(left + 0.8, 1.8, right - 0.8, 16.2, 3.2) * key
        scene.paint(scene.down([(0, "C4ECFF"), (0.5, "6FB0D0"), (1, "3CB89A")]), rim * 0.85)
        frost = smooth(0.6, 0.8, scene.noise((12, 6), left + 3, 3)) * key
        scene.light("A8E8FF", frost * smooth(10, 1, scene.y) * 0.25)
    dish = scene.ellipse(64, 10, 6.6, 7.4)
    scene.paint("0B1E3E", dish)
    rim = dish - scene.ellipse(64, 9.6, 5.9, 6.7) * dish
    scene.paint(scene.down([(0, "0A1A3A"), (0.5, "1D4A7E"), (1, "4F86B4")]), rim * 0.9)
    return scene


def title(width=128, seed=71, colours=("3CFF9A", "2FB8C8", "7A4AE0")):
    """A strip of sky, the light low along its foot, a hairline of ice."""
    scene = Scene(width, 23)
    scene.paint(scene.down([(0, "081230"), (1, "14305C")]))
    stars(scene, 14, seed, 0.26)  # Above the text, not behind it.
    line = wave(scene, 21, 1.6, 100, seed)
    curtain(scene, line, 13, seed, 0.62, colours)
    scene.paint("8FE8D0", smooth(0.9, 0.2, np.abs(scene.y - 22.5)))
    return scene


def more_title():
    """The violet sister of the title."""
    return title(118, 86, ("C060FF", "6A5AE8", "2FB8C8"))


def general():
    """Deep night for the lists: a faint glow above, snow drifts below."""
    scene = Scene(128, 104)
    scene.paint(scene.down([(0, "14305C"), (0.5, "0F2148"), (1, "0B1838")]))
    curtain(scene, wave(scene, 60, 10, 150, 4.0), 60, 93, 0.16)
    for number, colour in enumerate(("152E58", "1B3A66")):
        line = scene.ridge(101 + 3 * number, 7, 44, 97 + number, 3, 0.4)
        scene.paint(colour, scene.below(line))
    return scene


def highlight(width=123, ends=("147460", "2859A0"), shine="9AF5D2"):
    """A bar of frozen light with a bright upper edge."""
    scene = Scene(width, 16)
    scene.paint(ramp([(0, ends[0]), (1, ends[1])], scene.x / width))
    rays = scene.noise((7, 200), 3, 3)
    scene.light(shine, rays * smooth(0, 14, scene.y) * 0.24)
    scene.paint("041022", smooth(7, 16, scene.y) * 0.12)
    rim = np.maximum(scene.y < 1, scene.y > 15).astype(float)
    scene.paint(shine, rim * (0.55 + 0.3 * (scene.y < 1)))
    return scene


def more_highlight():
    """The violet sister of the highlight."""
    return highlight(113, ("6A3AB0", "2F55A8"), "C8B0FF")


THEME = Theme("Polar Night", LARGE, {
    "Standby_operatorname_text": "FFFFFF", "Standby_operatorname_outline": "0A1A3A",
    "Standby_time": "E4FFF2", "Standby_time_outline": "0A1A3A",
    "Desktop_background": "14305C", "Desktop_title": "B8FFE0", "Desktop_title_outline": "04091C",
    "Softkeys_background": "235488", "Softkeys_text": "FFFFFF", "Softkeys_text_shadow": "0A1A3A",
    "Softkeys_disabled_text": "9CC0DC", "Softkeys_disabled_text_shadow": "12305A",
    "Softkeys_background_activated": "17806C",
    "Title": "102650", "Title_text": "E4FFF2", "Title_text_shadow": "02081A",
    "Background": "0F2148", "Text": "D8ECFA", "Disabled_text": "6F8CB0",
    "Prompt": "8FE8D0", "Cursor": "3CFF9A",
    "Highlight": "1C6E8C", "Highlight_text": "FFFFFF", "Highlight_disabled_text": "A8DCE0",
    "Scrollbar": "3CC8A0", "Scrollbar_frame": "0A1838",
    "Morelist_title": "3A2A80", "Morelist_title_text": "F2E8FF",
    "Morelist_title_text_shadow": "0A0828",
    "Morelist_background": "DDEBF7", "Morelist_text": "12244C", "Morelist_text_shadow": "FFFFFF",
    "Morelist_disabled_text": "7E98B8", "Morelist_prompt": "12244C", "Morelist_cursor": "6A3AB0",
    "Morelist_highlight": "5A40A8", "Morelist_highlight_text": "FFFFFF",
    "Morelist_highlight_disabled_text": "C8BEEE",
    "Morelist_popup_frame": "8FE8D0", "Morelist_popup_shadow": "04091C",
    "Morelist_scrollbar": "5A40A8", "Morelist_scrollbar_frame": "B4C8E0",
    "Notes_background": "DDF7EC", "Notes_text": "12304C",
    "Calendar_weekend_text": "5CF0B0", "Calendar_weekend_highlight": "17806C",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "17806C", "Wapbrowser_tableborder": "235488",
}, {
    "Statusbar_background_image": Picture("statusbar.gif", statusbar, 32, 8),
    "Wallpaper_image": Picture("wallpaper.gif", wallpaper, 64, 8),
    "Softkeys_background_image": Picture("softkeys.gif", softkeys, 48, 6),
    "Desktop_background_image": Picture("desktop.gif", desktop, 40, 7),
    "Title_image": Picture("title.gif", title, 48, 8),
    "General_background_image": Picture("menu.gif", general, 24, 5),
    "Highlight_image": Picture("highlight.gif", highlight, 32, 8),
    "Morelist_popup_title_image": Picture("more_title.gif", more_title, 48, 8),
    "Morelist_popup_highlight_image": Picture("more_highlight.gif", more_highlight, 32, 8),
})
