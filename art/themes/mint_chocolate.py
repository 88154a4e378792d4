# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Mint Chocolate: ice-cream colours, dark bars on cool mint; no pictures."""

from theme import LARGE, Theme

THEME = Theme("Mint Chocolate", LARGE, {
    "Standby_operatorname_text": "4A2818", "Standby_operatorname_outline": "F4FFF6",
    "Standby_time": "4A2818", "Standby_time_outline": "F4FFF6",
    "Desktop_background": "A6DEC3", "Desktop_title": "4A2818", "Desktop_title_outline": "E4FAEC",
    "Softkeys_background": "5E3723", "Softkeys_text": "FFF3DF", "Softkeys_text_shadow": "2E170C",
    "Softkeys_disabled_text": "B08C74", "Softkeys_disabled_text_shadow": "3A2014",
    "Softkeys_background_activated": "217C5C",
    "Title": "4A2818", "Title_text": "C9F2DB", "Title_text_shadow": "22110A",
    "Background": "CFF1DE", "Text": "3E2114", "Disabled_text": "7FA693",
    "Prompt": "3E2114", "Cursor": "A83A60",
    "Highlight": "6E4028", "Highlight_text": "FFF3DF", "Highlight_disabled_text": "C9A88E",
    "Scrollbar": "5E3723", "Scrollbar_frame": "A6DEC3",
    "Morelist_title": "217C5C", "Morelist_title_text": "FFFFFF",
    "Morelist_title_text_shadow": "14503C",
    "Morelist_background": "FFF6E4", "Morelist_text": "3E2114", "Morelist_text_shadow": "FFF6E4",
    "Morelist_disabled_text": "B9A58E", "Morelist_prompt": "3E2114", "Morelist_cursor": "A83A60",
    "Morelist_highlight": "217C5C", "Morelist_highlight_text": "FFFFFF",
    "Morelist_highlight_disabled_text": "A4DCC2",
    "Morelist_popup_frame": "4A2818", "Morelist_popup_shadow": "6FB597",
    "Morelist_scrollbar": "5E3723", "Morelist_scrollbar_frame": "E6D5B8",
    "Notes_background": "FFD9E0", "Notes_text": "4A2818",
    "Calendar_weekend_text": "A83A60", "Calendar_weekend_highlight": "A83A60",
    "Calendar_weekend_highlight_text": "FFFFFF",
    "Wapbrowser_underline": "217C5C", "Wapbrowser_tableborder": "6E4028",
})
