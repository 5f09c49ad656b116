# SPDX-License-Identifier: MIT
"""The functions of the library: a copy beside the module, or found as the system's loader finds it."""

from __future__ import annotations

import ctypes
import os
import sys
from ctypes import POINTER, c_char, c_char_p, c_double, c_int32, c_int64, c_void_p
from functools import lru_cache
from typing import Any, Dict, List, Sequence, Tuple

from ._errors import NotInstalled

VERSION = "0.4"
_FOLDER = os.path.dirname(os.path.abspath(__file__))

# What the functions return.
OK, CANCELLED, NO_DISPLAY, ALREADY_OPEN, WRONG_USE, FAILED = range(6)
NONE, INVALID = -1, -2

# An array of bytes that may hold zeros, so that it comes as a plain address.
_BYTES = POINTER(c_char)

_FUNCTIONS: Dict[str, Tuple[Any, List[Any]]] = {
    "version": (c_char_p, []),
    "new": (c_void_p, []),
    "free": (None, [c_void_p]),
    "message": (c_char_p, [c_void_p]),
    "set_title": (c_int32, [c_void_p, c_char_p]),
    "set_size": (c_int32, [c_void_p, c_int32, c_int32]),
    "add_column": (c_int32, [c_void_p, c_char_p]),
    "add_alternative": (c_int32, [c_void_p, c_int32, c_char_p]),
    "set_required": (c_int32, [c_void_p, c_int32, c_int32]),
    "set_similar": (c_int32, [c_void_p, c_int32, c_int32]),
    "set_saved_match": (c_int32, [c_void_p, c_int32, c_char_p, c_int64]),
    "set_file": (c_int32, [c_void_p, c_char_p]),
    "set_delimiter": (c_int32, [c_void_p, c_char]),
    "set_first_line_holds_titles": (c_int32, [c_void_p, c_int32]),
    "set_table": (c_int32, [c_void_p, POINTER(c_char_p), POINTER(c_int64), c_int32]),
    "likely_delimiter": (c_int32, [c_void_p]),
    "propose": (c_int32, [c_void_p]),
    "file_problem": (c_char_p, [c_void_p]),
    "match_position": (c_int32, [c_void_p, c_int32]),
    "match_field": (c_int32, [c_void_p, c_int32]),
    "match_origin": (c_int32, [c_void_p, c_int32]),
    "match_score": (c_double, [c_void_p, c_int32]),
    "match_name": (_BYTES, [c_void_p, c_int32, POINTER(c_int64)]),
    "delimiter": (c_int32, [c_void_p]),
    "first_line_holds_titles": (c_int32, [c_void_p]),
    "source_column_count": (c_int32, [c_void_p]),
    "source_column": (_BYTES, [c_void_p, c_int32, POINTER(c_int64)]),
}


@lru_cache(maxsize=None)
def proposals() -> ctypes.CDLL:
    """All of the library but its dialogs, which costs next to nothing to load."""
    beside = os.path.join(_FOLDER, "libcolumnimport-propose.so")
    return _load("columnimport-propose", beside if os.path.exists(beside) else None)


@lru_cache(maxsize=None)
def dialogs() -> ctypes.CDLL:
    """All of the library, with the toolkit that the dialogs are made of."""
    library = _load("columnimport")
    _declare(library, "show", c_int32, [c_void_p, c_void_p])
    _declare(library, "show_over_x11", c_int32, [c_void_p, c_int64])
    return library


def _load(name: str, file: str | None = None) -> ctypes.CDLL:
    if sys.platform == "win32":
        file = os.path.join(_FOLDER, "columnimport.dll")
    elif file is None:
        file = f"lib{name}.so.{VERSION}"
    try:
        library = ctypes.CDLL(file)
    except OSError as reason:
        raise NotInstalled(_advice(name, file, reason)) from reason
    for function, (result, arguments) in _FUNCTIONS.items():
        _declare(library, function, result, arguments)
    return library


def _advice(name: str, file: str, reason: OSError) -> str:
    if sys.platform == "win32":
        return f"put columnimport.dll beside the module, into {_FOLDER} ({reason})"
    what = "the dialogs are" if name == "columnimport" else "the library is"
    return (
        f"{what} not installed: install the Debian package lib{name}{VERSION}, or have the loader "
        f"find {file}, for example by LD_LIBRARY_PATH ({reason})"
    )


def _declare(library: ctypes.CDLL, name: str, result: Any, arguments: Sequence[Any]) -> None:
    function = getattr(library, "columnimport_" + name)
    function.restype = result
    function.argtypes = arguments
