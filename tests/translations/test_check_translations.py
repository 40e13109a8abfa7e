#!/usr/bin/env python3
"""Tests of tools/check_translations.py: that it finds what is wrong with a sheet."""

import io
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from check_translations import check_translated, compare, messages  # noqa: E402


def sheet(translation, source="%1 left"):
    return messages(io.StringIO(f"<TS><context><name>C</name><message><source>{source}</source>{translation}"
                                "</message></context></TS>"))


class Sheets(unittest.TestCase):
    def test_a_translated_message_passes(self):
        self.assertEqual(check_translated("de", sheet("<translation>noch %1</translation>")), [])

    def test_empty_doubtful_and_left_over_translations_are_found(self):
        for bad in ("<translation></translation>", '<translation type="unfinished">noch %1</translation>',
                    '<translation type="vanished">noch %1</translation>'):
            self.assertEqual(len(check_translated("de", sheet(bad))), 1, bad)

    def test_a_lost_placeholder_is_found(self):
        self.assertEqual(len(check_translated("de", sheet("<translation>noch %2</translation>"))), 1)

    def test_other_messages_than_in_the_sources_are_found(self):
        wanted = sheet("<translation/>").keys()
        found = sheet("<translation/>", "%1 gone").keys()
        self.assertEqual(compare("de", found, wanted), ["de: lacks C “%1 left”", "de: left over C “%1 gone”"])
        self.assertEqual(compare("de", wanted, wanted), [])


if __name__ == "__main__":
    unittest.main()
