#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the order in which zbbrowse shows rows with that of SQL.

    compare_order.py [--program ZBBROWSE] DATABASE...

Each list of each database is sorted by each of its columns in both directions, and must come as
ORDER BY gives it: numbers by size, null first, text without regard to ASCII case and then by bytes;
ties by the row's name in the same way, and then by the row's place in an unsorted SELECT. Ends
with the first difference and status 1; status 2 is trouble of another kind.
"""

import argparse
import base64
import json
import pathlib
import sqlite3
import subprocess
import sys
import time

NAMING_COLUMNS = ("name", "title", "label", "caption")
NO_NAME = "(no name)"  # What zbbrowse calls a column without one.
ROWID_NAMES = ("rowid", "_rowid_", "oid")


class Difference(Exception):
    pass


def quote(name):
    return '"' + name.replace('"', '""') + '"'


def has_text_affinity(declared_type):
    declared_type = declared_type.upper()
    if "INT" in declared_type:
        return False
    return any(word in declared_type for word in ("CHAR", "CLOB", "TEXT"))


class List:
    """One table or view, with its rows in a table without types beside their place."""

    def __init__(self, database, name):
        self.name = name
        kind, without_rowid = database.execute(
            "SELECT type, wr FROM pragma_table_list WHERE schema = 'main' AND name = ?", (name,)
        ).fetchone()
        columns = database.execute(
            "SELECT name, type, pk FROM pragma_table_xinfo(?) WHERE hidden <> 1", (name,)
        ).fetchall()
        self.columns = [column[0] for column in columns]
        self.naming = self.find_naming(columns, kind)
        self.loaded = sqlite3.connect(":memory:", isolation_level=None)
        self.load(database, rowid=not self.naming and kind != "view" and not without_rowid)

    @staticmethod
    def find_naming(columns, kind):
        """The columns that make the name of a row; none if the rowid or the place does."""
        for wanted in NAMING_COLUMNS:
            for i, (name, _, _) in enumerate(columns):
                if name.lower() == wanted:
                    return [i]
        for i, (_, declared_type, _) in enumerate(columns):
            if has_text_affinity(declared_type):
                return [i]
        for i, (_, declared_type, _) in enumerate(columns):
            if kind in ("view", "virtual") and not declared_type:
                return [i]
        key = [(place, i) for i, (_, _, place) in enumerate(columns) if place > 0]
        return [i for _, i in sorted(key)]

    def load(self, database, rowid):
        values = [f"s.{quote(name)}" for name in self.columns]
        if rowid:
            taken = {name.lower() for name in self.columns}
            values += [f"s.{name}" for name in ROWID_NAMES if name not in taken][:1]
        if len(values) > len(self.columns):
            self.naming = [len(self.columns)]
        rows = database.execute(f"SELECT {', '.join(values)} FROM {quote(self.name)} AS s").fetchall()
        self.rows = [[comparable(value) for value in row[: len(self.columns)]] for row in rows]

        cells = ", ".join(f"c{i}" for i in range(len(values)))
        marks = ", ".join("?" for _ in values)
        self.loaded.execute(f"CREATE TABLE loaded(place INTEGER PRIMARY KEY, {cells})")
        self.loaded.executemany(f"INSERT INTO loaded({cells}) VALUES ({marks})", rows)
        for place, row in enumerate(rows, 1):
            for i, value in enumerate(row):
                if isinstance(value, Bytes):
                    change = f"UPDATE loaded SET c{i} = CAST(c{i} AS TEXT) WHERE place = ?"
                    self.loaded.execute(change, (place,))

    def sorted_by(self, column, direction):
        """The rows as SQL sorts them."""
        keys = []
        for i in [column, *self.naming]:
            keys += [f"c{i} COLLATE NOCASE {direction}", f"c{i} COLLATE BINARY {direction}"]
        keys.append(f"place {direction}")
        places = self.loaded.execute(f"SELECT place FROM loaded ORDER BY {', '.join(keys)}")
        return [self.rows[place - 1] for (place,) in places]


class Bytes(bytes):
    """A text that is not UTF-8."""


def read_text(text):
    try:
        return text.decode()
    except UnicodeDecodeError:
        return Bytes(text)


def comparable(value):
    """A value of SQL as it comes out of the JSON of zbbrowse; reals by all of their bits."""
    if isinstance(value, float):
        if value in (float("inf"), float("-inf")):
            return {"$real": "Inf" if value > 0 else "-Inf"}
        return read_real(value)
    if isinstance(value, bytes):
        key = "$bytes" if isinstance(value, Bytes) else "$blob"
        return {key: base64.b64encode(value).decode()}
    return value


def read_real(text):
    return ("real", float(text).hex())


class Program:
    def __init__(self, path, file):
        self.command = [path, "--", file]

    def run(self, *options):
        command = [self.command[0], *options, *self.command[1:]]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def list_names(self):
        result = self.run("--limit=0", "--format=jsonl")
        return [json.loads(line)["list"] for line in result.stdout.splitlines()]

    def sorted_by(self, name, column, direction):
        """The columns and the rows as zbbrowse sorts them."""
        result = self.run(f"--list={name}", f"--sort={column}:{direction}", "--format=json")
        if result.returncode != 0:
            raise Difference(f"status {result.returncode}: {result.stderr.strip()}")
        rows = [row["columns"] for row in json.loads(result.stdout, parse_float=read_real)]
        return (list(rows[0]) if rows else None), [list(row.values()) for row in rows]


def compare_rows(expected, shown):
    if len(expected) != len(shown):
        raise Difference(f"{len(shown)} rows, SQL has {len(expected)}")
    for number, (wanted, row) in enumerate(zip(expected, shown), 1):
        if wanted != row:
            raise Difference(f"row {number} is\n  {row}\nand in SQL\n  {wanted}")


def compare_list(program, rows_of):
    for i, column in enumerate(rows_of.columns):
        if not column:
            continue  # --sort takes no empty name.
        for direction in ("asc", "desc"):
            try:
                columns, shown = program.sorted_by(rows_of.name, column, direction)
                titles = [name or NO_NAME for name in rows_of.columns]
                if columns is not None and columns != titles:
                    raise Difference(f"columns are {columns}")
                compare_rows(rows_of.sorted_by(i, direction), shown)
            except Difference as difference:
                place = f"{rows_of.name}, {column} {direction}"
                raise Difference(f"{place}: {difference}") from None


def compare(file, path):
    started = time.monotonic()
    program = Program(path, file)
    database = sqlite3.connect(pathlib.Path(file).resolve().as_uri() + "?mode=ro", uri=True)
    database.text_factory = read_text
    names = program.list_names()
    known = "SELECT name FROM pragma_table_list WHERE schema = 'main' AND name <> 'sqlite_schema'"
    missing = {name for (name,) in database.execute(known)} ^ set(names)
    if missing:
        raise Difference(f"lists and tables differ: {sorted(missing)}")

    columns = rows = 0
    unreadable = []
    for name in names:
        try:
            rows_of = List(database, name)
        except sqlite3.OperationalError:
            if program.run(f"--list={name}").returncode == 0:
                raise Difference(f"{name}: can be shown, but SQL cannot read it") from None
            unreadable.append(name)
            continue
        compare_list(program, rows_of)
        columns += len(rows_of.columns)
        rows += len(rows_of.rows)
    seconds = time.monotonic() - started
    note = f"; unreadable: {', '.join(unreadable)}" if unreadable else ""
    count = len(names) - len(unreadable)
    print(f"{file}: {count} lists, {columns} columns, {rows} rows the same, {seconds:.1f} s{note}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default="build/run/host/zbbrowse/zbbrowse")
    parser.add_argument("databases", nargs="+", metavar="DATABASE")
    arguments = parser.parse_args()
    for file in arguments.databases:
        try:
            compare(file, arguments.program)
        except Difference as difference:
            print(f"{file}: {difference}", file=sys.stderr)
            return 1
        except (OSError, sqlite3.Error) as error:
            print(f"{file}: {error}", file=sys.stderr)
            return 2
    return 0


if __name__ == "__main__":
    sys.exit(main())
