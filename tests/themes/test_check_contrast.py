#!/usr/bin/env python3
"""Tests of tools/check_contrast.py: that it computes and resolves as it says, and that it finds what is wrong."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import check_contrast  # noqa: E402
from check_contrast import Sheet, contrast, over, parse_color  # noqa: E402

WHITE = parse_color("#FFFFFF")
BLACK = parse_color("#000000")


def pairs(text, surfaces=("#FFFFFF",)):
    """{(selector, property): {(text, ground), …}} as hexadecimal colours."""
    found = {}
    for selector, name, color, ground in Sheet(text, surfaces).pairs():
        hexadecimal = check_contrast.hexadecimal
        found.setdefault((selector, name), set()).add((hexadecimal(over(color, ground)), hexadecimal(ground)))
    return found


class Colours(unittest.TestCase):
    def test_the_ratio_runs_from_one_to_twenty_one(self):
        self.assertAlmostEqual(contrast(WHITE, BLACK), 21.0)
        self.assertAlmostEqual(contrast(BLACK, BLACK), 1.0)
        # The lightest grey that is readable on white, and the one after it.
        self.assertGreaterEqual(contrast(parse_color("#767676"), WHITE), 4.5)
        self.assertLess(contrast(parse_color("#777777"), WHITE), 4.5)

    def test_colours_are_read_in_every_spelling(self):
        self.assertEqual(parse_color("rgb(1, 2, 3)"), (1, 2, 3, 1.0))
        self.assertEqual(parse_color("rgba(1, 2, 3, 51)"), (1, 2, 3, 0.2))
        self.assertEqual(parse_color("#80FF0000")[:3], (255, 0, 0))
        self.assertEqual(parse_color("transparent")[3], 0.0)

    def test_an_unknown_colour_is_no_pass(self):
        with self.assertRaises(ValueError):
            parse_color("qlineargradient(x1: 0)")


class Resolution(unittest.TestCase):
    def test_text_stands_on_the_ground_of_its_own_rule(self):
        self.assertEqual(pairs("QLabel { color: #111111; background: #EEEEEE; }")[("QLabel", "color")],
                         {("#111111", "#EEEEEE")})

    def test_an_open_ground_means_every_surface(self):
        found = pairs("QLabel { color: #111111; }", ["#FFFFFF", "#DDDDDD"])
        self.assertEqual(found[("QLabel", "color")], {("#111111", "#FFFFFF"), ("#111111", "#DDDDDD")})

    def test_a_state_inherits_what_it_does_not_change(self):
        sheet = "QPushButton { color: #111111; background: #EEEEEE; } QPushButton:hover { background: #222222; }"
        self.assertEqual(pairs(sheet)[("QPushButton:hover", "color")], {("#111111", "#222222")})

    def test_a_part_of_a_widget_stands_on_the_widget(self):
        sheet = "QMenu { background: #EEEEEE; } QMenu::item:disabled { color: #333333; }"
        self.assertEqual(pairs(sheet)[("QMenu::item:disabled", "color")], {("#333333", "#EEEEEE")})

    def test_an_inner_widget_stands_on_its_ancestor(self):
        sheet = "#box { background: #222222; } #box QLabel { color: #EEEEEE; background: transparent; }"
        self.assertEqual(pairs(sheet)[("#box QLabel", "color")], {("#EEEEEE", "#222222")})

    def test_rules_for_a_base_reach_the_classes_derived_from_it(self):
        sheet = "QPushButton { color: #111111; } WyWidgets--WyGifButton:hover { background: #222222; }"
        self.assertEqual(pairs(sheet)[("WyWidgets--WyGifButton:hover", "color")], {("#111111", "#222222")})

    def test_the_more_specific_rule_wins_over_the_later_one(self):
        sheet = "#name { color: #111111; } QLabel { color: #999999; } QLabel#name { background: #EEEEEE; }"
        self.assertEqual(pairs(sheet)[("QLabel#name", "color")], {("#111111", "#EEEEEE")})

    def test_selected_text_stands_on_the_selection(self):
        sheet = "QLineEdit { selection-color: #111111; selection-background-color: #EEEEEE; }"
        self.assertEqual(pairs(sheet)[("QLineEdit", "selection-background-color")], {("#111111", "#EEEEEE")})

    def test_a_translucent_ground_lets_the_surface_through(self):
        found = pairs("QLabel { color: #000000; background: rgba(0, 0, 0, 51); }")
        self.assertEqual(found[("QLabel", "color")], {("#000000", "#CCCCCC")})


if __name__ == "__main__":
    unittest.main()
