#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the theme folders in data/My Themes: files, order, sizes, legibility."""

import re
import sys
from pathlib import Path

import numpy as np
from PIL import Image

from build import OUT
from scene import rgb
from theme import LARGE, SMALL

MOST_BYTES = 8192
TEXT, MARK, DISABLED, AREA = 4.5, 3.0, 2.2, 1.3
WEAKER = 1.5  # By how much disabled text stands out less than the text beside it.

# (text, ground, least contrast) of the colours that meet on a screen.
SHARED = (
    ("Standby_time", "Standby_time_outline", TEXT),
    ("Desktop_title", "Desktop_title_outline", TEXT),
    ("Desktop_title", "Desktop_background", TEXT),
    ("Title_text", "Title", TEXT), ("Title_text", "Title_text_shadow", TEXT),
    ("Text", "Background", TEXT), ("Disabled_text", "Background", DISABLED),
    ("Prompt", "Background", TEXT), ("Cursor", "Background", MARK),
    ("Highlight_text", "Highlight", TEXT), ("Highlight", "Background", AREA),
    ("Highlight_disabled_text", "Highlight", DISABLED),
    ("Notes_text", "Notes_background", TEXT),
    ("Calendar_weekend_text", "Background", TEXT),
    ("Calendar_weekend_highlight_text", "Calendar_weekend_highlight", TEXT),
)
ONLY_SMALL = (
    ("Standby_operatorname", "Standby_operatorname_outline", TEXT),
    ("Popup_title_text", "Popup_title", TEXT),
    ("Popup_text", "Popup_background", TEXT),
    ("Popup_disabled_text", "Popup_background", DISABLED),
    ("Popup_Prompt", "Popup_background", TEXT), ("Popup_Cursor", "Popup_background", MARK),
    ("Popup_highlight_text", "Popup_highlight", TEXT),
    ("Popup_highlight_disabled_text", "Popup_highlight", DISABLED),
    ("Popup_frame", "Popup_background", DISABLED),
    ("Wapbrowser_underline", "Background", MARK), ("Wapbrowser_tableborder", "Background", MARK),
)
ONLY_LARGE = (
    ("Standby_operatorname_text", "Standby_operatorname_outline", TEXT),
    ("Softkeys_text", "Softkeys_background", TEXT),
    ("Softkeys_text", "Softkeys_background_activated", TEXT),
    ("Softkeys_disabled_text", "Softkeys_background", DISABLED),
    ("Morelist_title_text", "Morelist_title", TEXT),
    ("Morelist_text", "Morelist_background", TEXT),
    ("Morelist_text", "Morelist_text_shadow", TEXT),
    ("Morelist_disabled_text", "Morelist_background", DISABLED),
    ("Morelist_prompt", "Morelist_background", TEXT),
    ("Morelist_cursor", "Morelist_background", MARK),
    ("Morelist_highlight_text", "Morelist_highlight", TEXT),
    ("Morelist_highlight_disabled_text", "Morelist_highlight", DISABLED),
    ("Scrollbar", "Scrollbar_frame", DISABLED),
    ("Morelist_scrollbar", "Morelist_scrollbar_frame", DISABLED),
)
ON_WHITE = ("Wapbrowser_underline", "Wapbrowser_tableborder")

# Where text lies over a picture: slot, box, text, ground below, least contrast.
ZONES = (
    ("Title_image_small", (22, 0, 79, 12), "Title_text", "Background", TEXT),
    ("Title_image_medium", (22, 1, 79, 14), "Title_text", "Background", TEXT),
    ("Title_image_large", (10, 1, 91, 14), "Title_text", "Background", TEXT),
    ("Title_image_asian", (22, 1, 79, 14), "Title_text", "Background", TEXT),
    ("Title_image", (8, 5, 117, 18), "Title_text", "Background", TEXT),
    ("General_background_image", (4, 2, 122, 104), "Text", "Background", TEXT),
    ("General_background_image", (4, 2, 122, 104), "Disabled_text", "Background", DISABLED),
    ("General_background_image", (88, 3, 122, 14), "Calendar_weekend_text", "Background", TEXT),
    ("Highlight_image", (4, 2, 90, 14), "Highlight_text", "Background", TEXT),
    ("Highlight_image", (4, 2, 90, 14), "Highlight_disabled_text", "Background", DISABLED),
    ("Morelist_popup_title_image", (10, 4, 108, 17), "Morelist_title_text",
     "Morelist_background", TEXT),
    ("Morelist_popup_highlight_image", (3, 2, 80, 14), "Morelist_highlight_text",
     "Morelist_background", TEXT),
    ("Morelist_popup_highlight_image", (3, 2, 80, 14), "Morelist_highlight_disabled_text",
     "Morelist_background", DISABLED),
    ("Softkeys_background_image", (3, 3, 50, 15), "Softkeys_text", "Background", TEXT),
    ("Softkeys_background_image", (88, 3, 124, 15), "Softkeys_text", "Background", TEXT),
    ("Softkeys_background_image", (3, 3, 50, 15), "Softkeys_disabled_text",
     "Background", DISABLED),
)
MOST_UNREADABLE = 0.03


def luminance(colours):
    """The light of colours, 0 to 1; the last axis holds red, green and blue."""
    part = np.asarray(colours, float) / 255
    light = np.where(part <= 0.04045, part / 12.92, ((part + 0.055) / 1.055) ** 2.4)
    return light @ (0.2126, 0.7152, 0.0722)


def contrast(first, second):
    """The contrast ratio of two colours, or of arrays of them, 1 to 21."""
    first, second = luminance(first), luminance(second)
    return (np.maximum(first, second) + 0.05) / (np.minimum(first, second) + 0.05)


def check_xml(folder, faults):
    """The colours and the picture files of a theme; collects what is wrong."""
    data = (folder / f"{folder.name.lower()}.xml").read_bytes()
    if data.count(b"\n") != data.count(b"\r\n") or data.endswith(b"\n"):
        faults.append("line ends are not CR LF between lines only")
    text = data.decode("cp1252")
    generation = LARGE if f"<{LARGE.root}>" in text else SMALL
    images = re.findall(r'^<(\w+) Source="([^"]+)"/>\r$', text, re.M)
    colours = re.findall(r'^<(\w+) Color="0x([0-9A-F]{6})"/>\r$', text, re.M)
    if tuple(name for name, _ in colours) != generation.colours:
        faults.append("colours are not complete and in order")
    order = [name for name in generation.images if name in dict(images)]
    if [name for name, _ in images] != order:
        faults.append("images are not in order")
    if text.find("Source=") > text.find("Color=") or len(text.split("\r\n")) != (
            7 + len(images) + len(colours)):
        faults.append("lines that do not belong there")
    return generation, dict(images), dict(colours)


def check_files(folder, generation, images, faults):
    """Every picture is there, none is over, sizes and kinds are right."""
    there = {path.name for path in folder.iterdir()} - {f"{folder.name.lower()}.xml"}
    if there != set(images.values()) or len(set(images.values())) != len(images):
        faults.append(f"files {sorted(there)} but named {sorted(images.values())}")
        return
    for slot, name in images.items():
        path, size = folder / name, generation.images[slot]
        kinds = ("GIF", "JPEG") if generation is LARGE else ("GIF",)
        try:
            with Image.open(path) as picture:
                picture.load()
        except OSError as error:
            faults.append(f"{name}: {error}")
        else:
            smaller = (generation is SMALL and slot.lower().endswith("background_image")
                       and picture.width <= size[0] and picture.height <= size[1])
            if picture.format not in kinds or not (picture.size == size or smaller):
                faults.append(f"{name}: {picture.format} of {picture.size}, not {size}")
        if not re.fullmatch(r"[a-z0-9_]+\.(gif|jpg)", name):
            faults.append(f"{name}: not a plain lower-case name")
        if path.stat().st_size >= MOST_BYTES:
            faults.append(f"{name}: {path.stat().st_size} bytes")


def check_colours(generation, colours, faults):
    """Text stands out from its ground wherever no picture lies below."""
    pairs = SHARED + (ONLY_LARGE if generation is LARGE else ONLY_SMALL)
    for text, ground, least in pairs:
        apart = contrast(rgb(colours[text]), rgb(colours[ground]))
        if apart < least:
            faults.append(f"{text} on {ground}: {apart:.1f}, not {least}")
        strong = text.replace("disabled_", "").replace("Disabled_text", "Text")
        if strong != text and contrast(rgb(colours[strong]), rgb(colours[ground])) < WEAKER * apart:
            faults.append(f"{text} on {ground} looks like {strong}")
    for text in ON_WHITE if generation is LARGE else ():
        if contrast(rgb(colours[text]), rgb("FFFFFF")) < MARK:
            faults.append(f"{text} on white: too pale")


def check_zones(folder, images, colours, faults):
    """Text stands out from nearly every pixel of the picture below it."""
    for slot, box, text, ground, least in ZONES:
        if slot not in images:
            continue
        with Image.open(folder / images[slot]) as picture:
            layer = picture.convert("RGBA")
        below = Image.new("RGBA", layer.size, "#" + colours[ground])
        seen = Image.alpha_composite(below, layer).convert("RGB").crop(box)
        poor = (contrast(np.asarray(seen), rgb(colours[text])) < least).mean()
        if poor > MOST_UNREADABLE:
            faults.append(f"{text} on {images[slot]}: {poor:.0%} of the ground too close")


def main():
    """Check all folders; the exit status tells whether all is well."""
    failed = False
    for folder in sorted(OUT.iterdir()):
        faults = []
        generation, images, colours = check_xml(folder, faults)
        if not faults:
            check_files(folder, generation, images, faults)
        if not faults:
            check_colours(generation, colours, faults)
            check_zones(folder, images, colours, faults)
        print(f"{folder.name}: {len(images)} pictures,",
              f"{len(faults)} faults" if faults else "all well")
        for fault in faults:
            print(f"  {fault}")
        failed = failed or bool(faults)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
