"""Tests of tools/bench_report.py against programs that only pretend to measure."""

import contextlib
import importlib
import io
import json
import pathlib
import sys
import tempfile
import unittest
import xml.etree.ElementTree

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import bench_report  # noqa: E402

# Lists and "runs" its benchmarks as the real programs do; each has a list of times in the given unit, or null for
# one that skips itself.
PROGRAM = """#!{python}
import json, re, sys
times = json.loads('''{times}''')
options = dict(argument.lstrip("-").partition("=")[::2] for argument in sys.argv[1:])
if "benchmark_list_tests" in options:
    print("\\n".join(times))
    sys.exit()
runs = []
for name, values in times.items():
    if not re.search(options["benchmark_filter"], name):
        continue
    for value in values or [None]:
        run = {{"run_name": name, "run_type": "iteration", "time_unit": "{unit}", "cpu_time": value or 0.0}}
        if value is None:
            run.update(error_occurred=True, error_message="not installed")
        runs.append(run)
    runs.append({{"run_name": name, "run_type": "aggregate", "time_unit": "{unit}", "cpu_time": 0.001}})
with open(options["benchmark_out"], "w") as report:
    json.dump({{"benchmarks": runs}}, report)
"""


class BenchReport(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = pathlib.Path(scratch.name)
        (self.root / "benchmarks").mkdir()
        self.programs = self.root / "build"
        self.programs.mkdir()
        self.tool = importlib.reload(bench_report)
        self.tool.ROOT = self.root
        self.tool.TARGETS = self.root / "benchmarks" / "targets.json"

    def add_program(self, name, times, unit="ns"):
        path = self.programs / f"bench_{name}"
        path.write_text(PROGRAM.format(python=sys.executable, times=json.dumps(times), unit=unit))
        path.chmod(0o755)

    def run_tool(self, *rows, options=()):
        keys = ("name", "title", "subject", "against", "at_most", "usual")
        self.tool.TARGETS.write_text(json.dumps([dict(zip(keys, row)) for row in rows]))
        with contextlib.redirect_stdout(io.StringIO()) as output:
            code = self.tool.main([str(self.programs), *options])
        return code, output.getvalue()

    def page(self):
        return (self.root / "docs" / "benchmarks.md").read_text(encoding="utf-8")

    def test_the_ratio_of_the_smallest_times_decides(self):
        self.add_program("a", {"Subject": [900, 300, 500], "Floor": [100, 400, 200]})
        row = ("row", "A row", "Subject", "Floor", 3.0)
        code, output = self.run_tool(row)
        self.assertEqual(code, 0)
        self.assertIn("3.00", output)
        self.assertIn("| A row | 300 ns | 100 ns | 3.00 | 3 | met |", self.page())
        code, output = self.run_tool(row[:4] + (2.9,))
        self.assertEqual(code, 1)
        self.assertIn("MISSED", output)

    def test_units_and_programs_may_differ(self):
        self.add_program("a", {"Subject/10": [2]}, unit="ms")
        self.add_program("b", {"Floor/10": [500], "Floor/100": [1]}, unit="us")
        code, _ = self.run_tool(("row", "A row", "Subject/10", "Floor/10", 4.0))
        self.assertEqual(code, 0)
        self.assertIn("| A row | 2 ms | 500 µs | 4.00 | 4 | met |", self.page())

    def test_a_skipped_peer_fails_only_a_target(self):
        self.add_program("a", {"Subject": [300], "Peer": None})
        code, output = self.run_tool(("row", "A row", "Subject", "Peer", None))
        self.assertEqual(code, 0)
        self.assertIn("not measured", output)
        self.assertEqual(self.run_tool(("row", "A row", "Subject", "Peer", 2.0))[0], 1)
        self.assertEqual(self.run_tool(("row", "A row", "Subject", "Unknown", 2.0))[0], 1)

    def test_a_row_without_target_is_reported(self):
        self.add_program("a", {"Subject": [900], "Peer": [100]})
        code, _ = self.run_tool(("row", "A row", "Subject", "Peer", None))
        self.assertEqual(code, 0)
        self.assertIn("| A row | 900 ns | 100 ns | 9.00 | - | reported |", self.page())

    def test_only_selects_rows_and_writes_nothing(self):
        self.add_program("a", {"Subject": [900], "Floor": [100]})
        rows = [("slow", "Slow", "Subject", "Floor", 1.0), ("fast", "Fast", "Floor", "Subject", 1.0)]
        code, output = self.run_tool(*rows, options=["--only", "^fa"])
        self.assertEqual(code, 0)
        self.assertNotIn("Slow", output)
        self.assertFalse((self.root / "docs").exists())

    def test_check_writes_nothing(self):
        self.add_program("a", {"Subject": [900], "Floor": [100]})
        code, _ = self.run_tool(("row", "A row", "Subject", "Floor", 1.0), options=["--check"])
        self.assertEqual(code, 1)
        self.assertFalse((self.root / "docs").exists())

    def test_a_ratio_beyond_the_usual_noise_is_a_regression(self):
        self.add_program("a", {"Subject": [160], "Doubled": [200], "Floor": [100]})
        usual = ("usual", "Usual", "Subject", "Floor", 9.0, 1.0)
        doubled = ("doubled", "Doubled", "Doubled", "Floor", 9.0, 1.0)
        self.assertEqual(self.run_tool(usual, options=["--regressions"])[0], 0)
        code, output = self.run_tool(usual, doubled, options=["--regressions"])
        self.assertEqual(code, 1)
        self.assertIn("Once more: doubled\n", output)
        self.assertEqual(output.count("REGRESSED"), 1)
        self.assertFalse((self.root / "docs").exists())

    def test_a_row_that_is_quick_again_has_not_regressed(self):
        # The second run finds the mark that the first one left.
        self.add_program("a", {"Subject": [200], "Floor": [100]})
        program = self.programs / "bench_a"
        mark = self.root / "mark"
        program.write_text(program.read_text().replace("runs = []", f"""runs = []
import pathlib
mark = pathlib.Path({str(mark)!r})
if mark.exists():
    times["Subject"] = [100]
mark.touch()"""))
        code, output = self.run_tool(("row", "A row", "Subject", "Floor", None, 1.0), options=["--regressions"])
        self.assertEqual(code, 0)
        self.assertIn("Once more: row\n", output)

    def test_without_a_usual_ratio_the_target_counts(self):
        self.add_program("a", {"Subject": [160], "Floor": [100]})
        self.assertEqual(self.run_tool(("row", "A row", "Subject", "Floor", 1.0), options=["--regressions"])[0], 0)
        self.assertEqual(self.run_tool(("row", "A row", "Subject", "Floor", 0.9), options=["--regressions"])[0], 1)

    def test_an_absent_peer_is_no_regression(self):
        self.add_program("a", {"Subject": [160], "Peer": None})
        row = ("row", "A row", "Subject", "Peer", None, 0.1)
        self.assertEqual(self.run_tool(row, options=["--regressions"])[0], 0)
        floor = ("row", "A row", "Subject", "Peer", 3.0)
        self.assertEqual(self.run_tool(floor, options=["--regressions"])[0], 1)

    def test_usual_ratios_are_stored_where_they_were_measured(self):
        self.add_program("a", {"Subject": [1234], "Floor": [1000], "Peer": None})
        self.run_tool(("a", "A", "Subject", "Floor", 0.5), ("b", "B", "Subject", "Peer", None, 7.0),
                      options=["--set-usual"])
        stored = json.loads(self.tool.TARGETS.read_text(encoding="utf-8"))
        self.assertEqual([row["usual"] for row in stored], [1.2, 7.0])

    def test_the_plot_is_well_formed_and_shows_every_ratio(self):
        self.add_program("a", {"Subject": [150], "Floor": [100], "Peer": None})
        self.run_tool(("a", "A < B & C", "Subject", "Floor", 3.0), ("b", "Inverse", "Floor", "Subject", None),
                      ("c", "Open", "Subject", "Peer", None))
        plot = xml.etree.ElementTree.parse(self.root / "docs" / "benchmarks.svg")
        space = "{http://www.w3.org/2000/svg}"
        self.assertEqual([dot.findtext(f"{space}title") for dot in plot.iter(f"{space}circle")], ["1.50", "0.67"])
        self.assertIn("A < B & C", [text.text for text in plot.iter(f"{space}text")])

    def test_ambiguous_names_end_the_run(self):
        self.add_program("a", {"Subject": [1], "Floor": [1]})
        self.add_program("b", {"Floor": [1]})
        row = ("row", "A row", "Subject", "Floor", 1.0)
        with self.assertRaises(SystemExit):
            self.run_tool(row)
        with self.assertRaises(SystemExit):
            self.run_tool(row, row)


if __name__ == "__main__":
    unittest.main()
