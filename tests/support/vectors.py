"""Reads the files of tests/data/vectors/: see CONTRIBUTING.md for their form."""

import json
import pathlib

VECTORS = pathlib.Path(__file__).resolve().parents[1] / "data" / "vectors"


def read(name):
    """The rows of a file, each a dictionary of column and text; "where" tells file and line."""
    columns, rows = None, []
    lines = (VECTORS / name).read_text(encoding="utf-8").split("\n")
    for number, line in enumerate(lines, 1):
        if not line or line.startswith("#"):
            continue
        cells = [json.loads(cell) if cell.startswith('"') else cell for cell in line.split("\t")]
        if columns is None:
            columns = cells
            continue
        if len(cells) > len(columns):
            raise ValueError(f"{name}:{number}: more cells than columns")
        row = dict(zip(columns, cells + [""] * (len(columns) - len(cells))))
        rows.append({**row, "where": f"{name}:{number}: {cells[0]}"})
    if not rows:
        raise ValueError(f"{name}: no rows")
    return rows
