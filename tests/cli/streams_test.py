#!/usr/bin/env python3
"""--lines over more than a block: order, items across the borders of blocks, and answers before the
input has ended.

  streams_test.py CERTIFICATES PROGRAM [ARG]...
"""
import base64
import pathlib
import subprocess
import sys

certificates, program = pathlib.Path(sys.argv[1]), sys.argv[2:]
failures = []


def name(number):
    """CN = the number, of lengths that vary."""
    value = b"x" * (number % 90) + b"%d" % number
    return bytes([0x30, len(value) + 11, 0x31, len(value) + 9, 0x30, len(value) + 7,
                  6, 3, 0x55, 4, 3, 0x0C, len(value)]) + value


def check(label, arguments, octets, expected):
    """`expected` is a list of lines."""
    done = subprocess.run([*program, *arguments], input=octets, capture_output=True)
    lines = done.stdout.decode().splitlines()
    if lines != expected:
        wrong = [pair for pair in zip(lines, expected) if pair[0] != pair[1]]
        failures.append(f"{label}: {len(lines)} lines, not {len(expected)}: {wrong[:1]} {done.stderr}")


def check_order():
    lines, expected = [], []
    for number in range(20000):
        good = number % 19 != 0
        lines.append(name(number).hex() if good else f"-{number}")
        value = "x" * (number % 90) + str(number)
        expected.append(f"CN={value}" if good else
                        "!0 a text that is neither hexadecimal, base64 nor PEM")
    octets = "\n".join(lines).encode()
    for jobs in "1", "4":
        check(f"order of {jobs}", ["decode", "--rfc4514", "--lines", "--jobs", jobs], octets,
              expected)
    check("a long line", ["decode", "--rfc4514", "--lines"],
          name(1).hex().encode() + b"\n" + b"30" * (9 << 20) + b"\n" + name(2).hex().encode(),
          ["CN=x1", "!0 an item of more than 16 MiB", "CN=xx2"])


def check_documents():
    pem = (certificates / "alternative_names.pem").read_text()
    block = pem[pem.index("-----BEGIN"):]
    der = base64.b64decode("".join(block.split("-----")[2].split()))
    question = ["identify", "--host", "example.org", "--lines", "--jobs", "2"]
    check("PEM", question, (("text\n" + block) * 200).encode(), ["yes DNS:example.org"] * 200)
    check("DER", question, der * 300, ["yes DNS:example.org"] * 300)
    nowhere = "!22 cannot tell: at offset 0: another element has to stand here: expected 30, met 31"
    check("DER up to what is none", question, der * 3 + b"1" * 300000,
          ["yes DNS:example.org"] * 3 + [nowhere])
    cut = subprocess.run([*program, *question], input=der * 3 + der[:-1], capture_output=True)
    if cut.stdout.count(b"\n") != 4 or b"\n!20 " not in cut.stdout:
        failures.append(f"DER cut short: {cut.stdout}")


def check_conversation():
    """A block of lines is answered before the next one comes: databases ask so."""
    for jobs in "1", "3":
        with subprocess.Popen([*program, "key", "--lines", "--jobs", jobs], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE) as asked:
            for block in range(5):
                asked.stdin.write((name(block).hex() + "\nzz\n").encode())
                asked.stdin.flush()
                answers = [asked.stdout.readline() for _ in range(2)]
                if answers[0][:2] != b"01" or answers[1][:3] != b"!0 ":
                    failures.append(f"conversation of {jobs}: {answers}")
            asked.stdin.close()
            if asked.stdout.read() or asked.wait() != 1:
                failures.append(f"conversation of {jobs}: exit status {asked.returncode}")


check_order()
check_documents()
check_conversation()
sys.exit("\n".join(failures) or 0)
