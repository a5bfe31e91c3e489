# SPDX-License-Identifier: MIT
"""The results as Markdown."""

import statistics

from plan import CONTESTANTS, LIMITS, MEASURES, OURS, PEERS, is_memory

AHEAD = 3.0  # Times the best peer...
NEAR = 1.5  # ...or the limit times this
SMALLER = 2.0  # In memory, times the best peer that keeps an object for each row
UNITS = ((1.0, "s"), (1e-3, "ms"), (1e-6, "µs"), (1e-9, "ns"))


def three_digits(number):
    return f"{number:.0f}" if number >= 100 else f"{number:.3g}"


def quantity(value, measure):
    if is_memory(measure):
        return three_digits(value)
    for size, unit in UNITS:
        if value >= size or unit == "ns":
            return f"{three_digits(value / size)} {unit}"
    raise AssertionError


def median(results, contestant, measure, rows):
    samples = results.samples.get((contestant, measure.name, rows))
    return statistics.median(samples) if samples else None


def is_over(results, contestant, measure, rows):
    return (contestant, measure.name, rows) in results.over


def best(results, contestants, measure, rows):
    values = [median(results, each, measure, rows) for each in contestants]
    return min((value for value in values if value is not None), default=None)


def is_ended(results, measure, rows):
    return (best(results, PEERS, measure, rows) is None and
            any(is_over(results, each, measure, rows) for each in PEERS))


def cell(results, contestant, measure, rows):
    samples = results.samples.get((contestant, measure.name, rows))
    if samples:
        middle = statistics.median(samples)
        spread = (max(samples) - min(samples)) / 2 / middle if middle else 0
        near = "" if is_memory(measure) else f" ±{100 * spread:.0f} %"
        return quantity(middle, measure) + near
    return f"> {results.settings.limit} s" if is_over(results, contestant, measure, rows) else "–"


def comparison(results, measure, rows):
    """How many times the best peer takes what we do, how many times we take the limit; or None.

    Where the time limit ended all peers, it stands for them. In memory, only peers count that keep
    an object for each row.
    """
    ours = median(results, OURS, measure, rows)
    peers = [each.name for each in CONTESTANTS if each.name in PEERS and
             (each.has_rows or not is_memory(measure))]
    peer = best(results, peers, measure, rows)
    if is_ended(results, measure, rows):
        peer = results.settings.limit
    limit = median(results, LIMITS[0], measure, rows)
    return (peer / ours if peer and ours else None, ours / limit if limit and ours else None)


def times(ratio):
    return "–" if ratio is None else f"{three_digits(ratio)}×"


def verdict(measure, ahead, behind):
    is_ahead = ahead is not None and ahead >= (SMALLER if is_memory(measure) else AHEAD)
    is_near = behind is not None and behind <= NEAR
    return "yes" if is_ahead or is_near else "**no**"


def markdown_row(cells):
    return "| " + " | ".join(cells) + " |\n"


def size_table(results, rows):
    titles = ["", *(each.title for each in CONTESTANTS), "best peer / ours", "ours / limit",
              f"{AHEAD:g}× (memory {SMALLER:g}×) or within {NEAR:g}"]
    text = f"## {rows:,} rows\n\n".replace(",", " ") + markdown_row(titles)
    text += markdown_row(["---"] + ["---:"] * (len(titles) - 1))
    for number, measure in enumerate(MEASURES, 1):
        ahead, behind = comparison(results, measure, rows)
        at_least = "> " if is_ended(results, measure, rows) else ""
        cells = (cell(results, each.name, measure, rows) for each in CONTESTANTS)
        reference = f" [{number}]" if measure.note else ""
        text += markdown_row([measure.title + reference, *cells, at_least + times(ahead),
                              times(behind), verdict(measure, ahead, behind)])
    return text + "\n"


def growth_table(results):
    """How many times the time grows from each size to the next."""
    steps = list(zip(results.settings.sizes, results.settings.sizes[1:]))
    if not steps:
        return ""
    titles = ["this library's growth", *(f"{a:,} to {b:,}".replace(",", " ") for a, b in steps)]
    text = markdown_row(titles) + markdown_row(["---"] + ["---:"] * len(steps))
    for measure in MEASURES:
        values = [[median(results, OURS, measure, rows) for rows in step] for step in steps]
        text += markdown_row([measure.title, *(times(b / a if a and b else None)
                                               for a, b in values)])
    return text + "\n"


def notes():
    lines = [f"{number}. **{measure.title}.** {measure.note}\n"
             for number, measure in enumerate(MEASURES, 1) if measure.note]
    return "".join(lines)


def render(results, header):
    text = "# Side by side\n\n"
    text += "".join(f"- {label}: {value}\n" for label, value in header.items()) + "\n"
    for rows in results.settings.sizes:
        text += size_table(results, rows)
    return text + growth_table(results) + notes()
