#!/usr/bin/env python3
"""show --check finds what the rows say, in one bundle of them all.

  strict_checks.py DATA PROGRAM [ARG]...
"""
import base64
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import vectors  # noqa: E402

rows = list(vectors.read("checks.tsv"))
bundle = b"".join(b"-----BEGIN CERTIFICATE-----\n" +
                  base64.encodebytes(bytes.fromhex(row["der"])) +
                  b"-----END CERTIFICATE-----\n" for row in rows)
done = subprocess.run([*sys.argv[2:], "show", "--check", "--json", "-"], input=bundle,
                      capture_output=True)
shown = json.loads(done.stdout)
failures = [] if done.returncode == 1 else [f"exit status {done.returncode}: {done.stderr}"]
if len(shown) != len(rows):
    failures.append(f"{len(shown)} documents, not {len(rows)}")
for row, document in zip(rows, shown):
    found = document.get("findings")
    rules = "refused" if found is None else ",".join(finding["rule"] for finding in found)
    if rules != row["faults"]:
        failures.append(f"{row['where']}: {rules}, not {row['faults']}")

sys.exit("\n".join(failures) or 0)
