#!/usr/bin/env python3
"""Writes themes/light.qss and themes/dark.qss from themes/sections/*.qss.in and themes/palettes.json.

A section uses the palette's names as @name@, and the theme's own name as @theme@ (for the paths of icons). With
--check nothing is written: the exit code tells whether the two files are up to date.
"""

import json
import pathlib
import re
import sys

THEMES = pathlib.Path(__file__).resolve().parent.parent / "themes"
SECTIONS = ["base", "frame", "toasts", "popups", "controls", "layout", "gallery"]
BANNER = "/* Written by tools/make_themes.py from themes/sections and themes/palettes.json: edit those. */\n"


def theme(name, palette):
    values = {"theme": name, **palette}

    def value(match):
        return values[match.group(1)]

    parts = [BANNER]
    for section in SECTIONS:
        text = (THEMES / "sections" / f"{section}.qss.in").read_text(encoding="utf-8")
        parts.append(re.sub(r"@([a-z-]+)@", value, text))
    return "\n".join(parts)


def main():
    check = "--check" in sys.argv[1:]
    palettes = json.loads((THEMES / "palettes.json").read_text(encoding="utf-8"))
    stale = []
    for name, palette in palettes.items():
        target = THEMES / f"{name}.qss"
        text = theme(name, palette)
        if not target.exists() or target.read_text(encoding="utf-8") != text:
            stale.append(target.name)
            if not check:
                target.write_text(text, encoding="utf-8")
    if check and stale:
        print("out of date: " + ", ".join(stale))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
