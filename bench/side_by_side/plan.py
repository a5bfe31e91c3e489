# SPDX-License-Identifier: MIT
"""Who is compared, at what, and what must be said about it."""

import dataclasses

OURS = "library"
LIMITS = ("limit", "key-limit")


@dataclasses.dataclass(frozen=True)
class Contestant:
    name: str  # Of its program, compare_...
    title: str
    colour: str
    marker: str
    breaks_ties: bool = True  # Rows with equal keys stand as those of the others do
    has_rows: bool = True  # Keeps an object for each row
    scenes: tuple = ()  # Empty: all
    measures: tuple = ()  # Empty: all


CONTESTANTS = (
    Contestant(OURS, "this library", "#111111", "D"),
    Contestant("qt", "Qt, own model", "#2a7d2e", "o", has_rows=False),
    Contestant("qt-standard", "Qt, standard model", "#8fce6b", "o", breaks_ties=False),
    Contestant("gtk", "GTK, own model", "#1f5fa8", "s"),
    Contestant("gtk-store", "GTK, list store", "#86b8ea", "s"),
    Contestant("limit", "limit", "#c8321e", "|"),
    Contestant("key-limit", "limit with keys", "#e8963c", "|", scenes=("show", "sort-number"),
               measures=("sort-name", "sort-number")),
)
PEERS = tuple(each.name for each in CONTESTANTS if each.name not in (OURS, *LIMITS))


@dataclasses.dataclass(frozen=True)
class Measure:
    name: str
    scene: str  # In which it is taken
    title: str
    note: str = ""  # Who does more or less
    sorts: bool = False  # The scene sorts by name first, unmeasured


# Those of a scene in the order in which they are taken.
MEASURES = (
    Measure("start", "show", "start-up, empty",
            "In a process that has used nothing of the contestant before. The limit makes "
            "nothing."),
    Measure("attach", "show", "build, attach and read all",
            "This library and GTK make an object for each row, the standard model four; Qt's own "
            "model makes none. This library makes an index from data to rows as well."),
    Measure("bytes-unsorted", "show", "bytes a row, read once",
            "This library and GTK keep an object for a row, the standard model four with a copy of "
            "the data; Qt's own model keeps none. This library's include an index from data to "
            "rows; the others look rows up by halves, which needs items in the order of their "
            "identities. The best peer is the best one that keeps objects."),
    Measure("sort-name", "show", "first sort by name",
            "The standard model has the proxy compare its copies of the texts regardless of case; "
            "equal ones stay as they stood. All others compare the data, and equal names by "
            "identity. GTK's string sorter asks each row for its text once and sorts keys of them. "
            "(With a custom sorter over the data it keeps a third less, and takes half as long "
            "again at a million rows.)"),
    Measure("bytes-sorted", "show", "bytes a row, sorted",
            "As above; GTK keeps a key of each text as well."),
    Measure("sort-number", "sort-number", "first sort by number",
            "Equal numbers are ordered by name and then by identity, other than in the standard "
            "model, where they stay as they stood."),
    Measure("read", "show", "read all, sorted",
            "A handle for each row, from which its cells can be asked: a row object that lasts as "
            "long as the row (this library), an index that lasts until the next change (Qt), an "
            "object (GTK), a pointer (limit)."),
    Measure("paint-again", "show", "paint 50 by 4 cells again",
            "Qt's texts are made from bytes at each call. In GTK each cell is bound by a signal of "
            "its column's factory, as a column view does it, though without its widgets. The limit "
            "reads the data."),
    Measure("paint-pages", "show", "paint the next 50 by 4 cells"),
    Measure("reverse", "show", "reverse and read all",
            "Qt and GTK sort again; GTK's sort finds the order reversed. Its string sorter has no "
            "direction: a custom sorter takes over."),
    Measure("change-unsorted", "change-unsorted", "10k come, 10k go, one by one",
            "Everything that sorts and selects is attached. The limit notes the deletions down and "
            "closes the holes at the end."),
    Measure("change-sorted", "change-sorted", "the same sorted, then read", sorts=True,
            note="Qt and GTK sort at each change, this library and the limit once, when read."),
    Measure("change-batch", "change-batch", "the same as one batch", sorts=True,
            note="This library finds out itself what has come and gone, and keeps rows and "
            "selection. Qt's and GTK's own models and the list store report all rows as new, which "
            "is quicker than each row by itself but forgets what was selected. The standard model "
            "follows unsorted, and is sorted at the end."),
    Measure("rename-each", "rename-each", "1 % renamed one by one, then read", sorts=True,
            note="Qt and GTK move each row; this library is told of each, and moves the rows when "
            "it is told that the burst is over."),
    Measure("rename-batch", "rename-batch", "1 % renamed as one batch, then read", sorts=True,
            note="Qt's proxy is set to follow unsorted and sorts at the end; in GTK a sorter "
            "without keys takes over."),
    Measure("select", "select", "select a tenth (at most 100k), ask all, clear",
            "Unsorted rows, selected by their data. Qt's own model reads the ranges that are "
            "selected; all others ask row by row."),
    Measure("tear-down", "show", "tear-down, sorted"),
)
SCENES = tuple(dict.fromkeys(measure.scene for measure in MEASURES))


def is_memory(measure):
    return measure.name.startswith("bytes")
