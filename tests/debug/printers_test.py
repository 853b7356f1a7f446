#!/usr/bin/env python3
"""GDB's printers, driven in batch mode over a small program.

  printers_test.py GDB PRINTERS PRINTED NAMES LIBRARY X509NAME CMAKE BUILD

PRINTERS is the script under test, PRINTED the program, NAMES a file of names in hexadecimal digits,
LIBRARY the shared object that the program has loaded. X509NAME says which text a name has. CMAKE
installs what BUILD holds.
"""
import glob
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

failures = []


def check(label, actual, expected):
    if actual != expected:
        failures.append(f"{label}:\n  {actual!r}\n  not\n  {expected!r}")


def visible(text):
    return "".join(c if c.isprintable() else f"\\u{ord(c):04X}" for c in text)


def run_gdb(gdb, program, names, commands, **settings):
    """What GDB prints, line by line, and the whole of standard error."""
    arguments = [gdb, "-nx", "-batch", "-iex", "set debuginfod enabled off", "-iex",
                 "set auto-load safe-path /", "-ex", "set confirm off", "-ex", "set width 0"]
    for command in commands:
        arguments += ["-ex", command]
    done = subprocess.run(arguments + ["--args", program, names], capture_output=True, check=False,
                          timeout=600, env={**os.environ, "LC_ALL": "C.UTF-8", **settings})
    return done.stdout.decode().splitlines(), done.stderr.decode()


def printing(expressions):
    """Commands that print each expression on a line of its own, marked."""
    commands = []
    for number, expression in enumerate(expressions):
        commands += [f"echo @{number}@", f"output {expression}", "echo \\n"]
    return commands


def printed(lines):
    found = {}
    for line in lines:
        if line.startswith("@"):
            _, number, text = line.split("@", 2)
            found.setdefault(int(number), []).append(text)
    return found


# Expression, what is printed.
OBJECTS = [
    ("someOctets", "5 octets: 30 03 0A FF 00"),
    ("reference", "5 octets: 30 03 0A FF 00"),
    ("noOctets", "empty"),
    ("manyOctets", "100000 octets: " + " ".join(["00"] * 32) + " ..."),
    ("someString", '"2.5.4.3"'),
    ("emptyString", '""'),
    ("noString", '""'),
    ("withControls", r'"a\u000A\u001B[31m"'),
    ("longString", '"' + "x" * 1000 + '..."'),
    ("attributes[0]", "2.5.4.3 BMPString: Alpha"),
    ("attributes[1]", "2.5.4.6 BMPString: RU"),
    ("attributes[2]", "2.5.4.10 NumericString: 12"),
    ("attributes[3]", "any type: empty"),
    ("decodedAttribute", "2.5.4.6 BMPString: RU"),
    ("pair", "2.5.4.3=Alpha"),
    ("generalNames[0]", "dNSName: example.org"),
    ("generalNames[1]", "dNSName: a"),
    ("generalNames[2]", "iPAddress: 192.0.2.1"),
    ("generalNames[3]", "registeredID: 1.2.3.4"),
    ("generalNames[4]", "directoryName: 4 octets: A4 03 30 01"),
    ("generalNames[5]", "[77]: 2 octets: 05 00"),
    ("directory", "directoryName: C=RU,CN=Alpha"),
    ("extension", "2.5.29.15, critical, 4 octets: 30 03 0A FF"),
    ("emptyExtension", ", not critical, empty"),
    ("*wildPointer", "<unreadable>"),
    ("*wildSize", None),
    ("*(Ortholan::X509Name*)wildPointer", "<unreadable>"),
    ("*(Ortholan::X509Name*)&someOctets", "no name: 5 octets: 30 03 0A FF 00"),
    ("*(Ortholan::X509Name*)&noOctets", "empty"),
]
CLASSES = ["IdentObj", "X509Name", "CZEPString", "RDNAttr", "SimpleRDN", "GeneralName",
           "CertExtension"]
GARBAGE_STOPS = 5

# Digits, what is printed; the first is what `printed` makes other objects of.
NAMES = [
    ("301D310B3009060355040613025255310E300C06035504030C05416C706861", "C=RU,CN=Alpha"),
    ("3000", "no RDNs"),
    # Refused by the library: two attributes in an RDN.
    ("301A3118300A06035504030C0342657430" "0A060355040B0C03556E69", "CN=Bet+OU=Uni"),
    ("300E310C300A06035504030C03410D0A", r'CN="A\u000D\u000A"'),
    ("300D310B300906035504031E02D83D", r"CN=\uD83D"),
    ("30", "no name: 1 octets: 30"),
    ("3003310130", "no name: 5 octets: 30 03 31 01 30"),
    ("3080310B300906035504061302525500" "00", None),
]


def names_of_all_types(printers):
    """A name for each type that the printers have a key for, and for its neighbours."""
    with open(printers, encoding="utf-8") as file:
        types = set(re.findall(r'"([0-9]+(?:\.[0-9]+)+)": "', file.read()))
    types |= {f"2.5.4.{arc}" for arc in range(100)}
    return [name_of_type([int(arc) for arc in each.split(".")]) for each in sorted(types)]


def name_of_type(arcs):
    oid = bytes([arcs[0] * 40 + arcs[1]])
    for arc in arcs[2:]:
        groups = [arc & 0x7F]
        while arc := arc >> 7:
            groups.insert(0, arc & 0x7F | 0x80)
        oid += bytes(groups)
    der = bytes([6, len(oid)]) + oid + b"\x0C\1a"
    for tag in (0x30, 0x31, 0x30):
        der = bytes([tag, len(der)]) + der
    return der.hex().upper()


def library_text(program, digits):
    done = subprocess.run([program, "decode", "--json", "-"], input=digits.encode(),
                          capture_output=True, check=False)
    return json.loads(done.stdout)["text"] if done.returncode == 0 else None


def check_names(found, digits, x509name):
    compared = 0
    for i, each in enumerate(digits):
        text = library_text(x509name, each)
        if text is None or "3080" in each or "3180" in each:
            continue  # refused by the library; lengths that DER does not have
        if "\ufffd" in text:
            continue  # the program's word for half a character, which a debugger shows as it is
        compared += 1
        shown = visible(text[:1000]) + ("..." if len(text) > 1000 else "")
        check(f"name {each}", found[i], [shown or "no RDNs"])
    check("names compared with the library", compared >= 130, True)


def check_auto_load(gdb, program, names, library, install):
    """GDB finds the script by itself, by the name that it is installed with."""
    real = os.path.realpath(library)
    with tempfile.TemporaryDirectory() as root:
        subprocess.run([*install, "--component", "development", "--prefix", root], check=True,
                       stdout=subprocess.DEVNULL)
        name = os.path.basename(real) + "-gdb.py"
        [installed] = glob.glob(f"{root}/**/{name}", recursive=True)
        # Where it would lie, were the library installed where it was built.
        directory = root + os.path.dirname(real)
        os.makedirs(directory)
        shutil.copy(installed, os.path.join(directory, name))
        lines, errors = run_gdb(gdb, program, names, [
            f"set auto-load scripts-directory {root}", "break Inspect", "run",
            *printing(["names[0]"])])
    check(f"found by itself ({errors})", printed(lines), {0: ["C=RU,CN=Alpha"]})


def main():
    gdb, printers, program, data, library, x509name, cmake, build = sys.argv[1:]
    digits = [row[0] for row in NAMES] + names_of_all_types(printers)
    with open(data, encoding="ascii") as file:
        digits += [line.strip() for line in file if line.strip() and line[0] != "#"]
    with tempfile.TemporaryDirectory() as scratch:
        names = os.path.join(scratch, "names")
        with open(names, "w", encoding="ascii") as file:
            file.write("".join(each + "\n" for each in digits))

        expressions = [f"names[{i}]" for i in range(len(digits))] + [row[0] for row in OBJECTS]
        garbage = [f"*(Ortholan::{name}*)garbage" for name in CLASSES]
        commands = ["set auto-load no", f"source {printers}", "break Inspect",
                    "break InspectGarbage", "run", *printing(expressions)]
        for _ in range(GARBAGE_STOPS):
            commands += ["continue", *printing([*["0"] * len(expressions), *garbage])[
                3 * len(expressions):]]
        lines, errors = run_gdb(gdb, program, names, commands)
        found = printed(lines)
        check("no exception of Python's", "Python" in errors or "Error" in errors, False)
        check(f"everything is printed ({errors})", len(found), len(expressions) + len(garbage))
        if failures:
            raise SystemExit("\n".join(failures))

        for i, (each, expected) in enumerate(NAMES):
            check(f"name {each}", found[i], [expected] if expected is not None else found[i])
        check_names(found, digits, x509name)
        for i, (expression, expected) in enumerate(OBJECTS, len(digits)):
            check(expression, found[i], [expected] if expected is not None else found[i])
        for i, expression in enumerate(garbage, len(expressions)):
            check(f"{expression}: printed at each stop", len(found[i]), GARBAGE_STOPS)

        # On an ASCII terminal names are still shown.
        cyrillic = next(i for i, texts in found.items() if "Минкомсвязь" in texts[0])
        lines, errors = run_gdb(gdb, program, names, [
            "set auto-load no", f"source {printers}", "break Inspect", "run",
            *printing([f"names[{cyrillic}]"])], LC_ALL="C", PYTHONUTF8="0")
        check(f"ASCII ({errors})", "\\u0433" in str(printed(lines)), True)
        check_auto_load(gdb, program, names, library, [cmake, "--install", build])
    for failure in failures:
        print(failure, file=sys.stderr)
    print(f"printers_test.py: {len(failures)} failed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
