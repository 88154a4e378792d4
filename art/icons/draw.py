# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Draw all numbered icons into a directory (by default src/preview/icons)."""

import pathlib
import sys

import large_desktop
import scene
import small_desktop
import status

ICONS = pathlib.Path(__file__).resolve().parents[2] / "src/preview/icons"


def images():
    """All icons: number -> image."""
    canvases = {**small_desktop.icons(), **large_desktop.icons(),
                **status.icons()}
    result = {number: canvas.image() for number, canvas in canvases.items()}
    result[2600] = scene.picture()
    return dict(sorted(result.items()))


def main():
    target = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ICONS
    target.mkdir(parents=True, exist_ok=True)
    for number, image in images().items():
        image.save(target / f"{number}.png", optimize=True)


if __name__ == "__main__":
    main()
