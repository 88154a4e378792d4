# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Desktop of the large phone: board 2000 and selected symbols 2001-2012.

Glossier than the small phone's: softer tones and a gleam on every face.
"""

import math

from kit import (BLUE, CREAM, DARK, GOLD, GREEN, LIME, ORANGE, PAPER, PINK,
                 RED, SKY, STEEL, TEAL, VIOLET, Canvas, Material, arc_points,
                 board, drawn, ellipse, mix, plate, polygon, rect, rgb,
                 rounded, selected, shape, star, stroke)

BOARD_SIZE = (128, 127)
CELLS = [(x, y) for y in (22, 48, 74, 100) for x in (1, 43, 85)]
WIDTH, HEIGHT = 40, 25
INK = "#f6f9ff"


def emblem(c):
    """A glossy sphere with a golden swirl: the maker's own page."""
    cx, cy, r = 20.5, 12.5, 9.4
    ball = ellipse(cx, cy, r)
    c.ball(ball, VIOLET, (cx, cy), (r, r))

    def swirl(x, y):
        d = math.hypot(x - cx, y - cy)
        turn = math.degrees(math.atan2(y - cy, x - cx)) - 16 * d
        return 1.2 < d < 8.6 and (turn % 120) < 46 - 2.2 * d + 12
    c.ball(shape(swirl, (10, 2, 30, 23)) & ball, GOLD, (cx, cy), (r, r),
           line=False)
    c.put(ellipse(cx, cy, 1.6), GOLD.tones[4])
    gleam = ellipse(17, 7, 4.6, 2.2)
    for at in gleam:
        c.put({at}, mix(c.pixels[at], rgb("#ffffff"), 0.55))


def internet(c):
    cx, cy, r = 17.5, 12.5, 9.4
    globe = ellipse(cx, cy, r)
    c.ball(globe, SKY, (cx, cy), (r, r))
    grid = set()
    for rx in (4.6,):
        grid |= stroke(arc_points(cx, cy, rx, r, 0, 360), 0.9)
    grid |= rect(8, 12, 20, 1) | rect(17, 3, 1, 19)
    for y, bend in ((7.4, 1), (17.6, -1)):
        grid |= stroke(arc_points(cx, y - 2.4 * bend, r, 2.6,
                                  0, 180 * bend), 0.9)
    c.ball(grid & globe, Material("#1456b4", light="#2f80d8", shine="#58a8f0"),
           (cx, cy), (r, r), line=False)
    c.panel(polygon((22, 9), (22, 21.4), (24.8, 18.8), (27, 22.4),
                    (29.2, 21.2), (27.4, 17.8), (31, 17.6)), PAPER, fall=0.5)


def shortcuts(c):
    c.panel(star(17.5, 13, 11, 5.0, 5), GOLD, fall=1.3, gloss=0.6)
    c.panel(rounded(22, 11, 11, 11, 2), PAPER, fall=0.4)
    c.put(drawn(23, 12, [".....#...",
                         ".....##..",
                         "..######.",
                         ".########",
                         "###..##..",
                         "##...#...",
                         "##.......",
                         "##......."]), BLUE.tones[2])


def camera(c):
    c.panel(rounded(13, 4, 10, 6, 2), STEEL, fall=0.5)
    c.panel(rect(27, 5, 4, 3), RED, fall=0.4)
    c.panel(rounded(6, 7, 28, 14, 2), STEEL, fall=0.8, gloss=0.6)
    c.panel(rect(8, 9, 5, 3), PAPER, fall=0.2, edge=0.4)
    c.put(rect(30, 10, 2, 2), RED.tones[2])
    c.ball(ellipse(20, 14.5, 6.0), DARK)
    c.ball(ellipse(20, 14.5, 4.2), BLUE)
    c.put(rect(20, 14, 2, 2), BLUE.line)
    c.put({(18, 12), (19, 12), (18, 13)}, "#ffffff")


def messaging(c):
    c.panel(rect(11, 3, 18, 12), PAPER, fall=0.3, edge=0.6)
    for y, w in ((5, 10), (7, 13), (9, 11)):
        c.put(rect(13, y, w, 1), "#8e9ab8")
    back = polygon((6, 21), (6, 9), (20, 17.5), (34, 9), (34, 21))
    c.panel(back, CREAM, fall=0.8)
    front = polygon((6.4, 22), (18, 14.2), (22, 14.2), (33.6, 22))
    c.panel(front & rect(6, 3, 28, 19), CREAM, fall=0.6, gloss=0.0)
    c.panel(drawn(27, 2, ["...##...",
                          "..####..",
                          ".######.",
                          "########",
                          "..####..",
                          "..####..",
                          "..####.."]), GREEN, fall=0.6, edge=0.8)


def entertainment(c):
    c.panel(rounded(7, 16, 26, 6, 2), DARK, fall=0.6, gloss=0.8)
    c.panel(ellipse(19, 16, 6, 2.0), STEEL, fall=0.6)
    c.panel(stroke([(18.5, 9), (19, 15.5)], 2.6), STEEL, fall=0.6)
    c.ball(ellipse(18.5, 7.5, 4.5), RED)
    c.put(rect(16, 5, 2, 2), "#fff2ea")
    c.ball(ellipse(29, 16, 2.4, 1.8), GOLD)
    c.ball(ellipse(10.5, 17, 1.8, 1.4), LIME)


def multimedia(c):
    c.panel(rounded(6, 4, 24, 17, 1), PAPER, fall=0.3)
    view = rect(8, 6, 20, 13)
    for x, y in view:
        c.put({(x, y)}, SKY.tone(2 + (y - 6) / 6, 0.5))
    c.put(ellipse(13, 9.5, 2.2), GOLD.tones[3])
    c.put(polygon((8, 19), (8, 16.5), (14.5, 11.5), (22, 19)) & view,
          GREEN.tones[2])
    c.put(polygon((14, 19), (21, 13), (28, 18), (28, 19)) & view,
          GREEN.tones[1])
    c.put(polygon((8, 17.5), (8, 16.5), (14.5, 11.5), (15.5, 12.5)) & view,
          GREEN.tones[3])
    note = (ellipse(22.5, 19, 2.9, 2.2) | ellipse(31, 17, 2.9, 2.2)
            | rect(24, 8, 2, 11) | rect(32, 6, 2, 11)
            | polygon((24, 11.5), (24, 7.5), (34, 5), (34, 9)))
    c.panel(note, PINK, fall=0.8)


def phonebook(c):
    for y, tab in ((4, RED), (9, GOLD), (14, GREEN)):
        c.panel(rounded(28, y, 5, 4), tab, fall=0.3)
    c.panel(rounded(11, 4, 19, 18, 2), PAPER, fall=0.3)
    c.panel(rounded(9, 3, 19, 18, 2), BLUE, fall=0.9, gloss=0.7)
    c.put(rect(12, 4, 1, 16), BLUE.tones[1])
    for y in (5, 10, 15):
        c.panel(rect(7, y, 5, 2), STEEL, fall=0, edge=0.9)
    c.put(rounded(18, 5, 5, 6), INK)
    c.put(polygon((15.2, 18), (15.2, 15), (17.6, 12.4), (23.4, 12.4),
                  (25.8, 15), (25.8, 18)), INK)
    c.put(rect(15, 17, 11, 1), "#c4d4f4")


def calls(c):
    c.panel(drawn(5, 4, ["...####.............",
                         ".########...........",
                         "##########..........",
                         "##########..........",
                         "#########...........",
                         "########............",
                         ".######.............",
                         ".######.............",
                         "..######............",
                         "..#######...........",
                         "...#######...###....",
                         "....#######.######..",
                         ".....###############",
                         "......##############",
                         ".......#############",
                         ".........##########.",
                         "...........#######..",
                         ".............###...."]), GREEN, fall=1.3)
    arrow = ["....#......",
             "...##......",
             "..#########",
             ".##########",
             "..#########",
             "...##......",
             "....#......"]
    c.panel(drawn(19, 3, arrow), ORANGE, fall=0.5, edge=0.8)
    c.panel(drawn(23, 9, [row[::-1] for row in arrow]), BLUE, fall=0.5,
            edge=0.8)


def connectivity(c):
    c.panel(rect(7, 3, 2, 5), DARK, fall=0)
    c.panel(rounded(7, 5, 9, 17, 2), VIOLET, fall=0.8, gloss=0.5)
    c.panel(rect(9, 8, 5, 5), SKY, line=False, fall=0.8, edge=0.4)
    c.put({(x, y) for x in (9, 11, 13) for y in (15, 17, 19)},
          VIOLET.tones[4])
    c.panel(rounded(23, 7, 11, 10, 1), STEEL, fall=0.6)
    c.panel(rect(25, 9, 7, 6), BLUE, line=False, fall=1.4, edge=0.4)
    c.panel(polygon((22, 18), (34, 18), (36, 22), (20, 22)), STEEL, fall=0.6)
    c.put(rect(23, 19, 11, 1), STEEL.tones[1])
    c.panel(drawn(17, 3, ["...###",
                          "..###.",
                          ".###..",
                          "######",
                          "..###.",
                          ".###..",
                          ".##...",
                          "##....",
                          "#....."]), GOLD, fall=0.4, edge=0.5)


def organizer(c):
    c.panel(rounded(7, 5, 22, 17, 2), PAPER, fall=0.4)
    c.panel(rounded(7, 5, 22, 5, 2), RED, fall=0.3, gloss=0.5)
    c.put(rect(7, 9, 22, 1), RED.tones[1])
    for x in (11, 17, 23):
        c.panel(rect(x, 3, 2, 4), STEEL, fall=0, edge=0.8)
    for row in range(3):
        for column in range(5):
            if (column, row) != (0, 0):
                c.put(rect(10 + 4 * column, 12 + 3 * row, 2, 2), "#92a0bc")
    c.put(rect(13, 14, 4, 4), ORANGE.tones[2])
    c.put(rect(14, 15, 2, 2), ORANGE.tones[4])
    c.ball(ellipse(28.5, 16.5, 5.4), TEAL)
    c.ball(ellipse(28.5, 16.5, 3.9), PAPER, line=False)
    c.put(rect(28, 13, 1, 4) | rect(28, 16, 3, 1), "#1c2238")


def settings(c):
    blade = stroke([(11, 5), (21, 14)], 2.2) | polygon(
        (8, 2.6), (10, 2.6), (13, 5.4), (11.4, 7), (8, 4.6))
    c.panel(blade, STEEL, fall=0.6)
    c.panel(stroke([(21.5, 14.5), (27.5, 19.5)], 5), RED, fall=0.9,
            gloss=0.5)
    jaw = ellipse(26.5, 7.5, 4.9) - polygon(
        (26, 8.2), (25.6, 6.4), (29, 1), (34, 2), (33, 6.4), (28, 9))
    c.panel(jaw | stroke([(24.6, 9.6), (12, 19.6)], 4.0), STEEL, fall=0.9,
            gloss=0.4)
    c.put(ellipse(12.5, 19.2, 1.0), STEEL.line)


SYMBOLS = [emblem, internet, shortcuts, camera, messaging, entertainment,
           multimedia, phonebook, calls, connectivity, organizer, settings]


def symbols():
    result = []
    for draw in SYMBOLS:
        canvas = Canvas(WIDTH, HEIGHT, 0.5)
        draw(canvas)
        result.append(canvas)
    return result


def icons():
    """All icons of the family: number -> canvas."""
    drawings = symbols()
    result = {2000: board(*BOARD_SIZE, CELLS, drawings, 0.62, 0.16)}
    for cell, symbol in enumerate(drawings, 1):
        tile = plate(WIDTH, HEIGHT, "#0e3478", ["#3c9cff", "#d8f0ff"],
                     "#ffffff", "#a8d4ff", cut=5, gloss=0.5, step=0.5)
        result[2000 + cell] = selected(symbol, tile, "#103c80")
    return result
