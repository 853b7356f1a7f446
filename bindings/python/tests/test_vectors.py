"""The rows that the other interfaces are asked too."""

import ipaddress
import json

import ortholan
from ortholan import Answer, GeneralName, Name, Reading, Reason, Rule, TextOptions, batch

import shells
from rows import check, is_refused

ISSUER = Name.build([("CN", b"\x0c\x06issuer")]).der
RULES = {
    "names": Rule.RFC5280,
    "any-order": Rule.RFC5280 | Rule.ANY_ORDER,
    "ascii-case": Rule.ASCII_CASE,
    "octets": Rule.OCTETS,
}


def octets(digits):
    return bytes.fromhex("" if digits == "-" else digits)


def loose(digits):
    return Name.from_der(octets(digits), Reading.STRUCTURE)


def words(answer):
    return answer.name.lower().replace("_", " ")


def test_identifiers():
    def told(row):
        content = octets(row["octets"])
        attribute = shells.element(0x30, shells.element(6, content) + b"\x0c\x01x")
        der = shells.element(0x30, shells.element(0x31, attribute))
        if not row["text"]:
            refused = is_refused(lambda: [*Name.from_der(der)][0].type)
            return "" if refused else "read", row["octets"]
        if not row["octets"]:
            refused = is_refused(lambda: Name.build([(row["text"], "x")]))
            return row["text"], "" if refused else "read"
        assert Name.build([(row["text"], "x")]) == Name.from_der(der)
        return [*Name.from_der(der)][0].type, row["octets"]

    check("identifiers.tsv", told, "text", "octets")


def test_reading_names():
    def refusal(row):
        try:
            Name.from_der(octets(row["der"]), Reading(int(row["mode"])))
        except ortholan.Refusal as refusal:
            return int(refusal.reason), refusal.offset
        return 0, 0

    check("strict_names.tsv", refusal, "reason", "at")


def test_names_from_text():
    def der(row):
        if not row["der"]:
            return None if is_refused(lambda: Name(row["text"])) else ("read",)
        return (Name(row["text"]).der.hex().upper(),)

    check("rfc4514_read.tsv", der, "der")


def test_names_to_text():
    def texts(row):
        der = octets(row["der"])
        if not row["text"]:
            return None if is_refused(lambda: Name.from_der(der)) else ("read", "")
        name = Name.from_der(der)
        assert Name(name.exact, TextOptions(exact=True)).der == der
        return str(name), name.exact

    check("rfc4514_write.tsv", texts, "text", "exact")


def test_refused_texts():
    def told(row):
        try:
            Name(row["text"])
        except ortholan.Refusal as refusal:
            before = row["text"].encode()[: refusal.offset].decode()
            assert refusal.position == len(before)
            return int(refusal.reason), refusal.offset, str(refusal) if row["sentence"] else ""
        return ()

    check("rfc4514_errors.tsv", told, "reason", "at", "sentence")


def compared(row):
    try:
        first, second = loose(row["first"]), loose(row["second"])
    except ortholan.Refusal:
        pair = octets(row["first"]), octets(row["second"])
        return None if batch.match([pair]) == [Answer.CANNOT_TELL] else ("read",)
    if row["call"] == "within":
        match = second.is_within(first)
    else:
        match = first.match(second, RULES[row["call"]])
    if row["call"] == "names":
        assert (first == second) is bool(match)
        assert hash(first) == hash(second) or not match
    return match


def test_matching():
    def told(row):
        match = compared(row)
        if match is None:
            return None
        parts = [match.reason.name] if match.reason else []
        if row["call"] != "any-order":
            parts += [] if match.first.rdn is None else [f"RDN {match.first.rdn}"]
            parts += [f"name {match.side}"] if match.side else []
        return (": ".join([words(match.answer), ", ".join(parts)][: 1 + bool(parts)]),)

    check("matching.tsv", told, "out")


def test_published_pairs_of_names():
    def told(row):
        match = compared(row)
        return None if match is None else ("yes" if match else "no",)

    check("published_names.tsv", told, "out")


def test_sentences():
    def told(row):
        match = compared({**row, "call": "names"})
        return None if match is None else (match.sentence,)

    check("match_sentences.tsv", told, "out")


def test_keys():
    check("match_keys.tsv", lambda row: None if loose(row["in"]).key() == octets(
        row["out"].split()[0]) else [loose(row["in"]).key().hex()], "out")


def test_general_names_from_text():
    def made(row):
        name = GeneralName(row["text"], allows_range=row["label"].startswith("range"))
        assert GeneralName.from_der(name.der, Reading.STRUCTURE) == name
        return name.der.hex().upper(), row["shown"] and str(name), "", ""

    def told(row):
        if row["reason"]:
            try:
                made(row)
            except ortholan.Refusal as refusal:
                return "", "", refusal.reason.name, refusal.offset
        return made(row)

    check("strict_general_names.tsv", told, "der", "shown", "reason", "offset")


def test_alternative_names():
    def der(row):
        made = ortholan.Extension.for_names(row["names"].split("|"), row["critical"] == "1")
        return (made.der.hex().upper(),)

    check("strict_alternative_names.tsv", der, "der")


def test_values_of_extensions():
    def told(row):
        extension = ortholan.Extension(row["oid"], False, octets(row["der"]))
        meaning = extension.meaning
        assert meaning == json.loads(row["json"] or "null") and extension.text
        return ortholan.Extension.of(row["oid"], meaning).value.hex().upper(), "", ""

    def refused(row):
        try:
            return told(row)
        except ortholan.Refusal as refusal:
            return row["der"], refusal.reason.name, refusal.offset

    check("strict_extensions.tsv", refused, "der", "reason", "offset")


def test_what_is_forbidden():
    def told(row):
        try:
            faults = ortholan.check(octets(row["der"]))
        except ortholan.Refusal:
            return ("refused",)
        assert all(fault.section in str(fault) for fault in faults)
        assert all(fault.part in octets(row["der"]) for fault in faults)
        return (",".join(fault.rule for fault in faults),)

    check("checks.tsv", told, "faults")


def test_parts_of_names():
    def parts(row):
        kind, text = row["kind"], row["text"]
        try:
            if kind in ("host", "pattern"):
                choices = ortholan.HostChoices
                ortholan.check_host(text, choices.WILDCARD if kind == "pattern" else choices(0))
                return ("ok",)
            if kind == "uri":
                made = ortholan.Uri.parse(text)
                found = [made.scheme, made.userinfo, made.host, made.port, made.rest]
            else:
                made = ortholan.Mailbox.parse(text, utf8=kind == "mailbox8")
                found = [made.local, made.host]
        except ortholan.Refusal as refusal:
            return (f"{refusal.reason.name}@{refusal.offset}",)
        address = "" if isinstance(made.host, str) else made.host
        if kind != "uri" and address:
            found[1] = ""
        return ("".join(f"{each}|" for each in [*found, address]),)

    check("strict_name_parts.tsv", parts, "parts")


def asked(row):
    return {row["kind"]: row["reference"]}


def test_identity():
    def told(row):
        choices, question = int(row["choices"] or "0"), asked(row)
        der = shells.certificate(
            shells.extension(17, None if row["names"] == "none" else octets(row["names"])))
        try:
            found = ortholan.identify(der, underscores=choices == 0, **question)
        except ortholan.Refusal as refusal:
            return "refused", refusal.reason.name
        assert bool(found) == (found.name is not None)
        why = [each.reason.name for each in found.mismatches]
        assert why == [each for each in row["why"].split(",") if each]
        return words(found.answer), "" if found else found.reason.name

    check("strict_identity.tsv", told, "verdict", "reason")


def test_published_identities():
    def told(row):
        names = {"none": None, "empty": b""}.get(row["names"])
        if row["names"] not in ("none", "empty"):
            names = octets(row["names"])
        der = shells.certificate(shells.extension(17, names))
        try:
            return ("match" if ortholan.identify(der, **asked(row)) else "nomatch",)
        except ortholan.Refusal:
            return ("nomatch",)

    check("strict_identity_suites.tsv", told, "verdict")


def test_name_constraints():
    def shell(parts):
        is_self, subject, names, constraints = parts.split(":")
        extensions = [shells.extension(number, octets(value) if value else None)
                      for number, value in ((17, names), (30, constraints))]
        subject = octets(subject)
        return shells.certificate(b"".join(extensions), subject if is_self else ISSUER, subject)

    def told(row):
        found = ortholan.permits(map(shell, row["chain"].split("/")), most=1)
        assert len(found.findings) == (0 if found else 1)
        assert bool(found) == (found.reason == Reason.NONE)
        return ("yes" if found else "other",)

    check("name_constraints.tsv", told, "verdict")


def test_addresses_are_typed():
    rows = [
        ("IP:192.0.2.1", ipaddress.ip_address("192.0.2.1")),
        ("IP:2001:db8::1", ipaddress.ip_address("2001:db8::1")),
        ("IP:192.0.2.0/24", ipaddress.ip_network("192.0.2.0/24")),
    ]
    for text, value in rows:
        assert GeneralName(text, allows_range=True).value == value == GeneralName.ip(value).value
