"""Runs the examples of pages on the server of PGHOST, one database a page.

Each block of SQL has to print what the text block behind it shows, and nothing where there is none.
In a console block "$ " begins a command; what follows is its output.

  pages.py [--record] PAGE...     --record writes the output into the pages
"""

import os
import pathlib
import re
import subprocess
import sys

PIECE = re.compile(
    r"^```sql\n(?P<sql>.*?)^```\n(?:(?P<gap>\n*)```text\n(?P<text>.*?)^```\n)?"
    r"|^```console\n\$ (?P<command>.*?)\n(?P<output>(?!\$ ).*?)^```\n",
    re.MULTILINE | re.DOTALL,
)


def run(command, **more):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **more)
    return re.sub(r"[ \t]+$", "", done.stdout, flags=re.MULTILINE).strip("\n") + "\n"


class Page:
    def __init__(self, path):
        self.path, self.database, self.faults = path, f"page_{path.parent.name}", []
        run(["createdb", "-T", "template0", self.database])

    def answer(self, piece):
        """The piece with the output that came."""
        if piece["sql"] is None:
            output = run(["sh", "-c", piece["command"]], env={**os.environ, "PGDATABASE": self.database})
            self.check(piece, piece["output"], output)
            return f"```console\n$ {piece['command']}\n{output}```\n"
        psql = ["psql", "-X", "-q", "-d", self.database, "-v", f"host={os.environ['PGHOST']}"]
        output = run(psql, input=piece["sql"])
        self.check(piece, piece["text"] or "\n", output)
        if output == "\n":
            return f"```sql\n{piece['sql']}```\n"
        return f"```sql\n{piece['sql']}```\n{piece['gap'] or chr(10)}```text\n{output}```\n"

    def check(self, piece, expected, output):
        if output != expected:
            shown = piece["sql"] or piece["command"]
            self.faults.append(f"{self.path}:\n{shown}\nexpected:\n{expected}\nmet:\n{output}")


def main(arguments):
    records = "--record" in arguments
    faults = []
    for name in arguments:
        if name == "--record":
            continue
        page = Page(pathlib.Path(name).resolve())
        text, count = PIECE.subn(page.answer, page.path.read_text(encoding="utf-8"))
        if records:
            page.path.write_text(text, encoding="utf-8")
        elif count == 0 or page.faults:
            faults += page.faults or [f"{name}: no examples"]
        print(f"pages.py: {name}: {count} examples")
    sys.exit("\n".join(faults) if faults else 0)


main(sys.argv[1:])
