# SPDX-License-Identifier: MIT
"""One import of the library: made, filled, run, read and freed."""

from __future__ import annotations

import ctypes
from typing import Any, Sequence


def text(words: str) -> bytes:
    """Words for the library, whose texts end at a zero."""
    if "\0" in words:
        raise ValueError(f"{words!r} holds a zero character")
    return words.encode()


def name_bytes(name: str) -> bytes:
    return name.encode("utf-8", "surrogateescape")


class Import:
    """An import for the length of a `with`, by the functions of one library from first to last."""

    def __init__(self, functions: ctypes.CDLL) -> None:
        self._functions = functions
        self._import = self._functions.columnimport_new()
        if not self._import:
            raise MemoryError

    def __enter__(self) -> Import:
        return self

    def __exit__(self, *_: object) -> None:
        self._functions.columnimport_free(self._import)

    def call(self, function: str, *arguments: Any) -> Any:
        """The result of a function of the import. Raises `ValueError` if the call was wrong."""
        result = getattr(self._functions, "columnimport_" + function)(self._import, *arguments)
        if self.message():
            raise ValueError(self.message())
        return result

    def run(self, function: str, *arguments: Any) -> int:
        """The outcome of a function that runs the import."""
        return int(getattr(self._functions, "columnimport_" + function)(self._import, *arguments))

    def message(self) -> str:
        """What was wrong with the last call, or an empty text."""
        return str(self._functions.columnimport_message(self._import).decode())

    def set_table(self, names: Sequence[str]) -> None:
        texts = [name_bytes(name) for name in names]
        count = len(texts)
        lengths = (ctypes.c_int64 * count)(*map(len, texts))
        self.call("set_table", (ctypes.c_char_p * count)(*texts), lengths, count)

    def name(self, function: str, column: int) -> str | None:
        """A name that the function gives with its length, or nothing."""
        length = ctypes.c_int64()
        address = self.call(function, column, ctypes.byref(length))
        if not address:
            return None
        return ctypes.string_at(address, length.value).decode("utf-8", "surrogateescape")
