#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Holds the results of the benchmarks against the targets.

usage: report.py [--pictures FOLDER --document FILE --command TEXT] RESULTS.json...

Prints one table; with --document writes docs/performance.md and its plot as well. The answer is 0
whether or not a target is met: the table says so.
"""

import argparse
import json
import math
import statistics
from collections import defaultdict

from targets import COUNTED_CASES, TARGETS, Counter, Ratio, Slope

HEADINGS = ("case", "against", "measured", "target", "met")


class Results:
    """The medians over all repetitions."""

    def __init__(self, paths):
        runs = defaultdict(list)
        self.errors = []
        for path in paths:
            with open(path, encoding="utf-8") as file:
                self._read(json.load(file), runs)
        self._runs = runs

    def _read(self, document, runs):
        for run in document["benchmarks"]:
            if run["run_type"] != "iteration":
                continue
            if run.get("error_occurred"):
                self.errors.append(f'{run["run_name"]}: {run["error_message"]}')
                continue
            case, contestant, *rest = run["run_name"].split("/")
            size = next((int(part) for part in rest if part.isdigit()), None)
            runs[case, contestant, size].append(run)

    def median(self, case, contestant, size, counter=None):
        """None where nothing was measured."""
        runs = self._runs.get((case, contestant, size), [])
        values = [run[counter] if counter else nanoseconds(run) for run in runs]
        return statistics.median(values) if values else None

    def repetitions(self):
        return max((len(runs) for runs in self._runs.values()), default=0)

    def curves(self):
        """{case: {contestant: [(size, nanoseconds)]}} of the cases that have several sizes."""
        curves = defaultdict(lambda: defaultdict(list))
        for case, contestant, size in self._runs:
            if size is not None:
                curves[case][contestant].append((size, self.median(case, contestant, size)))
        for contestants in curves.values():
            for points in contestants.values():
                points.sort()
        return curves


def nanoseconds(run):
    # what was timed in a child process is known to the benchmark alone
    value = run["real_time" if "/manual_time" in run["name"] else "cpu_time"]
    return value * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]


def slope(points):
    """Of the straight line that fits the logarithms best."""
    logarithms = [(math.log(size), math.log(cost)) for size, cost in points]
    mean_x = statistics.mean(x for x, _ in logarithms)
    mean_y = statistics.mean(y for _, y in logarithms)
    return sum((x - mean_x) * (y - mean_y) for x, y in logarithms) / sum(
        (x - mean_x) ** 2 for x, _ in logarithms
    )


def measured(results, target):
    """What the library reached; None where it was not measured."""
    if isinstance(target, Slope):
        points = results.curves()[target.case]["library"]
        return slope(points) if len(points) > 1 else None
    if isinstance(target, Counter):
        return results.median(target.case, "library", None, target.counter)
    counter = COUNTED_CASES.get(target.case)
    library = results.median(target.case, "library", target.size, counter)
    other = results.median(target.case, target.contestant, target.size, counter)
    return library / other if library is not None and other else None


def row(target, value):
    case = target.case
    if isinstance(target, Ratio):
        case = f"{case}, {target.size:,}" if target.size else case
        against, form = target.contestant, "{:.2f}" if target.limit >= 0.1 else "{:.3f}"
    elif isinstance(target, Slope):
        against, form = "slope", "{:.2f}"
    else:
        against, form = target.unit, "{:,.0f}"
    met = "yes" if value <= target.limit else "no"
    return case, against, form.format(value), form.format(target.limit), met


def table(results):
    rows = []
    for target in TARGETS:
        value = measured(results, target)
        if value is not None:
            rows.append(row(target, value))
    return rows


def as_markdown(headings, rows):
    widths = [max(len(line[i]) for line in [headings, *rows]) for i in range(len(headings))]
    lines = [headings, tuple("-" * width for width in widths), *rows]
    return "\n".join(
        "| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |"
        for line in lines
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("results", nargs="+")
    arguments = parser.parse_args()

    results = Results(arguments.results)
    print(as_markdown(HEADINGS, table(results)))
    for error in results.errors:
        print(f"not measured: {error}")


if __name__ == "__main__":
    main()
