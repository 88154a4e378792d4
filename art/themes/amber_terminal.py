# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Amber Terminal: the warm phosphor of an old screen, in colours alone."""

from theme import SMALL, Theme

THEME = Theme("Amber Terminal", SMALL, {
    "Standby_operatorname": "FFC840", "Standby_operatorname_outline": "2A1400",
    "Standby_time": "FFE08A", "Standby_time_outline": "2A1400",
    "Desktop_background": "4A2A04",
    "Desktop_title": "FFE08A", "Desktop_title_outline": "1E0E00",
    "Title": "F09A10", "Title_text": "1E0E00", "Title_text_shadow": "FFC858",
    "Background": "1E0E00", "Text": "FFB020", "Disabled_text": "8C5610",
    "Prompt": "FFE08A", "Cursor": "FFF2C8",
    "Highlight": "9C5400", "Highlight_text": "FFF2C8", "Highlight_disabled_text": "E8A850",
    "Popup_title": "6E3A00", "Popup_title_text": "FFD060", "Popup_title_text_shadow": "2A1400",
    "Popup_background": "3C2000", "Popup_text": "FFC858", "Popup_disabled_text": "A87424",
    "Popup_Prompt": "FFE08A", "Popup_Cursor": "FFF2C8",
    "Popup_highlight": "FFB020", "Popup_highlight_text": "1E0E00",
    "Popup_highlight_disabled_text": "8A5200",
    "Popup_frame": "F09A10", "Popup_shadow": "7A4400",
    "Notes_background": "FFB020", "Notes_text": "1E0E00",
    "Calendar_weekend_text": "FF7034", "Calendar_weekend_highlight": "FFB020",
    "Calendar_weekend_highlight_text": "1E0E00",
    "Wapbrowser_underline": "FF7034", "Wapbrowser_tableborder": "C47A10",
})
