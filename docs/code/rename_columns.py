# SPDX-License-Identifier: MIT
import columnimport
import pandas


def rename_columns(frame: pandas.DataFrame, wanted: list[str]) -> pandas.DataFrame:
    proposal = columnimport.propose(wanted, [str(name) for name in frame.columns])
    names = {match.name: name for name, match in zip(wanted, proposal.matches) if match}
    return frame.rename(columns=names)
