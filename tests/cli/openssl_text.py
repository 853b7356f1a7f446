#!/usr/bin/env python3
"""What show --json tells of extensions is what OpenSSL's text tells of them.

  openssl_text.py DATA PROGRAM [ARG]...

Asked are the extensions of the certificates and of the records of DATA, and the values of
strict_extensions.tsv, each in a certificate of its own. Answers that differ have a row in
openssl_text.tsv. ORTHOLAN_MORE_DATA names a directory with more records.
"""
import base64
import ipaddress
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import vectors  # noqa: E402
from der import element, identifier  # noqa: E402

data, program = pathlib.Path(sys.argv[1]), sys.argv[2:]
rows = vectors.read("openssl_text.tsv")
words = {row["ours"]: row["theirs"] for row in rows if row["kind"] == "word"}
differences = [row for row in rows if row["kind"] == "difference"]


# Names in OpenSSL's text whose content is compared elsewhere, or not told by it.
OPAQUE = re.compile(r"(DirName|othername):.*?(?=, (?:DNS|IP Address|URI|email|othername|DirName|"
                    r"EdiPartyName|Registered ID):|$)", re.M)


def show(document):
    done = subprocess.run([*program, "show", "--json", document], capture_output=True, check=False)
    return json.loads(done.stdout)


def certificate(serial, record):
    """A certificate without names that has this one extension, in PEM."""
    algorithm = element(0x30, identifier("1.3.101.112"))
    time = element(0x17, b"260101000000Z")
    fields = [element(0xA0, element(2, b"\2")), element(2, serial.to_bytes(3, "big")),
              algorithm, element(0x30, b""), element(0x30, time * 2), element(0x30, b""),
              element(0x30, algorithm + element(3, bytes(33))),
              element(0xA3, element(0x30, record))]
    der = element(0x30, element(0x30, b"".join(fields)) + algorithm + element(3, bytes(65)))
    return ("-----BEGIN CERTIFICATE-----\n" + base64.encodebytes(der).decode() +
            "-----END CERTIFICATE-----\n")


def records():
    for path in sorted(data.glob("certificates/*.pem")):
        for document in show(path):
            for each in document.get("extensions", []):
                critical = element(1, b"\xFF") if each["critical"] else b""
                yield element(0x30, identifier(each["oid"]) + critical +
                              element(4, bytes.fromhex(each["value"])))
    for row in vectors.read("strict_extensions.tsv"):
        if not row["reason"]:
            yield element(0x30, identifier(row["oid"]) + element(4, bytes.fromhex(row["der"])))
    for directory in [data, *map(pathlib.Path, filter(None, [os.getenv("ORTHOLAN_MORE_DATA")]))]:
        for line in (directory / "extensions.txt").read_text(encoding="utf-8").splitlines():
            if line and line[0] != "#":
                yield bytes.fromhex(line.split("\t")[0].split(" ")[-1])


def theirs(bundle):
    """By serial number the lines of each extension."""
    text = subprocess.run(["openssl", "storeutl", "-noout", "-text", bundle], check=False,
                          capture_output=True).stdout.decode("utf-8", "replace")
    for one in re.split(r"^\d+: Certificate$", text, flags=re.M)[1:]:
        serial = re.search(r"Serial Number: (\d+)", one)
        lines = re.search(r"^ {8}X509v3 extensions:\n(.*?)\n    Signature Algorithm", one,
                          flags=re.M | re.S)
        if lines:
            parts = re.split(r"\n\s*| {2,}", OPAQUE.sub(r"\1", lines[1]).strip())
            yield int(serial[1]), [part for part in parts[1:] if part]


def word(text):
    return words.get(text, str(text))


def address(text):
    """As OpenSSL writes it: the groups of IPv6 one by one, a mask for the length of a prefix."""
    if "/" in text:
        host = ipaddress.ip_interface(text) if text[text.index("/") + 1:].isdigit() else None
        mask = str(host.netmask) if host else text.split("/")[1]
        return address(text.split("/")[0]) + "/" + address(mask)
    if ":" not in text:
        return text
    groups = ipaddress.ip_address(text).packed.hex().upper()
    return ":".join(groups[i:i + 4].lstrip("0") or "0" for i in range(0, 32, 4))


def name(each, in_constraint=False):
    kind = word(each["kind"])
    if kind in ("DirName", "othername", "X400Name:<unsupported>", "EdiPartyName:<unsupported>"):
        return kind
    text = address(each["text"]) if each["kind"] == "IP" else each["text"]
    return ("IP" if in_constraint and kind == "IP Address" else kind) + ":" + text


def names(content):
    return [", ".join(map(name, content)) or "<EMPTY>"]


def single(content):
    return [word(content)]


def listed(content):
    return [", ".join(map(word, content))]


def octets(digits):
    return ":".join(re.findall("..", digits))


def key(content):
    return [octets(content)]


def integer(value):
    """Numbers of more than 53 bits are the octets of their content."""
    if isinstance(value, int):
        return value
    return int.from_bytes(bytes.fromhex(value), "big", signed=True)


def number(value):
    value = integer(value)
    return [str(value) if abs(value) < 2**127 else f"0x{value:X}"]


def basic(content):
    length = f", pathlen:{content['pathLenConstraint']}" if "pathLenConstraint" in content else ""
    return [f"CA:{str(content['cA']).upper()}{length}"]


def subtrees(content):
    for part, title in (("permittedSubtrees", "Permitted:"), ("excludedSubtrees", "Excluded:")):
        if part in content:
            yield from [title, *(name(tree["base"], True) for tree in content[part])]


def point(content):
    at = content.get("distributionPoint", {})
    if "fullName" in at:
        yield from ["Full Name:", *map(name, at["fullName"])]
    if "nameRelativeToCRLIssuer" in at:
        yield from ["Relative Name:", at["nameRelativeToCRLIssuer"]["text"].replace("=", " = ")]


def points(content):
    for each in content:
        yield from point(each)
        if "reasons" in each:
            yield from ["Reasons:", *listed(each["reasons"])]
        if "cRLIssuer" in each:
            yield from ["CRL Issuer:", *map(name, each["cRLIssuer"])]


def issuing(content):
    yield from point(content)
    for flag in ("onlyContainsUserCerts", "onlyContainsCACerts", "indirectCRL"):
        if content[flag]:
            yield word(flag)
    if "onlySomeReasons" in content:
        yield from ["Only Some Reasons:", *listed(content["onlySomeReasons"])]
    if content["onlyContainsAttributeCerts"]:
        yield word("onlyContainsAttributeCerts")


def notice(content):
    yield "User Notice:"
    if "noticeRef" in content:
        numbers = content["noticeRef"]["noticeNumbers"]
        yield f"Organization: {content['noticeRef']['organization']['text']}"
        yield f"Number{'s' * (len(numbers) != 1)}: " + ", ".join(map(str, numbers))
    if "explicitText" in content:
        yield f"Explicit Text: {content['explicitText']['text']}"


def policies(content):
    for each in content:
        yield "Policy: " + word(each["policyIdentifier"])
        for qualifier in each.get("policyQualifiers", []):
            if qualifier["policyQualifierId"] == "cps":
                yield f"CPS: {qualifier['qualifier']}"
            elif qualifier["policyQualifierId"] == "userNotice":
                yield from notice(qualifier["qualifier"])
            else:
                yield f"Unknown Qualifier: {word(qualifier['policyQualifierId'])}"


def authority(content):
    if "keyIdentifier" in content:
        yield "keyid:" * (len(content) > 1) + octets(content["keyIdentifier"])
    yield from map(name, content.get("authorityCertIssuer", []))
    if "authorityCertSerialNumber" in content:
        serial = integer(content["authorityCertSerialNumber"])
        digits = f"{abs(serial):X}"
        yield "serial:" + "-" * (serial < 0) + octets("0" * (len(digits) % 2) + digits)


def accesses(content):
    return [f"{word(each['accessMethod'])} - {name(each['accessLocation'])}" for each in content]


def mappings(content):
    return [", ".join(word(each["issuerDomainPolicy"]) + ":" + word(each["subjectDomainPolicy"])
                      for each in content)]


def policy_constraints(content):
    return [", ".join(f"{word(part)}:{value}" for part, value in content.items())]


READERS = {
    "2.5.29.14": key, "2.5.29.15": listed, "2.5.29.17": names, "2.5.29.18": names,
    "2.5.29.19": basic, "2.5.29.20": number, "2.5.29.21": single, "2.5.29.23": single,
    "2.5.29.27": number, "2.5.29.28": issuing, "2.5.29.29": names, "2.5.29.30": subtrees,
    "2.5.29.31": points, "2.5.29.32": policies, "2.5.29.33": mappings, "2.5.29.35": authority,
    "2.5.29.36": policy_constraints, "2.5.29.37": listed, "2.5.29.46": points,
    "2.5.29.54": number, "1.3.6.1.5.5.7.1.1": accesses, "1.3.6.1.5.5.7.1.11": accesses,
    "1.3.6.1.5.5.7.1.24": listed, "2.16.840.1.113730.1.1": listed,
}

failures, compared, used = [], 0, set()
with tempfile.NamedTemporaryFile("w", suffix=".pem") as bundle:
    bundle.write("".join(certificate(0x10000 + n, each) for n, each in enumerate(records())))
    bundle.flush()
    shown = show(bundle.name)
    read = dict(theirs(bundle.name))
for document in shown:
    their = "|".join(read.get(int(document.get("serialNumber", "0"), 16), []))
    for extension in document.get("extensions", []):
        reader = READERS.get(extension.get("oid"))
        if not reader or not their:
            continue
        our = reader(extension["content"]) if "content" in extension else ["refused"]
        our = "|".join(filter(None, our))
        compared += 1
        explained = [row["where"] for row in differences if row["oid"] == extension["oid"] and
                     re.search(row["ours"], extension["value"]) and
                     re.search(row["theirs"], f"{our} / {their}")]
        used.update(explained)
        if our != their and not explained:
            failures.append(f"{extension['oid']} {extension['value']}: {our} / {their}")
failures += [f"{row['where']}: explains nothing" for row in differences
             if row["where"] not in used]
if compared < 60:
    failures.append(f"{compared} extensions alone")
sys.exit("\n".join(failures) or 0)
