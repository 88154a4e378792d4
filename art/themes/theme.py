# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a theme is made of, and its folder on disk."""

from dataclasses import dataclass, field

from reduce import save_gif, save_jpeg

CREATOR = "The Quillane developers"
CREATED = "21.11.2026 12:00"
MARK = "CreatedWithQuillane30187"


@dataclass(frozen=True)
class Generation:
    """The vocabulary of one phone generation, in the order of the file."""
    root: str
    screen: tuple
    images: dict
    colours: tuple


def _names(text):
    return tuple(text.split())


SMALL = Generation("Ericsson_theme", (101, 80), {
    "Background_image": (101, 80),
    "Desktop_background_image": (101, 80),
    "Title_image_small": (101, 20),
    "Title_image_medium": (101, 27),
    "Title_image_large": (101, 16),
    "Title_image_asian": (101, 16),
}, _names("""
    Standby_operatorname Standby_operatorname_outline
    Standby_time Standby_time_outline
    Desktop_background Desktop_title Desktop_title_outline
    Title Title_text Title_text_shadow
    Background Text Disabled_text Prompt Cursor
    Highlight Highlight_text Highlight_disabled_text
    Popup_title Popup_title_text Popup_title_text_shadow
    Popup_background Popup_text Popup_disabled_text Popup_Prompt Popup_Cursor
    Popup_highlight Popup_highlight_text Popup_highlight_disabled_text
    Popup_frame Popup_shadow
    Notes_background Notes_text
    Calendar_weekend_text Calendar_weekend_highlight
    Calendar_weekend_highlight_text
    Wapbrowser_underline Wapbrowser_tableborder"""))

LARGE = Generation("Sony_Ericsson_theme", (128, 160), {
    "Statusbar_background_image": (128, 14),
    "Wallpaper_image": (128, 127),
    "Softkeys_background_image": (128, 19),
    "Desktop_background_image": (128, 127),
    "Title_image": (128, 23),
    "General_background_image": (128, 104),
    "Highlight_image": (123, 16),
    "Morelist_popup_title_image": (118, 23),
    "Morelist_popup_highlight_image": (113, 16),
}, _names("""
    Standby_operatorname_text Standby_operatorname_outline
    Standby_time Standby_time_outline
    Desktop_background Desktop_title Desktop_title_outline
    Softkeys_background Softkeys_text Softkeys_text_shadow
    Softkeys_disabled_text Softkeys_disabled_text_shadow
    Softkeys_background_activated
    Title Title_text Title_text_shadow
    Background Text Disabled_text Prompt Cursor
    Highlight Highlight_text Highlight_disabled_text
    Scrollbar Scrollbar_frame
    Morelist_title Morelist_title_text Morelist_title_text_shadow
    Morelist_background Morelist_text Morelist_text_shadow
    Morelist_disabled_text Morelist_prompt Morelist_cursor
    Morelist_highlight Morelist_highlight_text
    Morelist_highlight_disabled_text
    Morelist_popup_frame Morelist_popup_shadow
    Morelist_scrollbar Morelist_scrollbar_frame
    Notes_background Notes_text
    Calendar_weekend_text Calendar_weekend_highlight
    Calendar_weekend_highlight_text
    Wapbrowser_underline Wapbrowser_tableborder"""))


@dataclass(frozen=True)
class Picture:
    """One image slot: the file, who draws it and how far it is reduced."""
    file: str
    draw: object
    colours: int = 64
    dither: float = 10.0

    def save(self, folder):
        """Draw the picture into its file."""
        picture, path = self.draw().picture(), folder / self.file
        if path.suffix == ".jpg":
            save_jpeg(picture, path)
        else:
            save_gif(picture, path, self.colours, self.dither)


@dataclass(frozen=True)
class Theme:
    """A sample theme: its name, generation, colours and pictures."""
    name: str
    generation: Generation
    colours: dict
    pictures: dict = field(default_factory=dict)

    def xml(self):
        """The text of the XML file, lines ended by CR LF but for the last."""
        unknown = (set(self.colours) - set(self.generation.colours)
                   | set(self.pictures) - set(self.generation.images))
        if unknown:
            raise ValueError(f"{self.name}: unknown elements {sorted(unknown)}")
        root = self.generation.root
        lines = ['<?xml version="1.0"?>', f"<{root}>", f"<!--{MARK}>",
                 f'<Theme_name Name="{self.name}"/>',
                 f'<Theme_creator Name="{CREATOR}"/>',
                 f'<Theme_created Time="{CREATED}"/>-->']
        lines += [f'<{element} Source="{self.pictures[element].file}"/>'
                  for element in self.generation.images if element in self.pictures]
        lines += [f'<{element} Color="0x{self.colours[element]}"/>'
                  for element in self.generation.colours]
        return "\r\n".join(lines + [f"</{root}>"])

    def write(self, parent):
        """Write the theme's folder anew below a parent folder."""
        folder = parent / self.name
        folder.mkdir(parents=True, exist_ok=True)
        for old in folder.iterdir():
            old.unlink()
        path = folder / f"{self.name.lower()}.xml"
        path.write_bytes(self.xml().encode("cp1252"))
        for picture in self.pictures.values():
            picture.save(folder)
        return folder
