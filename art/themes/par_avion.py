# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Par Avion: a cream envelope with a lighthouse stamp and a striped edge."""

import numpy as np

from scene import Scene, smooth
from theme import SMALL, Picture, Theme

CREAM, RED, BLUE, INK = "F3E3C2", "CC3340", "2A4B9C", "26356B"


def stripes(scene, mask, period=14.0, lean=1.0):
    """The slanted red and blue dashes of an air-mail letter."""
    place = np.mod(scene.x + lean * scene.y, period) / period
    scene.paint("FFF9EA", mask)
    scene.paint(RED, mask * (place < 0.3))
    scene.paint(BLUE, mask * ((place >= 0.5) & (place < 0.8)))


def paper(scene, seed, strength=10):
    """Give the canvas the slight unevenness of writing paper."""
    grain = scene.noise((18, 10), seed, 5) - 0.5
    scene.pixels = np.clip(scene.pixels + grain[..., None] * strength, 0, 255)


def lighthouse(scene, x, ground):
    """A lighthouse with three bands, its lamp 26 pixels above the ground."""
    top = ground - 24
    tower = [(x - 4.6, ground), (x - 2.7, top + 3), (x + 2.7, top + 3), (x + 4.6, ground)]
    mask = scene.polygon(tower)
    scene.paint("FFF6E0", mask)
    band = (np.floor((scene.y - top - 3) / 5.2).astype(int) % 2) == 1
    scene.paint(RED, mask * band)
    scene.paint(INK, mask * smooth(x + 0.2, x + 4.6, scene.x) * 0.45)
    scene.paint(INK, scene.box(x - 3.6, top + 2, x + 3.6, top + 3.2))
    scene.paint("FFE27A", scene.box(x - 1.9, top - 2, x + 1.9, top + 2))
    scene.paint(INK, scene.box(x - 0.3, top - 2, x + 0.3, top + 2))
    scene.paint(RED, scene.polygon([(x - 2.8, top - 2), (x, top - 5.2), (x + 2.8, top - 2)]))


def gull(scene, x, y, size):
    """A far gull: two curved strokes."""
    wing = [(-1, 0.1), (-0.6, -0.35), (-0.25, -0.2), (0, 0.15),
            (0.25, -0.2), (0.6, -0.35), (1, 0.1)]
    scene.paint(INK, scene.line([(x + size * a, y + size * b) for a, b in wing], 0.7))


def stamp_view(scene, left, top, right, bottom):
    """The printed picture of the stamp: evening light on a rocky coast."""
    frame = scene.box(left, top, right, bottom)
    sky = np.clip((scene.y - top) / (bottom - top), 0, 1)
    before = scene.pixels.copy()
    scene.paint("4E8FC4")
    scene.paint("F9C77A", smooth(0.15, 0.62, sky))
    scene.paint("F0805A", smooth(0.5, 0.70, sky) * 0.8)
    x, ground = right - 12.5, bottom - 9.5
    for tilt in (-0.16, 0.2):
        far = left - 4
        lamp = ground - 24
        scene.paint("FFF3B0", scene.blur(scene.polygon([
            (x, lamp - 0.6), (far, lamp + (x - far) * tilt - 5),
            (far, lamp + (x - far) * tilt + 4), (x, lamp + 0.6)]), 0.4) * 0.55)
    sea = smooth(bottom - 13, bottom - 12.8, scene.y)
    scene.paint("23508F", sea)
    glitter = smooth(0.55, 0.7, scene.noise((9, 1.6), 4, 3)) * sea
    scene.paint("F7A873", glitter * smooth(26, 4, np.abs(scene.x - left - 11)) * 0.85)
    scene.paint("7FB0D8", glitter * 0.35)
    scene.paint("FFF0B8", scene.ellipse(left + 11, bottom - 15.5, 4.2) * (1 - sea))
    rock = scene.polygon([(x - 15, bottom), (x - 11, ground + 3.2), (x - 7.5, ground + 2.6),
                          (x - 5, ground), (x + 5, ground - 0.4), (x + 9, ground + 2),
                          (x + 16, ground + 1.5), (x + 16, bottom)])
    scene.paint("3B3A5E", rock)
    scene.paint("6A5A78", rock * smooth(0.5, 0.75, scene.noise((6, 4), 9)) * 0.8)
    scene.paint("FFF9EA", scene.blur(smooth(0.45, 0.8, scene.noise((5, 2), 2)), 0.2)
                * smooth(bottom - 3.4, bottom - 1.4, scene.y) * 0.8)
    lighthouse(scene, x, ground)
    gull(scene, left + 21, top + 6.5, 3.4)
    gull(scene, left + 28.5, top + 10.5, 2.3)
    view, scene.pixels = scene.pixels, before
    scene.paint(view, frame)


def postmark(scene, x, y):
    """A double ring with waves that run off to the right."""
    reach = np.hypot(scene.x - x, scene.y - y)
    ink = ((np.abs(reach - 11) < 0.5) | (np.abs(reach - 7.4) < 0.45)).astype(float)
    spread = np.abs(reach - 9.2) < 1.0
    ink = np.maximum(ink, spread * (np.mod(np.arctan2(scene.y - y, scene.x - x), 0.42) < 0.2))
    ink = np.maximum(ink, (np.abs(scene.y - y) < 0.55) & (np.abs(scene.x - x) < 4.6))
    for row in range(-2, 3):
        wave = y + row * 4.2 + 1.2 * np.sin((scene.x - x) * 0.62)
        ink = np.maximum(ink, (np.abs(scene.y - wave) < 0.55) & (scene.x > x + 11.5))
    return ink


def stamp():
    """The stamp with its perforated edge; around it the envelope shows."""
    scene = Scene(87, 52, "D3BC8E", scale=6)
    left, top, right, bottom = 1, 1, 65, 49
    body = scene.box(left, top, right, bottom)
    for number in range(17):
        for edge in (top, bottom):
            body = body * (1 - scene.ellipse(left + number * 4, edge, 1.3))
    for number in range(13):
        for edge in (left, right):
            body = body * (1 - scene.ellipse(edge, top + number * 4, 1.3))
    scene.paint("FFFDF4", body)
    stamp_view(scene, left + 4, top + 4, right - 4, bottom - 4)
    mark = postmark(scene, 61, 15) * (scene.y < 45)
    scene.paint("3A3A55", mark * 0.85)
    scene.keep(np.maximum(np.maximum(body, scene.shift(body, 1, 1)), mark))
    return scene


def desktop():
    """The back of the envelope: four flaps inside the striped edge."""
    scene = Scene(101, 80, CREAM)
    for corners, colour in (([(0, 0), (50.5, 46), (0, 80)], "F3E5C8"),
                            ([(101, 0), (50.5, 46), (101, 80)], "F3E5C8"),
                            ([(0, 80), (50.5, 38), (101, 80)], "F9EFDA")):
        shape = scene.polygon(corners)
        scene.paint("D9C59E", scene.blur(shape, 1.0) * 0.6)
        scene.paint(colour, shape)
    flap = scene.polygon([(0, 0), (46, 45.5), (50.5, 48), (55, 45.5), (101, 0)])
    scene.paint("C9B48C", scene.blur(flap, 1.3) * 0.75)
    scene.paint("FBF3E1", flap)
    paper(scene, 6, 9)
    inside = scene.box(3, 3, 98, 77)
    stripes(scene, 1 - inside, 12)
    scene.paint("D9C59E", inside * (1 - scene.box(3.5, 3.5, 97.5, 76.5)))
    return scene


def title_small():
    """A strip of envelope, striped below the text."""
    scene = Scene(101, 20, CREAM)
    paper(scene, 3)
    stripes(scene, (scene.y > 15.5).astype(float))
    scene.paint("C9B48C", (np.abs(scene.y - 15.4) < 0.4) * 0.8)
    return scene


def title_medium():
    """The envelope's front: stripes, a small stamp and a postmark."""
    scene = Scene(101, 27, CREAM)
    paper(scene, 14)
    stripes(scene, (scene.y > 21.5).astype(float))
    scene.paint("C9B48C", (np.abs(scene.y - 21.4) < 0.4) * 0.8)
    scene.paint("FFFDF4", scene.box(86, 2, 99, 18))
    scene.paint("4E8FC4", scene.box(87.4, 3.4, 97.6, 16.6))
    scene.paint("F9C77A", scene.box(87.4, 9, 97.6, 16.6))
    scene.paint("23508F", scene.box(87.4, 12.5, 97.6, 16.6))
    scene.paint("FFF6E0", scene.polygon([(91, 13), (92.6, 4.5), (94.2, 13)]))
    scene.paint(RED, scene.polygon([(91.2, 12), (91.7, 9), (93.6, 9), (94, 12)]))
    for row in range(4):
        wave = 5 + row * 3.6 + 0.9 * np.sin(scene.x * 0.8)
        scene.paint("6A6A8C", ((np.abs(scene.y - wave) < 0.45) & (scene.x > 2)
                               & (scene.x < 19)) * 0.75)
    return scene


THEME = Theme("Par Avion", SMALL, {
    "Standby_operatorname": "26356B", "Standby_operatorname_outline": "FFF9EA",
    "Standby_time": "B82A38", "Standby_time_outline": "FFF9EA",
    "Desktop_background": "F3E3C2", "Desktop_title": "26356B", "Desktop_title_outline": "FFF9EA",
    "Title": "A4C3EA", "Title_text": "26356B", "Title_text_shadow": "FFF9EA",
    "Background": "F3E3C2", "Text": "26356B", "Disabled_text": "A0937E",
    "Prompt": "B82A38", "Cursor": "B82A38",
    "Highlight": "2A4B9C", "Highlight_text": "FFFFFF", "Highlight_disabled_text": "A4B6DE",
    "Popup_title": "CC3340", "Popup_title_text": "FFF9EA", "Popup_title_text_shadow": "7A1822",
    "Popup_background": "D6E4F3", "Popup_text": "26356B", "Popup_disabled_text": "7F94B6",
    "Popup_Prompt": "26356B", "Popup_Cursor": "B82A38",
    "Popup_highlight": "CC3340", "Popup_highlight_text": "FFFFFF",
    "Popup_highlight_disabled_text": "F4B4AE",
    "Popup_frame": "26356B", "Popup_shadow": "B3A27E",
    "Notes_background": "FFE08C", "Notes_text": "3A2E1E",
    "Calendar_weekend_text": "B82A38", "Calendar_weekend_highlight": "CC3340",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "B82A38", "Wapbrowser_tableborder": "2A4B9C",
}, {
    "Background_image": Picture("stamp.gif", stamp, 64, 6),
    "Desktop_background_image": Picture("envelope.gif", desktop, 32, 6),
    "Title_image_small": Picture("title_small.gif", title_small, 32, 4),
    "Title_image_medium": Picture("title_medium.gif", title_medium, 48, 4),
})
