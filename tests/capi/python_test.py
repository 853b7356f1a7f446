"""The C interface from ctypes, by the example module: its objects, its program and its examples.

ORTHOLAN_LIBRARY names the shared library.
"""

import doctest
import os
import pathlib
import subprocess
import sys
import tempfile
import threading
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples" / "python"
CERTIFICATES = ROOT / "tests" / "data" / "certificates"
sys.path.insert(0, str(EXAMPLES))

sys.path.insert(0, str(ROOT / "tests" / "support"))

import ortholan  # noqa: E402
import vectors  # noqa: E402
from ortholan import Encode, Fault, Kind, Name, NameTextError, OrtholanError, Result, Style  # noqa: E402

ALPHA = bytes.fromhex("3010310E300C06035504031305416C706861")
KEY_USAGE = bytes.fromhex("300E0603551D0F0101FF0404030205A0")
CONSTRAINTS = bytes.fromhex("30090603551D1304023000")


class Vectors(unittest.TestCase):
    """The rows that the other interfaces are asked too."""

    def each(self, file):
        for row in vectors.read(file):
            with self.subTest(row["where"]):
                yield row

    def refused(self, row, call):
        """Whether the row's code says that the call is refused, which it then has to be."""
        code = row["code"].removeprefix("TEXT_")
        if not code:
            return False
        with self.assertRaises(OrtholanError) as raised:
            call()
        self.assertEqual(Result[code], raised.exception.result)
        return True

    def test_names_from_text(self):
        for row in self.each("name_text.tsv"):
            def make():
                return Name(row["text"], int(row["options"] or "0", 0), row["sort"] == "1")
            if not self.refused(row, make):
                self.assertEqual(row["der"], make().der.hex().upper())
                self.assertEqual(row["rendered"], make().text(int(row["style"], 0)))

    def test_names_from_octets(self):
        for row in self.each("name_der.tsv"):
            if not self.refused(row, lambda: str(Name.from_der(bytes.fromhex(row["der"])))):
                self.assertEqual(row["text"], str(Name.from_der(bytes.fromhex(row["der"]))))

    def test_general_names(self):
        for row in self.each("general_names.tsv"):
            der = bytes.fromhex(row["der"])
            if not self.refused(row, lambda: str(ortholan.GeneralName(der))):
                name = ortholan.GeneralName(der)
                self.assertEqual(int(row["tag"]), name.kind)
                self.assertEqual(row["value"], name.value.hex().upper())
                self.assertEqual((row["text"], der), (str(name), name.der))

    def test_extensions(self):
        for row in self.each("extensions.tsv"):
            value = bytes.fromhex(row["value"])
            def make():
                if row["code"] == "DER":
                    return ortholan.Extensions.from_der(b"\x30" + bytes.fromhex(row["der"]))
                return ortholan.Extension(row["oid"], row["critical"] == "1", value)
            if not self.refused(row, make):
                self.assertEqual(row["der"], make().der.hex().upper())


class Names(unittest.TestCase):
    def test_text_and_der(self):
        name = Name("CN=Alpha")
        self.assertEqual(ALPHA, name.der)
        self.assertEqual("2.5.4.3=Alpha", name.text(Style.OIDS))
        self.assertEqual("CN=Alpha", str(Name.from_der(bytearray(ALPHA))))
        both = Name("C=RU; CN=A,B", Encode.SEMICOLON | Encode.UTF8)
        self.assertEqual('C=RU;CN="A,B"', both.text(Style.KEYS | Style.SEMICOLON))

    def test_refusals(self):
        rows = [
            ("empty", lambda: Name(""), Result.NAME_TEXT, 28),
            ("cut short", lambda: Name.from_der(ALPHA[:-1]), Result.DER, 206),
            ("empty value", lambda: Name().add("CN", ""), Result.VALUE, 1),
        ]
        for label, refused, result, status in rows:
            with self.subTest(label), self.assertRaises(OrtholanError) as raised:
                refused()
            self.assertEqual((result, status), (raised.exception.result, raised.exception.status))
            explained = result == Result.NAME_TEXT
            self.assertNotEqual(explained, str(raised.exception).startswith("ortholan_name_"), label)

    def test_place_in_a_text(self):
        with self.assertRaises(NameTextError) as raised:
            Name("O=\U0001F600 \u0410, C=R_U")
        error = raised.exception
        self.assertEqual((Fault.WRONG_CHARACTER, 10, 1), (error.fault, error.position, error.length))
        self.assertIn('"_" at character', str(error))

    def test_attributes(self):
        name = Name().add("C", "RU").add("2.5.4.3", "\u0410\0\U0001F600").add("1.2.3.4", "x")
        self.assertEqual(3, len(name))
        self.assertEqual(["C", "CN", "1.2.3.4"], [attribute.key for attribute in name])
        self.assertEqual("\u0410\0\U0001F600", name.attributes()[1].value)
        self.assertEqual(bytes.fromhex("13025255"), name.attributes()[0].der)
        self.assertEqual("\u0410\0\U0001F600", name["cn"])
        copy = name.copy()
        name["CN"] = "Beta"
        del name["1.2.3.4"]
        self.assertEqual("C=RU,CN=Beta", str(name))
        self.assertEqual("x", copy["1.2.3.4"])
        self.assertTrue("CN" in name and "OU" not in name)
        self.assertEqual("none", name.get("O", "none"))
        for missing in (lambda: name["O"], lambda: name.__delitem__("O")):
            self.assertRaises(KeyError, missing)
        self.assertEqual([], list(Name()))
        self.assertRaises(ValueError, lambda: name["C\0N"])

    def test_equality(self):
        self.assertEqual(Name("CN=a, C=RU"), Name("C=RU, CN=a"))
        self.assertNotEqual(Name("CN=a"), Name("CN=A"))
        self.assertNotEqual(Name("CN=a"), "CN=a")


class Others(unittest.TestCase):
    def test_general_names(self):
        names = ortholan.general_names(bytes.fromhex("300C8704C0000201820461") + b".ru")
        self.assertEqual([Kind.IP_ADDRESS, Kind.DNS_NAME], [name.kind for name in names])
        self.assertEqual(b"\xC0\0\2\1", names[0].value)
        self.assertEqual("a.ru", str(names[1]))
        self.assertEqual(9, ortholan.GeneralName(b"\x89\0").kind)
        self.assertEqual(b"\x89\0", ortholan.GeneralName(b"\x89\0").der)

    def test_extensions(self):
        extensions = ortholan.Extensions.from_der(b"\x30\x10" + KEY_USAGE)
        self.assertIsNone(extensions.find("2.5.29.19"))
        extensions.set(ortholan.Extension("2.5.29.19", False, b"\x30\0"))
        self.assertEqual(b"\x30\x1B" + KEY_USAGE + CONSTRAINTS, extensions.der)
        self.assertEqual(["2.5.29.15", "2.5.29.19"], [each.oid for each in extensions])
        usage = extensions.find("2.5.29.15")
        self.assertTrue(usage.critical)
        self.assertEqual(bytes.fromhex("030205A0"), usage.value)
        self.assertEqual(KEY_USAGE, usage.der)


class Library(unittest.TestCase):
    def test_version(self):
        self.assertRegex(ortholan.version(), r"^\d+\.\d+\.\d+$")

    def test_last_error_is_the_threads_own(self):
        rows = [("", Result.NAME_TEXT), ("2.5.", Result.TYPE), ("CN", Result.VALUE)]
        wrong = []
        start = threading.Barrier(len(rows))

        def refuse(text, result):
            start.wait()
            for _ in range(500):
                try:
                    Name(text) if not text else Name().add(text, "")
                except OrtholanError as error:
                    where = "a type such as CN" if not text else "add"
                    if error.result != result or where not in str(error):
                        wrong.append((text, error.result, str(error)))

        threads = [threading.Thread(target=refuse, args=row) for row in rows]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual([], wrong)

    def test_module_examples(self):
        failed, attempted = doctest.testmod(ortholan)
        self.assertEqual(0, failed)
        self.assertGreater(attempted, 3)


# CN = ESC "[31m"; alternative names: an address of three octets, one with tag 9, "a" ESC "b".
ODD = (
    "MEAwOQIBATAAMAAwADAQMQ4wDAYDVQQDDAUbWzMxbTAAoxowGDAWBgNVHREEDzANhwNhYmOJAWGCA2EbYjAAAwEA"
    ""
)


class Program(unittest.TestCase):
    def run_program(self, *arguments):
        environment = dict(os.environ, PYTHONUTF8="1")
        command = [sys.executable, "-B", str(EXAMPLES / "show.py"), *arguments]
        done = subprocess.run(
            command, capture_output=True, encoding="utf-8", env=environment, timeout=600
        )
        return done.returncode, done.stdout, done.stderr

    def test_rows(self):
        block = "-----BEGIN CERTIFICATE-----\n%s\n-----END CERTIFICATE-----\n"
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        bundle = os.path.join(scratch.name, "bundle.pem")
        with open(bundle, "w") as file:
            file.write(block % ODD + block % "MAA=" + (CERTIFICATES / "bmp.pem").read_text())
        rows = [
            ("text", ["CN=\u0410"], 0, ["subject: CN=\u0410", "  CN (2.5.4.3): \u0410"], ""),
            (
                "certificate",
                [str(CERTIFICATES / "bmp.pem")],
                0,
                ["subject: C=RU,CN=\u0410\u043b\u044c\u0444\u0430"],
                "",
            ),
            (
                "alternative names",
                [str(CERTIFICATES / "alternative_names.pem")],
                0,
                [
                    "  DNS_NAME: example.org",
                    "  DIRECTORY_NAME: CN=Delta",
                    "  IP_ADDRESS: 192.0.2.1",
                    "  IP_ADDRESS: 2001:db8::1",
                ],
                "",
            ),
            (
                "addresses",
                [str(CERTIFICATES / "typed.pem")],
                0,
                ["  IP_ADDRESS: 2001:db8::1:0:0:1"],
                "",
            ),
            (
                "a bundle with a broken one",
                [bundle],
                1,
                [
                    "  CN (2.5.4.3): \\x1b[31m",
                    "  IP_ADDRESS: 616263",
                    "  [9]: 61",
                    "  DNS_NAME: a\\x1bb",
                    "subject: C=RU,CN=\u0410\u043b\u044c\u0444\u0430",
                ],
                bundle + ": certificate 2: no certificate",
            ),
            ("refused", ["C=R_"], 1, [], 'C=R_: "_" at character 4: expected '),
            ("usage", [], 2, [], "Shows names"),
        ]
        for label, arguments, status, lines, error in rows:
            with self.subTest(label):
                code, out, err = self.run_program(*arguments)
                self.assertEqual(status, code, err)
                self.assertTrue(err.startswith(error) if error else err == "", err)
                for line in lines:
                    self.assertIn(line, out.splitlines())


if __name__ == "__main__":
    unittest.main()
