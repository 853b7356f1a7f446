#!/usr/bin/env python3
"""The program answers the rows that the library's interfaces are asked too, a process for all rows
of the same arguments.

  vectors_test.py PROGRAM [ARG]...
"""
import collections
import pathlib
import re
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import vectors  # noqa: E402

program = sys.argv[1:]
failures = []
streams = collections.defaultdict(list)  # by arguments: rows, lines and what is expected of each


def ask(row, expected, *arguments, first=False):
    """The program's output, its one line end cut off, or None where it refuses."""
    done = subprocess.run([*program, *arguments], capture_output=True)
    actual = done.stdout.decode().removesuffix("\n") if done.returncode == 0 else None
    if first and actual:
        actual = actual.split("\n")[0]
    if actual != expected:
        failures.append(f"{row['where']}: {arguments}: {actual!r}, not {expected!r}: {done.stderr}")


def add(row, expected, *arguments, pattern=None):
    """The line that is the last argument gets this line, or one by the pattern; None is refused."""
    # A text of several lines is an argument, and what comes out in several cannot go into one.
    if {"\n", "\r"} & set(arguments[-1] + (expected or "")):
        ask(row, expected, *arguments)
    else:
        pattern = pattern or ("!.*" if expected is None else re.escape(expected))
        streams[arguments[:-1]].append((row, arguments[-1], pattern))


def run(arguments, asked):
    lines = "".join(line + "\n" for _, line, _ in asked)
    done = subprocess.run([*program, *arguments, "--lines", "--jobs", "2"], input=lines.encode(),
                          capture_output=True)
    answers = done.stdout.decode().split("\n")
    if len(answers) != len(asked) + 1:
        failures.append(f"{arguments}: {len(answers) - 1} lines for {len(asked)}: {done.stderr}")
    for (row, line, pattern), answer in zip(asked, answers):
        if not re.fullmatch(pattern, answer):
            failures.append(f"{row['where']}: {arguments} {line}: {answer!r}, not {pattern}")
    if done.returncode != any(answer[:1] == "!" for answer in answers):
        failures.append(f"{arguments}: exit status {done.returncode}")


def digits(cell):
    return "" if cell == "-" else cell


def element(tag, content):
    size = len(content).to_bytes((len(content).bit_length() + 7) // 8 or 1, "big")
    return bytes([tag]) + (size if size < b"\x80" else bytes([0x80 + len(size)]) + size) + content


def certificate(names):
    """With these alternative names, and nothing else that counts."""
    algorithm, empty, bits = (bytes.fromhex(part) for part in ("300406022A03", "3000", "030100"))
    validity = element(0x30, 2 * element(0x17, b"260101000000Z"))
    parts = [bytes.fromhex("A003020102020101"), algorithm, empty, validity, empty,
             element(0x30, algorithm + bits)]
    if names != "none":
        value = element(4, b"" if names == "empty" else bytes.fromhex(names))
        extension = element(0x30, bytes.fromhex("0603551D11") + value)
        parts.append(element(0xA3, element(0x30, extension)))
    return element(0x30, element(0x30, b"".join(parts)) + algorithm + bits).hex()


for row in vectors.read("name_text.tsv"):
    options = ["--options", row["options"] or "0"] + (["--sort"] if row["sort"] else [])
    add(row, row["der"] or None, "encode", *options, row["text"])
    if not row["code"]:
        add(row, row["rendered"], "decode", "--options", row["style"], row["der"])
for row in vectors.read("rfc4514_read.tsv"):
    add(row, row["der"] or None, "encode", "--rfc4514", row["text"])
for row in vectors.read("rfc4514_errors.tsv"):
    add(row, None, "encode", "--rfc4514", row["text"],
        pattern=re.escape(f"!{row['reason']} {row['sentence']}"))
for row in vectors.read("rfc4514_write.tsv"):
    add(row, row["text"] or None, "decode", "--rfc4514", row["der"])
    if row["exact"]:
        add(row, row["exact"], "decode", "--rfc4514", "--exact", row["der"])
for row in vectors.read("strict_names.tsv"):
    if row["mode"] == "0" and row["reason"] != "0":
        add(row, None, "decode", "--rfc4514", digits(row["der"]),
            pattern=f"!{row['reason']} at offset {row['at']}: .+")
for row in vectors.read("match_keys.tsv"):
    add(row, row["out"].split()[0], "key", row["in"])
calls = {"names": ["equal", "--rfc5280"], "any-order": ["equal", "--rfc5280", "--any-order"],
         "within": ["within"]}
verdicts = {"yes": "yes", "no": "no .+", "cannot tell": "![0-9]+ cannot tell: .+"}
# Where nobody asked which of them: anything but a yes.
others = {"yes": "yes", "no": "(?!yes).+", "match": "yes .+", "nomatch": "(?!yes).+"}
for file, meant in (("matching.tsv", verdicts), ("published_names.tsv", others)):
    for row in vectors.read(file):
        if row["call"] in calls:
            columns = digits(row["first"]) + "\t" + digits(row["second"])
            add(row, None, *calls[row["call"]], columns,
                pattern=meant[row["out"].partition(":")[0]])
for row in vectors.read("strict_identity_suites.tsv"):
    if not {"\t", "\n"} & set(row["reference"]):
        line = "\t".join([row["kind"], row["reference"], certificate(row["names"])])
        add(row, None, "identify", line, pattern=others[row["verdict"]])
for row in vectors.read("general_names.tsv"):
    # Texts of other names are octets taken for characters.
    if not row["code"] and row["tag"] in "1268":
        ask(row, f"{row['tag']}\t{row['text']}", "general-name", row["der"], first=True)

for arguments, asked in streams.items():
    run(arguments, asked)
sys.exit("\n".join(failures) or 0)
