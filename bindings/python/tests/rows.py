"""Rows of the shared vector files, which every interface of the library is asked."""

import vectors
from ortholan import Refusal


def check(file, answer, *columns):
    """Holds what `answer` makes of each row against the row's columns, and shows all that differ.

    `answer` gives one text a column; a refusal becomes "REASON" and its offset.
    """
    faults = []
    for row in vectors.read(file):
        try:
            found = answer(row)
        except Refusal as refusal:
            found = refusal.reason.name, refusal.offset
        wanted = tuple(row[column] for column in columns)
        if found is not None and tuple(map(str, found)) != wanted:
            faults.append(f"{row['where']}: {found}, not {wanted}")
    assert not faults, "\n".join(faults)


def is_refused(make):
    """Whether a call is refused."""
    try:
        make()
    except Refusal:
        return True
    return False
