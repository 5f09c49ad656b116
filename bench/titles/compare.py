# SPDX-License-Identifier: MIT

"""Matches application columns to the title lines of drill-hole files, by this library and as other
importers do, and writes how many are right, missed and wrong into a document.

    compare.py WORDS DOCUMENT
    compare.py --check ...   changes nothing, and fails if the document has another table
"""

import csv
import pathlib
import sys
from dataclasses import astuple, dataclass, field
from functools import lru_cache

import columnimport
import Levenshtein
from columnimport import Column, Origin
from thefuzz import fuzz

HERE = pathlib.Path(__file__).parent
BEGIN = "<!-- title lines -->\n"
END = "<!-- end of title lines -->\n"

TABLES = {
    "collar": ["holename", "easting", "northing", "elevation", "length"],
    "survey": ["holename", "depth", "azimuth", "dip"],
    "assay": ["holename", "fromdepth", "todepth", "Au g/t", "Cu %", "Zn %"],
}


@dataclass(frozen=True)
class Line:
    """A title line, and for each application column the positions that are right, None for none."""

    columns: list
    titles: list
    answers: list


@dataclass
class Words:
    """The other words of each application column, and the columns that refuse similar names."""

    of: dict = field(default_factory=dict)
    grades: set = field(default_factory=set)


@dataclass
class Tally:
    right: int = 0
    missed: int = 0
    wrong: int = 0
    wrong_guesses: int = 0
    wrong_grades: int = 0

    def add(self, answer, position, is_guess, is_grade):
        if position is None:
            self.missed += None not in answer
        elif position in answer:
            self.right += 1
        else:
            self.wrong += 1
            self.wrong_guesses += is_guess
            self.wrong_grades += is_grade


def read_lines(path):
    with open(path, encoding="utf-8") as file:
        rows = csv.DictReader((row for row in file if not row.startswith("#")), delimiter=";")
        return [
            Line(
                TABLES[row["table"]],
                row["titles"].split(","),
                [
                    {None if one == "-" else int(one) for one in answer.split("|")}
                    for answer in row["answer"].split(",")
                ],
            )
            for row in rows
        ]


def read_words(path):
    words = Words()
    in_grades = False
    with open(path, encoding="utf-8") as file:
        for line in file:
            name, found, listed = line.partition(" = ")
            if line.startswith("["):
                in_grades = line.strip() == "[grades]"
            elif found and not line.startswith("#"):
                words.of[name] = [word.strip() for word in listed.split(",")]
                if in_grades:
                    words.grades.add(name)
    return words


def by_the_library(words):
    """Position and whether it is a guess, for each column."""

    def match(line):
        columns = [
            Column(name, alternatives=words.of.get(name, []), similar=name not in words.grades)
            for name in line.columns
        ]
        for found in columnimport.propose(columns, line.titles).matches:
            yield (None, False) if found is None else (found.position, found.origin is Origin.SIMILAR)

    return match


def by_the_best_pairs(words, score, least):
    """Pairs the two that fit best, then the next ones, as long as they score `least`."""

    def match(line):
        pairs = [
            (-max(score(name, title) for name in [column, *words.of.get(column, [])]), app, position)
            for app, column in enumerate(line.columns)
            for position, title in enumerate(line.titles)
        ]
        positions = {}
        for negative, app, position in sorted(pairs):
            if -negative >= least and app not in positions and position not in positions.values():
                positions[app] = position
        for app in range(len(line.columns)):
            yield positions.get(app), False

    return match


def tally(lines, match, grades):
    result = Tally()
    for line in lines:
        for column, answer, (position, is_guess) in zip(line.columns, line.answers, match(line)):
            result.add(answer, position, is_guess, column in grades)
    return result


def equality(a, b):
    return a.lower() == b.lower()


def edit_distance(a, b):
    return -Levenshtein.distance(a.lower(), b.lower())


# How other importers score two names, and the thresholds to try.
ELSEWHERE = {
    "the same in small letters": (equality, [1]),
    "edit distance of at most {}": (edit_distance, range(-8, 1)),
    "token ratio of at least {}": (lru_cache(None)(fuzz.token_set_ratio), range(30, 101)),
}


def threshold_for(lines, score, tried, words):
    """The least score that serves best: with the most that is right over what is wrong."""

    def gain(least):
        result = tally(lines, by_the_best_pairs(words, score, least), words.grades)
        return result.right - result.wrong

    return max(tried, key=gain)


def matchers(public, words):
    """By name and in the order of the table; thresholds are fitted to the public lines."""
    for known, given in ((Words(), "names alone"), (words, "with the words")):
        yield f"**this library**, {given}", by_the_library(known)
        for name, (score, tried) in ELSEWHERE.items():
            least = threshold_for(public, score, tried, known)
            yield f"{name.format(abs(least))}, {given}", by_the_best_pairs(known, score, least)


def table(words):
    sets = [read_lines(HERE / name) for name in ("public.csv", "ours.csv")]
    head = "| "
    for title, lines in zip(("Public", "Ours"), sets):
        belonging = sum(answer != {None} for line in lines for answer in line.answers)
        head += f"| {title}: right of {belonging} | missed | wrong | as guesses | grades "
    yield head + "|"
    yield "|---" + "|--:" * 10 + "|"
    for name, match in matchers(sets[0], words):
        cells = [cell for lines in sets for cell in astuple(tally(lines, match, words.grades))]
        yield f"| {name} | " + " | ".join(map(str, cells)) + " |"


def main():
    only_check = "--check" in sys.argv
    words_path, document = (pathlib.Path(path) for path in sys.argv[1 + only_check:])
    page = document.read_text(encoding="utf-8")
    before, begin, rest = page.partition(BEGIN)
    _, end, after = rest.partition(END)
    lines = "\n".join(table(read_words(words_path)))
    renewed = f"{before}{begin}{lines}\n{end}{after}"
    print(lines)
    if not only_check:
        document.write_text(renewed, encoding="utf-8")
    elif renewed != page:
        sys.exit(f"{document} has another table: run bench/titles/run")


main()
