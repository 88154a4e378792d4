#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the sample themes into data/My Themes, all or those named."""

import argparse
import importlib
from pathlib import Path

MODULES = ("balloon_morning", "amber_terminal", "par_avion", "koi_pond",
           "polar_night", "mint_chocolate", "neon_rain", "ink_and_crane")
OUT = Path(__file__).resolve().parents[2] / "data" / "My Themes"


def main():
    """Write the folders and print how large each file became."""
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("module", nargs="*", help="for example koi_pond")
    parser.add_argument("--out", type=Path, default=OUT, help="parent folder")
    arguments = parser.parse_args()
    for name in arguments.module or MODULES:
        folder = importlib.import_module(name).THEME.write(arguments.out)
        print(folder.name)
        for path in sorted(folder.iterdir()):
            print(f"  {path.stat().st_size:6} {path.name}")


if __name__ == "__main__":
    main()
