# SPDX-License-Identifier: MIT
"""A host that reads the rows of a file by a proposal: python3 python_host.py FILE"""

import csv
import sys
from typing import Dict, Iterator

import columnimport
from columnimport import Column

COLUMNS = [
    Column("holename", required=True),
    Column("easting", alternatives=["X_MGA"]),
    Column("dip", similar=False),
]


def rows(path: str) -> Iterator[Dict[str, str]]:
    delimiter = columnimport.likely_delimiter(path) or ","
    result = columnimport.propose(COLUMNS, path, delimiter)
    with open(path, newline="", encoding="utf-8-sig") as file:
        reader = csv.reader(file, delimiter=delimiter)
        next(reader)
        for row in reader:
            yield {
                column.name: row[match.field]
                for column, match in zip(COLUMNS, result.matches)
                if match is not None and match.field is not None
            }


if __name__ == "__main__":
    for row in rows(sys.argv[1]):
        print(row)
