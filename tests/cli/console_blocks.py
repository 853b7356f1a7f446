#!/usr/bin/env python3
"""The commands of a page print what stands below them.

  console_blocks.py PAGE CERTIFICATES PROGRAM

A ```console block has commands behind "$ " and what they print to either stream. They run in one
directory, in the order of the page, beside copies of the sample certificates.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

page, certificates, program = (pathlib.Path(path).resolve() for path in sys.argv[1:])
blocks = re.findall(r"^```console\n(.*?)^```", page.read_text(encoding="utf-8"), re.S | re.M)
failures = [] if blocks else [f"{page}: no block"]
with tempfile.TemporaryDirectory() as scratch:
    for file in certificates.glob("*.pem"):
        shutil.copy(file, scratch)
    environment = {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}", "LC_ALL": "C",
                   "HOME": scratch}
    for part in re.split(r"^\$ ", "".join(blocks), flags=re.M)[1:]:
        command, expected = part.split("\n", 1)
        done = subprocess.run(["bash", "-o", "pipefail", "-c", command], cwd=scratch,
                              env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.stdout.decode() != expected:
            failures.append(f"{command}\n{done.stdout.decode()}not\n{expected}")
sys.exit("\n".join(failures) or 0)
