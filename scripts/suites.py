#!/usr/bin/python3
"""Runs the published suites of tests/data/vectors/ against this library and the libraries beside it,
and prints how often each agrees with the rows:

    suites.py [--record] [LIBRARY]

LIBRARY is build/native/libortholan.so where none is named. --record writes the table into
docs/suites.md as well. Fails where this library differs from a row. Each library answers in a process of its own: a row that ends the process, or
takes it longer than TIMEOUT seconds, counts as one that the library cannot answer.
"""

import os
import pathlib
import queue
import re
import subprocess
import sys
import threading

SOURCE = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(SOURCE / "tests" / "support"))

from suite_certificates import Link, name_values  # noqa: E402
from suite_peers import PEERS, Cannot, Ortholan  # noqa: E402
import vectors  # noqa: E402

DOCUMENT = SOURCE / "docs" / "suites.md"
OWN = "Ortholan"
TIMEOUT = 20
# What is refused in a row and let through by a library is told apart from other differences.
AGREE, DIFFER, THROUGH, CANNOT = "agree", "differ", "let through", "cannot"


def octets(digits):
    return b"" if digits == "-" else bytes.fromhex(digits)


def ask_constraints(peer, row):
    links = [Link(text) for text in row["chain"].split("/")]
    return row["verdict"] == "yes" or None, peer.constraints(links) or None


def ask_identity(peer, row):
    names = {"none": None, "empty": b""}
    names = names[row["names"]] if row["names"] in names else octets(row["names"])
    return row["verdict"] == "match" or None, peer.identity(row["kind"], row["reference"], names) or None


def ask_names(peer, row):
    decide = peer.same if row["call"] == "names" else peer.within
    return row["out"] == "yes" or None, decide(octets(row["first"]), octets(row["second"])) or None


def ask_read(peer, row):
    return [name_values(name) if name else None for name in (octets(row["der"]), peer.read(row["text"]))]


def parts(text):
    """A text of RFC 4514 with escapes undone: what separates as a character, types and values as
    octets, so that spellings of one text are the same."""
    found = re.findall(r"([=,+])|((?:\\[0-9A-Fa-f]{2}|\\.|[^=,+\\])+)", text, re.S)
    undone = []
    for separator, value in found:
        plain = re.sub(rb"\\([0-9A-Fa-f]{2}|.)", unescape, value.encode(), flags=re.S)
        undone.append(separator or (plain.upper() if plain[:1] == b"#" else plain))
    return undone


def unescape(match):
    return bytes.fromhex(match[1].decode()) if len(match[1]) == 2 else match[1]


def ask_write(peer, row):
    return [parts(text) if text else None for text in (row["text"], peer.write(octets(row["der"])))]


def ruled(row):
    """Whether the row says in brackets that, and why, it is decided otherwise than in its suite."""
    return re.search(r"\([a-z][a-z-]+\)$", row["label"]) is not None


def where(column, value):
    return lambda row: row[column] == value


# Heading, file, which rows, the method of a peer, how a row is asked: what is wanted and what came,
# None for a refusal.
SUITES = [
    ("name constraints", "name_constraints.tsv", lambda row: not ruled(row), "constraints",
     ask_constraints),
    ("name constraints, ruled here", "name_constraints.tsv", ruled, "constraints", ask_constraints),
    ("identity: hosts", "strict_identity_suites.tsv", where("kind", "host"), "identity", ask_identity),
    ("identity: addresses", "strict_identity_suites.tsv", where("kind", "ip"), "identity", ask_identity),
    ("identity: mailboxes", "strict_identity_suites.tsv", where("kind", "email"), "identity", ask_identity),
    ("identity: URIs", "strict_identity_suites.tsv", where("kind", "uri"), "identity", ask_identity),
    ("names, the same", "published_names.tsv", where("call", "names"), "same", ask_names),
    ("names, one within another", "published_names.tsv", where("call", "within"), "within", ask_names),
    ("RFC 4514, text to name", "rfc4514_read.tsv", lambda row: True, "read", ask_read),
    ("RFC 4514, name to text", "rfc4514_write.tsv", lambda row: True, "write", ask_write),
]


def rows_of(suite):
    _, file, chosen, _, _ = suite
    return [row for row in vectors.read(file) if chosen(row)]


def judge(suite, peer, row):
    _, _, _, question, ask = suite
    if not hasattr(peer, question):
        return CANNOT
    try:
        wanted, came = ask(peer, row)
    except Cannot:
        return CANNOT
    if came == wanted:
        return AGREE
    return THROUGH if wanted is None else DIFFER


def make_peer(name, library):
    return Ortholan(library) if name == OWN else PEERS[name]()


def work(name, library, suite_index, first):
    """In a process of its own: one line for each row from `first` on."""
    suite = SUITES[suite_index]
    peer = make_peer(name, library)
    for row in rows_of(suite)[first:]:
        print(judge(suite, peer, row), flush=True)


class Answers:
    """The lines of a process, each within TIMEOUT seconds."""

    def __init__(self, command):
        # Sets of python3-cryptography come in the same order in every run.
        self.process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True,
                                        env={**os.environ, "PYTHONHASHSEED": "0"})
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.strip())
        self.lines.put(None)

    def __iter__(self):
        try:
            yield from iter(lambda: self.lines.get(timeout=TIMEOUT), None)
        except queue.Empty:
            pass
        self.process.kill()
        self.process.wait()


def run_suite(name, library, index):
    """How a library answers each row."""
    found, rows = [], len(rows_of(SUITES[index]))
    while len(found) < rows:
        found += Answers([sys.executable, __file__, "--worker", name, library, str(index), str(len(found))])
        if len(found) < rows:
            found.append(CANNOT)
    return found


def cell(found):
    differ, through = found.count(DIFFER) + found.count(THROUGH), found.count(THROUGH)
    if found.count(CANNOT) == len(found):
        return "cannot"
    return f"{found.count(AGREE)} / {differ} ({through}) / {found.count(CANNOT)}"


def installed(library):
    """The libraries that answer, with their versions."""
    found = {}
    for name in [OWN, *PEERS]:
        try:
            found[name] = make_peer(name, library).version()
        except (ImportError, OSError) as error:
            print(f"left out: {name}: {error}", file=sys.stderr)
    return found


def table(library):
    """The table, and whether this library agrees with every row."""
    versions, whole = installed(library), True
    lines = ["| rows of | " + " | ".join(f"{name} {version}" for name, version in versions.items()) + " |",
             "|---" * (len(versions) + 1) + "|"]
    for index, suite in enumerate(SUITES):
        found = {name: run_suite(name, library, index) for name in versions}
        whole = whole and set(found[OWN]) == {AGREE}
        cells = [cell(answers) for answers in found.values()]
        lines.append(f"| {suite[0]}, {len(rows_of(suite))} | " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n", whole


def record(results):
    begin, end = "<!-- results -->\n", "<!-- end of results -->\n"
    before, rest = DOCUMENT.read_text(encoding="utf-8").split(begin)
    DOCUMENT.write_text(before + begin + results + end + rest.split(end)[1], encoding="utf-8")


def main(arguments):
    if arguments[:1] == ["--worker"]:
        name, library, index, first = arguments[1:]
        return work(name, library, int(index), int(first))
    recording = "--record" in arguments
    named = [argument for argument in arguments if argument != "--record"]
    library = pathlib.Path(named[0] if named else SOURCE / "build" / "native" / "libortholan.so")
    results, whole = table(str(library.resolve(strict=True)))
    print(results, end="")
    if recording:
        record(results)
    return 0 if whole else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
