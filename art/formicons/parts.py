# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Objects that more than one icon shows: sheets, folders, arrows, phones."""

SHEET = """
kkkkkkkk...
kWWWWWWkk..
kWWWWWWkik.
kWWWWWWkkkk
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWWWWWWWWik
kWiiiiiiihk
kkkkkkkkkkk
"""

SMALL_SHEET = """
kkkkkk..
kWWWWkk.
kWWWWkkk
kWWWWWik
kWWWWWik
kWWWWWik
kWWWWWik
kWWWWWik
kWiiiihk
kkkkkkkk
"""

# "<>" of the theme source
CODE = """
..N..N..
.N....N.
N......N
.N....N.
..N..N..
"""

FOLDER_OPEN = """
..OOOO.........
.OyyyyO........
.OyYYYYOOOOO...
.OyYYYYYYYYoO..
.OyYYYOOOOOOOOO
.OyYYOyyyyyyyyO
.OyYYOyYYYYYYoO
.OyYOyYYYYYYoO.
.OyYOyYYYYYYoO.
.OyOyYYYYYYoO..
.OyOyYYYYYYoO..
.OOyooooooooO..
.OOOOOOOOOOO...
"""

SMALL_FOLDER = """
.OOO.......
OyyyOOOOO..
OyYYYYYYoO.
OyyyyyyyyyO
OyYYYYYYYoO
OyYYYYYYYoO
OyYYYYYYYoO
OyooooooooO
OOOOOOOOOOO
"""

FLOPPY = """
NNNNNNNNNNNNNN
NcNWWWWWWWWNBN
NbNWggggggWNBN
NbNWWWWWWWWNBN
NbNWggggggiNBN
NbNWWWWWiiiNBN
NbBNNNNNNNNBBN
NbBBBBBBBBBBBN
NbBkkkkkkkkBBN
NbBkWWhhhhgkBN
NbBkWNNhhhgkBN
NbBkhNNhhhgkBN
.NBkhhhhhggkBN
..NNNNNNNNNNNN
"""

SMALL_FLOPPY = """
NNNNNNNNNNNN
NcNWWWWWWNBN
NbNWggggWNBN
NbNWWWWWWNBN
NbNWggggiNBN
NbBNNNNNNBBN
NbBBBBBBBBBN
NbBkkkkkkBBN
NbBkWNhhgkBN
.NBkhNhhgkBN
..NNNNNNNNNN
"""

PICTURE = """
kkkkkkkkkkkkkk
kWWWWWWWWWWWWk
kWbbbbbbbbbbik
kWbbbbbbbyYbik
kWbbbcbbbYobik
kWccccccccccik
kWccGccccccGik
kWcGeGccccGeik
kWGeeeGccGeeik
kWeeeeeGGeeGik
kWGGGGGGGGGGik
kiiiiiiiiiiihk
kkkkkkkkkkkkkk
"""

SMALL_PICTURE = """
kkkkkkkkkkk
kWWWWWWWWWk
kWbbbbbyYik
kWbbbbbYoik
kWccccccGik
kWcGcccGeik
kWGeGcGeeik
kWeeeGeeGik
kWiiiiiiihk
kkkkkkkkkkk
"""

TINY_PICTURE = """
kkkkkkkkk
kWWWWWWWk
kWbbbyYik
kWcccYoik
kWcGcccik
kWGeGcGik
kWeeeGeik
kkkkkkkkk
"""

ARROW_RIGHT = """
...DD...
...DeD..
DDDDeeD.
DeeeeeGD
DDDDGGD.
...DGD..
...DD...
"""

BLOCK_ARROW = """
.......##.......
......###.......
.....####.......
....#####.......
...############.
..#############.
.##############.
###############.
.##############.
..#############.
...############.
....#####.......
.....####.......
......###.......
.......##.......
................
"""

PENCIL = """
.........MM..
........MrRM.
.......OkRRRM
......OykhRM.
.....OyYYkk..
....OyYYoO...
...OyYYoO....
..OyYYoO.....
.OtYYoO......
.OttoO.......
OKtOO........
OKO..........
OO...........
"""

LENS = """
..NNN...
.NWWcN..
NWWcccN.
NWcccbN.
NccccbN.
.NcbbNO.
..NNNOyO
.....OYO
"""

STAR = """
...O...
...O...
..OyO..
OOyWYOO
..OYO..
...O...
...O...
"""

SPARKLE = """
....O....
...OyO...
...OyO...
.OOyWYOO.
OyyWWyYYO
.OOyyYOO.
...OYO...
...OYO...
....O....
"""

CROSS_SMALL = """
.MM...MM.
MrRM.MrRM
MRRRMRRRM
.MRRRRRM.
..MRRRM..
.MRRRRRM.
MrRRMRRRM
MRRM.MRRM
.MM...MM.
"""

PHONE = """
...kk....
...kk....
kkkkkkkkk
kWhhhhhgk
kWNNNNNgk
kWNbccNgk
kWNbbcNgk
kWNNNNNgk
kWhhhhhgk
kWkhkhkgk
kWhhhhhgk
kWkhkhkgk
kWhhhhhgk
khggggggk
.kkkkkkk.
"""

HOUSE = """
......MMM..kk..
.....MrRRMkhgk.
....MrRRRRMhgk.
...MrRRRRRRMgk.
..MrRRRRRRRRMk.
.MrRRRRRRRRRRM.
MRRRMMMMMMMRRRM
MMMMOyyyyyyOMMM
.OOyyyyyyyyytO.
..OyNNNyOOOytO.
..OyNbNyOooYtO.
..OyNcNyOooYtO.
..OyNNNyOooOtO.
..OtttttOooOtO.
..OOOOOOOOOOOO.
"""

# wand with its tip at the upper left
WAND = """
NNN......
NWhN.....
NhcBN....
.NcbBN...
..NcbBN..
...NcbBN.
....NcbBN
.....NbBN
......NN.
"""

GLINT = """
.O.
OyO
.O.
"""

SCREEN = """
kkkkkkkkkk
kWWWWWWWgk
kWNNNNNNgk
kWNccccNgk
kWNcyccNgk
kWNcccGNgk
kWNGcGeNgk
kWNNNNNNgk
khggggggkk
.kkkkkkkk.
"""

CHAIN = """
.NNNN..NNNN.
NcbbbNNcbbbN
NbNNcbbbNNBN
NbNNbBBBNNBN
NbBBBNNbBBBN
.NNNN..NNNN.
"""

LARGE_SHEET = """
kkkkkkkkkkkkkkkkkkk.....
kWWWWWWWWWWWWWWWWWkk....
kWWWWWWWWWWWWWWWWWkik...
kWWWWWWWWWWWWWWWWWkWik..
kWWWWWWWWWWWWWWWWWkWWik.
kWWWWWWWWWWWWWWWWWkkkkkk
kWWWWWWWWWWWWWWWWWWhhhik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWWWWWWWWWWWWWWWWWWWWWik
kWiiiiiiiiiiiiiiiiiiiihk
kkkkkkkkkkkkkkkkkkkkkkkk
"""

SHORT_PHONE = """
..kkk.......
..kWk.......
..khk.......
.kkkkkkkkkk.
kWWWWWWWWWhk
kWNNNNNNNNgk
kWNccccccNgk
kWNccccyYNgk
kWNcGccGcNgk
kWNGeGGeGNgk
kWNNNNNNNNgk
kWhhhNNhhhgk
kWGGhcBhRRgk
kWhhhNNhhhgk
kWkkhkkhkkgk
kWhhhhhhhhgk
kWkkhkkhkkgk
kWhhhhhhhhgk
kWkkhkkhkkgk
kWhhhhhhhhgk
khgggggggggk
.kkkkkkkkkk.
"""

TALL_PHONE = """
.kkkkkkkkkk.
kWWWWWWWWWhk
kWhhkkkkhhgk
kWNNNNNNNNgk
kWNVVVVVVNgk
kWNccccccNgk
kWNcccyYcNgk
kWNcccYocNgk
kWNccccccNgk
kWNcGccGcNgk
kWNGeGGeGNgk
kWNeeeeeeNgk
kWNNNNNNNNgk
kWGGhNNhRRgk
kWhhhcBhhhgk
kWhhhNNhhhgk
kWkkhkkhkkgk
kWhhhhhhhhgk
kWkkhkkhkkgk
kWhhhhhhhhgk
khgggggggggk
.kkkkkkkkkk.
"""

LARGE_FOLDER_BACK = """
..OOOOOO..............
.OyyyyyyO.............
.OyYYYYYYOOOOOOOOO....
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OyYYYYYYYYYYYYYYoO...
.OOOOOOOOOOOOOOOOOO...
"""

LARGE_FOLDER_FRONT = """
.....OOOOOOOOOOOOOOOOOO.
.....OyyyyyyyyyyyyyyyyO.
....OyYYYYYYYYYYYYYYYoO.
....OyYYYYYYYYYYYYYYoO..
...OyYYYYYYYYYYYYYYYoO..
...OyYYYYYYYYYYYYYYoO...
..OyYYYYYYYYYYYYYYYoO...
..OyYYYYYYYYYYYYYYoO....
.OyYYYYYYYYYYYYYYYoO....
.OyooooooooooooooooO....
.OOOOOOOOOOOOOOOOOOO....
"""

# wand with its tip at the upper right
LARGE_WAND = """
...........KKK..
..........KWWhK.
.........KWWhgK.
........KWWhgK..
.......KKKhgK...
......KbbBKK....
.....KbbBNK.....
....KbbBNK......
...KbbBNK.......
..KbbBNK........
.KbbBNK.........
KbbBNK..........
KbBNK...........
.KKK............
"""
