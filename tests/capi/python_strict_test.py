"""The strict layer from ctypes, by the example module, and the rows of the other interfaces.

ORTHOLAN_LIBRARY names the shared library.
"""

import doctest
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "examples" / "python"), str(ROOT / "tests" / "support")]

import ortholan_strict as strict  # noqa: E402
import vectors  # noqa: E402
from ortholan_strict import (  # noqa: E402
    Certificate,
    Extension,
    GeneralName,
    Name,
    Reference,
    Rule,
    Verdict,
)

KINDS = {
    "host": Reference.HOST,
    "ip": Reference.ADDRESS,
    "email": Reference.MAILBOX,
    "uri": Reference.URI,
    "srv": Reference.SERVICE,
}
CALLS = {
    "names": (Name.match, Rule.RFC5280),
    "any-order": (Name.match, Rule.RFC5280 | Rule.ANY_ORDER),
    "ascii-case": (Name.match, Rule.ASCII_CASE),
    "octets": (Name.match, Rule.OCTETS),
    "within": (lambda subtree, name, rule: name.is_within(subtree, rule), Rule.RFC5280),
}


def reasons():
    """Names of reasons by their numbers, as the headers have them."""
    headers = (ROOT / "include" / "ortholan" / "strict").glob("*.h")
    text = "".join(header.read_text(encoding="utf-8") for header in headers)
    return {int(n): name for name, n in re.findall(r"ORTHOLAN_REASON_(\w+) = (\d+)", text)}


def name(digits):
    return Name.from_der(bytes.fromhex(digits), strict.Reading.STRUCTURE)


def element(identifier, content):
    """With content of less than 256 octets."""
    length = len(content)
    return bytes([identifier, length] if length < 128 else [identifier, 0x81, length]) + content


def certificate(extension):
    algorithm, empty, bits = (bytes.fromhex(part) for part in ("300406022A03", "3000", "030100"))
    validity = element(0x30, 2 * element(0x17, b"260101000000Z"))
    parts = [bytes.fromhex("A003020102020101"), algorithm, empty, validity, empty]
    parts += [element(0x30, algorithm + bits), element(0xA3, strict.write_extensions([extension]))]
    return element(0x30, element(0x30, b"".join(parts)) + algorithm + bits)


class Vectors(unittest.TestCase):
    def each(self, file):
        for row in vectors.read(file):
            with self.subTest(row["where"]):
                yield row

    def test_names_from_text(self):
        for row in self.each("rfc4514_read.tsv"):
            if row["der"]:
                self.assertEqual(row["der"], Name(row["text"]).der.hex().upper())
            else:
                self.assertRaises(strict.Refused, Name, row["text"])

    def test_names_to_text(self):
        for row in self.each("rfc4514_write.tsv"):
            der = bytes.fromhex(row["der"])
            if not row["text"]:
                self.assertRaises(strict.Refused, Name.from_der, der)
                continue
            self.assertEqual(row["text"], str(Name.from_der(der)))
            self.assertEqual(row["exact"], Name.from_der(der).text(exact=True))

    def test_matching(self):
        for row in self.each("matching.tsv"):
            call, rule = CALLS[row["call"]]
            try:
                answer = call(name(row["first"]), name(row["second"]), rule)
                verdict = answer.verdict
                self.assertEqual(bool(answer), not answer.sentences)
            except strict.Refused:
                verdict = Verdict.CANNOT_TELL
            self.assertEqual(row["out"].split(":")[0], verdict.name.lower().replace("_", " "))

    def test_keys(self):
        for row in self.each("match_keys.tsv"):
            self.assertEqual(row["out"].split()[0], name(row["in"]).key().hex().upper())

    def test_general_names(self):
        known = reasons()
        for row in self.each("strict_general_names.tsv"):
            if row["reason"]:
                with self.assertRaises(strict.Refused) as raised:
                    GeneralName(row["text"])
                error = raised.exception
                self.assertEqual(row["reason"], known[error.reason])
                self.assertEqual(int(row["offset"]), error.offset)
                continue
            made = GeneralName(row["text"], allows_range=row["label"].startswith("range"))
            self.assertEqual(row["der"], made.der.hex().upper())
            self.assertEqual(row["shown"] or row["text"], str(made))

    def test_identity(self):
        for row in self.each("strict_identity.tsv"):
            if row["choices"] or row["names"] == "none":
                continue
            question = bytes.fromhex(row["names"]), KINDS[row["kind"]], row["reference"]
            if row["verdict"] == "refused":
                self.assertRaises(strict.Refused, strict.identify_by_names, *question)
                continue
            answer = strict.identify_by_names(*question)
            self.assertEqual(row["verdict"], answer.verdict.name.lower().replace("_", " "))


class Certificates(unittest.TestCase):
    def read(self, file):
        pem = (ROOT / "tests" / "data" / "certificates" / file).read_bytes()
        return Certificate(strict.read_pem(pem)[0].octets)

    def test_parts(self):
        certificate = self.read("alternative_names.pem")
        self.assertEqual(("CN=Gamma", 1), (str(certificate.subject), certificate.serial))
        self.assertIn("IP:2001:db8::1", map(str, certificate.alternative_names))
        self.assertRegex(certificate.not_after, r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$")
        answer = certificate.identify(Reference.HOST, "EXAMPLE.org")
        self.assertEqual((True, "DNS:example.org"), (bool(answer), str(answer.name)))
        self.assertIsNone(self.read("list.pem").subject)
        self.assertIsNone(self.read("request.pem").serial)

    def test_chains(self):
        excluded = element(0xA1, element(0x30, GeneralName("DNS:example.org").der))
        authority = certificate(Extension("2.5.29.30", True, element(0x30, excluded)))
        rows = [
            (["DNS:a.example.net"], Verdict.YES, 0),
            (["DNS:a.example.net", "DNS:a.example.org", "DNS:example.org"], Verdict.NO, 2),
        ]
        for texts, verdict, count in rows:
            names = Extension("2.5.29.17", False, strict.alternative_names(texts))
            answer = strict.permits([certificate(names), authority])
            self.assertEqual((verdict, count), (answer.verdict, len(answer.sentences)))
        self.assertEqual(Verdict.CANNOT_TELL, strict.permits([b"0"]).verdict)

    def test_lists_of_extensions(self):
        extensions = self.read("typed.pem").extensions
        self.assertEqual(extensions, strict.read_extensions(strict.write_extensions(extensions)))
        self.assertRaises(strict.Refused, strict.write_extensions, extensions * 2)

    def test_octets_behind_views_are_long(self):
        long = GeneralName("DNS:" + ".".join(["a" * 60] * 4))
        names = strict.alternative_names([str(long)] * 50)
        self.assertEqual([long] * 50, strict.general_names(names))
        self.assertEqual(1, len({long, *strict.general_names(names)}))

    def test_module_examples(self):
        failed, attempted = doctest.testmod(strict)
        self.assertEqual((0, True), (failed, attempted > 4))


if __name__ == "__main__":
    unittest.main()
