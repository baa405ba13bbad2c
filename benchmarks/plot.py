# SPDX-License-Identifier: MIT
"""The plot of cost against size."""

import math

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402

COLUMNS = 3
LIBRARY_COLOR = "#409eff"
OTHER_COLORS = ("#909399", "#e6a23c", "#67c23a")


def plot(curves, path):
    """Writes one panel for each case of {case: {contestant: [(size, nanoseconds)]}}."""
    rows = -(-len(curves) // COLUMNS)
    figure, panels = plt.subplots(
        rows, COLUMNS, figsize=(4.2 * COLUMNS, 3.4 * rows), constrained_layout=True
    )
    for panel, (case, contestants) in zip(panels.flat, sorted(curves.items())):
        draw(panel, case, contestants)
    for panel in panels.flat[len(curves) :]:
        panel.set_axis_off()
    figure.savefig(path, dpi=100)


def draw(panel, case, contestants):
    colors = iter(OTHER_COLORS)
    for contestant, points in sorted(contestants.items()):
        library = contestant == "library"
        panel.loglog(
            [size for size, _ in points],
            [cost / 1000 for _, cost in points],
            marker="o",
            markersize=4,
            linewidth=2 if library else 1.2,
            color=LIBRARY_COLOR if library else next(colors),
            label=contestant,
            zorder=3 if library else 2,
        )
    lowest, highest = (math.log10(limit) for limit in panel.get_ylim())
    panel.set_ylim(10 ** math.floor(lowest), 10 ** math.ceil(highest))
    panel.set_title(case)
    panel.set_xlabel("characters" if case == "text-fitting" else "widgets")
    panel.set_ylabel("microseconds")
    panel.grid(True, which="major", linewidth=0.4)
    panel.legend(fontsize="small", frameon=False)
