#!/usr/bin/env python3
"""Checks that text stands out from its background by at least 4.5 : 1 in themes/light.qss and themes/dark.qss.

Every selector that sets a colour of text or of a background is resolved as Qt would resolve it: all rules that apply
to the same widget in the same state count, the more specific and the later one wins. Text on a background that the
rules leave open has to be readable on every surface that a window may have. Disabled text counts like all other.

With --list every pair is printed. The exit code tells whether all pairs pass.
"""

import argparse
import dataclasses
import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
THEMES = ROOT / "themes"
LEAST_RATIO = 4.5

# Grounds of the palette that plain text may stand on without a rule saying so.
SURFACES = ["window", "panel", "raised", "sunken"]
# What a class paints under its parts, whatever the theme says.
PAINTED = {"WyWidgets--WyArrowWidget": "#FFFFFF"}
TEXT_PROPERTIES = {"color", "qproperty-keywordColor", "qproperty-typeColor", "qproperty-textColor",
                   "qproperty-commentColor"}
GROUND_PROPERTIES = {"background", "background-color", "qproperty-bubbleColor"}
# Text and ground that one rule sets for another state of the same widget.
PAIRS = [("selection-color", "selection-background-color"), ("color", "alternate-background-color")]

# Bases of Qt's classes as far as the themes select them; those of the library's are read from its headers.
QT_BASES = {
    "QAbstractButton": ["QWidget"], "QAbstractItemView": ["QAbstractScrollArea"], "QAbstractScrollArea": ["QFrame"],
    "QAbstractSpinBox": ["QWidget"], "QCheckBox": ["QAbstractButton"], "QComboBox": ["QWidget"],
    "QComboBoxPrivateContainer": ["QFrame"], "QDialog": ["QWidget"], "QFrame": ["QWidget"], "QGroupBox": ["QWidget"],
    "QHeaderView": ["QAbstractItemView"], "QLabel": ["QFrame"], "QLineEdit": ["QWidget"],
    "QListView": ["QAbstractItemView"], "QMainWindow": ["QWidget"], "QMenu": ["QWidget"],
    "QPlainTextEdit": ["QAbstractScrollArea"], "QProgressBar": ["QWidget"], "QPushButton": ["QAbstractButton"],
    "QRadioButton": ["QAbstractButton"], "QTableView": ["QAbstractItemView"], "QTextEdit": ["QAbstractScrollArea"],
    "QToolButton": ["QAbstractButton"], "QTreeView": ["QAbstractItemView"],
}


def library_bases():
    bases = {}
    for header in (ROOT / "src/common/WyWidgets").rglob("Wy*.h"):
        for name, base in re.findall(r"class WYWIDGETS_EXPORT (\w+) : public (\w+)", header.read_text("utf-8")):
            bases["WyWidgets--" + name] = [base if base.startswith("Q") else "WyWidgets--" + base]
    return bases


BASES = {**QT_BASES, **library_bases()}


def kinds(name):
    """The class and all its bases."""
    found = {name}
    for base in BASES.get(name, []):
        found |= kinds(base)
    return found


@dataclasses.dataclass(frozen=True)
class Compound:
    """One step of a selector: QPushButton#name[key="value"]:hover::part."""
    type: str = ""
    ids: frozenset = frozenset()
    attributes: frozenset = frozenset()
    states: frozenset = frozenset()
    part: str = ""

    def covers(self, other):
        """Whether every widget and state that `other` selects is selected by this one too."""
        return ((not self.type or self.type in kinds(other.type)) and self.ids <= other.ids
                and self.attributes <= other.attributes and self.states <= other.states and self.part == other.part)


def parse_compound(text):
    parts = re.findall(r"::[\w-]+|:!?[\w-]+|#[\w-]+|\[[^\]]*\]|[\w-]+|\*", text)
    compound = Compound(
        type=next((p for p in parts if re.match(r"\w", p)), ""),
        ids=frozenset(p for p in parts if p.startswith("#")),
        attributes=frozenset(p for p in parts if p.startswith("[")),
        states=frozenset(p for p in parts if re.match(r":!?\w", p)),
        part=next((p for p in parts if p.startswith("::")), ""))
    if "".join(parts) != text:
        raise ValueError("cannot read the selector " + text)
    return compound


class Selector:
    """Steps from the outermost ancestor to the widget itself."""

    def __init__(self, text):
        self.text = " ".join(text.split())
        self.steps = [parse_compound(step) for step in re.sub(r"\s*>\s*", " ", self.text).split(" ")]

    def covers(self, steps):
        if not self.steps[-1].covers(steps[-1]):
            return False
        wanted = list(self.steps[:-1])
        for step in reversed(steps[:-1]):
            if wanted and wanted[-1].covers(step):
                wanted.pop()
        return not wanted

    def specificity(self):
        ids = sum(len(step.ids) for step in self.steps)
        states = sum(len(step.attributes) + len(step.states) for step in self.steps)
        types = sum(bool(step.type) + bool(step.part) for step in self.steps)
        return ids, states, types


def parse_sheet(text):
    """[(Selector, {property: value})] in the order of the sheet."""
    rules = []
    for selectors, body in re.findall(r"([^{}]+)\{([^{}]*)\}", re.sub(r"/\*.*?\*/", "", text, flags=re.S)):
        values = dict(re.findall(r"([\w-]+)\s*:\s*((?:\([^)]*\)|[^;])+)", body))
        rules += [(Selector(s), values) for s in selectors.split(",")]
    return rules


def parse_color(text):
    """(red, green, blue, alpha 0..1), or None where it is no plain colour."""
    text = text.strip()
    if text == "transparent" or text == "none":
        return 0, 0, 0, 0.0
    digits = re.fullmatch(r"#([0-9A-Fa-f]{6})", text)
    if digits:
        return tuple(bytes.fromhex(digits.group(1))) + (1.0,)
    argb = re.fullmatch(r"#([0-9A-Fa-f]{8})", text)
    if argb:
        alpha, *rgb = bytes.fromhex(argb.group(1))
        return (*rgb, alpha / 255)
    numbers = re.fullmatch(r"rgba?\(([\d\s,]+)\)", text)
    if numbers:
        values = [int(n) for n in numbers.group(1).split(",")]
        return (*values[:3], values[3] / 255 if len(values) > 3 else 1.0)
    raise ValueError("cannot read the colour " + text)


def over(top, ground):
    alpha = top[3]
    return tuple(t * alpha + g * (1 - alpha) for t, g in zip(top[:3], ground[:3])) + (1.0,)


def luminance(color):
    def linear(channel):
        channel /= 255
        return channel / 12.92 if channel <= 0.03928 else ((channel + 0.055) / 1.055) ** 2.4

    red, green, blue = (linear(c) for c in color[:3])
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    low, high = sorted([luminance(one), luminance(other)])
    return (high + 0.05) / (low + 0.05)


def whole_widget(steps):
    """The widget whose part the selector's last step is."""
    return steps[:-1] + [dataclasses.replace(steps[-1], part="")]


class Sheet:
    def __init__(self, text, surfaces):
        self.rules = parse_sheet(text)
        self.surfaces = [parse_color(surface) for surface in surfaces]

    def value(self, steps, properties):
        """What the widget at the end of `steps` gets for one of the properties, or None."""
        best = None
        for order, (selector, values) in enumerate(self.rules):
            for name in properties & values.keys():
                if selector.covers(steps):
                    best = max(best or ((), 0, ""), (selector.specificity(), order, values[name]))
        return best and best[2]

    def grounds(self, steps):
        """Every background that the widget may have."""
        painted = None if steps[-1].part else PAINTED.get(steps[-1].type)
        own = parse_color(painted or self.value(steps, GROUND_PROPERTIES) or "transparent")
        return [own] if own[3] == 1.0 else [over(own, ground) for ground in self.grounds_below(steps)]

    def grounds_below(self, steps):
        """A part stands on its widget, a widget on its ancestor, and a window on nothing."""
        if steps[-1].part:
            return self.grounds(whole_widget(steps))
        return self.grounds(steps[:-1]) if len(steps) > 1 else self.surfaces

    def text(self, steps):
        """The colour of text that the rules give the widget, or None."""
        color = self.value(steps, {"color"})
        return self.text(whole_widget(steps)) if color is None and steps[-1].part else color

    def pairs(self):
        """(selector, property, text, ground) of every rule that says something about either."""
        for selector, values in self.rules:
            steps = selector.steps
            texts = {name: values[name] for name in TEXT_PROPERTIES & values.keys()}
            # Parts such as a groove or an indicator carry no text; a rule for a part that does sets its colour.
            if not steps[-1].part and GROUND_PROPERTIES & values.keys() and "color" not in texts:
                inherited = self.text(steps)
                if inherited:
                    texts["color"] = inherited
            for name, text in texts.items():
                for ground in self.grounds(steps):
                    yield selector.text, name, parse_color(text), ground
            for text_name, ground_name in PAIRS:
                if ground_name in values:
                    text = self.value(steps, {text_name})
                    yield selector.text, ground_name, parse_color(text), parse_color(values[ground_name])


def hexadecimal(color):
    return "#" + "".join(f"{round(channel):02X}" for channel in color[:3])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--list", action="store_true")
    wants_list = parser.parse_args().list
    palettes = json.loads((THEMES / "palettes.json").read_text(encoding="utf-8"))
    failures = 0
    for theme, palette in palettes.items():
        sheet = Sheet((THEMES / f"{theme}.qss").read_text(encoding="utf-8"), [palette[s] for s in SURFACES])
        checked = sorted(set((contrast(over(text, ground), ground), selector, name, hexadecimal(text), hexadecimal(ground))
                             for selector, name, text, ground in sheet.pairs()))
        for ratio, selector, name, text, ground in checked:
            fails = ratio < LEAST_RATIO
            failures += fails
            if fails or wants_list:
                print(f"{theme}: {ratio:5.2f} : 1  {text} on {ground}  {selector} ({name})")
        print(f"{theme}: {len(checked)} pairs, lowest {checked[0][0]:.2f} : 1")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
