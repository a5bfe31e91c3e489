# SPDX-License-Identifier: MIT
"""The results as a chart: for each size how many times each contestant takes what we do."""

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # pylint: disable=wrong-import-position
from matplotlib.ticker import FuncFormatter, LogLocator, NullLocator

from plan import CONTESTANTS, LIMITS, MEASURES, OURS, PEERS
from table import AHEAD, is_over, median, quantity

STYLE = {
    "svg.fonttype": "none",
    "svg.hashsalt": "side by side",
    "font.family": "sans-serif",
    "font.sans-serif": ["DejaVu Sans", "Verdana", "sans-serif"],
    "font.size": 9,
    "axes.spines.top": False,
    "axes.spines.right": False,
    "axes.spines.left": False,
}


def place(results, contestant, measure, rows):
    """Its multiple of ours, and whether it is at least that; None without either."""
    ours = median(results, OURS, measure, rows)
    value = median(results, contestant, measure, rows)
    at_least = value is None and is_over(results, contestant, measure, rows)
    if at_least:
        value = results.settings.limit
    return (value / ours, at_least) if value and ours else None


def draw_contestant(axes, results, contestant, rows):
    is_limit = contestant.name in LIMITS
    known, open_ended = [], []
    # Dots of peers that are alike do not cover each other.
    shift = 0.14 * (PEERS.index(contestant.name) - 1.5) if contestant.name in PEERS else 0
    for line, measure in enumerate(MEASURES):
        found = place(results, contestant.name, measure, rows)
        if found is not None:
            (open_ended if found[1] else known).append((found[0], line + shift))
    size = 9 if is_limit else 6
    label = contestant.title
    if known:
        axes.plot(*zip(*known), contestant.marker, color=contestant.colour, markersize=size,
                  markeredgewidth=2.5 if is_limit else 0, alpha=0.95, label=label,
                  zorder=4 if is_limit else 3)
    if open_ended:
        axes.plot(*zip(*open_ended), ">", color=contestant.colour, markersize=size,
                  markerfacecolor="white", zorder=2, label="" if known else label)


def draw_size(axes, results, rows):
    axes.set_xscale("log")
    axes.axvspan(1 / AHEAD, AHEAD, color="#f3f1ea", zorder=0, linewidth=0)
    axes.axvline(1, color="#111111", linewidth=1, zorder=1)
    for contestant in CONTESTANTS:
        draw_contestant(axes, results, contestant, rows)
    axes.xaxis.set_major_locator(LogLocator(numticks=9))
    axes.xaxis.set_minor_locator(NullLocator())
    axes.xaxis.set_major_formatter(FuncFormatter(lambda value, _: f"{value:g}×"))
    axes.tick_params(axis="x", labelsize=8)
    axes.set_title(f"{rows:,} rows".replace(",", " "), fontsize=10, fontweight="bold")
    axes.set_ylim(len(MEASURES) - 0.5, -0.5)
    axes.set_yticks(range(len(MEASURES)))
    axes.grid(axis="y", color="#e4e4e4", linewidth=0.6)
    axes.tick_params(axis="y", length=0)
    axes.set_axisbelow(True)
    ours = [median(results, OURS, measure, rows) for measure in MEASURES]
    for line, (measure, value) in enumerate(zip(MEASURES, ours)):
        if value is not None:
            axes.annotate(quantity(value, measure), (1.02, line), va="center", fontsize=8,
                          xycoords=("axes fraction", "data"), annotation_clip=False)
    axes.annotate("ours", (1.02, -0.9), va="center", fontsize=8, fontweight="bold",
                  xycoords=("axes fraction", "data"), annotation_clip=False)


def draw(results, header, path):
    sizes = results.settings.sizes
    with plt.rc_context(STYLE):
        figure, panels = plt.subplots(1, len(sizes), sharey=True, squeeze=False,
                                      figsize=(3.4 + 3.9 * len(sizes), 6.4))
        for axes, rows in zip(panels[0], sizes):
            draw_size(axes, results, rows)
        panels[0][0].set_yticklabels([measure.title for measure in MEASURES])
        figure.supxlabel("times what this library takes (logarithmic; to the right is slower or "
                         "larger; grey: less than three times; open arrow: ended by the limit of "
                         f"{results.settings.limit} s)", fontsize=8.5)
        handles, labels = panels[0][0].get_legend_handles_labels()
        figure.legend(handles, labels, loc="upper center", ncol=len(labels), frameon=False)
        figure.tight_layout(rect=(0, 0, 1, 0.94), w_pad=2.2)
        figure.savefig(path, bbox_inches="tight",
                       metadata={"Date": None, "Description": header["Machine"]})
        plt.close(figure)
