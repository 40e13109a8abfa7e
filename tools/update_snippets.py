#!/usr/bin/env python3
"""Puts the compiled snippets of docs/snippets into the pages of docs.

A page names a snippet between two comments,

    <!-- snippet: WyToast -->
    <!-- end of snippet -->

and gets the lines that stand in a source between two lines "//! [WyToast]" (in a CMakeLists.txt "#! [WyToast]"). With --check nothing is written: the exit
code tells whether all pages are up to date.
"""

import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCS = ROOT / "docs"

LANGUAGES = {".cpp": "cpp", ".h": "cpp", ".txt": "cmake"}
IN_SOURCE = re.compile(r"^ *(?://|#)! \[([\w-]+)\]\n(.*?)^ *(?://|#)! \[\1\]\n", re.DOTALL | re.MULTILINE)
IN_PAGE = re.compile(r"(<!-- snippet: ([\w-]+) -->\n).*?(<!-- end of snippet -->\n)", re.DOTALL)


def all_snippets(folder):
    """The text of each, with the fence that marks it as code."""
    snippets = {}
    for source in sorted(path for path in folder.rglob("*") if path.suffix in LANGUAGES):
        for name, lines in IN_SOURCE.findall(source.read_text(encoding="utf-8")):
            if name in snippets:
                sys.exit(f"{source}: there are two snippets {name}")
            snippets[name] = f"```{LANGUAGES[source.suffix]}\n{textwrap.dedent(lines)}```\n"
    return snippets


def updated(page, snippets):
    def block(match):
        head, name, tail = match.groups()
        if name not in snippets:
            sys.exit(f"{page}: there is no snippet {name}")
        return head + snippets[name] + tail

    return IN_PAGE.sub(block, page.read_text(encoding="utf-8"))


def main():
    check = "--check" in sys.argv[1:]
    snippets = all_snippets(DOCS / "snippets")
    stale = []
    for page in sorted(DOCS.rglob("*.md")):
        text = updated(page, snippets)
        if text != page.read_text(encoding="utf-8"):
            stale.append(str(page.relative_to(ROOT)))
            if not check:
                page.write_text(text, encoding="utf-8")
    if check and stale:
        print("out of date, run tools/update_snippets.py: " + ", ".join(stale))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
