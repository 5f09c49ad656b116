# SPDX-License-Identifier: MIT

"""Times an import of assays by a program and by the shell of SQLite, alternately, then by the
program and by \\copy in the shell of PostgreSQL, and prints the medians with their spread as a
table. Both put the same columns of the same file into a table of the same kind. The variables of
PostgreSQL's tools say where its server is."""

import os
import pathlib
import random
import statistics
import subprocess
import sys
import time

RUNS = 3
HOLES = 500
ELEMENTS = ("au_gt", "cu_pct", "zn_pct", "ag_gt", "pb_pct", "fe_pct", "ni_pct", "mo_ppm", "as_ppm")
TABLES = f"""
create table collar (holename text not null, easting double precision not null,
    northing double precision not null, elevation double precision, length double precision,
    primary key (holename));
create table assay (holename text not null, fromdepth double precision not null,
    todepth double precision not null, {" double precision, ".join(ELEMENTS)} double precision,
    duplicate text, blank text, standard text);
"""


def write_assays(path, rows):
    draw = random.Random(7)
    per_hole = rows // HOLES
    with open(path, "w") as file:
        file.write(f"BHID,FROM,TO,{','.join(ELEMENTS)},DUP,BLANK,STD\n")
        for row in range(rows):
            hole, depth = divmod(row, per_hole)
            grades = ",".join(f"{draw.random():.2f}" for _ in ELEMENTS)
            duplicate = "yes" if row % 20 == 0 else ""
            file.write(f'"LR-{hole:03}",{depth}.0,{depth + 1}.0,{grades},{duplicate},,\n')


def with_collars():
    holes = ",".join(f"('LR-{hole:03}', {hole}, {hole}, 0, null)" for hole in range(HOLES))
    return f"{TABLES} insert into collar values {holes};"


class Sqlite:
    name = "SQLite"

    def __init__(self, folder):
        self.database = folder / "holes.sqlite"

    def make_anew(self):
        self.database.unlink(missing_ok=True)
        self.ask(with_collars())

    def ask(self, commands):
        subprocess.run(["sqlite3", self.database, commands], check=True)

    def copy(self, file):
        self.ask(f".import --csv --skip 1 {file} assay")


class Postgres:
    name = "PostgreSQL"

    def __init__(self, _):
        settings = {"host": "PGHOST", "port": "PGPORT", "user": "PGUSER", "password": "PGPASSWORD",
                    "dbname": "PGDATABASE"}
        self.database = "postgresql://" + " ".join(
            f"{name}={os.environ[variable]}" for name, variable in settings.items()
        )

    def make_anew(self):
        self.ask("drop table if exists collar, assay")
        self.ask(with_collars())

    def ask(self, commands):
        subprocess.run(["psql", "-q", "-v", "ON_ERROR_STOP=1", "-c", commands], check=True,
                       stderr=subprocess.DEVNULL)

    def copy(self, file):
        self.ask(f"\\copy assay from '{file}' with (format csv, header)")


def timed(work, *arguments, **options):
    start = time.monotonic()
    result = work(*arguments, **options)
    return time.monotonic() - start, result


def spread(seconds):
    return f"{statistics.median(seconds):.2f} s ({min(seconds):.2f} to {max(seconds):.2f})"


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    print("\n| Database | Rows | Program | Rows a second | Its shell | Ratio | Peak memory "
          "| Longest wait |")
    print("|---|--:|--:|--:|--:|--:|--:|--:|")
    for target, rows in ((Sqlite, 10_000), (Sqlite, 1_000_000), (Sqlite, 5_000_000),
                         (Postgres, 1_000_000)):
        database = target(folder)
        file = folder / "assays.csv"
        write_assays(file, rows)
        ours, shells, peaks, waits = [], [], [], []
        for _ in range(RUNS):
            database.make_anew()
            seconds, done = timed(subprocess.run, [program, file, database.database], check=True,
                                  capture_output=True, text=True)
            taken, peak, wait = map(int, done.stdout.split())
            assert taken == rows, done
            ours.append(seconds)
            peaks.append(peak)
            waits.append(wait)
            database.make_anew()
            shells.append(timed(database.copy, file)[0])
        own, shell = statistics.median(ours), statistics.median(shells)
        print(
            f"| {database.name} | {rows:,} | {spread(ours)} | {rows / own:,.0f} "
            f"| {spread(shells)} | {own / shell:.2f} | {max(peaks) / 1024:.0f} MB | {max(waits)} ms |",
            flush=True,
        )
    print()


if __name__ == "__main__":
    main()
