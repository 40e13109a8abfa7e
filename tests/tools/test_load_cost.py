"""Tests tools/load_cost.py on made-up libraries."""

import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

import load_cost


class TestLoadCost(unittest.TestCase):
    SIZES = {"small": 100.0, "below": 400.0, "above": 700.0, "large": 5000.0}

    def test_the_peers_are_the_next_smaller_and_the_next_larger(self):
        self.assertEqual(load_cost.neighbours(500.0, self.SIZES), ("below", "above"))

    def test_a_peer_of_the_same_size_counts_as_smaller(self):
        self.assertEqual(load_cost.neighbours(400.0, self.SIZES), ("below", "above"))

    def test_the_largest_has_no_larger_peer(self):
        self.assertEqual(load_cost.neighbours(9000.0, self.SIZES), ("large", None))

    def test_the_smallest_has_no_smaller_peer(self):
        self.assertEqual(load_cost.neighbours(50.0, self.SIZES), (None, "small"))

    def test_ratios_stand_in_whole_and_by_size(self):
        ours, theirs = {"named": 30, "size": 600.0}, {"named": 20, "size": 300.0}
        self.assertEqual(load_cost.cell(ours, theirs, "named", ""), "20 (1.50, by size 0.75)")
        self.assertEqual(load_cost.cell(ours, theirs, "size", "KiB"), "300 KiB (2.00)")

    def test_nothing_is_divided_by_zero(self):
        ours, theirs = {"private": 30, "size": 600.0}, {"private": 0, "size": 300.0}
        self.assertEqual(load_cost.cell(ours, theirs, "private", "KiB"), "0 KiB")


if __name__ == "__main__":
    unittest.main()
