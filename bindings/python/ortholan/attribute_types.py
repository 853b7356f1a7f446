"""The attribute types that text of names knows by a name (RFC 4514).

    >>> attribute_type("cn").long_name, attribute_type("2.5.4.3").name
    ('commonName', 'CN')
    >>> type_identifier("organizationName"), short_name("2.5.4.10"), short_name("1.2.3")
    ('2.5.4.10', 'O', '1.2.3')
"""

from __future__ import annotations

import dataclasses
import enum
import functools
from ctypes import byref
from typing import Any

from ._calls import functions
from ._library import copy, structures
from ._values import oid_content, oid_text
from .reasons import Reason, Refusal


class Syntax(enum.IntEnum):
    """What text becomes as a value of a type; the C header says more of each."""

    FREE_TEXT = 0
    PRINTABLE = 1
    IA5 = 2
    NUMERIC = 3
    UTF8 = 4
    IA5_OR_UTF8 = 5
    POSTAL_ADDRESS = 6
    NO_TEXT = 7


@dataclasses.dataclass(frozen=True)
class AttributeType:
    """A known type.

    Attributes:
        oid: dotted identifier.
        name: as text is written, "CN".
        long_name: as it is written with long_names, "commonName"; may be the same.
        aliases: further names that are read.
        syntax: what text becomes.
        bound: most characters of a value, for information; 0 where none is known.
    """

    oid: str
    name: str
    long_name: str
    aliases: tuple[str, ...]
    syntax: Syntax
    bound: int


def _type(found: Any) -> AttributeType:
    texts = (copy(text).decode("ascii") for text in (found.name, found.long_name, found.aliases))
    name, long_name, aliases = texts
    return AttributeType(oid_text(copy(found.oid)), name, long_name, tuple(aliases.split()),
                         Syntax(found.syntax), found.bound)


def attribute_types() -> list[AttributeType]:
    """All known types, by their identifiers."""
    made = []
    for index in range(functions.attribute_type_count()):
        found = structures.attribute_type()
        functions.attribute_type_at(index, byref(found))
        made.append(_type(found))
    return made


@functools.lru_cache(maxsize=1024)
def attribute_type(type: str) -> AttributeType:
    """The type of a name in any letter case, or of dotted digits. Refuses TEXT_UNKNOWN_TYPE."""
    found = structures.attribute_type()
    try:
        if type[:1].isdigit():
            functions.attribute_type_of(oid_content(type), byref(found))
        else:
            functions.attribute_type_named(type.encode("utf-8"), byref(found))
    except Refusal as refusal:
        if refusal.reason != Reason.NOT_FOUND:
            raise
        reason = Reason.TEXT_UNKNOWN_TYPE
        raise Refusal(reason, f"{reason.sentence}: {type}") from None
    return _type(found)


def type_identifier(type: str) -> str:
    """The dotted identifier of a type: "CN", "commonName" and "2.5.4.3" are "2.5.4.3".

    Refuses a name that is not known.
    """
    return oid_text(oid_content(type)) if type[:1].isdigit() else attribute_type(type).oid


def short_name(type: str) -> str:
    """The short name of a type, "CN" of "2.5.4.3"; the identifier itself where it has none."""
    try:
        return attribute_type(type).name
    except Refusal:
        return type
