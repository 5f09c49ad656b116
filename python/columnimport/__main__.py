# SPDX-License-Identifier: MIT
"""An import on the command line, or for a host that has the dialog in a process of its own."""

from __future__ import annotations

import argparse
import io
import json
import sys
from typing import Any, Dict, List, Sequence

from . import Column, Error, Match, Result, likely_delimiter, propose, show, version

FITS, MISSES, FAILED, CANCELLED = range(4)

_EPILOG = """exit status: 0; 1 if a required column has no match; 2 if the file can't be read, the dialog
can't be shown, or an argument is wrong; 3 if the person cancelled"""


def main(arguments: Sequence[str] | None = None) -> int:
    parser = _parser()
    options = parser.parse_args(arguments)
    try:
        columns = _columns(options)
        result = _run(options, columns)
    except ValueError as error:
        parser.error(str(error))
    except Error as error:
        print(error, file=sys.stderr)
        return FAILED
    if isinstance(sys.stdout, io.TextIOWrapper):
        sys.stdout.reconfigure(errors="backslashreplace")
    print(_json(columns, result) if options.json else _table(columns, result))
    if result.problem is not None:
        print(f"{options.file}: {result.problem}", file=sys.stderr)
        return FAILED
    if not result.accepted:
        return CANCELLED
    missing = [c.name for c, match in zip(columns, result.matches) if c.required and match is None]
    for name in missing:
        print(f"{name} is required and has no match", file=sys.stderr)
    return MISSES if missing else FITS


def _parser() -> argparse.ArgumentParser:
    parser = argparse.ArgumentParser(
        prog="python -m columnimport",
        description="Proposes which columns of a delimited file fit those of an application.",
        epilog=_EPILOG,
    )
    parser.add_argument("file", metavar="FILE", help="the delimited file")
    add = parser.add_argument
    add("--columns", metavar="A,B,...", type=_names, required=True, help="the application's columns")
    add("--required", metavar="A,...", type=_names, default=[], help="those that need a match")
    add("--exact", metavar="A,...", type=_names, default=[], help="those that take no similar name")
    add(
        "--alternative",
        metavar="A=WORD",
        type=_alternative,
        action="append",
        default=[],
        help="another word for a column; may be given more than once",
    )
    add(
        "--delimiter",
        metavar="BYTE",
        type=_delimiter,
        default=",",
        help="one byte, the word tab, or the word auto: what the first line was likely written with",
    )
    add("--no-titles", action="store_true", help="the first line holds no titles")
    add("--json", action="store_true", help="print JSON instead of a table")
    add("--show", action="store_true", help="show the dialog, and print what a person made of it")
    add("--title", default="", help="the title of the dialog")
    add(
        "--x11-window",
        metavar="NUMBER",
        type=_number,
        help="the window of X11 that the dialog belongs to",
    )
    add("--version", action="version", version=version())
    return parser


def _names(text: str) -> List[str]:
    return [name.strip() for name in text.split(",")]


def _alternative(text: str) -> List[str]:
    column, equals, word = text.partition("=")
    if not equals:
        raise argparse.ArgumentTypeError(f"{text!r} is no COLUMN=WORD")
    return [column.strip(), word]


def _number(text: str) -> int:
    return int(text, 0)


def _delimiter(text: str) -> str:
    return "\t" if text in ("tab", "\\t") else text


def _columns(options: argparse.Namespace) -> List[Column]:
    words: Dict[str, List[str]] = {name: [] for name in options.columns}
    for name in [*options.required, *options.exact, *(name for name, _ in options.alternative)]:
        if name not in words:
            raise ValueError(f"{name!r} is none of the columns")
    for name, word in options.alternative:
        words[name].append(word)
    return [
        Column(name, words[name], required=name in options.required, similar=name not in options.exact)
        for name in options.columns
    ]


def _run(options: argparse.Namespace, columns: Sequence[Column]) -> Result:
    delimiter = options.delimiter
    if delimiter == "auto":
        delimiter = likely_delimiter(options.file) or ","
    titles = not options.no_titles
    if not options.show:
        return propose(columns, options.file, delimiter, titles)
    return show(
        columns,
        options.file,
        title=options.title,
        delimiter=delimiter,
        titles=titles,
        x11_window=options.x11_window,
    )


def _entry(column: Column, match: Match | None) -> Dict[str, Any]:
    return {
        "column": column.name,
        "name": match and match.name,
        "position": match and match.position,
        "field": match and match.field,
        "origin": match and match.origin.name.lower(),
        "score": match and match.score,
    }


def _json(columns: Sequence[Column], result: Result) -> str:
    """The result; of a name, a byte that is no UTF-8 is a lone surrogate, as in the module."""
    return json.dumps(
        {
            "accepted": result.accepted,
            "delimiter": result.delimiter,
            "titles": result.titles,
            "problem": result.problem,
            "matches": [_entry(*pair) for pair in zip(columns, result.matches)],
        },
        indent=2,
    )


def _table(columns: Sequence[Column], result: Result) -> str:
    rows = [list(_entry(columns[0], None))]
    rows += [list(map(_cell, _entry(*pair).values())) for pair in zip(columns, result.matches)]
    widths = [max(map(len, cells)) for cells in zip(*rows)]
    lines = ["  ".join(map(str.ljust, row, widths)).rstrip() for row in rows]
    return "\n".join(lines)


def _cell(value: object) -> str:
    if value is None:
        return "-"
    if isinstance(value, float):
        return f"{value:.2f}"
    return "".join(c if c.isprintable() else repr(c)[1:-1] for c in str(value))


if __name__ == "__main__":
    sys.exit(main())
