#!/usr/bin/env python3
"""Measures what it costs a process to load the library, beside a Qt add-on of the system.

    load_cost.py LIBRARY [--peer libQt5Charts.so.5] [--rounds 40] [--limit 1.0]

Both are loaded with all symbols bound at once, each time into a fresh process that has Qt's widgets already. Rounds
alternate between the two, so that a busy machine slows both down alike; the least of the processor times counts.
Memory is what the process holds for the library itself: private (its own copies of pages, mostly because of relocations) and resident.
Each figure stands as a ratio too, in whole and by size of code, for the two are not equally large.

The exit code is 1 if loading takes more time, relocations or private memory than the peer (times --limit), and 77 if
there is no such peer on the system.
"""

import argparse
import ctypes
import json
import os
import re
import subprocess
import sys
import time

WIDGETS = "libQt5Widgets.so.5"
NO_PEER = 77


def page_counts(path):
    """(private, resident) memory of this process's mappings of a file, in KiB."""
    private = resident = 0
    ours = False
    with open("/proc/self/smaps", encoding="utf-8") as smaps:
        for line in smaps:
            if re.match(r"[0-9a-f]+-[0-9a-f]+ ", line):
                ours = line.rstrip().endswith(os.path.basename(path))
            elif ours and line.startswith("Anonymous:"):
                private += int(line.split()[1])
            elif ours and line.startswith("Rss:"):
                resident += int(line.split()[1])
    return private, resident


def load_once(path):
    """Runs in a process of its own."""
    ctypes.CDLL(WIDGETS, os.RTLD_NOW | os.RTLD_GLOBAL)
    before = time.thread_time_ns()
    ctypes.CDLL(path, os.RTLD_NOW)
    nanoseconds = time.thread_time_ns() - before
    private, resident = page_counts(path)
    print(json.dumps({"time": nanoseconds / 1000, "private": private, "resident": resident}))


def sample(path):
    output = subprocess.run([sys.executable, __file__, "--load-once", path], check=True, capture_output=True, text=True)
    return json.loads(output.stdout)


def file_of(soname):
    """The file that the loader takes for the name, or None."""
    probe = ("import ctypes, sys; ctypes.CDLL(sys.argv[1]);"
             "print(next(l.split()[-1] for l in open('/proc/self/maps') if sys.argv[1].split('.so')[0] in l))")
    found = subprocess.run([sys.executable, "-c", probe, soname], capture_output=True, text=True, check=False)
    return found.stdout.strip() if found.returncode == 0 else None


def facts(path):
    """Relocations and size of the code as they stand in the file."""
    relocations = subprocess.run(["readelf", "-rW", path], check=True, capture_output=True, text=True).stdout
    size = subprocess.run(["size", path], check=True, capture_output=True, text=True).stdout
    kinds = re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +(R_\w+)", relocations, flags=re.M)
    relative = sum(kind.endswith("_RELATIVE") for kind in kinds)
    return {"relocations": len(kinds), "named": len(kinds) - relative, "code": int(size.splitlines()[1].split()[0]) / 1024}


def measure(paths, rounds):
    """For each library the least time and memory of all rounds."""
    samples = {path: [] for path in paths}
    for _ in range(rounds):
        for path in paths:
            samples[path].append(sample(path))
    return [{**facts(path), **{key: min(s[key] for s in samples[path]) for key in samples[path][0]}} for path in paths]


ROWS = [("time", "time to load", "µs"), ("relocations", "relocations", ""), ("named", "of these by name", ""),
        ("private", "private memory", "KiB"), ("resident", "resident memory", "KiB"), ("code", "code", "KiB")]
LIMITED = ["time", "relocations", "private"]


def table(ours, theirs, peer_name):
    lines = [f"| | WyWidgets | {peer_name} | ratio | ratio by code |", "|---|---|---|---|---|"]
    by_code = theirs["code"] / ours["code"]
    for key, title, unit in ROWS:
        ratio = ours[key] / theirs[key]
        lines.append(f"| {title} | {ours[key]:.0f} {unit} | {theirs[key]:.0f} {unit} | {ratio:.2f} | {ratio * by_code:.2f} |")
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("library")
    parser.add_argument("--peer", default="libQt5Charts.so.5")
    parser.add_argument("--rounds", type=int, default=40)
    parser.add_argument("--limit", type=float, default=1.0)
    parser.add_argument("--load-once", action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    if arguments.load_once:
        return load_once(arguments.library)
    peer = file_of(arguments.peer)
    if not peer:
        print(f"{arguments.peer} is not installed")
        return NO_PEER
    ours, theirs = measure([os.path.realpath(arguments.library), peer], arguments.rounds)
    print(table(ours, theirs, arguments.peer.split(".")[0]))
    dear = [key for key in LIMITED if ours[key] > arguments.limit * theirs[key]]
    print("\n".join(f"dearer than the peer: {key}" for key in dear) or "cheaper than the peer")
    return 1 if dear else 0


if __name__ == "__main__":
    sys.exit(main())
