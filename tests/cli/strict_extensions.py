#!/usr/bin/env python3
"""make and extension answer the rows of the library: octets from JSON, and JSON from octets.

  strict_extensions.py DATA PROGRAM [ARG]...
"""
import base64
import json
import pathlib
import subprocess
import sys
import textwrap

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import vectors  # noqa: E402
from der import element, identifier  # noqa: E402

program = sys.argv[2:]
failures = []


def ask(row, what, expected, arguments, stdin=""):
    """What the program prints, or None where it refuses with status 1 and says why."""
    done = subprocess.run([*program, *arguments], input=stdin, capture_output=True,
                          encoding="utf-8")
    said = done.returncode == 0 or (done.returncode == 1 and done.stderr)
    actual = done.stdout.rstrip("\n") if done.returncode == 0 else None
    if actual != expected or not said:
        failures.append(f"{row['where']}: {what}: {actual!r}, not {expected!r}: {done.stderr}")


def record(row):
    return element(0x30, identifier(row["oid"]) + element(4, bytes.fromhex(row["der"])))


rows = [row for row in vectors.read("strict_extensions.tsv") if not row["reason"]]
# Lists of all rows, as few as there are without one extension twice: a process for each takes long.
lists, places = [], {}
for row in rows:
    place = places[row["oid"]] = places.get(row["oid"], -1) + 1
    lists += [[]] if place == len(lists) else []
    lists[place].append(row)
for each in lists:
    described = [{"oid": row["oid"], "value": json.loads(row["json"])} for row in each]
    ask(each[0], "list", element(0x30, b"".join(map(record, each))).hex().upper(), ["make", "-"],
        json.dumps(described))
for row in rows[::8]:
    made = subprocess.run([*program, "extension", "--json", record(row).hex()],
                          capture_output=True, encoding="utf-8").stdout
    ask(row, "JSON and back", row["der"], ["make", "--value", row["oid"], "-"],
        json.dumps(json.loads(made)["content"]))
for row in vectors.read("extension_requests.tsv"):
    ask(row, "request", row["der"], ["make", "--request", "-"], row["json"])
    lines = textwrap.wrap(base64.b64encode(bytes.fromhex(row["der"])).decode(), 64)
    ask(row, "base64", "\n".join(lines), ["make", "--request", "--base64", "-"], row["json"])
for row in vectors.read("strict_extension_json_errors.tsv")[::4]:
    kind = ["--value", row["type"]] if row["type"] else []
    ask(row, "refused", None, ["make", *kind, "-"], row["json"])

sys.exit("\n".join(failures) or 0)
