#!/usr/bin/env python3
"""The program answers the rows that the library's interfaces are asked too.

  vectors_test.py PROGRAM [ARG]...
"""
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import vectors  # noqa: E402

program = sys.argv[1:]
failures = []


def ask(row, expected, *arguments, first=False):
    """The program's output, its one line end cut off, or None where it refuses."""
    done = subprocess.run([*program, *arguments], capture_output=True)
    actual = done.stdout.decode().removesuffix("\n") if done.returncode == 0 else None
    if first and actual:
        actual = actual.split("\n")[0]
    if actual != expected:
        failures.append(f"{row['where']}: {arguments}: {actual!r}, not {expected!r}: {done.stderr}")


for row in vectors.read("name_text.tsv"):
    options = ["--options", row["options"] or "0"] + (["--sort"] if row["sort"] else [])
    ask(row, row["der"] or None, "encode", *options, row["text"])
    if not row["code"]:
        ask(row, row["rendered"], "decode", "--options", row["style"], row["der"])
for row in vectors.read("general_names.tsv"):
    # Texts of other names are octets taken for characters.
    if not row["code"] and row["tag"] in "1268":
        ask(row, f"{row['tag']}\t{row['text']}", "general-name", row["der"], first=True)

sys.exit("\n".join(failures) or 0)
