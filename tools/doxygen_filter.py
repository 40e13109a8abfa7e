#!/usr/bin/env python3
"""Prints a public header as the reference needs it; doxygen calls this for each header.

- A comment covers its declaration and, right below it, the getter, the setters and the overloads of the same name
  (getMargins, setMargins, setMarginLeft …): it is repeated for them.
- Handlers that only Qt calls (paintEvent …) stay out of the reference.

Every line keeps its number, so warnings point into the header.
"""

import pathlib
import re
import sys

COMMENT = re.compile(r"^\s*///\s?(.*)$")
FUNCTION = re.compile(r"(~?\w+)\(")
HANDLER = re.compile(r"^\s+(void|bool) ([a-z]\w*E|e)vent(Filter)?\(.*\) override;")


def stem(name):
    """What the functions of one value share: "margins" of getMargins starts "marginleft" of setMarginLeft."""
    return re.sub(r"^(get|set|is)(?=[A-Z])", "", name[0].lower() + name[1:]).lower()


def reference_lines(lines):
    comment = []
    commented = ""  # the stem that the comment stands above
    for line in lines:
        text = COMMENT.match(line)
        function = FUNCTION.search(line)
        if text:
            comment = comment + [text.group(1)] if not commented else [text.group(1)]
            commented = ""
        elif not line.strip():
            comment, commented = [], ""
        elif HANDLER.match(line):
            line = ""
        elif comment and function:
            name = stem(function.group(1))
            if commented and name.startswith(commented):
                line = f"/** {' '.join(comment)} */ {line.lstrip()}"
            commented = commented or name.rstrip("s")
        yield line


if __name__ == "__main__":
    for line in reference_lines(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8").splitlines()):
        print(line)
