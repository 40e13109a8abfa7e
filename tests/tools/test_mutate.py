"""Tests of tools/mutate.py with a small program instead of the library."""

import dataclasses
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
try:
    from mutation import points, runner, schemata  # noqa: E402
except ImportError:
    print("The Python bindings of libclang are not installed")
    sys.exit(77)

HEADER = ROOT / "tools" / "mutation" / "Mutant.h"
PROGRAM = """\
#include <cstdio>
#define TWICE(x) ((x) * 2)

constexpr int kLimit = 3 + 4;
constexpr int notTouched() { return 1 + 2; }
template<typename T> T neither(T value) { return value + 1; }

static bool isBelow(int value, int limit) { return value < limit; }
static bool isSet(bool flag) { return !flag; }
static void print(const char* text) { std::puts(text); }

static int choose(int value)
{
    switch (value) {
    case 1:
        return value - 20;
    default:
        break;
    }
    if (value)
        print("chosen");
    int sum = TWICE(2);
    sum += value;
    return sum;
}

int main()
{
    std::printf("%d %d\\n", isBelow(7, kLimit), isSet(true));
    std::printf("%d %d %d %d\\n", choose(1), choose(2), notTouched(), neither(4));
}
"""
PLAIN = "0 0\nchosen\n-19 6 3 5\n"


def found_in(folder):
    source = folder / "program.cpp"
    source.write_text(PROGRAM)
    collector = points.Collector(folder, ["program.cpp"])
    collector.collect(source, ["-std=c++17"])
    return sorted(collector.points)


class Points(unittest.TestCase):
    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.addCleanup(self._folder.cleanup)
        self.points = found_in(pathlib.Path(self._folder.name))
        self.changes = {(p.original, p.mutated) for p in self.points}

    def test_operators_literals_conditions_results_and_statements_are_found(self):
        for change in [("value < limit", "(value) <= (limit)"), ("!flag", "bool(flag)"), ("20", "20 + 1"),
                       ("bool(value)", "!(value)"), ('print("chosen")', ""), ("sum += value", "(sum) -= (value)"),
                       ("sum", "(sum) + 1"), ("true", "false")]:
            self.assertIn(change, self.changes)

    def test_templates_constants_case_labels_and_macros_are_left_alone(self):
        lines = {number for number, text in enumerate(PROGRAM.split("\n"), 1)
                 if any(word in text for word in ("constexpr", "template", "case 1", "TWICE"))}
        self.assertEqual(6, len(lines))
        self.assertFalse(lines & {p.line for p in self.points})

    def test_the_choice_depends_on_the_seed_alone_and_never_overlaps(self):
        chosen = schemata.choose(self.points, 10, 5)
        self.assertEqual(10, len(chosen))
        self.assertEqual(chosen, schemata.choose(list(reversed(self.points)), 10, 5))
        self.assertNotEqual(chosen, schemata.choose(self.points, 10, 6))
        for left, right in zip(sorted(chosen), sorted(chosen)[1:]):
            self.assertLessEqual(left.end, right.start)

    def test_the_choice_outlives_changes_elsewhere(self):
        chosen = schemata.choose(self.points, 10, 5)
        moved = [dataclasses.replace(p, line=p.line + 3, start=p.start + 90, end=p.end + 90) for p in self.points]
        fresh = points.Point(chosen[0].file, 1, 0, 5, "", "added", "")

        def changes(choice):
            return {(p.original, p.mutated) for p in choice}

        self.assertEqual(changes(chosen), changes(schemata.choose(moved, 10, 5)))
        self.assertLessEqual(len(changes(chosen) - changes(schemata.choose([fresh, *moved], 10, 5))), 1)


class Mutants(unittest.TestCase):
    """One build of the program with several mutants in it."""

    WANTED = {("value < limit", "(value) <= (limit)"): "1 0\nchosen\n-19 6 3 5\n",
              ("!flag", "bool(flag)"): "0 1\nchosen\n-19 6 3 5\n",
              ("20", "20 + 1"): "0 0\nchosen\n-20 6 3 5\n",
              ('print("chosen")', ""): "0 0\n-19 6 3 5\n",
              ("sum += value", "(sum) -= (value)"): "0 0\nchosen\n-19 2 3 5\n"}

    @classmethod
    def setUpClass(cls):
        cls._folder = tempfile.TemporaryDirectory()
        folder = pathlib.Path(cls._folder.name)
        chosen = [p for p in found_in(folder) if (p.original, p.mutated) in cls.WANTED]
        cls.mutants = dict(enumerate(chosen))
        source = folder / "mutated.cpp"
        source.write_bytes(schemata.rewrite(PROGRAM.encode(), cls.mutants.items(), HEADER))
        cls.program = folder / "mutated"
        subprocess.run(["c++", "-std=c++17", source, "-o", cls.program], check=True)

    @classmethod
    def tearDownClass(cls):
        cls._folder.cleanup()

    def output(self, **environment):
        return subprocess.run([self.program], env={**os.environ, **environment}, check=True, capture_output=True,
                              text=True).stdout

    def test_asleep_they_change_nothing(self):
        self.assertEqual(PLAIN, self.output())

    def test_each_makes_its_own_mistake(self):
        self.assertEqual(len(self.WANTED), len(self.mutants))
        for number, point in self.mutants.items():
            self.assertEqual(self.WANTED[point.original, point.mutated], self.output(WY_MUTANT=str(number)), point)

    def test_the_trace_names_what_was_reached(self):
        trace = pathlib.Path(self._folder.name, "trace")
        self.assertEqual(PLAIN, self.output(WY_MUTANT_TRACE=str(trace)))
        self.assertEqual(sorted(self.mutants), sorted(map(int, trace.read_text().split())))


class Killing(unittest.TestCase):
    def outcome(self, script, mutant=1, limit=10):
        test = runner.Test("test", "", ["sh", "-c", script], {"PLACE": "here"}, "/", False)
        return runner.run(test, limit, mutant)

    def test_a_failure_a_crash_and_a_hang_kill(self):
        self.assertTrue(self.outcome("true").passed)
        self.assertFalse(self.outcome("exit 3").passed)
        self.assertFalse(self.outcome("kill -SEGV $$").passed)
        self.assertEqual("hang", self.outcome("sleep 60", limit=0.2).reason)

    def test_the_first_failure_ends_the_test(self):
        outcome = self.outcome("echo 'FAIL!  : TestX::y() wrong'; sleep 60")
        self.assertFalse(outcome.passed)
        self.assertLess(outcome.seconds, 30)

    def test_the_test_sees_its_environment_and_the_mutant(self):
        self.assertTrue(self.outcome('[ "$PLACE $WY_MUTANT" = "here 7" ]', mutant=7).passed)

    def test_tests_of_the_same_name_and_killers_come_first_and_displays_last(self):
        def test(name, script, **values):
            return runner.Test(name, "", ["sh", "-c", script], {}, "/", reached=frozenset([1]), **values)

        def killer(*arguments):
            return runner.try_mutant(*arguments)[0]

        tests = [test("tst_wyx_desktop", "exit 1", on_display=True), test("tst_quick", "exit 1", on_display=False),
                 test("tst_wyx", "exit 1", on_display=False, seconds=5)]
        self.assertEqual("tst_wyx: exit code 1", killer(1, "src/WyX.cpp", tests, {}))
        self.assertEqual("tst_wyx_desktop: exit code 1", killer(1, "src/WyX.cpp", tests[:2], {}))
        self.assertEqual("tst_quick: exit code 1", killer(1, "src/WyY.cpp", tests, {}))
        self.assertEqual("tst_wyx: exit code 1", killer(1, "src/WyY.cpp", tests, {}, {"tst_wyx"}))
        self.assertEqual("", killer(2, "src/WyX.cpp", tests, {}))
        self.assertEqual("", killer(1, "src/WyY.cpp", tests[2:], {}, (), False))
        self.assertEqual("tst_wyx: exit code 1", killer(1, "src/WyX.cpp", tests[2:], {}, (), False))

    def test_what_passed_already_runs_again_only_when_it_has_changed(self):
        test = runner.Test("tst_wyx", "", ["true"], {}, "/", False, reached=frozenset([1]), digest="old")
        passed = {"tst_wyx": "old"}
        self.assertEqual(("", passed), runner.try_mutant(1, "src/WyX.cpp", [test], {}))
        test.command = ["false"]
        self.assertEqual(("", passed), runner.try_mutant(1, "src/WyX.cpp", [test], passed))
        test.digest = "new"
        self.assertEqual(("tst_wyx: exit code 1", passed), runner.try_mutant(1, "src/WyX.cpp", [test], passed))


if __name__ == "__main__":
    unittest.main()
