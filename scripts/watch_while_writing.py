#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a database as fast as it can while zbbrowse watches it.

    watch_while_writing.py [--program ZBBROWSE] [--seconds N] [--seed S]

Half of the time with a rollback journal, half with a write-ahead log. Each row that is told as
created must not be there yet, each that is told as deleted or updated must be; at the end the rows
that were told must be those of the table, and the last one must have been told within a second.
Ends with what was wrong and status 1.
"""

import argparse
import json
import pathlib
import random
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

IDS = 2000
LAST = "last"


def write(database, rng, seconds):
    """Commits for so long; gives the number of commits."""
    commits = 0
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        key = rng.randrange(IDS)
        kind = rng.random()
        if kind < 0.4:
            database.execute("INSERT OR IGNORE INTO part VALUES (?, ?, 0)", (key, f"row {key}"))
        elif kind < 0.7:
            database.execute("DELETE FROM part WHERE id = ?", (key,))
        else:
            database.execute("UPDATE part SET mass = mass + 1 WHERE id = ?", (key,))
        commits += 1
    return commits


def replay(lines):
    """The names that are there after what the lines tell."""
    names = set()
    for line in lines:
        change = json.loads(line)
        name = change["name"]
        if (change["change"] == "created") == (name in names):
            raise AssertionError(f"told of a row as if it were otherwise: {line}")
        if change["change"] == "created":
            names.add(name)
        elif change["change"] == "deleted":
            names.remove(name)
    return names


def wait_for_last(output):
    """Seconds until the last row was told."""
    start = time.monotonic()
    while f'"{LAST}"' not in output.read_text():
        if time.monotonic() - start > 30:
            raise AssertionError("the last row was never told")
        time.sleep(0.01)
    return time.monotonic() - start


def check(arguments, folder, journal, rng):
    file, output = folder / f"{journal}.db", folder / f"{journal}.jsonl"
    database = sqlite3.connect(file, timeout=30, isolation_level=None)
    database.execute(f"PRAGMA journal_mode = {journal}")
    database.execute("PRAGMA synchronous = OFF")
    database.execute("CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT, mass)")
    command = [arguments.program, file, "--watch", "--format", "jsonl"]
    with output.open("wb") as lines:
        watch = subprocess.Popen(command, stdout=lines, stderr=subprocess.PIPE)
    try:
        watch.stderr.readline()  # It says when it has begun.
        commits = write(database, rng, arguments.seconds / 2)
        database.execute("INSERT INTO part VALUES (?, ?, 0)", (IDS, LAST))
        delay = wait_for_last(output)
        watch.send_signal(signal.SIGTERM)
        status = watch.wait(10)
    finally:
        watch.kill()
    told = output.read_text().splitlines()
    rows = {name for (name,) in database.execute("SELECT name FROM part")}
    assert replay(told) == rows, "the rows that were told are not those of the table"
    assert delay < 1, f"the last row was told after {delay:.1f} s"
    assert status == 128 + signal.SIGTERM, f"exit status {status}"
    print(f"{journal}: {commits} commits, {len(told)} lines, the last after {delay:.2f} s")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default="build/run/host/zbbrowse/zbbrowse")
    parser.add_argument("--seconds", type=float, default=60)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        for journal in ("delete", "wal"):
            try:
                check(arguments, pathlib.Path(folder), journal, random.Random(arguments.seed))
            except AssertionError as error:
                print(f"{journal}, seed {arguments.seed}: {error}", file=sys.stderr)
                return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
