#!/usr/bin/env python3
"""Runs the programs of pages and compares what they print with the text behind them.

    documents.py LANGUAGE PAGE... -- COMMAND...

A program is a block of the language that a block of text follows; COMMAND takes the path of its file.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

SUFFIXES = {"go": "go", "csharp": "cs"}


def programs(language, page):
    text = pathlib.Path(page).read_text(encoding="utf-8")
    return re.findall(rf"^```{language}\n(.*?)^```\n+```text\n(.*?)^```$", text, re.M | re.S)


def main():
    language, *rest = sys.argv[1:]
    pages, command = rest[: rest.index("--")], rest[rest.index("--") + 1 :]
    for page in pages:
        found = programs(language, page)
        if not found:
            sys.exit(f"documents.py: {page}: no program in {language}")
        for program, expected in found:
            with tempfile.TemporaryDirectory() as directory:
                file = pathlib.Path(directory, f"program.{SUFFIXES[language]}")
                file.write_text(program, encoding="utf-8")
                printed = subprocess.run([*command, file], check=True, stdout=subprocess.PIPE,
                                         encoding="utf-8").stdout
            if printed != expected:
                sys.exit(f"documents.py: {page}: printed\n{printed}instead of\n{expected}")
        print(f"documents.py: {page}: {len(found)} in {language}")


if __name__ == "__main__":
    main()
