# SPDX-License-Identifier: MIT
"""What the library could not do."""


class Error(RuntimeError):
    """What the library could not do, as a sentence."""


class NoDisplay(Error):
    """There is no display that a dialog could be shown on."""


class NotInstalled(Error):
    """The library, or the part of it that has the dialogs, is not installed."""
