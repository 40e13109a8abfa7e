"""Chooses mutants and writes them all into one source, each asleep until its number is called."""

import collections
import hashlib
import pathlib


def by_chance(points, seed):
    """In an order that only the seed and each point decide: a change elsewhere leaves the others in their places."""
    seen = collections.Counter()
    drawn = []
    for point in sorted(points):
        what = pathlib.Path(point.file).name, point.original, point.mutated
        seen[what] += 1
        drawn.append((hashlib.sha256(f"{seed} {what} {seen[what]}".encode()).digest(), point))
    return [point for _, point in sorted(drawn)]


def choose(points, count, seed):
    """At least two of each file where there are as many, the others wherever chance has it; none inside another.

    Those that chance likes best come first.
    """
    order = by_chance(points, seed)
    by_file = collections.defaultdict(list)
    for point in order:
        by_file[point.file].append(point)
    chosen = Choice()
    for file in sorted(by_file):
        for point in by_file[file]:
            if chosen.count_of(file) == 2:
                break
            chosen.add(point)
    for point in order:
        if len(chosen.points) >= count:
            break
        chosen.add(point)
    return chosen.points[:max(count, 0)]


class Choice:
    def __init__(self):
        self.points = []
        self._spans = collections.defaultdict(list)

    def count_of(self, file):
        return len(self._spans[file])

    def add(self, point):
        spans = self._spans[point.file]
        if all(point.end <= start or end <= point.start for start, end in spans):
            spans.append((point.start, point.end))
            self.points.append(point)


def rewrite(text, numbered, header):
    """The bytes of a file with the given (number, point) pairs in it; lines keep their numbers."""
    for number, point in sorted(numbered, key=lambda pair: -pair[1].start):
        text = text[:point.start] + expression(number, point).encode() + text[point.end:]
    return f'#include "{header}"\n#line 1\n'.encode() + text


def expression(number, point):
    if not point.mutated:
        return f"(wyMutant({number}) ? void() : void({point.original}))"
    return f"(wyMutant({number}) ? ({point.mutated}) : ({point.original}))"
