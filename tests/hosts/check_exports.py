#!/usr/bin/env python3
"""Checks what a shared library exports: check_exports.py NM LIBRARY

Names of the namespace WyWidgets only, and none that is unique to the process, for such a library is never unloaded.
"""

import re
import subprocess
import sys

# Plain and constant members and functions; type information and tables; thunks.
OWN = re.compile(r"_Z(NK?|T[ISV]N|Th\w+_NK?)9WyWidgets")
# Classes that stay inside; they share the namespace, or bring one of their own.
INTERNAL = re.compile(r"3QWK|10WindowDrag|10ToastStyle|14ToastResources|13TabMarkers|10RoundedBar")


def main():
    nm, library = sys.argv[1:]
    output = subprocess.run([nm, "-D", "--defined-only", library], check=True, capture_output=True, text=True).stdout
    kinds = {line.split()[-1]: line.split()[-2] for line in output.splitlines()}
    names = list(kinds)
    foreign = [name for name in names if not OWN.match(name) or INTERNAL.search(name) or kinds[name] == "u"]
    print(f"{len(names)} names exported, {len(foreign)} that should not be")
    print("\n".join(foreign))
    # Every class has its meta-object.
    return 1 if foreign or sum("staticMetaObject" in name for name in names) < 30 else 0


if __name__ == "__main__":
    sys.exit(main())
