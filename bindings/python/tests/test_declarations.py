"""The table of signatures and the enumerations are those of the headers."""

import enum
import re

import ortholan
import pytest
from ortholan import _declarations, classic, constraints, general_names, names

STRUCTURE = re.compile(r"typedef struct \w+ \{.*?\} \w+;")
FUNCTION = re.compile(r"(?:const )?\w+[ *]+ortholan_\w+\([^)]*\);")
# Enumerations whose every word has a member, with what stands in front of the words.
WORDS = {
    ortholan.Reason: "ORTHOLAN_REASON_",
    ortholan.Answer: "ORTHOLAN_VERDICT_",
    ortholan.Reading: "ORTHOLAN_READ_",
    names.Rule: "ORTHOLAN_MATCH_",
    general_names.OtherKind: "ORTHOLAN_OTHER_",
    general_names.HostChoices: "ORTHOLAN_HOST_",
    ortholan.Syntax: "ORTHOLAN_SYNTAX_",
    classic.Result: "ORTHOLAN_ERROR_",
    classic.Encode: "ORTHOLAN_ENCODE_",
    classic.Fault: "ORTHOLAN_FAULT_",
}


@pytest.fixture(scope="module")
def headers():
    """The C headers without comments and line ends."""
    from conftest import ROOT

    found = sorted((ROOT / "include" / "ortholan" / "strict").glob("*.h"))
    found.append(ROOT / "include" / "ortholan" / "ortholan_c.h")
    text = "\n".join(header.read_text(encoding="utf-8") for header in found)
    text = re.sub(r"//[^\n]*|^#[^\n]*|ORTHOLAN_EXPORT|ORTHOLAN_C_API", "", text, flags=re.M)
    return plain(text)


def plain(text):
    return re.sub(r"\( ", "(", " ".join(text.split()))


@pytest.mark.parametrize("kind, table, least", [
    (STRUCTURE, _declarations.STRUCTURES, 24),
    (FUNCTION, _declarations.FUNCTIONS, 40),
    (FUNCTION, _declarations.CLASSIC_FUNCTIONS, 35),
])
def test_the_table_is_that_of_the_headers(headers, kind, table, least):
    known, declared = set(kind.findall(headers)), kind.findall(plain(table))
    assert len(declared) >= least and " ".join(declared) == plain(table)
    assert [each for each in declared if each not in known] == []


def words(headers, prefix):
    found = re.findall(rf"\b{prefix}(\w+) = (\w+)[,\s]", headers)
    return {name: int(number, 0) for name, number in found}


@pytest.mark.parametrize("enumeration", WORDS, ids=lambda each: each.__name__)
def test_enumerations_are_those_of_the_headers(headers, enumeration):
    known = words(headers, WORDS[enumeration])
    members = {name: int(member) for name, member in enumeration.__members__.items()}
    for extra in ("NOTHING", "OK"):
        members.pop(extra, None)
    known.pop("NONE", None) if "NONE" not in members else None
    known = {name: number for name, number in known.items() if name != "NAME"}
    assert members == known and len(known) > 2


@pytest.mark.parametrize("enumeration, prefix", [
    (general_names.Kind, "ORTHOLAN_NAME_"),
    (constraints.NamePlace, "ORTHOLAN_NAME_"),
    (classic.Kind, "ORTHOLAN_"),
])
def test_kinds_have_the_numbers_of_the_headers(headers, enumeration, prefix):
    known = words(headers, prefix)
    assert {each.name: known.get(each.name) for each in enumeration} == {
        each.name: each.value for each in enumeration}


def test_the_library_names_its_reasons():
    for reason in ortholan.Reason:
        assert ortholan.Reason._missing_(int(reason)).name == reason.name
        assert reason.sentence != ortholan.Reason(99999).sentence or not reason
    later = ortholan.Reason(99999)
    assert later.name == "REASON_99999" and isinstance(later, enum.Enum)
