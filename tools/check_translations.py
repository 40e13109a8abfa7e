#!/usr/bin/env python3
"""Checks translations/ against the sources: check_translations.py LUPDATE

The template has exactly the messages of the sources, and so has every language, each of them translated, none of
them doubtful or left over, with the placeholders of the original. LUPDATE is Qt's lupdate.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
SHEETS = ROOT / "translations"
LIBRARY = ROOT / "src" / "common"


def messages(sheet):
    """{(context, source, disambiguation): translation element}"""
    found = {}
    for context in xml.etree.ElementTree.parse(sheet).getroot().iter("context"):
        for message in context.iter("message"):
            key = context.findtext("name"), message.findtext("source"), message.findtext("comment", "")
            found[key] = message.find("translation")
    return found


def messages_of_the_sources(lupdate):
    with tempfile.TemporaryDirectory() as folder:
        sheet = pathlib.Path(folder) / "sources.ts"
        subprocess.run([lupdate, "-silent", "-I", LIBRARY, LIBRARY / "WyWidgets", "-locations", "none", "-ts", sheet],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return messages(sheet)


def compare(name, found, wanted):
    """What is wrong with the set of messages."""
    missing = [f"{name}: lacks {context} “{source}”" for context, source, _ in sorted(wanted - found)]
    return missing + [f"{name}: left over {context} “{source}”" for context, source, _ in sorted(found - wanted)]


def check_translated(name, sheet):
    """What is wrong with the translations of one language."""
    problems = []
    for (context, source, _), translation in sheet.items():
        text = translation.text or ""
        if not text or translation.get("type"):
            problems.append(f"{name}: {translation.get('type') or 'empty'} {context} “{source}”")
        elif sorted(re.findall(r"%\d|%n", text)) != sorted(re.findall(r"%\d|%n", source)):
            problems.append(f"{name}: other placeholders {context} “{source}” – “{text}”")
    return problems


def main():
    wanted = messages_of_the_sources(sys.argv[1]).keys()
    problems = [] if wanted else ["lupdate finds no messages"]
    problems += compare("template", messages(SHEETS / "WyWidgets.ts").keys(), wanted)
    for path in sorted(SHEETS.glob("WyWidgets_*.ts")):
        sheet = messages(path)
        problems += compare(path.stem, sheet.keys(), wanted) + check_translated(path.stem, sheet)
    print("\n".join(problems) or f"{len(wanted)} messages, all translated")
    if problems:
        print("The build target update_translations brings the sheets up to date.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
