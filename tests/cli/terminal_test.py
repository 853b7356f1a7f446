#!/usr/bin/env python3
"""What a person sees on a terminal, and what goes into a pipe beside it.

  terminal_test.py CERTIFICATES PROGRAM

CERTIFICATES is the directory of sample certificates. POSIX only: the terminal is a pty.
"""
import base64
import json
import os
import pty
import re
import subprocess
import sys
import tempfile
import termios
import threading

SKIPPED = 77

failures = []


def check(label, actual, expected):
    if actual != expected:
        failures.append(f"{label}:\n  {actual!r}\n  not\n  {expected!r}")


def read_all(descriptor):
    content = b""
    while True:
        try:
            block = os.read(descriptor, 1 << 16)
        except OSError:  # a pty's end without a writer
            break
        if not block:
            break
        content += block
    return content


def has_terminals():
    """A machine whose /dev/pts is not mounted has none to give."""
    try:
        for end in pty.openpty():
            os.close(end)
    except OSError:
        return False
    return True


def channel(is_terminal):
    if not is_terminal:
        return os.pipe()
    master, slave = pty.openpty()
    modes = termios.tcgetattr(slave)
    modes[1] &= ~termios.OPOST  # line ends as they come
    termios.tcsetattr(slave, termios.TCSANOW, modes)
    return master, slave


def run(program, arguments, output, error, **environment):
    """Exit status, standard output and standard error; each of both a terminal or a pipe, or
    with error=None one terminal for both."""
    settings = {**os.environ, "TERM": "xterm", **environment}
    for name in [name for name, value in environment.items() if value is None]:
        del settings[name]
    out_end, out = channel(output)
    err_end, err = channel(error) if error is not None else (None, out)
    content = {}
    readers = [threading.Thread(target=lambda key=key, end=end: content.update({key: read_all(end)}))
               for key, end in (("out", out_end), ("err", err_end)) if end is not None]
    for reader in readers:
        reader.start()
    with subprocess.Popen([program, *arguments], stdin=subprocess.DEVNULL, stdout=out, stderr=err,
                          env=settings) as process:
        for end in {out, err}:
            os.close(end)
        for reader in readers:
            reader.join()
    return process.returncode, content["out"], content.get("err", b"")


def screen(octets):
    """The lines that stay on a terminal of any width."""
    lines, column = [""], 0
    for part in re.findall(r"\x1b\[[0-9;]*[A-Za-z]|[\r\n]|[^\x1b\r\n]+", octets.decode()):
        if part == "\n":
            lines.append("")
            column = 0
        elif part == "\r":
            column = 0
        elif part == "\x1b[K":
            lines[-1] = lines[-1][:column]
        elif not part.startswith("\x1b"):
            lines[-1] = lines[-1][:column] + part + lines[-1][column + len(part):]
            column += len(part)
    return "\n".join(lines)


SEQUENCE = re.compile(rb"\x1b\[[0-9;]*m")


def check_colour(program):
    # Label, command line, exit status.
    rows = [
        ("certificate", ["show", "printable.pem"], 0),
        ("refused name", ["show", "multi_valued.pem"], 0),
        ("general names", ["show", "alternative_names.pem"], 0),
        ("pairs", ["pairs", "3010310E300C06035504031305416C706861"], 0),
        ("help", ["--help"], 0),
        ("help of a command", ["encode", "--help"], 0),
        ("failure", ["show", "no.pem"], 1),
        ("wrong usage", ["frob"], 2),
    ]
    for label, arguments, status in rows:
        piped = run(program, arguments, False, False)
        check(f"{label}: exit status", piped[0], status)
        check(f"{label}: no sequence in pipes", b"\x1b" in piped[1] + piped[2], False)
        shown = run(program, arguments, True, True)
        check(f"{label}: coloured on a terminal", bool(SEQUENCE.search(shown[1] + shown[2])), True)
        check(f"{label}: the same text", tuple(SEQUENCE.sub(b"", text) for text in shown[1:]),
              piped[1:])
        check(f"{label}: colour ends", shown[1].count(b"\x1b[0m") * 2, shown[1].count(b"\x1b"))
        for setting in [{"NO_COLOR": "1"}, {"TERM": "dumb"}, {"TERM": None}]:
            check(f"{label}: {setting}", run(program, arguments, True, True, **setting), piped)
        check(f"{label}: NO_COLOR empty", run(program, arguments, True, True, NO_COLOR=""), shown)
        check(f"{label}: output alone on a terminal", run(program, arguments, True, False),
              (status, shown[1], piped[2]))
        check(f"{label}: errors alone on a terminal", run(program, arguments, False, True),
              (status, piped[1], shown[2]))
    for arguments in [["decode", "3010310E300C06035504031305416C706861"], ["encode", "CN=Alpha"],
                      ["decode", "--json", "3000"], ["show", "--json", "printable.pem"]]:
        check(f"{arguments}: plain on a terminal", run(program, arguments, True, True),
              run(program, arguments, False, False))


# ESC ] 0 ; x BEL sets a terminal's title; U+202E turns the direction; the last are letters.
HOSTILE = "\x1b]0;x\x07\u202e\u200b\\u001B"


def check_hidden(program):
    def element(tag, *content):
        content = b"".join(content)
        return bytes([tag, len(content)]) + content

    value = element(0x0C, f"a{HOSTILE}\tb".encode())
    digits = element(0x30, element(0x31, element(0x30, b"\6\3\x55\4\3", value))).hex()
    shown = b"a\\u001B]0;x\\u0007\\u202E\\u200B\\\\u001B\tb"
    # Label, command line, standard output on a terminal without colour.
    rows = [
        ("decode", ["decode", digits], b'CN="' + shown + b'"\n'),
        ("pairs", ["pairs", digits], b"CN\t" + shown + b"\n"),
        ("get", ["get", "2.5.4.3", digits], shown + b"\n"),
        ("general name", ["general-name", b"\x82".hex() + value[1:].hex()], b"2\t" + shown + b"\n"),
        ("line ends", ["decode", "--options", "0x08000003", "3018310A300806035504060C0163"
                       "310A300806035504030C0161"], b"C=c\r\nCN=a\n"),
    ]
    for label, arguments, expected in rows:
        check(f"{label}: hidden characters on a terminal",
              run(program, arguments, True, True, NO_COLOR="1"), (0, expected, b""))
        if label != "line ends":
            check(f"{label}: hidden characters in a pipe",
                  HOSTILE.encode() in run(program, arguments, False, False)[1], True)


def bundle(path, blocks):
    with open(path, "wb") as file:
        file.write(b"".join(blocks))


def check_progress(program, scratch):
    block = open("printable.pem", "rb").read()
    bad = b"-----BEGIN CERTIFICATE-----\n*\n-----END CERTIFICATE-----\n"
    many, few, broken, der = (os.path.join(scratch, name) for name in
                              ["many.pem", "few.pem", "broken.pem", "many.der"])
    bundle(many, [block] * 1200)
    bundle(few, [block] * 999)
    bundle(broken, [block] * 600 + [bad] + [block] * 600 + [bad])
    octets = base64.b64decode(b"".join(block.split(b"\n")[1:-2]))
    bundle(der, [octets] * 1100)

    # Label, command line, how many lines are seen at least.
    rows = [
        ("many", ["show", many], 1),
        ("many in DER", ["show", der], 1),
        ("few", ["show", few], 0),
        ("JSON", ["show", "--json", many], 1),
        ("two files", ["show", many, many], 2),
        ("survey", ["survey", many], 1),
        ("broken", ["show", broken], 1),
        ("lines", ["identify", "--host", "example.org", "--lines", many], 1),
        ("lines, with refusals", ["show", "--lines", "--jobs", "2", broken], 1),
    ]
    for label, arguments, least in rows:
        piped = run(program, arguments, False, False)
        status, output, error = run(program, arguments, False, True)
        check(f"{label}: exit status", status, piped[0])
        check(f"{label}: output", output == piped[1], True)
        seen = re.findall(rb"\r(\d+) (?:certificates|items), (\d+) %", error)
        check(f"{label}: progress", (len(seen) >= least, least or len(seen)), (True, least))
        check(f"{label}: erased", screen(error), piped[2].decode())
        for number, percent in seen:
            check(f"{label}: {number} %", (int(number) >= 1000, int(percent) <= 100), (True, True))
        check(f"{label}: none in pipes", b"\r" in piped[2], False)
        check(f"{label}: none on a dumb terminal",
              run(program, arguments, False, True, TERM="dumb"), piped)
    percents = re.findall(rb"\r1000 certificates, (\d+) %", run(program, ["show", many], False, True)[2])
    check("share of the file", percents, [b"83"])

    # Both on one terminal: whatever is drawn between, the lines are those of the output.
    piped = run(program, ["show", many], False, False)
    status, output, _ = run(program, ["show", many], True, None)
    check("one terminal: exit status", status, 0)
    check("one terminal: progress", b" certificates, " in output, True)
    check("one terminal: lines", screen(output) == piped[1].decode(), True)
    output = run(program, ["show", "--json", many], True, None)[1]
    check("one terminal: JSON", len(json.loads(screen(output))), 1200)
    output = screen(run(program, ["show", broken], True, None)[1])
    check("one terminal: errors", [line[:40] for line in output.split("\n") if "x509name" in line],
          ["x509name: show: " + (broken + ": certificate")[:24]] * 2)
    check("one terminal: certificates", output.count("\n  subject: "), 1200)


def main():
    if not has_terminals():
        print("terminal_test.py: left out, this machine has no pseudo-terminals")
        return SKIPPED
    program = os.path.abspath(sys.argv[2])
    os.environ.pop("NO_COLOR", None)
    os.environ["LC_ALL"] = "C.UTF-8"
    os.chdir(sys.argv[1])
    check_colour(program)
    check_hidden(program)
    with tempfile.TemporaryDirectory() as scratch:
        check_progress(program, scratch)
    for failure in failures:
        print(failure, file=sys.stderr)
    print(f"terminal_test.py: {len(failures)} failed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
