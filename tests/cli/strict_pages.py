#!/usr/bin/env python3
"""The sessions of docs/show.md print what the page says.

  strict_pages.py DATA PROGRAM [ARG]...

A block of the language console holds lines "$ x509name ..." for a shell; the lines behind each are
what it prints, standard error behind standard output.
"""
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys

data = pathlib.Path(sys.argv[1])
program = [os.path.abspath(word) if os.path.exists(word) else word for word in sys.argv[2:]]
page = pathlib.Path(__file__).resolve().parents[2] / "docs" / "show.md"
if shutil.which("jq") is None:
    sys.exit("jq is missing")

sessions, failures = 0, []
for block in re.findall(r"^```console\n(.*?)^```$", page.read_text(encoding="utf-8"), re.S | re.M):
    for command, expected in re.findall(r"^\$ x509name (.*)\n((?:(?!\$ ).*\n)*)", block, re.M):
        sessions += 1
        done = subprocess.run(f"{shlex.join(program)} {command} 2>&1", shell=True,
                              cwd=data / "certificates", capture_output=True, encoding="utf-8")
        if done.stdout != expected:
            failures.append(f"{command}:\n{done.stdout}\nnot\n{expected}")

if sessions < 8:
    failures.append(f"only {sessions} sessions")
sys.exit("\n".join(failures) or 0)
