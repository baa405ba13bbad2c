#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares the results of the benchmarks with the targets.

Prints one table, and with --docs writes its column of performance.md, and with Qt 5 the plot. Ends with success whether
or not the targets are met, which the table shows.
"""

import argparse
import json
import math
import os
import statistics
import sys
from collections import defaultdict

from targets import COUNTED_CASES, TARGETS, Counter, Ratio, Slope

HEADINGS = ("case", "against", "measured", "target", "met")
# of the table in performance.md
COLUMNS = ("case", "against", "target", "Qt 5", "met", "Qt 6", "met")
TEMPLATE = os.path.join(os.path.dirname(__file__), "performance.md.in")
PICTURE = "pictures/cost-against-size.png"


class Results:
    """What all repetitions measured."""

    def __init__(self, paths):
        runs = defaultdict(list)
        self.errors = []
        self.context = {}
        for path in paths:
            if os.path.getsize(path):  # empty where the filter matched nothing
                with open(path, encoding="utf-8") as file:
                    self._read(json.load(file), runs)
        self._runs = runs

    def _read(self, document, runs):
        self.context = {**document["context"], **self.context}
        for run in document["benchmarks"]:
            if run["run_type"] != "iteration":
                continue
            if run.get("error_occurred"):
                self.errors.append(f'{run["run_name"]}: {run["error_message"]}')
                continue
            case, contestant, *rest = run["run_name"].split("/")
            size = next((int(part) for part in rest if part.isdigit()), None)
            runs[case, contestant, size].append(run)

    def cost(self, case, contestant, size, counter=None):
        """The least time, or the median of a counter; None where nothing was measured.

        What else the machine does only adds to a time, so that the least one is the nearest.
        """
        runs = self._runs.get((case, contestant, size), [])
        if not runs:
            return None
        if counter:
            return statistics.median(run[counter] for run in runs)
        return min(nanoseconds(run) for run in runs)

    def repetitions(self):
        return max((len(runs) for runs in self._runs.values()), default=0)

    def spread(self):
        """The standard deviation of a benchmark's time, as a part of its mean, in the median."""
        times = [[nanoseconds(run) for run in runs] for runs in self._runs.values()]
        return statistics.median(statistics.stdev(t) / statistics.mean(t) for t in times)

    def curves(self):
        """{case: {contestant: [(size, nanoseconds)]}} of the cases that have several sizes."""
        curves = defaultdict(lambda: defaultdict(list))
        sizes = defaultdict(set)
        for case, _, size in self._runs:
            sizes[case].add(size)
        for case, contestant, size in self._runs:
            if len(sizes[case]) > 1:
                curves[case][contestant].append((size, self.cost(case, contestant, size)))
        for contestants in curves.values():
            for points in contestants.values():
                points.sort()
        return curves


def nanoseconds(run):
    # only the benchmark knows the time of what ran in a child process
    value = run["real_time" if "/manual_time" in run["name"] else "cpu_time"]
    return value * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]


def slope(points):
    """The slope of the straight line that fits the logarithms best."""
    logarithms = [(math.log(size), math.log(cost)) for size, cost in points]
    mean_x = statistics.mean(x for x, _ in logarithms)
    mean_y = statistics.mean(y for _, y in logarithms)
    return sum((x - mean_x) * (y - mean_y) for x, y in logarithms) / sum(
        (x - mean_x) ** 2 for x, _ in logarithms
    )


def measured(results, target):
    """The measured value of the library; None where it was not measured."""
    if isinstance(target, Slope):
        points = results.curves()[target.case]["library"]
        return slope(points) if len(points) > 1 else None
    if isinstance(target, Counter):
        return results.cost(target.case, target.contestant, None, target.counter)
    counter = COUNTED_CASES.get(target.case)
    compared = results.cost(target.case, target.compared, target.size, counter)
    other = results.cost(target.case, target.contestant, target.size, counter)
    return compared / other if compared is not None and other else None


def as_limit(limit):
    return f"{limit:,.0f}" if limit >= 100 else f"{limit:g}"


def names(target):
    """The case, what it is compared with, and the limit, as the table has them."""
    case = target.case
    if isinstance(target, Ratio):
        case = f"{case}, {target.size:,}" if target.size else case
        case = f"{case}: {target.compared}" if target.compared != "library" else case
        against = target.contestant
    elif isinstance(target, Slope):
        against = "slope"
    else:
        against = target.unit
    return case, against, "" if target.limit is None else as_limit(target.limit)


def row(target, value):
    case, against, limit = names(target)
    if isinstance(target, Counter):
        form = "{:,.0f}"
    else:
        form = "{:.3f}" if isinstance(target, Ratio) and value < 1 else "{:.2f}"
    shown = form.format(value)
    # the digits that are shown decide, so that no row contradicts itself
    met = ("yes" if float(shown.replace(",", "")) <= target.limit else "no") if limit else ""
    return case, against, shown, limit, met


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


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        names = [line.split(":", 1)[1].strip() for line in file if line.startswith("model name")]
    return names[0] if names else "unknown processor"


def major(qt):
    """The heading of the column of a version of Qt."""
    return "Qt " + qt.split(".")[0]


def measurement(results):
    """The line of performance.md that says what a column was measured with."""
    context = results.context
    load = f'{context["load_avg"][0]:.1f}' if context["load_avg"] else "unknown"
    return (
        f'- Qt {context["Qt"]}: {context["date"][:10]}, {processor()}, {context["num_cpus"]} processors '
        f'(load {load} when it began), {context["compiler"]}; the standard deviation of a time was '
        f"{results.spread():.1%} of the mean (the median over all cases)"
    )


def kept(path, column):
    """What performance.md has of a column: its measurement, and {(case, against): (measured, met)}."""
    line, values = None, {}
    if os.path.exists(path):
        with open(path, encoding="utf-8") as file:
            for text in file:
                cells = [cell.strip() for cell in text.strip().strip("|").split("|")]
                if text.startswith(f"- {column}."):
                    line = text.strip()
                elif text.startswith("|") and len(cells) == len(COLUMNS):
                    at = COLUMNS.index(column)
                    values[cells[0], cells[1]] = cells[at], cells[at + 1]
    return line, values


def document(results, path):
    """performance.md as a text: the column of the Qt that was measured is new, the other is kept."""
    new = major(results.context["Qt"])
    lines, columns = [], {}
    for column in ("Qt 5", "Qt 6"):
        line, columns[column] = kept(path, column)
        if column == new:
            line = measurement(results)
            columns[column] = {(row[0], row[1]): (row[2], row[4]) for row in table(results)}
        if line:
            lines.append(line)
    rows = []
    for target in TARGETS:
        case, against, limit = names(target)
        cells = [cell for values in columns.values() for cell in values.get((case, against), ("", ""))]
        if any(cells):
            rows.append((case, against, limit, *cells))
    with open(TEMPLATE, encoding="utf-8") as file:
        template = file.read()
    return template.format(
        measurements="\n".join(lines),
        picture=PICTURE,
        repetitions=results.repetitions(),
        table=as_markdown(COLUMNS, rows),
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("results", nargs="+", help="what the benchmarks wrote with --benchmark_out")
    parser.add_argument("--docs", metavar="FOLDER", help="write performance.md and its plot there")
    arguments = parser.parse_args()

    results = Results(arguments.results)
    rows = table(results)
    print(as_markdown(HEADINGS, rows))
    for error in results.errors:
        print(f"not measured: {error}")
    if results.errors or not rows:
        sys.exit("report.py: something could not be measured")
    if arguments.docs:
        if major(results.context["Qt"]) == "Qt 5":
            from plot import plot  # only here: it takes long to load

            plot(results.curves(), os.path.join(arguments.docs, PICTURE))
        path = os.path.join(arguments.docs, "performance.md")
        text = document(results, path)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)


if __name__ == "__main__":
    main()
