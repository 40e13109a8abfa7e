#!/usr/bin/env python3
"""Runs the benchmark programs and reports each subject as a ratio to the floor or peer it is measured beside.

benchmarks/targets.json holds one row per ratio:

    name      what --only selects by
    title     how the report calls it
    subject   name of a benchmark, as its program lists it ("ToolTipWrap/Latin/100000")
    against   name of the benchmark that it is divided by
    at_most   the largest allowed ratio; null only reports
    usual     the ratio in a development build, which --regressions compares with; none compares with at_most

Every program runs its benchmarks several times in random order, and a ratio is taken from the smallest processor
times, so that a busy machine disturbs both sides alike. A benchmark that skips itself (a peer that is not
installed) leaves its rows open, unless they have a target.

Writes docs/benchmarks.md and docs/benchmarks.svg. The exit code is 1 if a ratio is above its target or could not
be measured though it has one.

What is too slow is measured once more, longer, and the smallest times of both runs count.

With --regressions, nothing is written, and a ratio may be up to 1.7 times what is usual: noise of a busy machine passes,
work that is done twice does not.
--set-usual stores what it measures as usual, for the day when a ratio changes on purpose.
"""

from __future__ import annotations

import argparse
import dataclasses
import html
import json
import math
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGETS = ROOT / "benchmarks" / "targets.json"
REGRESSION = 1.7
NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


@dataclasses.dataclass
class Row:
    name: str
    title: str
    subject: str
    against: str
    at_most: float | None
    usual: float | None = None
    subject_ns: float | None = None
    against_ns: float | None = None

    @property
    def ratio(self):
        if self.subject_ns is None or not self.against_ns:
            return None
        return self.subject_ns / self.against_ns

    @property
    def passed(self):
        return self.at_most is None or (self.ratio is not None and self.ratio <= self.at_most)

    @property
    def most_before_regression(self):
        allowed = self.at_most if self.usual is None else self.usual
        return None if allowed is None else allowed * REGRESSION

    @property
    def regressed(self):
        if self.ratio is None:
            return self.at_most is not None
        return self.most_before_regression is not None and self.ratio > self.most_before_regression

    @property
    def verdict(self):
        if self.ratio is None:
            return "not measured"
        if self.at_most is None:
            return "reported"
        return "met" if self.passed else "MISSED"


def read_rows(only):
    rows = [Row(**row) for row in json.loads(TARGETS.read_text(encoding="utf-8"))]
    names = [row.name for row in rows]
    twice = {name for name in names if names.count(name) > 1}
    if twice:
        sys.exit(f"{TARGETS.name}: more than one row is called {', '.join(sorted(twice))}")
    return [row for row in rows if re.search(only, row.name)]


def programs_in(folder):
    found = (path for path in folder.rglob("bench_*") if path.is_file() and os.access(path, os.X_OK))
    return sorted(found, key=lambda path: path.name)


def benchmarks_of(program):
    listed = subprocess.run([program, "--benchmark_list_tests"], check=True, capture_output=True, text=True)
    return listed.stdout.split("\n")[:-1]


def measure(program, names, repetitions, min_time):
    """The smallest processor time of each of these benchmarks in nanoseconds; None for one that skips itself."""
    with tempfile.NamedTemporaryFile(suffix=".json") as report:
        command = [
            program,
            "--benchmark_filter=^(" + "|".join(re.escape(name) for name in names) + ")$",
            f"--benchmark_repetitions={repetitions}",
            f"--benchmark_min_time={min_time}",
            "--benchmark_enable_random_interleaving=true",
            f"--benchmark_out={report.name}",
            "--benchmark_out_format=json",
        ]
        finished = subprocess.run(command, capture_output=True, text=True)
        if finished.returncode != 0:
            sys.exit(f"{program.name} failed:\n{finished.stderr}")
        runs = json.loads(pathlib.Path(report.name).read_text(encoding="utf-8"))["benchmarks"]
    times = {}
    for run in runs:
        if run["run_type"] != "iteration":
            continue
        name = run["run_name"]
        if run.get("error_occurred"):
            times[name] = None
        elif times.get(name, math.inf) is not None:
            times[name] = min(times.get(name, math.inf), run["cpu_time"] * NANOSECONDS[run["time_unit"]])
    return times


def measure_rows(rows, folder, repetitions, min_time):
    wanted = {name for row in rows for name in (row.subject, row.against)}
    times = {}
    for program in programs_in(folder):
        names = [name for name in benchmarks_of(program) if name in wanted]
        if not names:
            continue
        print(f"{program.name}: {len(names)} benchmarks", flush=True)
        for name, time in measure(program, names, repetitions, min_time).items():
            if name in times:
                sys.exit(f"more than one program has a benchmark {name}")
            times[name] = time
    for row in rows:
        row.subject_ns = times.get(row.subject)
        row.against_ns = times.get(row.against)


def time_text(nanoseconds):
    if nanoseconds is None:
        return "-"
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= factor:
            return f"{nanoseconds / factor:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def ratio_text(ratio):
    return "-" if ratio is None else f"{ratio:.2f}"


def cells(row):
    target = "-" if row.at_most is None else f"{row.at_most:g}"
    return [row.title, time_text(row.subject_ns), time_text(row.against_ns), ratio_text(row.ratio), target,
            row.verdict]


HEADINGS = ["measured", "time", "beside", "ratio", "at most", ""]


def print_table(rows, headings=HEADINGS, cells_of=cells):
    table = [headings] + [cells_of(row) for row in rows]
    widths = [max(len(line[column]) for line in table) for column in range(len(headings))]
    for line in table:
        first = line[0].ljust(widths[0])
        rest = "  ".join(text.rjust(width) for text, width in zip(line[1:-1], widths[1:-1]))
        print(f"{first}  {rest}  {line[-1]}")


def regression_cells(row):
    return [row.title, ratio_text(row.ratio), ratio_text(row.usual), ratio_text(row.most_before_regression),
            "REGRESSED" if row.regressed else "open" if row.ratio is None else ""]


def smaller(one, other):
    return min((time for time in (one, other) if time is not None), default=None)


def measure_with_doubts(rows, folder, repetitions, min_time, is_suspect):
    """Measures, and once more, longer, what looks too slow. The rows that stay so."""
    measure_rows(rows, folder, repetitions, min_time)
    suspects = [row for row in rows if is_suspect(row)]
    if suspects:
        print("Once more: " + ", ".join(row.name for row in suspects), flush=True)
        before = [(row.subject_ns, row.against_ns) for row in suspects]
        measure_rows(suspects, folder, 2 * repetitions, 3 * min_time)
        for row, (subject, against) in zip(suspects, before):
            row.subject_ns = smaller(row.subject_ns, subject)
            row.against_ns = smaller(row.against_ns, against)
    return [row for row in suspects if is_suspect(row)]


def find_regressions(rows, folder, repetitions, min_time):
    regressed = measure_with_doubts(rows, folder, repetitions, min_time, lambda row: row.regressed)
    print_table(rows, ["measured", "ratio", "usual", "at most", ""], regression_cells)
    return regressed


def store_usual(rows):
    ratios = {row.name: row.ratio for row in rows if row.ratio is not None}
    stored = json.loads(TARGETS.read_text(encoding="utf-8"))
    for row in stored:
        if row["name"] in ratios:
            row["usual"] = float(f"{ratios[row['name']]:.2g}")
    TARGETS.write_text(json.dumps(stored, indent=2, ensure_ascii=False) + "\n", encoding="utf-8")


def processor():
    try:
        for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
            if line.startswith("model name"):
                return line.partition(":")[2].strip()
    except OSError:
        pass
    return platform.processor() or platform.machine()


def markdown(rows, repetitions):
    lines = [
        "# Benchmarks",
        "",
        "Each subject is measured beside the least that its work can cost (a floor) or beside a peer, in one program"
        f" and in random order. The times are the smallest processor times of {repetitions} repetitions; what misses its"
        f" target then is measured {2 * repetitions} times more, each longer. The ratio is what counts, as both sides"
        " depend on the machine alike.",
        "",
        f"Measured on {platform.system()}, {processor()}. `./run bench` measures anew and writes this page.",
        "",
        "![Ratios and their targets](benchmarks.svg)",
        "",
        "| Measured | Time | Beside | Ratio | At most | |",
        "|---|---:|---:|---:|---:|---|",
    ]
    lines += ["| " + " | ".join(cells(row)) + " |" for row in rows]
    return "\n".join(lines) + "\n"


class Plot:
    """A dot for each ratio on a logarithmic axis, with a bar where its target stands."""

    LABELS_PX = 560
    AXIS_PX = 460
    MARGIN_PX = 30
    ROW_PX = 26
    TOP_PX = 40
    TICK_PX = 56

    def __init__(self, rows):
        self.rows = [row for row in rows if row.ratio]
        values = [1.0] + [row.ratio for row in self.rows] + [row.at_most for row in self.rows if row.at_most]
        self.lowest = math.floor(math.log2(min(values)) - 0.1)
        self.highest = math.ceil(math.log2(max(values)) + 0.1)

    def x(self, value):
        share = (math.log2(value) - self.lowest) / (self.highest - self.lowest)
        return self.LABELS_PX + share * self.AXIS_PX

    def svg(self):
        width = self.LABELS_PX + self.AXIS_PX + self.MARGIN_PX
        height = self.TOP_PX + self.ROW_PX * len(self.rows) + self.MARGIN_PX // 2
        parts = [
            f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}"'
            f' height="{height}" font-family="sans-serif" font-size="12">',
            "<title>Ratios and their targets</title>",
            f'<rect width="{width}" height="{height}" fill="#ffffff"/>',
        ]
        parts += self.axis(height)
        for index, row in enumerate(self.rows):
            parts += self.row(row, self.TOP_PX + self.ROW_PX * (index + 0.5))
        return "\n".join(parts + ["</svg>", ""])

    def axis(self, height):
        parts = []
        step = math.ceil(self.TICK_PX * (self.highest - self.lowest) / self.AXIS_PX)
        for power in [p for p in range(self.lowest, self.highest + 1) if p % step == 0]:
            x = self.x(2.0**power)
            label = f"1/{2**-power}" if power < 0 else str(2**power)
            colour = "#1d2733" if power == 0 else "#d5dbe1"
            parts.append(f'<line x1="{x:.1f}" y1="{self.TOP_PX - 6}" x2="{x:.1f}" y2="{height - 8}" stroke="{colour}"/>')
            parts.append(f'<text x="{x:.1f}" y="{self.TOP_PX - 14}" text-anchor="middle" fill="#56616d">'
                         f"{label} ×</text>")
        return parts

    def row(self, row, y):
        parts = [f'<text x="{self.LABELS_PX - 14}" y="{y + 4:.1f}" text-anchor="end" fill="#1d2733">'
                 f"{html.escape(row.title)}</text>"]
        if row.at_most:
            x = self.x(row.at_most)
            parts.append(f'<line x1="{x:.1f}" y1="{y - 8:.1f}" x2="{x:.1f}" y2="{y + 8:.1f}" stroke="#b3261e"'
                         ' stroke-width="3"/>')
        colour = "#0b66c3" if row.passed else "#b3261e"
        parts.append(f'<circle cx="{self.x(row.ratio):.1f}" cy="{y:.1f}" r="5" fill="{colour}">'
                     f"<title>{row.ratio:.2f}</title></circle>")
        return parts


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=pathlib.Path, help="folder of the built benchmark programs")
    parser.add_argument("--only", metavar="REGEX", default="",
                        help="measure only the rows whose name matches; the report files stay as they are")
    parser.add_argument("--check", action="store_true", help="write no files: the exit code tells")
    parser.add_argument("--repetitions", type=int, default=9, metavar="N", help="default: %(default)s")
    parser.add_argument("--min-time", type=float, default=0.1, metavar="SECONDS",
                        help="least time of one repetition; default: %(default)s")
    parser.add_argument("--regressions", action="store_true", help="compare with what is usual instead of the targets")
    parser.add_argument("--set-usual", action="store_true", help="store the ratios of this run as usual")
    options = parser.parse_args(arguments)

    rows = read_rows(options.only)
    if options.regressions:
        return 1 if find_regressions(rows, options.folder, options.repetitions, options.min_time) else 0
    missed = measure_with_doubts(rows, options.folder, options.repetitions, options.min_time,
                                 lambda row: not row.passed)
    print_table(rows)
    if options.set_usual:
        store_usual(rows)
        return 0
    if not options.check and not options.only:
        docs = ROOT / "docs"
        docs.mkdir(exist_ok=True)
        (docs / "benchmarks.md").write_text(markdown(rows, options.repetitions), encoding="utf-8")
        (docs / "benchmarks.svg").write_text(Plot(rows).svg(), encoding="utf-8")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
