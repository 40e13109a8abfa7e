#!/usr/bin/env python3
"""Measures what it costs a process to load the library, beside Qt add-ons of its size.

    load_cost.py LIBRARY [--rounds 40]

Its peers are, of all shared libraries of the system that build on Qt's widgets, the next smaller and the next larger by
code and data. All are loaded with all symbols bound at once, each time into a fresh process that has what they depend on
already. Rounds alternate between them, so that a busy machine slows all down alike; the least of the processor times counts.
Memory is what the process holds for the library itself: private (its own copies of pages, mostly because of relocations)
and resident.

Most relocations by name are inherited virtual functions in the tables of exported classes, so these stand by class, too.

The exit code is 1 if loading takes more time, relocations or private memory than the next larger peer, or more
relocations by name and class than --named-per-class, and 77 if the system has no larger one.
"""

import argparse
import ctypes
import json
import os
import pathlib
import re
import subprocess
import sys
import time

WIDGETS = "libQt5Widgets.so.5"
OWN_NAME = "libWyWidgets.so"
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
    for needed in needed_by(path):
        ctypes.CDLL(needed, os.RTLD_NOW | os.RTLD_GLOBAL)
    before = time.thread_time_ns()
    ctypes.CDLL(path, os.RTLD_NOW)
    nanoseconds = time.thread_time_ns() - before
    private, resident = page_counts(path)
    print(json.dumps({"time": nanoseconds / 1000, "private": private, "resident": resident}))


def sample(path):
    output = subprocess.run([sys.executable, __file__, "--load-once", path], check=True, capture_output=True, text=True)
    return json.loads(output.stdout)


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def needed_by(path):
    return re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "-dW", path))


def size_of(path):
    """Code and data in KiB, as they stand in the file."""
    text, data = output_of("size", path).splitlines()[1].split()[:2]
    return (int(text) + int(data)) / 1024


def add_ons():
    """The files of all libraries that the loader knows and that build on Qt's widgets."""
    loader = next(filter(os.path.exists, ("/sbin/ldconfig", "/usr/sbin/ldconfig")), "ldconfig")
    known = {os.path.realpath(path) for path in re.findall(r"=> (\S+)$", output_of(loader, "-p"), flags=re.M)}
    return sorted(path for path in known
                  if WIDGETS.encode() in pathlib.Path(path).read_bytes() and WIDGETS in needed_by(path)
                  and not os.path.basename(path).startswith(OWN_NAME))


def neighbours(own_size, sizes):
    """The next smaller and the next larger of the files; None where there is none."""
    smaller = [path for path, size in sizes.items() if size <= own_size]
    larger = [path for path, size in sizes.items() if size > own_size]
    return max(smaller, key=sizes.get, default=None), min(larger, key=sizes.get, default=None)


def facts(path):
    """What stands in the file."""
    kinds = re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +(R_\w+)", output_of("readelf", "-rW", path), flags=re.M)
    named = sum(not kind.endswith("_RELATIVE") for kind in kinds)
    names = output_of("nm", "-D", "--defined-only", path)
    classes = len(re.findall(r" _ZTV", names))
    initialisers = re.search(r"\.init_array +\S+ +\S+ +\S+ +([0-9a-f]+)", output_of("readelf", "-SW", path))
    return {"relocations": len(kinds), "named": named, "classes": classes, "per class": named / max(classes, 1),
            "initialisers": int(initialisers[1], 16) // 8 if initialisers else 0, "size": size_of(path)}


def measure(paths, rounds):
    """For each library the least time and memory of all rounds."""
    samples = {path: [] for path in paths}
    for _ in range(rounds):
        for path in paths:
            samples[path].append(sample(path))
    return [{**facts(path), **{key: min(s[key] for s in samples[path]) for key in samples[path][0]}} for path in paths]


ROWS = [("time", "time to load", "µs"), ("relocations", "relocations", ""), ("named", "of these by name", ""),
        ("private", "private memory", "KiB"), ("resident", "resident memory", "KiB"), ("size", "code and data", "KiB"),
        ("classes", "exported classes with virtual functions", ""), ("per class", "relocations by name and class", ""),
        ("initialisers", "initialisers that run", "")]
LIMITED = ["time", "relocations", "private"]
NOT_BY_SIZE = ["size", "per class"]


def cell(ours, theirs, key, unit):
    text = f"{theirs[key]:.0f} {unit}".strip()
    if not theirs[key]:
        return text
    ratio = ours[key] / theirs[key]
    if key in NOT_BY_SIZE:
        return f"{text} ({ratio:.2f})"
    return f"{text} ({ratio:.2f}, by size {ratio * theirs['size'] / ours['size']:.2f})"


def table(ours, peers):
    """The peers' figures, each with the library's as a ratio to it, in whole and by size."""
    lines = ["| | WyWidgets | " + " | ".join(peers) + " |", "|---" * (len(peers) + 2) + "|"]
    for key, title, unit in ROWS:
        cells = [title, f"{ours[key]:.0f} {unit}".strip()] + [cell(ours, theirs, key, unit) for theirs in peers.values()]
        lines.append("| " + " | ".join(cells) + " |")
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("library")
    parser.add_argument("--rounds", type=int, default=40)
    parser.add_argument("--named-per-class", type=float, default=80, help="default: %(default)s")
    parser.add_argument("--load-once", action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    if arguments.load_once:
        return load_once(arguments.library)
    own = os.path.realpath(arguments.library)
    smaller, larger = neighbours(size_of(own), {path: size_of(path) for path in add_ons()})
    if not larger:
        print("The system has no larger library that builds on Qt's widgets")
        return NO_PEER
    files = [path for path in (smaller, larger) if path]
    ours, *theirs = measure([own, *files], arguments.rounds)
    print(table(ours, {os.path.basename(path).split(".")[0]: figures for path, figures in zip(files, theirs)}))
    dear = [f"dearer than the larger peer: {key}" for key in LIMITED if ours[key] > theirs[-1][key]]
    if ours["per class"] > arguments.named_per_class:
        dear.append(f"more than {arguments.named_per_class:g} relocations by name and class")
    print("\n".join(dear) or "Cheaper than the larger peer")
    return 1 if dear else 0


if __name__ == "__main__":
    sys.exit(main())
