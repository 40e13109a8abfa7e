#!/usr/bin/env python3
"""Mutation testing: puts small mistakes into the library, one at a time, and sees whether a test notices.

    mutate.py [COUNT [SEED]] [--jobs COUNT] [--tests BUILD] [--alive] [--only NUMBER…] [--skip PATTERN]

COUNT mistakes (mutants) are chosen by chance from all functions of the library. They are written into a copy of the
sources all at once, each asleep until the environment calls its number, so that one library serves all of them. The
programs of the tests are those of a build that is there already (BUILD, build/dev by default), with that library in
place of their own. They run once without a mistake, which must pass and tells which test reaches which mutant. Then
each mutant meets the tests that reach it until one fails, crashes or hangs. A mutant that no test reaches lives.
--jobs says how many programs run at a time, one for each processor by default.

--alive goes on with those that lived the last time, with the tests that are new or have changed; --only with those of
the given numbers. --skip leaves tests out, such as 'desktop|screens' where there is no display.

What is found stands in build/mutation/report.md. The exit code is 1 if fewer than 95 % were killed, and 2 if a test
fails without any mistake.
"""

import argparse
import collections
import concurrent.futures
import hashlib
import itertools
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import threading
import time

from mutation import points, runner, schemata

ROOT = pathlib.Path(__file__).resolve().parents[1]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "source"
BUILD = WORK / "build"
HEADER = COPY / "tools" / "mutation" / "Mutant.h"
SOURCES = ["src/common", "src/qwindowkit"]
# What reads behind the end of an array is to crash.
FLAGS = "-O1 -Wno-error -D_GLIBCXX_ASSERTIONS"
LEAST_KILLED = 0.95
# Some changes do not compile; as many again stand by.
SPARE = 1.15


def git_files(*paths):
    listing = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *paths], cwd=ROOT,
                             check=True, capture_output=True, text=True)
    return [file for file in listing.stdout.splitlines() if (ROOT / file).is_file()]


def write_if_changed(path, content):
    """Build tools go by the time of a file."""
    if not path.exists() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def copy_sources(mutants, keep=()):
    """The tree as it is, with the mutants in it. What stands in the folders to keep stays as it is."""
    by_file = {}
    for number, point in mutants.items():
        by_file.setdefault(point.file, []).append((number, point))
    files = git_files()
    for file in files:
        if file.startswith(tuple(keep)) and (COPY / file).exists():
            continue
        content = (ROOT / file).read_bytes()
        if file in by_file:
            content = schemata.rewrite(content, by_file[file], HEADER)
        write_if_changed(COPY / file, content)
        shutil.copymode(ROOT / file, COPY / file)
    for path in COPY.rglob("*"):
        if path.is_file() and str(path.relative_to(COPY)) not in set(files):
            path.unlink()


def configure():
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    subprocess.run(["cmake", "-S", str(COPY), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    f"-DCMAKE_CXX_FLAGS_DEBUG={FLAGS}", "-DWYWIDGETS_BUILD_DESIGNER=OFF",
                    "-DWYWIDGETS_BUILD_GALLERY=OFF", *launcher],
                   check=True, stdout=subprocess.DEVNULL)


def compile_arguments():
    """Of every source of the library, as it stands in the tree."""
    database = json.loads((BUILD / "compile_commands.json").read_text())
    arguments = {}
    for entry in database:
        file = entry["file"].replace(str(COPY), str(ROOT))
        words = shlex.split(entry["command"].replace(f"{COPY}/", f"{ROOT}/"))
        if any(file.startswith(f"{ROOT}/{folder}/") for folder in SOURCES) and file not in arguments:
            kept = [w for w in words if w.startswith(("-I", "-D", "-std"))]
            system = [w for i, w in enumerate(words) if w == "-isystem" or words[i - 1] == "-isystem"]
            arguments[file] = kept + system
    return arguments


def find_points():
    """All places of the library where a mistake could be made; remembered until a source changes."""
    files = git_files(*SOURCES)
    tools = [ROOT / "tools" / "mutation" / "points.py"]
    content = b"".join(path.read_bytes() for path in [ROOT / file for file in files] + tools)
    digest = hashlib.sha256(content).hexdigest()
    cache = WORK / "points.json"
    if cache.exists():
        known = json.loads(cache.read_text())
        if known["digest"] == digest:
            return [points.Point(*fields) for fields in known["points"]]
    collector = points.Collector(ROOT, [file for file in files if file.endswith((".h", ".cpp"))])
    sources = sorted(compile_arguments().items())
    collector.precompile("<QtWidgets>", sources[0][1], WORK)
    for source, arguments in sources:
        collector.collect(source, arguments)
    found = sorted(collector.points)
    fields = [[getattr(p, f) for f in p.__dataclass_fields__] for p in found]
    cache.write_text(json.dumps({"digest": digest, "points": fields}))
    return found


def compile_mutants(mutants, *targets):
    """Builds; mutants that do not compile are dropped, and remembered by what they are."""
    memory = WORK / "broken.json"
    known = set(json.loads(memory.read_text())) if memory.exists() else set()
    while True:
        mutants = {n: p for n, p in mutants.items() if str(p) not in known}
        copy_sources(mutants)
        result = subprocess.run(["ninja", "-C", str(BUILD), "-k", "0", "-j", str(os.cpu_count()), *targets],
                                capture_output=True, text=True, check=False)
        if result.returncode == 0:
            return mutants
        broken = set()
        for path, line in re.findall(r"^(\S+?):(\d+):\d+: error", result.stdout, flags=re.M):
            file = (BUILD / path).resolve() # a compiler cache makes it relative
            broken |= {str(p) for p in mutants.values()
                       if COPY / p.file == file and p.line <= int(line) <= p.last_line}
        if not broken:
            sys.exit(f"The library does not build:\n{result.stdout[-4000:]}")
        print(f"{len(broken)} do not compile")
        known |= broken
        memory.write_text(json.dumps(sorted(known)))


def prepare(count, seed):
    """Builds the library with COUNT mutants in it; returns them by number, and the test programs that it built.

    They come in the order of chance: the first ones are a sample of all, should a run be interrupted.
    """
    # A file that becomes what it was would be compiled again.
    copy_sources({}, keep=SOURCES)
    configure()
    subprocess.run(["ninja", "-C", str(BUILD), "WyWidgets_autogen", "WyEmbeddedWindowAgent_autogen"],
                   check=True, stdout=subprocess.DEVNULL)
    found = find_points()
    chosen = schemata.choose(found, int(count * SPARE), seed)
    print(f"{len(found)} places for a mistake in {len({p.file for p in found})} files")
    mutants = dict(enumerate(sorted(chosen)))
    own = own_programs(mutants)
    mutants = compile_mutants(mutants, "WyWidgets", *own)
    # Those to spare stay asleep.
    numbers = {point: number for number, point in mutants.items()}
    return {numbers[point]: point for point in [p for p in chosen if p in numbers][:count]}, own


def own_programs(mutants):
    """Test programs for which the mutated library alone does not do.

    They have sources of the library in themselves, or inline functions of a public header with mutants in it.
    """
    headers = {pathlib.Path(p.file).stem.lower() for p in mutants.values()
               if p.file.endswith(".h") and "/internal/" not in p.file}
    targets = subprocess.run(["ninja", "-C", str(BUILD), "-t", "targets", "all"], check=True, capture_output=True,
                             text=True).stdout
    programs = re.findall(r"^(\S+/tst_\w+): CXX_EXECUTABLE_LINKER", targets, flags=re.M)
    query = subprocess.run(["ninja", "-C", str(BUILD), "-t", "query", *programs], check=True, capture_output=True,
                           text=True).stdout
    by_program = re.split(r"^(?=\S)", query, flags=re.M)[1:]
    return [inputs.split(":")[0] for inputs in by_program
            if re.search(r"\.dir/\S*/src/|libWyEmbeddedWindowAgent\.a", inputs)
            or any(f"/tst_{header}" in inputs for header in headers)]


def trace_tests(build, own, skip, jobs):
    """The tests of a build, with the mutated library in place of its own. Returns those that fail, too."""
    tests = [t for t in runner.find_tests(build) if not re.search(skip, t.name)]
    for test in tests:
        test.environment["LD_LIBRARY_PATH"] = str(BUILD / "lib")
        mutated = BUILD / pathlib.Path(test.program).relative_to(build)
        if str(mutated.relative_to(BUILD)) in own:
            test.command = [str(mutated) if part == test.program else part for part in test.command]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        passes = list(pool.map(trace, tests))
    return tests, [test.name for test, has_passed in zip(tests, passes) if not has_passed]


def trace(test):
    """What the run without a mistake told is remembered until the program or the library changes."""
    program = next(part for part in test.command if part.endswith(f"/{pathlib.Path(test.program).name}"))
    content = (BUILD / "lib" / "libWyWidgets.so").read_bytes() + pathlib.Path(program).read_bytes()
    test.digest = hashlib.sha256(content).hexdigest()
    memory = WORK / "traces" / f"{test.name}.json"
    if memory.exists():
        known = json.loads(memory.read_text())
        if known["digest"] == test.digest:
            test.seconds, test.reached = known["seconds"], frozenset(known["reached"])
            return True
    if not runner.trace(test):
        return False
    memory.parent.mkdir(exist_ok=True)
    memory.write_text(json.dumps({"digest": test.digest, "seconds": test.seconds, "reached": sorted(test.reached)}))
    return True


def kill(mutants, tests, wanted, jobs, state):
    """Tries the wanted ones; `state` is a file that has what earlier runs found. Returns who killed which."""
    known = json.loads(state.read_text()) if state.exists() else {}
    known = {n: known.get(str(n), {"killer": "", "passed": {}}) for n in mutants}
    killers = collections.defaultdict(set)
    lock = threading.Lock()

    def attempt(number, slow):
        point, entry = mutants[number], known[number]
        start = time.monotonic()
        killer, passed = runner.try_mutant(number, point.file, tests, entry["passed"], killers[point.file], slow)
        with lock:
            entry.update(killer=killer, passed=passed)
            killers[point.file].add(killer.split(":")[0])
            print(f"{number}: {point}: {killer or 'ALIVE'} ({time.monotonic() - start:.0f} s)")
            state.write_text(json.dumps(known))

    # Slow tests meet only what the others have left alive.
    chosen = wanted(known)
    for slow in (False, True):
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            due = [number for number in chosen if not slow or not known[number]["killer"]]
            list(pool.map(attempt, due, itertools.repeat(slow)))
    return {n: entry["killer"] for n, entry in known.items()}


def summary(mutants, killers):
    killed = sum(bool(killers[n]) for n in mutants)
    return f"{killed} of {len(mutants)} mutants killed ({100 * killed / len(mutants):.1f} %)"


def write_report(mutants, killers, tests):
    reached = frozenset().union(*(t.reached for t in tests))
    alive = [n for n in sorted(mutants) if not killers[n]]
    lines = ["# Mutants", "", summary(mutants, killers), "", "## Alive", ""]
    lines += [f"- {n}: {mutants[n]}{'' if n in reached else ' (no test reaches it)'}" for n in alive]
    lines += ["", "## Killed", ""]
    lines += [f"- {n}: {mutants[n]}; {killers[n]}" for n in sorted(mutants) if killers[n]]
    (WORK / "report.md").write_text("\n".join(lines) + "\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", type=int, nargs="?", default=400)
    parser.add_argument("seed", type=int, nargs="?", default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--tests", type=pathlib.Path, default=ROOT / "build" / "dev")
    parser.add_argument("--alive", action="store_true")
    parser.add_argument("--only", type=int, nargs="+")
    parser.add_argument("--skip", default="^$")
    options = parser.parse_args()
    sys.stdout.reconfigure(line_buffering=True)

    WORK.mkdir(parents=True, exist_ok=True)
    mutants, own = prepare(options.count, options.seed)
    tests, failed = trace_tests(options.tests.resolve(), own, options.skip, options.jobs)
    if failed:
        print("Without a mutant these tests fail:", *failed)
        return 2
    print(f"{len(tests)} tests pass without a mutant in {sum(t.seconds for t in tests):.0f} s")

    state = WORK / f"killers-{options.count}-{options.seed}.json"
    if not options.alive and not options.only:
        state.unlink(missing_ok=True)
    killers = kill(mutants, tests, lambda known: options.only or [n for n in known if not known[n]["killer"]],
                   options.jobs, state)
    write_report(mutants, killers, tests)
    print(summary(mutants, killers))
    return 0 if sum(map(bool, killers.values())) >= LEAST_KILLED * len(mutants) else 1


if __name__ == "__main__":
    sys.exit(main())
