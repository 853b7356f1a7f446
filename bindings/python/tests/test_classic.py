"""The objects of the older C interface, and the rows that its other users are asked."""

import threading
import unittest

from ortholan import classic
from ortholan.classic import Encode, Fault, Kind, Name, NameTextError, OrtholanError, Result, Style

from rows import check

ALPHA = bytes.fromhex("3010310E300C06035504031305416C706861")
KEY_USAGE = bytes.fromhex("300E0603551D0F0101FF0404030205A0")
CONSTRAINTS = bytes.fromhex("30090603551D1304023000")


def hexed(octets):
    return octets.hex().upper()


def ask(file, answer, *columns):
    """The same with a code for what is refused."""
    def told(row):
        code = row["code"].removeprefix("TEXT_")
        try:
            return (*answer(row), "")
        except OrtholanError as error:
            name = error.result.name
            return (*[row[column] for column in columns], row["code"] if name == code else name)

    check(file, told, *columns, "code")


def test_names_from_text():
    def made(row):
        name = Name(row["text"], int(row["options"] or "0", 0), row["sort"] == "1")
        return hexed(name.der), name.text(int(row["style"], 0))

    ask("name_text.tsv", made, "der", "rendered")


def test_names_from_octets():
    ask("name_der.tsv", lambda row: [str(Name.from_der(bytes.fromhex(row["der"])))], "text")


def test_general_names():
    def parts(row):
        name = classic.GeneralName(bytes.fromhex(row["der"]))
        return int(name.kind), hexed(name.value), str(name), hexed(name.der)

    ask("general_names.tsv", parts, "tag", "value", "text", "der")


def test_extensions():
    def made(row):
        if row["code"] == "DER":
            classic.Extensions.from_der(b"\x30" + bytes.fromhex(row["der"]))
        value = bytes.fromhex(row["value"])
        return [hexed(classic.Extension(row["oid"], row["critical"] == "1", value).der)]

    ask("extensions.tsv", made, "der")


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
            message = str(raised.exception)
            self.assertNotEqual(explained, message.startswith("ortholan_name_"), label)

    def test_place_in_a_text(self):
        with self.assertRaises(NameTextError) as raised:
            Name("O=\U0001F600 \u0410, C=R_U")
        error = raised.exception
        place = error.fault, error.position, error.length
        self.assertEqual((Fault.WRONG_CHARACTER, 10, 1), place)
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
        names = classic.general_names(bytes.fromhex("300C8704C0000201820461") + b".ru")
        self.assertEqual([Kind.IP_ADDRESS, Kind.DNS_NAME], [name.kind for name in names])
        self.assertEqual(b"\xC0\0\2\1", names[0].value)
        self.assertEqual("a.ru", str(names[1]))
        self.assertEqual(9, classic.GeneralName(b"\x89\0").kind)
        self.assertEqual(b"\x89\0", classic.GeneralName(b"\x89\0").der)

    def test_extensions(self):
        extensions = classic.Extensions.from_der(b"\x30\x10" + KEY_USAGE)
        self.assertIsNone(extensions.find("2.5.29.19"))
        extensions.set(classic.Extension("2.5.29.19", False, b"\x30\0"))
        self.assertEqual(b"\x30\x1B" + KEY_USAGE + CONSTRAINTS, extensions.der)
        self.assertEqual(["2.5.29.15", "2.5.29.19"], [each.oid for each in extensions])
        usage = extensions.find("2.5.29.15")
        self.assertTrue(usage.critical)
        self.assertEqual(bytes.fromhex("030205A0"), usage.value)
        self.assertEqual(KEY_USAGE, usage.der)


class Library(unittest.TestCase):
    def test_version(self):
        self.assertRegex(classic.version(), r"^\d+\.\d+\.\d+$")

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
