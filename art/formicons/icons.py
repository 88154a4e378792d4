# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The form icons by number. Every function returns a finished canvas."""

import math

import parts
from pixel import (AMBER, BLUE, DISABLED, GREEN, METAL, RED, Canvas, disc,
                   flipped, mirrored, turned)

ICONS = {}


def icon(number):
    def register(draw):
        ICONS[number] = draw
        return draw
    return register


def sheet_with_code(x):
    return Canvas(16).stamp(parts.SHEET, x, 1).stamp(parts.CODE, x + 1, 5)


def theme_sheet(x, y):
    """A sheet carrying a little phone screen and colour swatches."""
    canvas = Canvas(16).stamp(parts.SHEET, x, y)
    canvas.stamp("""
        NNNN...
        NcbN...
        NbBN.RR
        NNNN.RR
        .......
        GG.YYBB
        GG.YYBB
        """, x + 2, y + 3)
    return canvas


def greyed(canvas):
    """The look of a picture on a disabled button."""
    return canvas.recoloured({
        "K": "g", "k": "g", "O": "g", "N": "g", "D": "g", "M": "g", "P": "g",
        "B": "h", "G": "h", "R": "h", "o": "h", "V": "h", "q": "h",
        "b": "i", "e": "i", "r": "i", "Y": "h", "t": "h", "i": "h",
        "c": "i", "y": "i", "W": "i"})


# --- buttons of every dialog -------------------------------------------------

@icon(101)
def tick():
    return Canvas(20).solid("""
        ....................
        ....................
        .................#..
        ................###.
        ...............#####
        ..............#####.
        .............#####..
        ............#####...
        ..#........#####....
        .###......#####.....
        #####....#####......
        ######..#####.......
        .###########........
        ..#########.........
        ...#######..........
        ....#####...........
        .....###............
        ......#.............
        ....................
        """, GREEN)


@icon(102)
def cross():
    return Canvas(20).solid("""
        ....................
        ....................
        ....#........#......
        ...###......###.....
        ..#####....#####....
        .#######..#######...
        ..##############....
        ...############.....
        ....##########......
        .....########.......
        .....########.......
        ....##########......
        ...############.....
        ..##############....
        .#######..#######...
        ..#####....#####....
        ...###......###.....
        ....#........#......
        ....................
        """, RED, 1, 0)


ARROW_20 = """
    .........##.........
    ........###.........
    .......####.........
    ......#####.........
    .....#############..
    ....##############..
    ...###############..
    ..################..
    .#################..
    .#################..
    ..################..
    ...###############..
    ....##############..
    .....#############..
    ......#####.........
    .......####.........
    ........###.........
    .........##.........
    """


@icon(132)
def next_large():
    return Canvas(20).solid(mirrored(ARROW_20), BLUE, 0, 1)


@icon(133)
def next_large_disabled():
    return Canvas(20).solid(mirrored(ARROW_20), DISABLED, 0, 1)


@icon(134)
def previous_large():
    return Canvas(20).solid(ARROW_20, BLUE, 0, 1)


@icon(135)
def previous_large_disabled():
    return Canvas(20).solid(ARROW_20, DISABLED, 0, 1)


@icon(131)
def drop_down():
    # the pale rim keeps the arrow visible on a dark button
    return Canvas(16).stamp("""
        KKKKK
        hKKKh
        .hKh.
        ..h..
        """, 5, 6)


@icon(116)
def slider_rail():
    """A groove that runs from edge to edge, so that it can be tiled."""
    canvas = Canvas(16)
    for row, letter in enumerate("kghi"):
        canvas.rect(0, 6 + row, 16, 1, letter)
    return canvas


# --- theme browser -----------------------------------------------------------

@icon(104)
def browse():
    return Canvas(16).stamp(parts.FOLDER_OPEN, 0, 2)


@icon(105)
def home():
    return Canvas(16).stamp(parts.HOUSE, 0, 0)


@icon(113)
def previous():
    return Canvas(16).solid(parts.BLOCK_ARROW, BLUE, 0, 1)


@icon(114)
def next_():
    return Canvas(16).solid(mirrored(parts.BLOCK_ARROW), BLUE, 0, 1)


@icon(111)
def refresh():
    half = """
        .....######.....
        ...##########...
        ..############..
        .######.######..
        .####....#######
        ####......#####.
        ####.......###..
        ###.........#...
        """
    canvas = Canvas(16).solid(half, GREEN)
    return canvas.solid(flipped(mirrored(half)), GREEN, 0, 8)


@icon(115)
def new_theme():
    return theme_sheet(1, 1).stamp(parts.SPARKLE, 7, 0)


@icon(118)
def edit():
    canvas = Canvas(16).stamp(parts.SHEET, 0, 1)
    for row, width in ((5, 6), (7, 4), (9, 3)):
        canvas.rect(2, row, width, 1, "g")
    return canvas.stamp(parts.PENCIL, 4, 1)


@icon(120)
def properties():
    canvas = Canvas(16).stamp(parts.SHEET, 1, 1)
    for row, letter in ((4, "R"), (7, "G"), (10, "V")):
        canvas.rect(3, row, 2, 2, letter)
    canvas.rect(6, 5, 3, 1, "g").rect(6, 8, 4, 1, "g").rect(6, 11, 2, 1, "g")
    return canvas.stamp("""
        ..NNNN..
        .NbWWBN.
        NcbWWBBN
        NbbBBBBN
        NbWWWBBN
        NbBWWBBN
        NBWWWWBN
        .NBBBBN.
        ..NNNN..
        """, 8, 7)


@icon(121)
def export_xml():
    return sheet_with_code(0).stamp(parts.ARROW_RIGHT, 8, 9)


@icon(136)
def import_xml():
    return sheet_with_code(5).stamp(parts.ARROW_RIGHT, 0, 9)


@icon(112)
def copy_to_clipboard():
    canvas = Canvas(16).stamp("""
        ....kkkk....
        .OOkhWhgkOO.
        OytkhhhgktoO
        OytkkkkkktoO
        OyWWWWWWWWoO
        OyWWNWWNWWoO
        OyWNWWWWNWoO
        OyNWWWWWWNoO
        OyWNWWWWNWoO
        OyWWNWWNWWoO
        OyWWWWWWWWoO
        OyWggggggWoO
        OyWWWWWWWioO
        OyWWWWWWiioO
        OtoooooooooO
        .OOOOOOOOOO.
        """, 2, 0)
    return canvas


@icon(122)
def copy_to_folder():
    canvas = Canvas(16).stamp(parts.SMALL_SHEET, 0, 0).stamp(parts.SMALL_SHEET, 3, 2)
    return canvas.stamp(parts.SMALL_FOLDER, 5, 7)


@icon(123)
def move_to_folder():
    canvas = Canvas(16).stamp(parts.SMALL_SHEET, 0, 0)
    canvas.stamp(parts.SMALL_FOLDER, 5, 7)
    return canvas.stamp("""
        DDDDDD....
        DeeeeGD...
        DGGGeeGD..
        DDDDeeGD..
        ..DDeeGDDD
        ..DeeeGGGD
        ...DeeGGD.
        ....DeGD..
        .....DD...
        """, 6, 1)


@icon(124)
def delete():
    return Canvas(16).stamp("""
        .....kkkk.....
        .kkkkkWhkkkkk.
        kWWWWhhhhhhggk
        kkkkkkkkkkkkkk
        .kWhhhhhhhggk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWgWhghhgkgk.
        .kWhhhhhhhggk.
        ..kkkkkkkkkk..
        """, 1, 1)


@icon(125)
def view_xml():
    return sheet_with_code(0).stamp(parts.LENS, 8, 8)


@icon(127)
def infrared():
    canvas = Canvas(16).stamp(parts.PHONE, 0, 1)
    return canvas.stamp("""
        .....R.
        ..R..RR
        ...R..R
        R..RR.R
        .R..R.R
        .R..R.R
        R..RR.R
        ...R..R
        ..R..RR
        .....R.
        """, 9, 1)


@icon(109)
def warning():
    return Canvas(16).stamp("""
        .......OO.......
        ......OyYO......
        ......OyYO......
        .....OyyYYO.....
        .....OyKKYO.....
        ....OyYKKYYO....
        ....OyYKKYYO....
        ...OyYYKKYYYO...
        ...OyYYKKYYYO...
        ..OyYYYKKYYYoO..
        ..OyYYYYYYYYoO..
        .OyYYYYKKYYYYoO.
        .OyYYYYKKYYYYoO.
        OyYYooooooooooOO
        OOOOOOOOOOOOOOOO
        ................
        """)


@icon(110)
def error():
    canvas = Canvas(16).solid_points(disc(7.5, 7.5, 7.91), RED)
    return canvas.stamp("""
        WW....WW
        WWW..WWW
        .WWWWWW.
        ..WWWW..
        ..WWWW..
        .WWWWWW.
        WWW..WWW
        WW....WW
        """, 4, 4)


# --- editors -----------------------------------------------------------------

@icon(103)
def slot_filled():
    return Canvas(16).stamp(parts.PICTURE, 1, 2)


@icon(117)
def capture():
    return Canvas(16).stamp("""
        ....kkkkkk......
        ...kWhhhgk.kkk..
        kkkkkkkkkkkkrk..
        kWWWWWWWWWWWWWWk
        kWhhhkkkkkkhyYhk
        kWhhkNNNNNNkhhgk
        kWhkNWccbbbNkhgk
        kWhkNcWcbbBNkhgk
        kghkNccbbBBNkggk
        kghkNbbbBBBNkggk
        kghkNbbBBBBNkggk
        kghhkNNNNNNkhggk
        kgghhkkkkkkhhggk
        kggggggggggggggk
        .kkkkkkkkkkkkkk.
        """, 0, 1)


@icon(128)
def save():
    return Canvas(16).stamp(parts.FLOPPY, 1, 1)


@icon(119)
def save_as():
    canvas = Canvas(16).stamp(parts.SMALL_FLOPPY, 0, 0)
    for column in (5, 9, 13):
        canvas.stamp("cbN\nbBN\nNNN", column, 13)
    return canvas


@icon(129)
def open_():
    return Canvas(16).stamp("""
        .....kkkkkkkk...
        .....kRRYYGGk...
        ..OOOkRRYYGGk...
        .OyyykWWWWWWk...
        .OyYYkBBVVqqkO..
        .OyYYkBBVVqqkO..
        .OyYYOOOOOOOOOOO
        .OyYYOyyyyyyyyyO
        .OyYOyYYYYYYYYoO
        .OyYOyYYYYYYYoO.
        .OyOyYYYYYYYYoO.
        .OyOyYYYYYYYoO..
        .OOyYYYYYYYYoO..
        .OOyooooooooO...
        .OOOOOOOOOOOO...
        """)


@icon(137)
def paste():
    canvas = Canvas(16).stamp("""
        ...kkkk....
        OOkhWhgkOO.
        OykhhhgkooO
        OykkkkkkooO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyYYYYYYYoO
        OyoooooooOO
        OOOOOOOOOO.
        """, 0, 0)
    canvas.stamp(parts.SMALL_SHEET, 7, 6)
    return canvas.rect(9, 10, 3, 1, "g").rect(9, 12, 4, 1, "g")


@icon(138)
def revert():
    return Canvas(16).solid("""
        .....##.........
        ....###.........
        ...####.........
        ..##########....
        .############...
        ##############..
        .##############.
        ..#########.###.
        ...####...#####.
        ....###....####.
        .....##....####.
        ..........#####.
        ....##########..
        ....#########...
        ....#######.....
        """, AMBER)


@icon(139)
def reset():
    canvas = Canvas(16).stamp(parts.SHEET, 0, 0)
    return canvas.stamp("""
        ...NNNNN.NN
        ..NcbbbbNbN
        .NcbNNNbbBN
        NcbN.NNNbBN
        NbN..NbbBBN
        NbN..NNNNNN
        NbN.....NN.
        NbBN...NBBN
        .NBBNNNBBN.
        ..NBBBBBN..
        ...NNNNN...
        """, 5, 5)


@icon(140)
def remove_images():
    canvas = Canvas(16).stamp(parts.SMALL_PICTURE, 0, 0)
    canvas.stamp(parts.SMALL_PICTURE, 3, 3)
    return canvas.stamp(parts.CROSS_SMALL, 7, 7)


@icon(141)
def auto_select():
    canvas = Canvas(16).stamp(parts.SMALL_PICTURE, 0, 5)
    canvas.stamp(parts.WAND, 7, 7)
    return canvas.stamp(parts.STAR, 4, 1).stamp(parts.GLINT, 12, 3)


@icon(142)
def draw_images():
    canvas = Canvas(16).stamp(parts.PICTURE, 1, 2)
    for step in range(14):
        x, y = 1 + step, 14 - step
        for dx, letter in ((-1, "M"), (0, "R"), (1, "R"), (2, "M")):
            canvas.put(x + dx, y, letter)
    return canvas


@icon(143)
def more_previews():
    canvas = Canvas(16)
    for x, y in ((6, 0), (3, 3), (0, 6)):
        canvas.stamp(parts.SCREEN, x, y)
    return canvas


ROTATING_ARROW = """
    .....#######....
    ...##########...
    ..############..
    ..####....#####.
    #######.....###.
    .#####......###.
    ..###...........
    ...#............
    """


@icon(144)
def rotate_left():
    canvas = Canvas(16).stamp(parts.TINY_PICTURE, 4, 8)
    return canvas.solid(ROTATING_ARROW, GREEN)


@icon(145)
def rotate_right():
    canvas = Canvas(16).stamp(parts.TINY_PICTURE, 3, 8)
    return canvas.solid(mirrored(ROTATING_ARROW), GREEN)


WEDGE = """
    .............##
    ...........####
    .........######
    .......########
    .....##########
    ...############
    .##############
    """


def axis(canvas, x, y, step_x, step_y):
    for start in range(0, 16, 3):
        for dot in range(2):
            canvas.put(x + step_x * (start + dot), y + step_y * (start + dot), "g")
    return canvas


@icon(146)
def flip():
    canvas = Canvas(16).solid(WEDGE, "NBbb", 0, 0)
    canvas.solid(flipped(WEDGE), "giWW", 0, 9)
    return axis(canvas, 0, 7, 1, 0)


@icon(147)
def crop():
    canvas = Canvas(16)
    canvas.stamp("""
        bbbbyY
        bbbbYo
        cccccc
        ccGccc
        cGeGcG
        GeeeGe
        """, 5, 5)
    corner = """
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ###...........
        ##############
        ##############
        ##############
        """
    canvas.solid(corner, METAL, 2, 0)
    return canvas.solid(flipped(mirrored(corner)), METAL, 0, 2)


@icon(148)
def stretch():
    canvas = Canvas(16).stamp(parts.TINY_PICTURE, 0, 0)
    for place in (0, 1, 4, 5, 8, 9):
        canvas.put(15, 15 - place, "g")
        canvas.put(15 - place, 15, "g")
    return canvas.stamp("""
        DDD.....
        DeGD...D
        DGeGD.DD
        .DGeGDeD
        ..DGeeGD
        ...DeGGD
        ..DeGGGD
        .DDDDDDD
        """, 7, 7)


@icon(149)
def shrink():
    canvas = Canvas(16)
    for place in (0, 1, 4, 5, 8, 9, 12, 13):
        for x, y in ((place + 1, 0), (0, place + 1), (15, place + 1), (place + 1, 15)):
            canvas.put(x, y, "g")
    canvas.stamp(parts.TINY_PICTURE, 1, 1)
    return canvas.stamp("""
        DDDDDDD..
        DGGGeD...
        DGGeD....
        DGeeGD...
        DeDGeGD..
        DD.DGeGD.
        D...DGeGD
        .....DeD.
        ......D..
        """, 7, 7)


@icon(150)
def mirror():
    canvas = Canvas(16).solid(turned(WEDGE), "NBbb", 0, 0)
    canvas.solid(mirrored(turned(WEDGE)), "giWW", 9, 0)
    return axis(canvas, 7, 0, 0, 1)


def screen_with_border(width):
    canvas = Canvas(16)
    for y in range(3 - width, 13 + width):
        for x in range(3 - width, 13 + width):
            edge = min(x - 3 + width, y - 3 + width, 12 + width - x, 12 + width - y)
            if edge == 0 and width:
                canvas.put(x, y, "g")
            elif edge < width:
                canvas.put(x, y, "i")
            else:
                canvas.put(x, y, "b" if y < 9 else "G")
    return canvas


@icon(151)
def no_border():
    return screen_with_border(0)


@icon(152)
def single_border():
    return screen_with_border(1)


@icon(153)
def default_border():
    return screen_with_border(3)


@icon(126)
def default_palette():
    return Canvas(16).stamp("""
        ......OOOOO.....
        ....OOyyyttOO...
        ..OOytBBttttoO..
        .OytGGBBtRRttoO.
        .OytGGtttRRtttO.
        OytttttttttttoO.
        OytttttttttVVtoO
        OttOOttttttVVtoO
        OtO..OtttttttttO
        .OtOOttOOttttoO.
        .OttttO..OqqtoO.
        ..OtYYtOOtqqoO..
        ...OYYttttooO...
        ....OOoooOOO....
        ......OOO.......
        """, 0, 0)


@icon(130)
def colour_wheel():
    canvas = Canvas(16)
    wheel = disc(7.5, 7.5, 7.91)
    canvas.solid_points(wheel, ("k", "h", "h", "h"))
    hues = "qYGBVR"
    lights = {"q": "Y", "Y": "y", "G": "e", "B": "b", "V": "h", "R": "r"}
    for x, y in disc(7.5, 7.5, 6.98):
        turn = math.atan2(y - 7.5, x - 7.5) / (2 * math.pi) + 0.25
        canvas.put(x, y, hues[int(turn * 6) % 6])
    for x, y in disc(7.5, 7.5, 6.98) - disc(8.2, 8.2, 6.9):
        canvas.put(x, y, lights[canvas.cells[y][x]])
    for x, y in disc(7.5, 7.5, 1.6):
        canvas.put(x, y, "W")
    return canvas


# --- theme files -------------------------------------------------------------

@icon(108)
def theme_file():
    canvas = Canvas(32).stamp(parts.LARGE_SHEET, 4, 1)
    canvas.stamp(parts.TALL_PHONE, 7, 6)
    for row, (body, light, edge) in enumerate(("RrM", "YyO", "GeD", "BbN")):
        y = 12 + row * 4
        canvas.rect(20, y, 6, 4, edge).rect(21, y + 1, 4, 2, body)
        canvas.rect(21, y + 1, 4, 1, light)
    return canvas


def linked(sheet):
    return sheet.stamp(parts.CHAIN, 4, 10)


@icon(106)
def associate():
    return linked(theme_sheet(0, 1))


@icon(107)
def associate_disabled():
    return greyed(associate())


# --- new theme dialog --------------------------------------------------------

@icon(211)
def new_small_phone():
    return Canvas(24).stamp(parts.SHORT_PHONE, 3, 1).stamp(parts.SPARKLE, 14, 1)


@icon(212)
def new_large_phone():
    return Canvas(24).stamp(parts.TALL_PHONE, 3, 1).stamp(parts.SPARKLE, 15, 0)


@icon(213)
def from_existing_theme():
    canvas = Canvas(24).stamp(parts.LARGE_FOLDER_BACK, 0, 5)
    canvas.stamp(parts.SHEET, 8, 1)
    canvas.rect(10, 4, 2, 3, "R").rect(13, 5, 2, 2, "Y")
    return canvas.stamp(parts.LARGE_FOLDER_FRONT, 0, 12)


@icon(214)
def wizard():
    canvas = Canvas(24)
    canvas.stamp(parts.LARGE_WAND, 1, 8)
    canvas.stamp(parts.SPARKLE, 12, 1)
    canvas.stamp(parts.STAR, 3, 1)
    return canvas.stamp(parts.STAR, 17, 13)
