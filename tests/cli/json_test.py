#!/usr/bin/env python3
"""What --json prints, read by a JSON parser of somebody else's.

  json_test.py CERTIFICATES PROGRAM [ARG]...

CERTIFICATES is the directory of sample certificates; PROGRAM with its ARGs is what runs x509name.
"""
import base64
import json
import os
import subprocess
import sys
import tempfile
import unicodedata

PROGRAM = []
failures = []


def check(label, actual, expected):
    if actual != expected:
        failures.append(f"{label}:\n  {actual!r}\n  not\n  {expected!r}")


def members(pairs):
    names = [name for name, _ in pairs]
    assert len(set(names)) == len(names), f"a member twice: {names}"
    return dict(pairs)


def no_constant(word):
    raise ValueError(f"{word} is not JSON")


def run(arguments, stdin=b""):
    done = subprocess.run(PROGRAM + arguments, input=stdin, capture_output=True, check=False)
    return done.returncode, done.stdout, done.stderr


def parsed(label, arguments, status=0, stdin=b""):
    code, output, error = run(arguments, stdin)
    check(f"{label}: exit status ({error!r})", code, status)
    try:
        text = output.decode("utf-8")
        hidden = [c for c in text if c != "\n" and unicodedata.category(c) in ("Cc", "Cf", "Zl")]
        check(f"{label}: hidden characters as they are", hidden, [])
        return json.loads(text, object_pairs_hook=members, parse_constant=no_constant)
    except (ValueError, AssertionError) as fault:
        failures.append(f"{label}: {fault} in {output!r}")
        return None


def element(tag, *content):
    content = b"".join(content)
    size = len(content)
    if size < 0x80:
        return bytes([tag, size]) + content
    octets = size.to_bytes((size.bit_length() + 7) // 8, "big")
    return bytes([tag, 0x80 | len(octets)]) + octets + content


COMMON_NAME = bytes.fromhex("0603550403")


def name(value):
    return element(0x30, element(0x31, element(0x30, COMMON_NAME, value)))


def bmp(*units):
    return element(0x1E, b"".join(unit.to_bytes(2, "big") for unit in units))


def utf8(text):
    return element(0x0C, text.encode())


# Label, the value's encoding, the text of a name with that common name. Quoting is the name text's.
VALUES = [
    ("plain", utf8("Alpha"), "CN=Alpha"),
    ("Cyrillic", utf8("Альфа"), "CN=Альфа"),
    ("outside the basic plane", utf8("😀"), "CN=😀"),
    ("outside the basic plane, as surrogates", bmp(0xD83D, 0xDE00), "CN=😀"),
    ("high surrogate alone", bmp(0xD83D), "CN=\ufffd"),
    ("low surrogate alone", bmp(0xDE00), "CN=\ufffd"),
    ("surrogates in the wrong order", bmp(0xDE00, 0xD83D), "CN=\ufffd\ufffd"),
    ("high surrogate before a character", bmp(0xD83D, 0x41), "CN=\ufffdA"),
    ("high surrogate before a pair", bmp(0xD83D, 0xD83D, 0xDE00), "CN=\ufffd😀"),
    ("noncharacter", bmp(0xFFFF), "CN=\uffff"),
    ("every control character", bmp(*range(1, 0x20)),
     'CN="' + "".join(map(chr, range(1, 0x20))) + '"'),
    ("NUL", bmp(0x61, 0, 0x62), "CN=a\0b"),
    ("delete and the upper controls", bmp(0x7F, 0x80, 0x9B, 0x61), "CN=\x7f\x80\x9ba"),
    ("escape sequence", utf8("\x1b[31mred"), "CN=\x1b[31mred"),
    ("quotation mark", utf8('a"b'), 'CN="a""b"'),
    ("reverse solidus", utf8("a\\b"), 'CN="a\\b"'),
    ("solidus", utf8("a/b"), "CN=a/b"),
    ("separators of lines, and of directions", bmp(0x61, 0x2028, 0x202E, 0x2066, 0x62),
     "CN=a\u2028\u202e\u2066b"),
    ("zero width, byte order mark, tag", utf8("a\u200b\ufeff\U000E0041"), "CN=a\u200b\ufeff\U000E0041"),
]

SIGNED = {"text": "C=RU,O=Org,CN=Alpha", "rdns": [
    [{"oid": "2.5.4.6", "key": "C", "stringType": "PrintableString", "values": ["RU"]}],
    [{"oid": "2.5.4.10", "key": "O", "stringType": "PrintableString", "values": ["Org"]}],
    [{"oid": "2.5.4.3", "key": "CN", "stringType": "PrintableString", "values": ["Alpha"]}]]}
PRINTABLE = {
    "number": 1, "kind": "certificate", "serialNumber": "01",
    "notBefore": "2026-11-21T04:07:32Z", "notAfter": "2126-10-28T04:07:32Z",
    "sha256": "20EE99FF380490070783E5E402D65E1189F631960F92628BEF0B473E23F8E2CF",
    "subject": SIGNED, "issuer": SIGNED, "faults": [],
    "extensions": [
        {"oid": "2.5.29.19", "name": "Basic Constraints", "critical": True,
         "value": "30060101FF020101", "content": {"cA": True, "pathLenConstraint": 1}},
        {"oid": "2.5.29.15", "name": "Key Usage", "critical": True, "value": "03020106", "content": ["keyCertSign", "cRLSign"]},
        {"oid": "1.2.3.4", "critical": False, "value": "0C03616263"}]}
MISSING = {"what": "cannot open no.pem: no such file"}


def certificate(subject, extensions=b""):
    fields = [element(2, b"\1"), element(0x30), element(0x30), element(0x30), subject,
              element(0x30), extensions]
    return element(0x30, element(0x30, *fields), element(0x30), element(3, b"\0"))


def pem(der):
    return (b"-----BEGIN CERTIFICATE-----\n" + base64.encodebytes(der) +
            b"-----END CERTIFICATE-----\n")


def check_names():
    for label, value, text in VALUES:
        digits = name(value).hex()
        check(f"decode: {label}", parsed(label, ["decode", "--json", digits]), {"text": text})
    pairs = element(0x30, bytes.fromhex("310B3009060355040613025255"),
                    element(0x31, element(0x30, bytes.fromhex("0603550410"),
                                          element(0x30, utf8("a"), utf8('б"'), bmp(0xDC00)))))
    check("pairs", parsed("pairs", ["pairs", "--json", "-"], stdin=pairs),
          [{"type": "C", "values": ["RU"]},
           {"type": "postalAddress", "values": ["a", 'б"', "\ufffd"]}])
    check("pairs by identifier",
          parsed("pairs", ["pairs", "--json", "--style=2", "-"], stdin=pairs)[0],
          {"type": "2.5.4.6", "values": ["RU"]})
    check("pairs of no RDN", parsed("none", ["pairs", "--json", "3000"]), [])
    for command in ["decode", "pairs"]:
        code, output, error = run([command, "--json", "0400"])
        check(f"{command}: refused", (code, output, bool(error)), (1, b"", True))


def check_show(certificates):
    one = dict(PRINTABLE, file="printable.pem")
    os.chdir(certificates)
    check("show", parsed("show", ["show", "--json", "printable.pem"]), [one])
    check("show: a file missing",
          parsed("missing", ["show", "--json", "no.pem", "printable.pem"], 1),
          [{"file": "no.pem", "faults": [MISSING]}, one])
    check("show: standard input", [each["file"] for each in parsed(
        "standard input", ["show", "--json", "-"], stdin=open("printable.pem", "rb").read())], ["-"])

    found = parsed("alternative names", ["show", "--json", "alternative_names.pem"])
    names = found[0]["extensions"][0]["generalNames"]
    check("general names", names[:2] + names[4:5],
          [{"kind": "otherName", "text": "user", "type": "1.3.6.1.4.1.311.20.2.3",
            "typeName": "userPrincipalName"},
           {"kind": "rfc822Name", "text": "user@example.org"},
           {"kind": "directoryName", "text": "CN=Delta"}])
    found = parsed("library text", ["show", "--json", "--library-text", "alternative_names.pem"])
    check("library text", found[0]["extensions"][0]["generalNames"][7],
          {"kind": "iPAddress", "text": "192.0.2.1", "libraryText": "135:4:192:0:2:1"})
    found = parsed("bundle", ["show", "--json", "request.pem", "pkcs7.pem"])
    check("bundle", [(each["kind"], each["number"], list(each)[-4:]) for each in found],
          [("certificateRequest", 1, ["sha256", "subject", "extensions", "faults"]),
           ("certificate", 1, ["subject", "issuer", "extensions", "faults"]),
           ("certificate", 2, ["subject", "issuer", "extensions", "faults"]),
           ("revocationList", 3, ["sha256", "issuer", "extensions", "faults"])])
    found = parsed("typed", ["show", "--json", "typed.pem"])
    content = {each["name"]: each["content"] for each in found[0]["extensions"] if "content" in each}
    check("typed", (content["Authority Information Access"], content["Policy Mappings"]),
          ([{"accessMethod": "ocsp", "accessLocation": {
              "kind": "URI", "text": "http://ocsp.example/"}}],
           [{"issuerDomainPolicy": "1.2.3", "subjectDomainPolicy": "1.2.4"}]))
    found = parsed("multi-valued", ["show", "--json", "multi_valued.pem"])
    check("multi-valued", (found[0]["subject"]["refused"], found[0]["faults"],
                           [attribute["key"] for attribute in found[0]["subject"]["rdns"][1]]),
          ("several attributes in one RDN", [], ["O", "OU"]))


def check_hostile(scratch):
    """Everything that is broken is told in an array that is whole."""
    alternative = element(0xA3, element(0x30, element(
        0x30, bytes.fromhex("0603551D11"), element(4, element(0x30, b"\x82\1a", b"\x87\5a")))))
    whole = certificate(name(bmp(0xD800, 0x22)), alternative)
    bundle = os.path.join(scratch, "broken.pem")
    with open(bundle, "wb") as file:
        for i in range(len(whole)):
            file.write(pem(whole[:i]))
            for octet in (0x00, 0x1F, 0x30, 0x80, 0xFF):
                file.write(pem(whole[:i] + bytes([octet]) + whole[i + 1:]))
        file.write(b"-----BEGIN CERTIFICATE-----\n*\n-----END CERTIFICATE-----\n")
        file.write(pem(whole))
    found = parsed("broken", ["show", "--json", bundle], 1)
    check("broken: certificates", [each["number"] for each in found],
          list(range(1, 6 * len(whole) + 3)))
    # The issuer is the sequence without RDNs.
    check("broken: the last", (found[-1]["subject"]["text"], found[-1]["issuer"],
                               found[-1]["extensions"][0]["generalNames"]),
          ('CN="\ufffd"""', {"text": "", "rdns": []},
           [{"kind": "dNSName", "text": "a"}, {"octets": "870561"}]))
    check("broken: octets of what has no UTF-8", found[-1]["subject"]["rdns"][0][0]["octets"],
          "1E04D8000022")
    check("broken: the last one's faults", [fault["what"] for fault in found[-1]["faults"]],
          ["Subject Alternative Name cannot be read: "
           "at offset 8: the octets end inside an element"])
    check("broken: no base64", found[-2]["faults"][0]["what"], "a PEM block that is no base64")
    check("broken: nothing", set(found[0]), {"file", "number", "faults"})


def main():
    certificates = os.path.abspath(sys.argv[1])
    PROGRAM[:] = [os.path.abspath(word) if os.path.exists(word) else word for word in sys.argv[2:]]
    check_names()
    check_show(certificates)
    with tempfile.TemporaryDirectory() as scratch:
        check_hostile(scratch)
    for failure in failures:
        print(ascii(failure), file=sys.stderr)
    print(f"json_test.py: {len(failures)} failed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
