# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Desktop of the small phone: board 1000 and selected symbols 1001-1009."""

from kit import (BLUE, CREAM, GOLD, GREEN, ORANGE, PAPER, RED, SKY, STEEL,
                 VIOLET, Canvas, arc_points, board, drawn, ellipse, plate,
                 polygon, rect, rounded, selected, star, stroke)

BOARD_SIZE = (101, 80)
CELLS = [(x, y) for y in (14, 35, 56) for x in (1, 34, 67)]
WIDTH = 33
WHITE_INK = "#f4f8ff"


def height(cell):
    """Height of a cell 1..9: the middle one of the last row is lower."""
    return 20 if cell == 8 else 21


def phone_book(c):
    for y, tab in ((4, RED), (8, GOLD), (12, GREEN)):
        c.panel(rect(23, y, 4, 3), tab, fall=0.3)
    c.panel(rounded(8, 3, 16, 15), BLUE)
    c.put(rect(10, 4, 1, 13), BLUE.tones[1])
    for y in (5, 9, 13):
        c.panel(rect(6, y, 4, 2), PAPER, fall=0, edge=0.8)
    c.put(rounded(15, 5, 5, 5), WHITE_INK)
    c.put(polygon((12.5, 16), (12.5, 13), (14.5, 11), (19.5, 11),
                  (21.5, 13), (21.5, 16)), WHITE_INK)


def messages(c):
    c.panel(rounded(5, 4, 23, 14), CREAM, fall=0.6)
    fold = CREAM.tones[1]
    c.put(stroke([(5.5, 17.5), (13.5, 10.5)], 1), fold)
    c.put(stroke([(27.5, 17.5), (19.5, 10.5)], 1), fold)
    flap = polygon((5.6, 4), (27.4, 4), (18, 12), (15, 12))
    c.panel(flap, CREAM, fall=1.2, edge=0.6)
    c.put(rect(6, 3, 21, 1), CREAM.line)
    c.ball(ellipse(16.5, 11.5, 2.6), RED)


def calls(c):
    c.panel(drawn(6, 3, ["..###...........",
                         ".######.........",
                         "########........",
                         "########........",
                         "#######.........",
                         ".#####..........",
                         ".#####..........",
                         "..#####.........",
                         "..######...##...",
                         "...######.#####.",
                         "....############",
                         ".....###########",
                         "......##########",
                         "........#######.",
                         "..........###..."]), GREEN, fall=1.2)
    c.panel(drawn(18, 3, ["...#......",
                          "..##......",
                          ".########.",
                          "#########.",
                          ".########.",
                          "..##......",
                          "...#......"]), ORANGE, fall=0.4, edge=0.8)


def games(c):
    pad = (rounded(6, 5, 21, 9, 4) | ellipse(9.2, 12.8, 4, 4.6)
           | ellipse(23.8, 12.8, 4, 4.6))
    c.panel(pad, VIOLET, fall=1.3)
    c.put(rect(9, 7, 3, 7) | rect(7, 9, 7, 3), VIOLET.line)
    c.put(rect(10, 8, 1, 5) | rect(8, 10, 5, 1), STEEL.tones[3])
    for x, y, colour in ((20, 9, GREEN), (24, 9, RED), (22, 7, GOLD),
                         (22, 11, SKY)):
        c.put(rect(x, y, 2, 2), colour.tones[2])
        c.put({(x, y)}, colour.tones[4])
    c.put(rect(15, 8, 3, 1), VIOLET.line)


def settings(c):
    c.panel(drawn(4, 3, ["......###......",
                         "..##..###..##..",
                         ".#############.",
                         ".#############.",
                         "...#########...",
                         "..###########..",
                         "###############",
                         "###############",
                         "###############",
                         "..###########..",
                         "...#########...",
                         ".#############.",
                         ".#############.",
                         "..##..###..##..",
                         "......###......"]), STEEL, fall=1.4)
    c.put(ellipse(11.5, 10.5, 2.5), STEEL.line)
    c.panel(drawn(18, 7, ["....###....",
                          ".##.###.##.",
                          ".#########.",
                          "..#######..",
                          "###########",
                          "###########",
                          "###########",
                          "..#######..",
                          ".#########.",
                          ".##.###.##.",
                          "....###...."]), GOLD, fall=1.2)
    c.put(rect(22, 11, 3, 3), GOLD.line)


def internet(c):
    ring = dict(cx=16.5, cy=10.5, rx=11.8, ry=4.0, tilt=-22)
    c.panel(stroke(arc_points(start=180, end=360, **ring), 1.6), ORANGE,
            fall=0.4, edge=0.4)
    globe = ellipse(16.5, 10.5, 7.5)
    c.ball(globe, SKY)
    land = drawn(9, 3, ["...............",
                        "....####.......",
                        "...#####...#...",
                        "..######..###..",
                        "...####..####..",
                        "...###...#####.",
                        "....##...#####.",
                        ".....#....####.",
                        ".....###..###..",
                        ".....####.##...",
                        ".....####.#....",
                        "......###......",
                        "......##.......",
                        "......#........"])
    c.ball(land & globe, GREEN, (16.5, 10.5), (7.5, 7.5), line=False)
    c.panel(stroke(arc_points(start=8, end=172, **ring), 1.6), ORANGE,
            fall=0.4, edge=0.4)


def organizer(c):
    c.panel(rounded(7, 4, 19, 14), PAPER, fall=0.5)
    c.panel(rounded(7, 4, 19, 4), RED, fall=0.4)
    c.put(rect(7, 7, 19, 1), RED.tones[1])
    for x in (11, 20):
        c.panel(rect(x, 3, 2, 3), STEEL, fall=0)
    for row in range(3):
        for column in range(5):
            if (column, row) not in ((0, 0), (4, 2)):
                c.put(rect(9 + 3 * column, 9 + 3 * row, 2, 2), "#8e9ab4")
    c.put(rect(17, 11, 4, 4), ORANGE.line)
    c.put(rect(18, 12, 2, 2), ORANGE.tones[2])


def connect(c):
    c.panel(rect(4, 9, 4, 2), STEEL, fall=0, edge=0.6)
    c.panel(rect(25, 9, 5, 2), STEEL, fall=0, edge=0.6)
    for y in (6, 12):
        c.panel(rect(15, y, 5, 2), GOLD, fall=0, edge=0.8)
    c.panel(rounded(7, 4, 10, 12, 4) & rect(0, 0, 12, 20), ORANGE, fall=1.0)
    c.panel(rect(12, 3, 2, 14), ORANGE, fall=0.6)
    c.panel(rounded(16, 4, 10, 12, 4) & rect(21, 0, 12, 20), BLUE, fall=1.0)
    c.panel(rect(19, 3, 2, 14), BLUE, fall=0.6)


def shortcuts(c):
    c.panel(star(14.5, 11, 9.6, 4.3, 5), GOLD, fall=1.3)
    c.panel(rounded(19, 10, 9, 8), PAPER, fall=0.4, edge=0.6)
    c.put(drawn(20, 11, ["....#..",
                         "....##.",
                         ".######",
                         "##..##.",
                         "#...#..",
                         "#......"]), "#1c50c8")


SYMBOLS = [phone_book, messages, calls, games, settings, internet, organizer,
           connect, shortcuts]


def symbols():
    result = []
    for cell, draw in enumerate(SYMBOLS, 1):
        canvas = Canvas(WIDTH, height(cell))
        draw(canvas)
        result.append(canvas)
    return result


def icons():
    """All icons of the family: number -> canvas."""
    drawings = symbols()
    result = {1000: board(*BOARD_SIZE, CELLS, drawings, 0.55, 0.22)}
    for cell, symbol in enumerate(drawings, 1):
        tile = plate(WIDTH, height(cell), "#7a3200", ["#ffa81e"],
                     "#ffffff", "#ffeaa0")
        result[1000 + cell] = selected(symbol, tile, "#a06010")
    return result
