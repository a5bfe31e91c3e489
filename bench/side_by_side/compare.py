#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures all contestants at the same work, one process for each sample.

Writes results.jsonl (each sample), results.md (medians and spread) and results.svg. Status 1 if two
contestants that should have done the same did not.
"""

import argparse
import collections
import dataclasses
import datetime
import json
import os
import pathlib
import platform
import signal
import subprocess
import sys
import time

import chart
import table
from plan import CONTESTANTS, MEASURES, OURS, SCENES

LOCALE = "C.UTF-8"


@dataclasses.dataclass
class Settings:
    sizes: tuple
    samples: int
    limit: int  # Seconds of processor time for a measurement


FULL = Settings((10_000, 100_000, 1_000_000), 5, 10)
QUICK = Settings((10_000, 100_000), 3, 3)


class Results:
    """Samples by (contestant, measure, rows)."""

    def __init__(self, settings):
        self.settings = settings
        self.samples = collections.defaultdict(list)
        self.over = set()  # Ended by the limit
        self.left_out = set()  # Not tried, because sorting is over the limit
        self.checks = {}  # Of the first contestant, by (measure, rows)
        self.differences = []

    def add(self, contestant, rows, record):
        measure = record["measure"]
        if contestant.measures and measure not in contestant.measures:
            return
        self.samples[contestant.name, measure, rows].append(record["value"])
        expected = self.checks.setdefault((measure, rows), record["check"])
        if record["check"] != expected:
            self.differences.append(f"{contestant.name} {measure} {rows}: another result")
        if contestant.breaks_ties and not record["ties"]:
            self.differences.append(f"{contestant.name} {measure} {rows}: ties in another order")

    def measures_missing(self, contestant, scene, rows):
        return [measure.name for measure in MEASURES
                if measure.scene == scene and (contestant.name, measure.name, rows)
                not in self.samples]


def environment():
    """For each process: a known locale, and nothing of the user's that changes what is measured."""
    kept = {key: os.environ[key] for key in ("PATH", "HOME") if key in os.environ}
    return kept | {"LC_ALL": LOCALE, "LANG": LOCALE}


def play(program, scene, rows, limit):
    """The records of a scene, and whether the limit ended it."""
    done = subprocess.run(
        [program, "--scene", scene, "--rows", str(rows), "--limit", str(limit)],
        stdout=subprocess.PIPE, env=environment(), check=False, text=True)
    if done.returncode not in (0, -signal.SIGPROF):
        sys.exit(f"{program} --scene {scene} --rows {rows}: status {done.returncode}")
    return [json.loads(line) for line in done.stdout.splitlines()], done.returncode != 0


def is_tried(results, contestant, scene, rows):
    if contestant.scenes and scene not in contestant.scenes:
        return False
    key = (contestant.name, scene, rows)
    if key in results.over and scene != "show":
        return False
    sorts = any(measure.sorts for measure in MEASURES if measure.scene == scene)
    if sorts and (contestant.name, "sort-name", rows) in results.over:
        results.left_out.add(key)
        return False
    return True


def take(results, programs, raw, contestant, scene, rows, round_number):
    records, is_over = play(programs / f"compare_{contestant.name}", scene, rows,
                            results.settings.limit)
    for record in records:
        results.add(contestant, rows, record)
        raw.write(json.dumps({"contestant": contestant.name, "rows": rows, "round": round_number}
                             | record) + "\n")
    if is_over:
        missing = results.measures_missing(contestant, scene, rows)
        results.over.add((contestant.name, scene, rows))
        results.over.update((contestant.name, measure, rows) for measure in missing[:1])
        results.left_out.update((contestant.name, measure, rows) for measure in missing[1:])
        raw.write(json.dumps({"contestant": contestant.name, "rows": rows, "round": round_number,
                              "measure": missing[0] if missing else None,
                              "over": results.settings.limit}) + "\n")


def measure_all(settings, programs, raw):
    """In each round each contestant in turn, beginning with another one each time."""
    results = Results(settings)
    started = time.monotonic()
    for round_number in range(settings.samples):
        for rows in settings.sizes:
            for number, scene in enumerate(SCENES):
                first = (round_number + number) % len(CONTESTANTS)
                for contestant in CONTESTANTS[first:] + CONTESTANTS[:first]:
                    if is_tried(results, contestant, scene, rows):
                        take(results, programs, raw, contestant, scene, rows, round_number)
        print(f"round {round_number + 1} of {settings.samples}: "
              f"{time.monotonic() - started:.0f} s", file=sys.stderr, flush=True)
    return results


def first_line(*command):
    try:
        done = subprocess.run(command, capture_output=True, check=False, text=True)
    except FileNotFoundError:
        return ""
    return done.stdout.partition("\n")[0]


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.processor()


def describe(settings, programs, core):
    """What was measured, where and how: label and text."""
    version = {each.name: first_line(programs / f"compare_{each.name}") for each in CONTESTANTS}
    system = platform.freedesktop_os_release().get("PRETTY_NAME", platform.system())
    glib = first_line("pkg-config", "--modversion", "glib-2.0")
    return {
        "Date": datetime.date.today().isoformat(),
        "Machine": f"{processor()}, {os.cpu_count()} cores, {system}, "
                   f"Linux {platform.release()}",
        "Compiler": f"{first_line('c++', '--version')}, preset `compare`",
        "Versions": f"{version[OURS]}, {version['qt']}, {version['gtk']} with GLib {glib}",
        "Locale": LOCALE,
        "Samples": f"{settings.samples} for each figure, each from a process of its own on core "
                   f"{core}, contestants by turns; the median, and half of the way between slowest "
                   "and fastest. Times are processor time; a measurement is ended after "
                   f"{settings.limit} s, and what needs it first is left out (–).",
    }


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/compare", description=__doc__)
    parser.add_argument("--quick", action="store_true", help="fewer rows and samples")
    parser.add_argument("--samples", type=int, help="how often each figure is taken")
    parser.add_argument("--rows", type=int, nargs="+", help="the numbers of rows")
    parser.add_argument("--core", type=int, default=max(os.sched_getaffinity(0)),
                        help="the processor core that is used (default: %(default)s)")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="where the results go")
    parser.add_argument("--programs", type=pathlib.Path, required=True,
                        help="where the programs are")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    settings = dataclasses.replace(QUICK if arguments.quick else FULL)
    settings.samples = arguments.samples or settings.samples
    settings.sizes = tuple(arguments.rows or settings.sizes)
    programs = arguments.programs
    arguments.out.mkdir(parents=True, exist_ok=True)
    os.sched_setaffinity(0, {arguments.core})  # Of what is started, too
    with open(arguments.out / "results.jsonl", "w", encoding="utf-8") as raw:
        results = measure_all(settings, programs, raw)
    header = describe(settings, programs, arguments.core)
    (arguments.out / "results.md").write_text(table.render(results, header), encoding="utf-8")
    chart.draw(results, header, arguments.out / "results.svg")
    for difference in dict.fromkeys(results.differences):
        print(f"bench/compare: {difference}", file=sys.stderr)
    print(f"bench/compare: wrote {arguments.out}/results.jsonl, .md and .svg", file=sys.stderr)
    return 1 if results.differences else 0


if __name__ == "__main__":
    sys.exit(main())
