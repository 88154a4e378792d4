# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Status symbols of both phones: battery, signal, GPRS and smaller ones.

All of them carry a dark outline around light pixels, so that they read on
light and dark grounds alike.
"""

from kit import GREEN, RED, SKY, Canvas, Material, drawn, rect, rgb, rounded

INK = "#10142c"
RIM = "#5c6684"  # Between light and dark grounds, where a thin part must show on both.
AMBER = Material("#f8a818", shade="#c06c08", light="#ffd868")
BARS = Material("#38c84c", shade="#188030", light="#a0f490")
WEDGE = Material("#30a8f8", shade="#1060b8", light="#9ce0ff")
FINE_BARS = Material("#34c4ec", shade="#1470b4", light="#a8f0ff")
FINE_WEDGE = Material("#ff9c20", shade="#c05c08", light="#ffd884")


def charge(level):
    """Colour of a battery's charge at a level 0..10."""
    return RED if level <= 2 else AMBER if level <= 4 else GREEN


def small_battery(level):
    """20x10: white case, five segments of two columns, a column per level."""
    c = Canvas(20, 10)
    frame = "#9c1020" if level == 0 else INK
    c.put(rounded(0, 0, 18, 10), frame)
    c.put(rect(18, 2, 2, 6) - {(19, 2), (19, 7)}, frame)
    c.put(rect(18, 4, 1, 2), "#ffffff")
    c.put(rect(1, 1, 16, 8), "#ffd0c8" if level == 0 else "#ffffff")
    for column in range(10):
        x = 2 + column // 2 * 3 + column % 2
        if column < level:
            paint = charge(level)
            c.put(rect(x, 2, 1, 6), paint.tones[2])
            c.put(rect(x, 2, 1, 2), paint.tones[3])
            c.put(rect(x, 7, 1, 1), paint.tones[1])
        else:
            c.put(rect(x, 2, 1, 6), "#e8b4b0" if level == 0 else "#d4d9e4")
    return c


def large_battery(level):
    """18x9: silver case (red when empty), dark well, a column per level."""
    c = Canvas(18, 9, 0.5)
    c.put(rounded(0, 0, 16, 9), INK)
    c.put(rect(16, 2, 2, 5) - {(17, 2), (17, 6)}, INK)
    lit, dim = ("#f4f7ff", "#aab4ca") if level else ("#ff7868", "#d02c34")
    c.put(rect(16, 3, 1, 3), dim)
    c.put(rect(1, 1, 14, 7), dim)
    c.put(rect(1, 1, 14, 1) | rect(1, 1, 1, 7), lit)
    c.put(rect(2, 2, 12, 5), "#28304c")
    paint = charge(level)
    tones = [paint.tone(v, 0.5) for v in (3, 3.5, 2.5, 2, 1.5)]
    for row, tone in enumerate(tones):
        c.put(rect(3, 2 + row, level, 1), tone)
    return c


def signal(level, material, step):
    """16x9: five bars rising to the right; bars not reached are stubs."""
    c = Canvas(16, 9, step)
    for bar in range(5):
        lit = bar < level
        height = bar + 3 if lit else 1
        x, y = 1 + 3 * bar, 8 - height
        c.put(rect(x - 1, y - 1, 4, height + 2), INK)
    for bar in range(5):
        lit = bar < level
        height = bar + 3 if lit else 1
        x, y = 1 + 3 * bar, 8 - height
        if not lit:
            c.put(rect(x, y, 2, 1), "#c4cad8")
            continue
        for row in range(height):
            value = 3.2 - 1.4 * row / (height - 1)
            c.put(rect(x, y + row, 1, 1), material.tone(value + 0.6, step))
            c.put(rect(x + 1, y + row, 1, 1), material.tone(value - 0.4, step))
    return c


def gprs(filled, width, material, step):
    """A wedge rising to the right, fitting above the bars of the signal.

    Its tail is hardly more than outline; so the outline is no ink, which
    would sink on a dark ground, but the wedge's own shade.
    """
    c = Canvas(width, 8, step)
    rows = ["#" * max(1, round(width - 1 - y * (width - 1) / 7.4))
            for y in range(8)]
    body = drawn(0, 0, rows)
    core = {(x, y) for x, y in body
            if {(x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)} <= body}
    c.put(body, material.tones[1] if filled else RIM)
    if filled:
        for x, y in core:
            c.put({(x, y)}, material.tone(3.4 - 0.4 * (y - 1), step))
    else:
        c.put(core, "#e6ebf6")
    return c


def line_number(digit):
    """9x9: a receiver with the number of the line."""
    c = Canvas(9, 9)
    c.text(0, 0, [".KKKKK...",
                  "KLGGGKKKK",
                  "KGGGKKKKK",
                  "KGGKKKKKK",
                  "KGGKKKKKK",
                  "KGGKKKKKK",
                  "KGGGKKKKK",
                  "KGGGDKKKK",
                  ".KKKKK..."],
           {"K": rgb(INK), "L": GREEN.tones[4], "G": GREEN.tones[3],
            "D": GREEN.tones[2]})
    c.put(drawn(5, 2, [".#.", "##.", ".#.", ".#.", "###"] if digit == 1 else
                ["##.", "..#", ".#.", "#..", "###"]), "#ffffff")
    return c


def infrared():
    """8x11: an emitter below, its waves above."""
    c = Canvas(8, 11)
    c.text(0, 0, [".KKKKKK.",
                  "KRRRRRRK",
                  "RKKKKKKR",
                  "KKOOOOKK",
                  "KOKKKKOK",
                  ".KKYYKK.",
                  "..KKKK..",
                  ".KLRRSK.",
                  ".KRRRSK.",
                  "KWWWWGGK",
                  "KKKKKKKK"],
           {"K": rgb("#400818"), "R": RED.tones[2], "O": rgb("#ff7840"),
            "Y": rgb("#ffd060"), "L": RED.tones[4], "S": RED.tones[1],
            "W": rgb("#e4e9f2"), "G": rgb("#98a2b8")})
    return c


def joystick():
    """11x11: four arrows round a button, between the soft keys."""
    c = Canvas(11, 11)
    c.text(0, 0, ["....KKK....",
                  "...KKWKK...",
                  "..KKWWWKK..",
                  ".KKKKKKKKK.",
                  "KKWKLBBKWKK",
                  "KWWKBBBKWWK",
                  "KKWKBBDKWKK",
                  ".KKKKKKKKK.",
                  "..KKWWWKK..",
                  "...KKWKK...",
                  "....KKK...."],
           {"K": rgb(INK), "W": rgb("#f2f5fc"), "L": SKY.tones[4],
            "B": SKY.tones[2], "D": SKY.tones[1]})
    return c


def check_box(ticked):
    """10x10: a sunken white box, empty or ticked."""
    c = Canvas(10, 10)
    c.put(rect(0, 0, 10, 10), INK)
    c.put(rect(1, 1, 8, 8), "#ffffff")
    c.put(rect(1, 1, 8, 1) | rect(1, 1, 1, 8), "#b4bcd0")
    if ticked:
        c.text(0, 0, ["..........",
                      "..........",
                      ".......GG.",
                      "......GGD.",
                      "..G..GGD..",
                      "..GGGGD...",
                      "...GGD....",
                      "....D.....",
                      "..........",
                      ".........."],
               {"G": rgb("#109c30"), "D": rgb("#086020")})
    return c


def icons():
    """All icons of both status families: number -> canvas."""
    result = {}
    for level in range(11):
        result[1100 + level] = small_battery(level)
        result[2100 + level] = large_battery(level)
    for level in range(6):
        result[1200 + level] = signal(level, BARS, 1.0)
        result[2200 + level] = signal(level, FINE_BARS, 0.5)
    for filled in (0, 1):
        result[1300 + filled] = gprs(filled, 16, WEDGE, 1.0)
        result[2300 + filled] = gprs(filled, 14, FINE_WEDGE, 0.5)
        result[1400 + filled] = line_number(filled + 1)
        result[2500 + filled] = check_box(filled)
    result[1500] = infrared()
    result[2400] = joystick()
    return result
