# SPDX-License-Identifier: MIT

"""Times an import of assays by a program and by the shell of SQLite, alternately, and prints the
medians as a table. Both put the same columns of the same file into a table of the same kind."""

import pathlib
import random
import statistics
import subprocess
import sys
import time

RUNS = 5
HOLES = 500
TABLES = """
create table collar (holename text not null, easting double precision not null,
    northing double precision not null, elevation double precision, length double precision,
    primary key (holename));
create table assay (holename text not null, fromdepth double precision not null,
    todepth double precision not null, au_gt double precision, cu_pct double precision,
    zn_pct double precision, duplicate text, blank text, standard text);
"""


def write_assays(path, rows):
    draw = random.Random(7)
    per_hole = rows // HOLES
    with open(path, "w") as file:
        file.write("BHID,FROM,TO,Au,Cu,Zn,DUP,BLANK,STD\n")
        for row in range(rows):
            hole, depth = divmod(row, per_hole)
            file.write(
                f'"LR-{hole:03}",{depth}.0,{depth + 1}.0,{draw.expovariate(1):.2f},'
                f"{draw.random():.2f},{draw.random():.2f},{'yes' if row % 20 == 0 else ''},,\n"
            )


def new_database(path):
    path.unlink(missing_ok=True)
    holes = ",".join(f"('LR-{hole:03}', {hole}, {hole}, 0, 0)" for hole in range(HOLES))
    subprocess.run(["sqlite3", path, f"{TABLES} insert into collar values {holes};"], check=True)


def timed(command):
    start = time.monotonic()
    out = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return time.monotonic() - start, out


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    database = folder / "holes.sqlite"
    print("\n| Rows | Program | Rows a second | Shell | Ratio | Peak memory | Longest wait |")
    print("|--:|--:|--:|--:|--:|--:|--:|")
    for rows in (10_000, 1_000_000):
        file = folder / "assays.csv"
        write_assays(file, rows)
        ours, shells, peaks, waits = [], [], [], []
        for _ in range(RUNS):
            new_database(database)
            seconds, out = timed([program, file, database])
            taken, peak, wait = map(int, out.split())
            assert taken == rows, out
            ours.append(seconds)
            peaks.append(peak)
            waits.append(wait)
            new_database(database)
            seconds, _ = timed(["sqlite3", database, f".import --csv --skip 1 {file} assay"])
            shells.append(seconds)
        own, shell = statistics.median(ours), statistics.median(shells)
        print(
            f"| {rows:,} | {own:.2f} s | {rows / own:,.0f} | {shell:.2f} s | {own / shell:.2f} "
            f"| {max(peaks) / 1024:.0f} MB | {max(waits)} ms |"
        )
    print()


if __name__ == "__main__":
    main()
