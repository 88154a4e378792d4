# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Ink and Crane: brush mountains on rice paper, a red sun, cranes in flight."""

import numpy as np

from scene import Scene, ramp, smooth
from theme import LARGE, Picture, Theme

PAPER, INK, RED = "F4EBD8", "26241F", "C8301F"


def rice_paper(scene, seed, strength=12):
    """Clouded paper with a few pale and dark fibres."""
    grain = scene.noise((34, 26), seed, 5) - 0.5
    scene.pixels = np.clip(scene.pixels + grain[..., None] * strength, 0, 255)
    random = np.random.default_rng(seed)
    for number in range(int(scene.width * scene.height / 420)):
        x, y = random.random(2) * (scene.width, scene.height)
        turn, length = random.random() * np.pi, 2 + 5 * random.random()
        fibre = scene.line([(x, y), (x + length * np.cos(turn), y + length * np.sin(turn))], 0.25)
        scene.paint("FFFDF4" if number % 3 else "B8A684", fibre * 0.5)


def wash(scene, line, depth, strength, seed, colour=INK):
    """An ink mountain: dark at its line, dissolving downwards into mist."""
    down = scene.y - line[None, :]
    tone = np.exp(-np.clip(down, 0, None) / depth)
    grain = 0.65 + 0.7 * scene.noise((12, 16), seed, 4)
    scene.paint(colour, scene.below(line) * np.clip(tone * grain * strength, 0, 1))


def crane(scene, x, y, size):
    """A crane in flight to the left, its wings raised; size goes from shoulder to feet."""
    def at(*points):
        return [(x + size * a, y + size * b) for a, b in points]

    def brush(width, *points):
        scene.paint(INK, scene.line(at(*points), max(0.9, size * width)))

    def feathers(roots, tips, count):
        for part in np.linspace(0, 1, count):
            ends = [tuple(np.array(pair[0]) * (1 - part) + np.array(pair[1]) * part)
                    for pair in (roots, tips)]
            brush(0.05, *ends)

    def plumage(part, colour):
        scene.paint("3A3730", smooth(0.08, 0.45, scene.blur(part, 0.4)) * 0.85)
        scene.paint(colour, part)

    body = scene.polygon(at((-0.38, -0.03), (-0.22, -0.10), (0.06, -0.09), (0.42, 0.03),
                            (0.20, 0.10), (-0.10, 0.11), (-0.30, 0.05)))
    near = scene.polygon(at((-0.22, -0.04), (-0.12, -0.36), (0.04, -0.64), (0.30, -0.92),
                            (0.42, -0.80), (0.44, -0.56), (0.40, -0.32), (0.18, 0.02)))
    far = scene.polygon(at((-0.22, -0.04), (-0.34, -0.40), (-0.36, -0.72), (-0.26, -0.98),
                           (-0.12, -0.84), (-0.08, -0.55), (-0.04, -0.30), (0.0, -0.04)))
    brush(0.05, (0.30, 0.04), (0.66, 0.10), (1.0, 0.13))
    plumage(far, "D2CABA")
    feathers(((-0.28, -0.80), (-0.10, -0.54)), ((-0.26, -1.02), (-0.06, -0.76)), 4)
    plumage(np.maximum(body, near), "FFFEF8")
    feathers(((0.16, -0.62), (0.24, -0.20)), ((0.38, -0.96), (0.52, -0.34)), 5)
    brush(0.06, (0.26, 0.02), (0.44, 0.06))
    brush(0.07, (-0.40, -0.02), (-0.58, -0.03), (-0.80, -0.11))
    scene.paint("FFFEF8", scene.line(at((-0.36, -0.02), (-0.44, -0.02)), size * 0.06))
    scene.paint("6A5A38", scene.line(at((-0.82, -0.10), (-1.0, -0.08)), max(0.8, size * 0.035)))
    scene.paint(RED, scene.ellipse(x - size * 0.80, y - size * 0.14, max(0.85, size * 0.05)))


def bamboo(scene, x, tilt, width, strength):
    """A stalk of bamboo with its joints, in a thin wash."""
    def middle(y):
        return x + tilt * (scene.height - y)
    for top in np.arange(-6, scene.height, 24):
        head, foot, half = middle(top + 1), middle(top + 23), width / 2
        joint = scene.polygon([(head - half, top + 1), (head + half, top + 1),
                               (foot + half, top + 23), (foot - half, top + 23)])
        side = (scene.x - middle(scene.y)) / width
        tone = 0.55 + 0.45 * smooth(-0.45, 0.45, side)
        scene.paint(INK, joint * tone * strength)


def leaf(scene, x, y, length, turn, strength):
    """One bamboo leaf: a tapered stroke."""
    along, across = (np.cos(turn), np.sin(turn)), (-np.sin(turn), np.cos(turn))
    shape = ((0, 0), (0.25, 0.075), (0.55, 0.06), (1, 0), (0.55, -0.05), (0.25, -0.07))
    points = [(x + length * (t * along[0] + w * across[0]),
               y + length * (t * along[1] + w * across[1])) for t, w in shape]
    scene.paint(INK, scene.polygon(points) * strength)


def stroke(scene, seed, rough=1.0):
    """The mask of one sweep of a broad brush: frayed ends, dry streaks."""
    width, height = scene.width, scene.height
    rows = scene.noise((400, 1.6), seed, 2)
    edge = scene.noise((9, 400), seed + 1, 3) - 0.5
    top = 0.7 + edge * 1.8
    bottom = height - 0.7 + edge * 1.6
    body = smooth(-0.3, 0.3, scene.y - top) * smooth(-0.3, 0.3, bottom - scene.y)
    start = 0.4 + 2 * rows
    end = width - 2 - 16 * rough * scene.noise((400, 1.2), seed + 2, 2)
    ends = smooth(-0.6, 0.6, scene.x - start) * smooth(-0.6, 0.6, end - scene.x)
    streak = scene.noise((70, 0.9), seed + 3, 2)
    dry = smooth(0.62, 0.72, streak) * smooth(width * 0.62, width * 0.95, scene.x) * rough
    return body * ends * (1 - dry)


def wallpaper():
    """Ranges in mist, the sun, two cranes and a branch of bamboo."""
    scene = Scene(128, 127, PAPER)
    rice_paper(scene, 3)
    sun = scene.blur(scene.ellipse(88, 43, 19.5), 0.25)
    scene.paint(RED, sun * (0.90 + 0.10 * scene.noise((14, 14), 5)))
    wash(scene, scene.ridge(82, 34, 46, 14, 5, 0.5), 15, 0.26, 6, "5A6470")
    scene.paint(PAPER, smooth(74, 90, scene.y) * 0.5)
    wash(scene, scene.ridge(101, 44, 52, 29, 5, 0.52), 13, 0.55, 7, "3A4048")
    scene.paint(PAPER, smooth(92, 106, scene.y) * 0.55)
    wash(scene, scene.ridge(117, 26, 44, 33, 5, 0.55), 10, 0.9, 8)
    scene.paint(PAPER, smooth(106, 122, scene.y) * 0.75)
    crane(scene, 72, 48, 25)
    crane(scene, 44, 73, 14)
    bamboo(scene, 3, 0.02, 5, 0.8)
    for x, y, length, turn in ((8, 28, 22, 0.55), (8, 29, 18, 1.1), (7, 30, 20, 0.1),
                               (6, 77, 16, 0.5), (6, 78, 14, 1.1)):
        leaf(scene, x, y, length, turn, 0.9)
    return scene


def desktop():
    """Paper with a pale sun and a breath of mountains."""
    scene = Scene(128, 127, PAPER)
    rice_paper(scene, 13, 9)
    scene.paint("E8A890", scene.blur(scene.ellipse(64, 62, 38), 0.4) * 0.55)
    wash(scene, scene.ridge(118, 26, 52, 44, 5, 0.5), 12, 0.20, 15, "5A6470")
    wash(scene, scene.ridge(127, 18, 40, 48, 5, 0.5), 10, 0.30, 16, "3A4048")
    return scene


def title():
    """Paper above one drawn line, a slim red seal at the right's very end."""
    scene = Scene(128, 23, "EADFC6")
    rice_paper(scene, 23, 10)
    line = 20.4 + 0.5 * np.sin(scene.x * 0.05) + (scene.noise((60, 300), 4, 2) - 0.5)
    thick = 0.9 + 0.9 * smooth(100, 0, scene.x) * scene.noise((30, 300), 6, 2)
    scene.paint(INK, smooth(0.35, -0.35, np.abs(scene.y - line) - thick) * 0.95)
    worn = smooth(0.66, 0.74, scene.noise((3, 3), 8, 2))
    scene.paint(RED, scene.box(122, 2, 127, 17, 0.8) * (1 - 0.25 * worn))
    for box in ((123, 4, 126, 5), (123, 4, 124, 9), (125, 4, 126, 9), (123, 6, 126, 7),
                (123, 8, 126, 9), (124, 10, 125, 15), (123, 11, 126, 12), (123, 14, 126, 15)):
        scene.paint("F8E8D8", scene.box(*box) * 0.9)
    return scene


def general():
    """List paper: bamboo in a thin wash along the right edge."""
    scene = Scene(128, 104, PAPER)
    rice_paper(scene, 33, 8)
    bamboo(scene, 111, -0.04, 5, 0.09)
    bamboo(scene, 100, 0.03, 3.4, 0.06)
    for x, y, length, turn in ((109, 34, 24, 2.5), (110, 35, 20, 1.9), (104, 70, 22, 2.7),
                               (104, 71, 18, 2.1), (112, 60, 16, 0.9)):
        leaf(scene, x, y, length, turn, 0.12)
    return scene


def highlight():
    """One stroke of vermilion; where the brush missed, the paper shows."""
    scene = Scene(123, 16, RED)
    tone = scene.noise((80, 1.8), 42, 3)
    scene.paint("A82014", tone * 0.75)
    scene.keep(stroke(scene, 43))
    return scene


def more_highlight():
    """The same sweep in ink."""
    scene = Scene(113, 16, "3A3834")
    scene.paint("1C1A18", scene.noise((80, 1.8), 52, 3) * 0.8)
    scene.keep(stroke(scene, 53))
    return scene


def softkeys():
    """Two short strokes of ink as keys on the list paper."""
    scene = Scene(128, 19, PAPER)
    rice_paper(scene, 83, 8)
    keys = np.zeros(scene.shape)
    left = stroke(Scene(60, 19), 63, 0.15)
    right = stroke(Scene(60, 19), 73, 0.15)[:, ::-1]
    keys[:, :left.shape[1]] = left
    keys[:, -right.shape[1]:] = right
    scene.paint(ramp([(0, "33302B"), (1, "211F1C")], scene.noise((60, 1.8), 66, 3)), keys)
    return scene


THEME = Theme("Ink and Crane", LARGE, {
    "Standby_operatorname_text": "26241F", "Standby_operatorname_outline": "FBF5E6",
    "Standby_time": "8A1C10", "Standby_time_outline": "FBF5E6",
    "Desktop_background": "F4EBD8", "Desktop_title": "26241F", "Desktop_title_outline": "FFFFFF",
    "Softkeys_background": "33302B", "Softkeys_text": "FBF5E6", "Softkeys_text_shadow": "0C0B0A",
    "Softkeys_disabled_text": "A89E8C", "Softkeys_disabled_text_shadow": "1E1C19",
    "Softkeys_background_activated": "B02A1A",
    "Title": "EADFC6", "Title_text": "26241F", "Title_text_shadow": "FFFFFF",
    "Background": "F4EBD8", "Text": "26241F", "Disabled_text": "9E9178",
    "Prompt": "8A1C10", "Cursor": "C8301F",
    "Highlight": "BC2A1A", "Highlight_text": "FFFDF4", "Highlight_disabled_text": "F4B8A4",
    "Scrollbar": "33302B", "Scrollbar_frame": "DDD0B4",
    "Morelist_title": "BC2A1A", "Morelist_title_text": "FFFDF4",
    "Morelist_title_text_shadow": "5A0E06",
    "Morelist_background": "FBF7EC", "Morelist_text": "26241F", "Morelist_text_shadow": "FFFFFF",
    "Morelist_disabled_text": "B0A692", "Morelist_prompt": "8A1C10", "Morelist_cursor": "C8301F",
    "Morelist_highlight": "33302B", "Morelist_highlight_text": "FFFDF4",
    "Morelist_highlight_disabled_text": "A89E8C",
    "Morelist_popup_frame": "26241F", "Morelist_popup_shadow": "A89C84",
    "Morelist_scrollbar": "BC2A1A", "Morelist_scrollbar_frame": "E8DEC8",
    "Notes_background": "FFFDF6", "Notes_text": "26241F",
    "Calendar_weekend_text": "BC2A1A", "Calendar_weekend_highlight": "BC2A1A",
    "Calendar_weekend_highlight_text": "FFFDF4",
    "Wapbrowser_underline": "BC2A1A", "Wapbrowser_tableborder": "33302B",
}, {
    "Wallpaper_image": Picture("cranes.gif", wallpaper, 64, 5),
    "Softkeys_background_image": Picture("softkeys.gif", softkeys, 24, 5),
    "Desktop_background_image": Picture("paper.gif", desktop, 24, 5),
    "Title_image": Picture("title.gif", title, 32, 4),
    "General_background_image": Picture("bamboo.gif", general, 16, 4),
    "Highlight_image": Picture("stroke.gif", highlight, 12, 6),
    "Morelist_popup_highlight_image": Picture("more_stroke.gif", more_highlight, 12, 6),
})
