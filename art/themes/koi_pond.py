# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Koi Pond: two carp under lily pads, seen from above through clear water."""

import numpy as np

from scene import Scene, ramp, smooth
from theme import SMALL, Picture, Theme


def water(scene, dark, light, seed=2, ripples=0.24):
    """Deep water with a web of light on it."""
    depth = scene.noise((60, 50), seed, 3)
    scene.paint(ramp([(0, dark), (1, light)], depth))
    bend = (scene.noise((24, 18), seed + 1, 3) - 0.5)
    web = np.abs(scene.noise((17, 13), seed + 2, 2) - 0.5 + bend * 0.35)
    scene.light("7FE0C8", smooth(0.055, 0.0, web) * ripples)


def spine(points, count=70):
    """A smooth curve through four control points, head first."""
    t = np.linspace(0, 1, count)[:, None]
    a, b, c, d = (np.array(point, float) for point in points)
    return ((1 - t) ** 3 * a + 3 * (1 - t) ** 2 * t * b
            + 3 * (1 - t) * t ** 2 * c + t ** 3 * d)


def along(scene, curve):
    """For each place its position along a curve, 0 to 1, and the side offset."""
    step = np.gradient(curve, axis=0)
    step /= np.linalg.norm(step, axis=1)[:, None]
    best = np.full(scene.shape, 1e9)
    place, side = np.zeros(scene.shape), np.zeros(scene.shape)
    for number, ((x, y), (dx, dy)) in enumerate(zip(curve, step)):
        distance = np.hypot(scene.x - x, scene.y - y)
        closer = distance < best
        best = np.where(closer, distance, best)
        place = np.where(closer, number / (len(curve) - 1), place)
        offset = (scene.x - x) * dy - (scene.y - y) * dx
        side = np.where(closer, np.sign(offset) * distance, side)
    return place, side


def fin(scene, curve, at, size, turn, spread=0.42):
    """A fan-shaped fin that grows from the curve at a position."""
    index = int(at * (len(curve) - 1))
    x, y = curve[index]
    dx, dy = curve[min(index + 1, len(curve) - 1)] - curve[max(index - 1, 0)]
    heading = np.arctan2(dy, dx)
    points = [(x, y)]
    for part in np.linspace(-spread, spread, 7):
        reach = size * (1 - 0.35 * abs(part))
        points.append((x + reach * np.cos(heading + turn + part),
                       y + reach * np.sin(heading + turn + part)))
    return scene.polygon(points)


def koi(scene, points, girth, coat, seed):
    """A carp along four control points; coat is (ground, patch, second, fins)."""
    curve = spine(points)
    place, side = along(scene, curve)
    profile = girth * np.interp(place, [0, 0.05, 0.14, 0.32, 0.6, 0.85, 1],
                                [0.50, 0.72, 0.94, 1.0, 0.72, 0.28, 0.16])
    body = scene.blur(np.abs(side) <= profile, 0.15)
    tail = np.maximum(fin(scene, curve, 0.94, girth * 2.6, 0.40, 0.22),
                      fin(scene, curve, 0.94, girth * 2.6, -0.40, 0.22))
    sides = np.maximum(fin(scene, curve, 0.27, girth * 1.9, 0.80, 0.36),
                       fin(scene, curve, 0.27, girth * 1.9, -0.80, 0.36))
    whole = np.maximum(np.maximum(body, tail), sides)
    scene.paint("062A30", scene.shift(scene.blur(whole, 0.9), 3, 3) * 0.55)
    near = smooth(girth * 2.4, girth * 0.6, np.abs(side)) * (1 - 0.4 * (place >= 1))
    scene.paint(coat[3], scene.blur(np.maximum(tail, sides), 0.3) * (0.55 + 0.45 * near))
    pattern = scene.noise((girth * 2.3, girth * 2.3), seed, 2)
    scene.paint(coat[0], body)
    scene.paint(coat[1], body * smooth(0.50, 0.54, pattern))
    second = scene.noise((girth * 1.6, girth * 1.6), seed + 50, 2)
    scene.paint(coat[2], body * smooth(0.66, 0.70, second))
    scene.paint("5A2010", body * smooth(0.55, 1.0, np.abs(side) / profile) * 0.45)
    scene.light("FFF4E0", body * smooth(0.3, 0.0, np.abs(side / profile + 0.3)) * 0.22)
    x, y = curve[7]
    dx, dy = curve[10] - curve[4]
    dx, dy = np.array([dx, dy]) / np.hypot(dx, dy)
    for turn in (-1, 1):
        scene.paint("1A1008", scene.ellipse(x - turn * dy * girth * 0.55,
                                            y + turn * dx * girth * 0.55, 0.62))


def lily(scene, x, y, size, notch, seed):
    """A lily pad with a notch in the direction of an angle."""
    angle = np.arctan2(scene.y - y, scene.x - x)
    reach = np.hypot(scene.x - x, scene.y - y) / size
    gap = np.abs(np.angle(np.exp(1j * (angle - notch))))
    pad = scene.blur((reach <= 1) & (gap > 0.24 + 0.1 * (1 - reach)), 0.15)
    scene.paint("062A30", scene.shift(scene.blur(pad, 0.8), 2, 2) * 0.6)
    light = smooth(-1, 1, (x - scene.x + y - scene.y) / size)
    tone = 0.6 * scene.noise((size, size), seed, 3) + 0.4 * light
    scene.paint(ramp([(0, "2C6B2E"), (0.55, "57983A"), (1, "A8CC58")], tone), pad)
    vein = np.abs(np.sin(angle * 6.5 + notch)) < 0.10
    scene.paint("C4DE7E", pad * vein * smooth(0.1, 0.4, reach) * 0.55)
    scene.paint("1E4A24", pad * smooth(0.90, 1.0, reach) * 0.5)


def lotus(scene, x, y, size):
    """A pink water lily seen slightly from the side."""
    for ring, (count, reach, colour) in enumerate(((9, 1.0, "E56A98"), (8, 0.78, "F598B8"),
                                                   (6, 0.5, "FFD0DC"))):
        for number in range(count):
            angle = 2 * np.pi * (number + ring * 0.5) / count
            tip = (x + size * reach * np.cos(angle), y + size * reach * 0.85 * np.sin(angle))
            across = (-np.sin(angle) * size * 0.24, np.cos(angle) * size * 0.22)
            middle = ((x + tip[0]) / 2, (y + tip[1]) / 2)
            scene.paint(colour, scene.polygon([
                (x, y), (middle[0] + across[0], middle[1] + across[1]), tip,
                (middle[0] - across[0], middle[1] - across[1])]))
    scene.paint("FFD24A", scene.ellipse(x, y, size * 0.2))


def wallpaper():
    """Two koi circling, pads in the corners, the flower at the right."""
    scene = Scene(101, 80)
    water(scene, "0A3E4A", "1C7A78", 2)
    koi(scene, [(22, 30), (34, 20), (52, 22), (66, 34)], 6.4,
        ("FFF4E2", "F2602A", "D8381E", "FFE2C8"), 13)
    koi(scene, [(77, 51), (66, 62), (48, 61), (33, 52)], 5.6,
        ("F58A2C", "FFB84A", "FFF0D8", "F7A04A"), 31)
    lily(scene, 91, 17, 14, 2.4, 3)
    lily(scene, 9, 60, 13, -0.7, 4)
    lily(scene, 97, 67, 9, 3.4, 6)
    lily(scene, 4, 8, 8, 0.8, 8)
    lotus(scene, 88, 21, 7.5)
    return scene


def desktop():
    """Quiet, bright water with rings and a few pads at the rim."""
    scene = Scene(101, 80)
    water(scene, "8CCBC0", "BFE6D8", 40, 0.22)
    for x, y in ((30, 42), (78, 24)):
        reach = np.hypot(scene.x - x, (scene.y - y) * 1.15)
        ring = smooth(0.9, 0.1, np.abs(np.mod(reach, 7) - 3.5)) * smooth(26, 6, reach)
        scene.paint("F2FFF8", ring * 0.55)
    lily(scene, 99, 77, 12, 1.0, 9)
    lily(scene, 2, 77, 9, 2.2, 12)
    return scene


def scales(left, right):
    """A title bar of carp scales between two colours."""
    scene = Scene(101, 16)
    ground = ramp([(0, left), (1, right)], scene.x / 101)
    scene.paint(ground)
    for row in range(4, -1, -1):  # An upper row lies over the one below it.
        for number in range(-1, 12):
            x, y = 10 * number + 5 * (row % 2) + 0.5, 4 * row - 3
            reach = np.hypot((scene.x - x) / 5, (scene.y - y) / 5.6)
            scale = (reach <= 1).astype(float)
            scene.paint(ground, scale)
            scene.light("FFE8C0", scale * smooth(0.35, 0.75, reach) * 0.12)
            scene.paint("000000", scale * smooth(0.74, 0.96, reach) * 0.42)
            scene.paint("000000", scale * smooth(0.6, 0.0, (scene.y - y) / 5.6) * 0.20)
    scene.paint("FFE9C0", (scene.y > 15) * 0.8)
    return scene


def title_large():
    """Scales from deep orange to red."""
    return scales("B8441A", "9C281A")


def title_asian():
    """Scales of the black koi's back."""
    return scales("1B5560", "0E3444")


THEME = Theme("Koi Pond", SMALL, {
    "Standby_operatorname": "FFF4E2", "Standby_operatorname_outline": "0A2E38",
    "Standby_time": "FFD27A", "Standby_time_outline": "0A2E38",
    "Desktop_background": "A8DACC", "Desktop_title": "8A2A12", "Desktop_title_outline": "F6FFFA",
    "Title": "0F5560", "Title_text": "FFF4E2", "Title_text_shadow": "062A30",
    "Background": "E6F5EE", "Text": "0C3A44", "Disabled_text": "86A69F",
    "Prompt": "B8401A", "Cursor": "C8481A",
    "Highlight": "C8481A", "Highlight_text": "FFFFFF", "Highlight_disabled_text": "FFC09A",
    "Popup_title": "B83A1A", "Popup_title_text": "FFF4E2", "Popup_title_text_shadow": "5A1808",
    "Popup_background": "FFF4DE", "Popup_text": "4A2410", "Popup_disabled_text": "B49F86",
    "Popup_Prompt": "4A2410", "Popup_Cursor": "C8481A",
    "Popup_highlight": "1A7472", "Popup_highlight_text": "FFFFFF",
    "Popup_highlight_disabled_text": "98D0C6",
    "Popup_frame": "0F5560", "Popup_shadow": "4A7E80",
    "Notes_background": "CDE8A0", "Notes_text": "1E4024",
    "Calendar_weekend_text": "C42C52", "Calendar_weekend_highlight": "1A7472",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "C8481A", "Wapbrowser_tableborder": "1A7472",
}, {
    "Background_image": Picture("pond.gif", wallpaper, 128, 6),
    "Desktop_background_image": Picture("ripples.gif", desktop, 48, 6),
    "Title_image_large": Picture("title_large.gif", title_large, 32, 6),
    "Title_image_asian": Picture("title_asian.gif", title_asian, 32, 6),
})
