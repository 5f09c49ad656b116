# SPDX-License-Identifier: MIT
"""Which columns of a file or table fit those of an application.

`propose` answers from the names alone, without a window. `show` opens the dialog in which a person
corrects the proposal:

    >>> import columnimport
    >>> result = columnimport.propose(["holename", "dip"], ["BHID", "Au g/t"])
    >>> result.matches
    (Match('BHID', position=0, field=0, origin=Origin.SYNONYM), None)

`python -m columnimport --help` tells how the same is done on the command line.

Names are bytes for the library. Here they are texts: UTF-8, and a byte that is none is a lone
surrogate ("surrogateescape"), so that every name leads back to its bytes.
"""

from __future__ import annotations

import ctypes
import os
from dataclasses import dataclass
from enum import Enum
from typing import Any, Sequence, Tuple, Union

from . import _library
from ._errors import Error, NoDisplay, NotInstalled
from ._import import Import, name_bytes, text

__all__ = [
    "Column",
    "Error",
    "Match",
    "NoDisplay",
    "NotInstalled",
    "Origin",
    "Result",
    "likely_delimiter",
    "propose",
    "show",
    "version",
]


@dataclass(frozen=True)
class Column:
    """A column of the application.

    `alternatives` are other words for it, which count like synonyms. If a `required` column is left
    without a match, the dialog asks back once before it takes OK. One that is not `similar` takes
    no guess: only a name that is the same, a synonym or one of its alternatives. `saved` is the name
    that it was matched to by an earlier run, shown instead of a new proposal where the source has it.

        >>> propose([Column("elevation", alternatives=["RL"])], ["Remark", "rl"]).matches
        (Match('rl', position=1, field=1, origin=Origin.ALTERNATIVE),)
    """

    name: str
    alternatives: Sequence[str] = ()
    required: bool = False
    saved: str | None = None
    similar: bool = True


class Origin(Enum):
    """How a column of the application came by its match."""

    SAME = 1  #: the names are the same, but for capitals and punctuation
    SYNONYM = 2  #: the library knows them as synonyms
    ALTERNATIVE = 3  #: it is one of the column's alternatives
    SIMILAR = 4  #: the names only resemble each other: a guess
    IN_ORDER = 5  #: there are no titles, and columns are paired in their order
    SAVED = 6  #: it has the name that was saved
    BY_HAND = 7  #: the person chose it
    FOREIGN = 8  #: the person dropped a text that names no column of the source


@dataclass(frozen=True)
class Match:
    """A column of the source: its name, its position as the dialog counts, and its field in a row.

    `field` is the index in each row of a reader that honours double quotes, such as `csv.reader`. It
    differs from the position where a quoted title holds the delimiter, and where tabs stand in a
    run; it is `None` where such readers don't agree. Both are counted from 0, and both are `None` if
    a person dropped a text that no column of the source is called.

    `origin` tells a guess from a certainty, and `score` is how much the two names of a guess have
    in common, above 0.4 and below 1; of other matches it is `None`.

        >>> propose(["hole"], ["holes"]).matches
        (Match('holes', position=0, field=0, origin=Origin.SIMILAR, score=0.79),)
    """

    name: str
    position: int | None
    field: int | None
    origin: Origin
    score: float | None = None

    def __repr__(self) -> str:
        score = "" if self.score is None else f", score={self.score:.2f}"
        return (
            f"Match({self.name!r}, position={self.position}, field={self.field}, "
            f"origin={self.origin}{score})"
        )


@dataclass(frozen=True)
class Result:
    """What a proposal or a dialog ended with.

    `matches` has one entry for each column that was asked for: a `Match`, or `None`. `accepted` is
    true after OK and for a proposal, false after Cancel. `delimiter` and `titles` are as they were
    left, `source_columns` the names of the source as they were cut, and `problem` is the system's
    reason if a file could not be read, else `None`.

        >>> propose(["dip"], "/nowhere.csv").problem
        'No such file or directory'
    """

    matches: Tuple[Match | None, ...]
    accepted: bool
    delimiter: str
    titles: bool
    source_columns: Tuple[str, ...]
    problem: str | None


Source = Union[str, "os.PathLike[str]", Sequence[str]]


def version() -> str:
    """The version of the library that is loaded, for example "0.4.0"."""
    return str(_library.proposals().columnimport_version().decode())


def likely_delimiter(path: str | os.PathLike[str]) -> str | None:
    """The delimiter that the first line of a file was likely written with, or `None`.

        >>> result = propose(columns, path, likely_delimiter(path) or ",")

    It is a tab, semicolon, bar, comma or blank. A file that can't be read has none.
    """
    with Import(_library.proposals()) as one:
        one.call("set_file", text(os.fspath(path)))
        likely = one.call("likely_delimiter")
        return chr(likely) if likely != _library.NONE else None


def propose(
    columns: Sequence[str | Column], source: Source, delimiter: str = ",", titles: bool = True
) -> Result:
    """Proposes a column of `source` for each of `columns`, without a window or a display.

    `source` is the path of a delimited file, of which the first line is read, or a list with the
    names of a table's columns. `delimiter` is one byte. Without `titles` the columns of a file go
    by their positions and are called "Column1" and so on. May be called on any thread. A file that
    can't be read gives no matches, and `problem` says why.

        >>> holename, dip = propose(["holename", "dip"], ["BHID", "Au g/t"]).matches
        >>> holename.name, dip
        ('BHID', None)
    """
    with Import(_library.proposals()) as one:
        _fill(one, columns, source, delimiter, titles)
        _require(one, one.run("propose"), _library.OK)
        return _read(one, len(columns), True)


def show(
    columns: Sequence[str | Column],
    source: Source,
    window: Any = None,
    title: str = "",
    delimiter: str = ",",
    titles: bool = True,
    size: Tuple[int, int] | None = None,
    x11_window: int | None = None,
) -> Result:
    """Shows the dialog for `source` over `window` and returns when a person has answered it.

    To be called on the thread of the user interface. `window` is a `Gtk.Window` of PyGObject, the
    native handle of a window as a number, or `None`. A host that has neither GTK nor Windows gives the
    number of its window at the X server as `x11_window`: `winfo_id()` of Tk, `winId()` of Qt. `size`
    is that of the dialog's frame in pixels. The other arguments are those of `propose`.

    Raises `NoDisplay` without a display, `NotInstalled` without the library that has the dialogs, and
    `Error` while another dialog is open.
    """
    if window is not None and x11_window is not None:
        raise ValueError("the dialog belongs to one window, and two are given")
    with Import(_library.dialogs()) as one:
        _fill(one, columns, source, delimiter, titles)
        one.call("set_title", text(title))
        if size is not None:
            one.call("set_size", *size)
        if x11_window is not None:
            if x11_window.bit_length() > 32:  # of a larger number the call would take a part
                raise ValueError(f"{x11_window} is no number of an X11 window")
            outcome = one.run("show_over_x11", x11_window)
        else:
            outcome = one.run("show", _handle(window))
        _require(one, outcome, _library.OK, _library.CANCELLED)
        return _read(one, len(columns), outcome == _library.OK)


def _fill(
    one: Import, columns: Sequence[str | Column], source: Source, delimiter: str, titles: bool
) -> None:
    for number, column in enumerate(columns):
        if isinstance(column, str):
            column = Column(column)
        one.call("add_column", text(column.name))
        for word in column.alternatives:
            one.call("add_alternative", number, text(word))
        one.call("set_required", number, column.required)
        one.call("set_similar", number, column.similar)
        if column.saved is not None:
            saved = name_bytes(column.saved)
            one.call("set_saved_match", number, saved, len(saved))
    if isinstance(source, (str, os.PathLike)):
        one.call("set_file", text(os.fspath(source)))
    else:
        one.set_table(source)
    one.call("set_delimiter", _one_byte(delimiter))
    one.call("set_first_line_holds_titles", titles)


def _one_byte(delimiter: str) -> bytes:
    byte = name_bytes(delimiter)
    if len(byte) != 1:
        raise ValueError(f"the delimiter {delimiter!r} is not one byte")
    return byte


def _handle(window: Any) -> int | None:
    """The native handle of a window that PyGObject made, or the handle itself."""
    if window is None or isinstance(window, int):
        return window
    pointer_of = ctypes.pythonapi.PyCapsule_GetPointer
    pointer_of.restype = ctypes.c_void_p
    pointer_of.argtypes = [ctypes.py_object, ctypes.c_char_p]
    return int(pointer_of(window.__gpointer__, None))


def _require(one: Import, outcome: int, *allowed: int) -> None:
    if outcome in allowed:
        return
    if outcome == _library.NO_DISPLAY:
        raise NoDisplay(one.message())
    if outcome == _library.WRONG_USE:
        raise ValueError(one.message())
    raise Error(one.message())


def _read(one: Import, count: int, accepted: bool) -> Result:
    problem = one.call("file_problem")
    return Result(
        matches=tuple(_match(one, column) for column in range(count)),
        accepted=accepted,
        delimiter=bytes([one.call("delimiter")]).decode("utf-8", "surrogateescape"),
        titles=bool(one.call("first_line_holds_titles")),
        source_columns=tuple(
            one.name("source_column", column) or "" for column in range(one.call("source_column_count"))
        ),
        problem=problem.decode() if problem is not None else None,
    )


def _match(one: Import, column: int) -> Match | None:
    name = one.name("match_name", column)
    if name is None:
        return None
    position = one.call("match_position", column)
    score = one.call("match_score", column)
    field = one.call("match_field", column)
    return Match(
        name,
        position if position != _library.NONE else None,
        field if field != _library.NONE else None,
        Origin(one.call("match_origin", column)),
        score if score != _library.NONE else None,
    )
