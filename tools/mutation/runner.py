"""Runs the tests that ctest knows, one by one, with one mutant awake."""

import dataclasses
import json
import os
import pathlib
import re
import resource
import signal
import subprocess
import tempfile
import threading
import time

# Programs of the build that run the library; what builds, packages or checks texts is left out.
PROGRAM = re.compile(r"/(tst_\w+|fuzz_\w+)$")
MEMORY_LIMIT = 6 << 30
SHORTEST_LIMIT_S = 10
LIMIT_FACTOR = 5
QUICK_S = 1


@dataclasses.dataclass
class Test:
    name: str
    program: str
    command: list
    environment: dict
    folder: str
    on_display: bool
    seconds: float = 0
    reached: frozenset = frozenset()
    digest: str = ""


@dataclasses.dataclass
class Outcome:
    passed: bool
    reason: str
    seconds: float


def find_tests(build):
    listing = subprocess.run(["ctest", "--test-dir", str(build), "--show-only=json-v1"],
                             check=True, capture_output=True, text=True)
    tests = []
    for entry in json.loads(listing.stdout)["tests"]:
        command = entry.get("command", [])
        properties = {p["name"]: p["value"] for p in entry["properties"]}
        programs = [part for part in command
                    if PROGRAM.search(part) and str(build) in part and pathlib.Path(part).exists()]
        if programs:
            environment = dict(pair.split("=", 1) for pair in properties.get("ENVIRONMENT", []))
            tests.append(Test(entry["name"], programs[0], command, environment, properties.get("WORKING_DIRECTORY", str(build)),
                              "display" in properties.get("LABELS", [])))
    return tests


def run(test, limit, mutant=None, trace=None):
    """Ends the test at its first failure: what the others say does not matter."""
    environment = {**os.environ, **test.environment}
    if mutant is not None:
        environment["WY_MUTANT"] = str(mutant)
    if trace:
        environment["WY_MUTANT_TRACE"] = str(trace)
    start = time.monotonic()
    process = subprocess.Popen(test.command, env=environment, cwd=test.folder, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, start_new_session=True)
    limit_memory(process.pid)
    late = threading.Event()
    timer = threading.Timer(limit, lambda: (late.set(), end(process)))
    timer.start()
    failure = ""
    for line in process.stdout:
        if mutant is not None and line.startswith((b"FAIL!", b"XPASS")):
            failure = line.decode(errors="replace").strip()
            break
    if failure:
        end(process)
    process.stdout.close()
    code = process.wait()
    timer.cancel()
    end(process)
    seconds = time.monotonic() - start
    if late.is_set():
        return Outcome(False, "hang", seconds)
    if failure:
        return Outcome(False, failure, seconds)
    return Outcome(code == 0, f"exit code {code}" if code else "", seconds)


def limit_memory(pid):
    """From outside: nothing may run between a fork and what follows it where there are threads."""
    try:
        resource.prlimit(pid, resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
        resource.prlimit(pid, resource.RLIMIT_CORE, (0, 0))
    except ProcessLookupError:
        pass # it is through already


def end(process):
    """With everything that it started; a display gets the time to end its servers."""
    for sign, patience in ((signal.SIGTERM, 3), (signal.SIGKILL, 3)):
        try:
            os.killpg(process.pid, sign)
            process.wait(patience)
        except subprocess.TimeoutExpired:
            continue
        except ProcessLookupError:
            return


def trace(test):
    """Learns how long the test takes and which mutants it reaches. Returns whether it passes with all asleep."""
    with tempfile.TemporaryDirectory() as folder:
        reached = pathlib.Path(folder, "reached")
        for _ in range(2):
            outcome = run(test, 1800, trace=reached)
            if outcome.passed:
                break
        test.seconds = outcome.seconds
        test.reached = frozenset(map(int, reached.read_text().split())) if reached.exists() else frozenset()
        return outcome.passed


def try_mutant(number, file, tests, passed, killers=(), slow=True):
    """Returns who killed it, or "", and by name the digests of the tests that are known to pass with it.

    `passed` has those of earlier times, `killers` the names of tests that killed other mutants of this file. These
    and the tests of the class come first, then the fastest; those on a display last. Without `slow` the others than
    these run only if they take no longer than a second.
    """
    passed = dict(passed)
    name = pathlib.Path(file).stem.lower()
    first = {test.name for test in tests if name in test.name} | set(killers)

    def place(test):
        return test.name not in first, test.on_display, test.seconds

    def is_due(test):
        return number in test.reached and (slow or test.name in first or test.seconds < QUICK_S)

    for test in sorted(filter(is_due, tests), key=place):
        if passed.get(test.name) == test.digest:
            continue
        limit = max(SHORTEST_LIMIT_S, LIMIT_FACTOR * test.seconds)
        outcome = run(test, limit, number)
        # A display or a busy machine may be to blame.
        if not outcome.passed and (test.on_display or outcome.reason == "hang"):
            outcome = run(test, 2 * limit, number)
        if not outcome.passed:
            return f"{test.name}: {outcome.reason}", passed
        passed[test.name] = test.digest
    return "", passed
