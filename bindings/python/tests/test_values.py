"""What Python adds: values, exceptions, files, lists at once."""

import copy
import datetime
import pathlib
import pickle
import threading

import ortholan
import pytest
from ortholan import Certificate, Extension, GeneralName, Kind, Name, Reading, Reason, batch

import shells


@pytest.fixture
def gamma(certificates):
    return Certificate.load(certificates / "alternative_names.pem")


def test_values_are_kept_and_compared(gamma):
    refusal = pytest.raises(ortholan.Refusal, Name, "CN=a,O").value
    values = [Name("CN=Alpha"), GeneralName("DNS:a.example"), gamma, gamma.extensions[0],
              Name("CN=a").match(Name("CN=b")), gamma.identify(host="example.org"), Reason.OID]
    for value in values:
        for kept in (pickle.loads(pickle.dumps(value)), copy.deepcopy(value)):
            assert kept == value and hash(kept) == hash(value) and type(kept) is type(value)
        assert value != "CN=Alpha" and value != 5
    kept = pickle.loads(pickle.dumps(refusal))
    assert (str(kept), kept.reason, kept.offset) == (str(refusal), refusal.reason, 5)
    with pytest.raises(AttributeError):
        values[0].der = b""


def test_names_are_ordered_by_their_subtrees():
    within = [Name("O=Org"), Name("CN=x,O=org"), Name("CN=y,O=ORG")]
    others = [Name("O=Nrg"), Name("O=Orgs")]
    order = sorted([within[2], *others, *within[:2]])
    place = order.index(within[0])
    assert order[place:place + 3] == within
    assert len({Name("CN=a"), Name("CN=A"), Name("CN= a ")}) == 1
    lenient = Name.from_der(b"\x30\x81\x00", Reading.LENIENT)
    assert lenient == lenient and lenient != Name("")


def test_names_are_built_and_edited():
    name = Name.build([("C", "RU"), [("O", "Org"), ("OU", b"\x0c\x01u")], ("1.2.3", "x")])
    assert [[each.key for each in rdn] for rdn in name.rdns] == [["C"], ["OU", "O"], ["1.2.3"]]
    assert Name.build([*name.rdns[0], list(name.rdns[1]), *name.rdns[2]]).der == name.der
    assert name["ou"] == "u" and name.get("CN", "none") == "none" and "CN" not in name
    edited = name.remove("1.2.3").replace("O", "Else").append("CN", "a")
    assert str(edited) == "CN=a,OU=u+O=Else,C=RU"
    assert str(name.insert(0, "DC", "org", joins_rdn=True)).endswith(",C=RU+DC=org")
    for missing in (lambda: name["CN"], lambda: name.remove("CN"), lambda: name.replace("CN", "x")):
        pytest.raises(KeyError, missing)
    refusal = pytest.raises(ortholan.Refusal, Name.build, [("CN", "a"), ("C", "R_")]).value
    assert (refusal.reason, refusal.met, refusal.offset) == (Reason.TEXT_ALPHABET, 1, 1)
    assert pytest.raises(ortholan.Refusal, name.remove, 9).value.reason == Reason.NOT_FOUND
    assert pytest.raises(ortholan.Refusal, lambda: name["nobody"]).value.reason == \
        Reason.TEXT_UNKNOWN_TYPE


def test_types_are_known_by_each_of_their_names():
    types = ortholan.attribute_types()
    assert len(types) > 40 and len({each.oid for each in types}) == len(types)
    for each in types:
        assert ortholan.short_name(each.oid) == each.name
        for name in (each.name, each.long_name.upper(), *each.aliases, each.oid):
            assert ortholan.attribute_type(name) == each
            assert [*Name.build([(name, b"\x05\0")])][0].type == each.oid
    assert ortholan.type_identifier("1.2.3") == ortholan.short_name("1.2.3") == "1.2.3"
    for unknown in ("nobody", "1.2.3"):
        refusal = pytest.raises(ortholan.Refusal, ortholan.attribute_type, unknown).value
        assert refusal.reason == Reason.TEXT_UNKNOWN_TYPE and unknown in str(refusal)


def test_texts_have_options():
    options = ortholan.TextOptions(as_encoded=True, long_names=True, type_names={"Badge": "1.2.3"})
    name = Name("organizationName=Org,Badge=7", options)
    assert name.text(options) == "organizationName=Org,Badge=7" and name["1.2.3"] == "7"
    utf8 = Name("O=Org", ortholan.TextOptions(utf8_strings=True))
    assert [each.value[0] for each in (*utf8, *Name("O=Org"))] == [0x0C, 0x13]


def test_refusals_tell_the_place():
    error = pytest.raises(ortholan.Refusal, Name, "O=\U0001F600\u0410, =x").value
    assert (error.offset, error.position, error.reason) == (10, 6, Reason.TEXT_NO_TYPE)
    cut = pytest.raises(ortholan.Refusal, Name.from_der, Name("CN=Alpha").der[:-1]).value
    assert (cut.reason, cut.met) == (Reason.TRUNCATED, None) and isinstance(cut, ValueError)
    for wrong in (5, "CN=a", None):
        pytest.raises(TypeError, Name.from_der, wrong)
    assert Name.from_der(memoryview(bytearray(Name("CN=a").der))) == Name("CN=a")


def test_certificates_have_parts(gamma, certificates):
    assert (str(gamma.subject), gamma.serial_number) == ("CN=Gamma", 1)
    assert gamma.not_before < datetime.datetime.now(datetime.timezone.utc) < gamma.not_after
    assert gamma.extension("1.2.3") is None and gamma.extension("2.5.29.17").names
    kinds = {each.kind for each in gamma.alternative_names}
    assert {Kind.OTHER, Kind.X400, Kind.EDI_PARTY, Kind.URI} <= kinds
    values = [each.value for each in gamma.alternative_names]
    assert Name("CN=Delta") in values and "1.2.3.4" in values and "example.org" in values
    assert [each.text for each in values if isinstance(each, ortholan.OtherName)] == ["user"]
    crl, request = (Certificate.load(str(certificates / f)) for f in ("list.pem", "request.pem"))
    assert crl.subject is None and request.serial_number is None and request.not_after is None
    twice = Certificate(shells.certificate(2 * shells.extension(17, b"\x30\0")))
    error = pytest.raises(ortholan.Refusal, lambda: twice.alternative_names).value
    assert error.reason == Reason.DUPLICATE_EXTENSION


def test_files_hold_certificates(certificates, tmp_path):
    bundle = tmp_path / "bundle.pem"
    key = "-----BEGIN KEY-----\nMAA=\n-----END KEY-----\n"
    bundle.write_text(key + 2 * (certificates / "bmp.pem").read_text())
    found = ortholan.load_certificates(bundle)
    assert len(found) == 2 and found[0] == Certificate.load(certificates / "bmp.pem")
    pytest.raises(ValueError, Certificate.load, bundle)
    (tmp_path / "one.der").write_bytes(found[0].der)
    assert Certificate.load(pathlib.Path(tmp_path, "one.der")) == found[0]
    (tmp_path / "key.pem").write_text(key)
    pytest.raises(ValueError, ortholan.load_certificates, tmp_path / "key.pem")


def test_verdicts_are_true_for_yes_alone(gamma):
    yes, no = gamma.identify(host="EXAMPLE.org"), gamma.identify(host="example.com")
    unreadable = ortholan.identify(gamma.der[:-1], host="example.org")
    assert [bool(each) for each in (yes, no, unreadable)] == [True, False, False]
    assert str(yes.name) == "DNS:example.org" and no.answer is ortholan.NO
    assert unreadable.answer is ortholan.CANNOT_TELL and "at offset" in unreadable.sentence
    assert "DNS:example.org: the name is another host" in map(str, no.mismatches)
    for wrong in ({}, {"host": "a", "ip": "192.0.2.1"}):
        pytest.raises(TypeError, gamma.identify, **wrong)


def test_chains_and_loose_names_are_permitted():
    subtree = shells.element(0x30, GeneralName("DNS:example.org").der)
    constraints = shells.element(0x30, shells.element(0xA1, subtree))
    authority = shells.certificate(shells.extension(30, constraints))
    for hosts, count in ((["a.example.net"], 0), (["a.example.org", "b.net", "example.org"], 2)):
        names = Extension.for_names([GeneralName.dns(host) for host in hosts])
        answers = [ortholan.permits([shells.certificate(names.der), authority]),
                   ortholan.permits_names(constraints, Name(""), names.value)]
        assert [(bool(each), len(each.findings)) for each in answers] == 2 * [(not count, count)]
        if count:
            assert answers[0].reason == Reason.EXCLUDED and "certificate 2" in answers[0].sentence
    assert ortholan.permits([b"0"]).answer is ortholan.CANNOT_TELL


def test_extensions_go_back(certificates):
    extensions = Certificate.load(certificates / "typed.pem").extensions
    assert ortholan.read_extensions(ortholan.write_extensions(extensions)) == extensions
    pytest.raises(ortholan.Refusal, ortholan.write_extensions, extensions * 2)
    pytest.raises(ortholan.Refusal, Extension.for_names, [])
    assert GeneralName.directory(Name("CN=" + "a" * 300)).value == Name("CN=" + "A" * 300)


def test_lists_at_once():
    good, bad = Name("CN=Alpha").der, b"\x30\x05"
    long = Name("CN=" + "b" * 9000)
    texts = batch.texts([good, bad, long.der, good])
    assert [texts[0], texts[2], texts[3]] == ["CN=Alpha", str(long), "CN=Alpha"]
    assert texts[1].reason == Reason.TRUNCATED
    assert batch.ders(["CN=Alpha", "CN", str(long)])[::2] == [good, long.der]
    assert batch.keys([good, bad])[0] == Name("CN=ALPHA").key()
    assert batch.match([(good, good), (good, bad), (good, long.der)]) == [
        ortholan.YES, ortholan.CANNOT_TELL, ortholan.NO]
    assert batch.within(Name(""), [good, bad]) == [ortholan.YES, ortholan.CANNOT_TELL]
    assert batch.general_name_texts([GeneralName("DNS:a.b").der])[0] == "DNS:a.b"


def test_threads_share_values():
    name, wrong = Name("CN=Alpha,O=Org"), []

    def use():
        for _ in range(300):
            if (str(name), name.key(), len(name)) != expected:
                wrong.append(str(name))

    expected = str(name), name.key(), len(name)
    threads = [threading.Thread(target=use) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong
