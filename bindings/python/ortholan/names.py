"""Distinguished names (RFC 5280 4.1.2.4), their text (RFC 4514), and whether two are the same.

    >>> name = Name("CN=Alpha,O=Org,C=RU")
    >>> str(name), name["O"], [each.key for each in name]
    ('CN=Alpha,O=Org,C=RU', 'Org', ['C', 'O', 'CN'])
    >>> name == Name("CN=ALPHA,O= org ,C=ru")
    True
    >>> print(name.is_within(Name("O=Else,C=RU")))
    no: RDN 2 (2.5.4.10): the values are different
    >>> name.replace("CN", "Beta").append("SERIALNUMBER", "7")
    <Name serialNumber=7,CN=Beta,O=Org,C=RU>
    >>> Name("CN=Alpha,O")
    Traceback (most recent call last):
    ortholan.reasons.Refusal: "O" at character 10: expected "=" and a value behind the type...
"""

from __future__ import annotations

import dataclasses
import enum
import itertools
from ctypes import addressof, byref
from typing import Any, Iterable, Iterator, Mapping, Sequence, Tuple, Union

from ._calls import functions
from ._library import NO_PLACE, copy, structures, text_view, view
from ._values import Value, octets_of, oid_content, oid_text
from .attribute_types import short_name, type_identifier
from .reasons import Answer, Reason, Refusal, Verdict


class Rule(enum.IntFlag):
    """By which rule names are the same: one of the first three, with or without ANY_ORDER.

    RFC5280 prepares values by RFC 4518. ASCII_CASE folds ASCII case and white space alone. OCTETS
    compares encodings. ANY_ORDER takes RDNs in any order, for lists that people write by hand.
    """

    RFC5280 = 0
    ASCII_CASE = 1
    OCTETS = 2
    ANY_ORDER = 0x100


@dataclasses.dataclass(frozen=True)
class Place:
    """An attribute of a name, by the index of its RDN and its own in the whole name, from 0."""

    rdn: int | None
    attribute: int | None


@dataclasses.dataclass(frozen=True)
class Match(Verdict):
    """Whether names are the same; for any answer but yes, where they are not.

    Attributes:
        side: the name that the reason is about, 1 or 2; 0 for both.
        first, second: places in the first name or the subtree, and in the second.
        type: dotted identifier of the attribute there; "" without one.
    """

    side: int
    first: Place
    second: Place
    type: str


@dataclasses.dataclass(frozen=True)
class Attribute:
    """One attribute of a name.

    Attributes:
        type: dotted identifier, "2.5.4.3".
        text: the value; None for one that is no text.
        value: the whole element of the value in DER.
        rdn: index of its RDN, from 0, the most significant.
    """

    type: str
    text: str | None
    value: bytes
    rdn: int

    @property
    def key(self) -> str:
        """Short name of the type, "CN"; dotted digits where it has none."""
        return short_name(self.type)


RDN = Tuple[Attribute, ...]
# What an attribute is made of: its type, and text or a whole element in DER.
Pair = Tuple[str, Union[str, bytes]]
Part = Union[Pair, Attribute]


@dataclasses.dataclass(frozen=True)
class TextOptions:
    """What the text of names looks like; text is read back with the options it was written with.

    Attributes:
        as_encoded: the first RDN first; RFC 4514 has the last one first.
        utf8_strings: free text becomes UTF8String, also where PrintableString would do.
        long_names: writes commonName for CN.
        exact: writes "#" and digits where plain text would not come back as the same octets.
        type_names: names of the caller's own for types, with their dotted identifiers.
    """

    as_encoded: bool = False
    utf8_strings: bool = False
    long_names: bool = False
    exact: bool = False
    type_names: Mapping[str, str] = dataclasses.field(default_factory=dict)

    def pointer(self) -> Any:
        """An ortholan_rfc4514_options as an argument; None for the defaults."""
        if self == _PLAIN:
            return None
        names = [structures.type_name(text_view(name), view(oid_content(oid)))
                 for name, oid in self.type_names.items()]
        array = (structures.type_name * len(names))(*names)
        made = structures.rfc4514_options(
            self.as_encoded, self.utf8_strings, self.long_names, self.exact,
            addressof(array), len(names))
        made.kept_alive = array
        return byref(made)


_PLAIN = TextOptions()


def _new_attribute(type: str, value: str | bytes, joins_rdn: bool = False) -> Any:
    made = structures.new_attribute(type=text_view(type), joins_rdn=joins_rdn)
    if isinstance(value, str):
        made.text = text_view(value)
    else:
        made.element = view(octets_of(value))
    return made


def _parts(rdns: Iterable[Part | Sequence[Part]]) -> Iterator[Any]:
    for rdn in rdns:
        for index, part in enumerate(rdn if isinstance(rdn, list) else [rdn]):
            type, value = (part.type, part.value) if isinstance(part, Attribute) else part
            yield _new_attribute(type, value, joins_rdn=index > 0)


class Name(Value):
    """A distinguished name, a value: it does not change, and threads may share it.

    Iterating gives its attributes in the order of the encoding, the most significant first. Names
    are equal where RFC 5280 7.1 has them the same, and hash alike; their order puts what is within
    a name right behind it. `str` is text of RFC 4514 that is safe to show and to log.
    """

    __slots__ = ("_comparable",)

    _comparable: bytes

    def __init__(self, text: str, options: TextOptions = _PLAIN) -> None:
        """Reads text of RFC 4514; the refusal tells the first place that is wrong."""
        octets = text.encode("utf-8")
        try:
            der = functions.rfc4514_read(octets, options.pointer())
        except Refusal as refusal:
            raise _explained(text, octets, refusal) from None
        self._take(der)

    @classmethod
    def build(cls, rdns: Iterable[Part | Sequence[Part]], options: TextOptions = _PLAIN) -> Name:
        """A name of RDNs, the most significant first.

        Each is a type with text or a whole element in DER, `("CN", "Alpha")`, or an Attribute; a
        list of them is one RDN. A refusal has the attribute's index as `met`, and the place in its
        value as `offset`.
        """
        parts = list(_parts(rdns))
        array = (structures.new_attribute * len(parts))(*parts)
        return cls._made(functions.name_build(array, len(parts), options.pointer()))

    def _view(self) -> Any:
        made = structures.name_view()
        functions.name_view_read(self._der, self._reading, byref(made))
        return made

    def text(self, options: TextOptions = _PLAIN) -> str:
        """Text of RFC 4514 in which everything that cannot be seen is escaped."""
        return str(functions.rfc4514_write(byref(self._view()), options.pointer()))

    @property
    def exact(self) -> str:
        """Text that `Name` reads back as the very same octets."""
        return self.text(TextOptions(exact=True))

    def __str__(self) -> str:
        return self.text()

    def __iter__(self) -> Iterator[Attribute]:
        name, cursor, found = self._view(), structures.name_cursor(), structures.attribute_view()
        for index in range(name.attribute_count):
            functions.name_view_attribute(byref(name), index, byref(cursor), byref(found))
            yield Attribute(oid_text(copy(found.type)), _text_of(found), copy(found.value),
                            found.rdn)

    def __len__(self) -> int:
        """The number of attributes, 0 for the name without any."""
        return int(self._view().attribute_count)

    @property
    def rdns(self) -> tuple[RDN, ...]:
        """Attributes by RDN, the most significant first."""
        grouped = itertools.groupby(self, key=lambda attribute: attribute.rdn)
        return tuple(tuple(attributes) for _, attributes in grouped)

    def values(self, type: str) -> list[str]:
        """Texts of all attributes of a type, "CN" or dotted digits, in their order."""
        identifier = type_identifier(type)
        return [each.text for each in self if each.type == identifier and each.text is not None]

    def __getitem__(self, type: str) -> str:
        """Text of the first attribute of a type; a KeyError where there is none."""
        for text in self.values(type):
            return text
        raise KeyError(type)

    def get(self, type: str, default: str | None = None) -> str | None:
        """Text of the first attribute of a type, or the default."""
        return next(iter(self.values(type)), default)

    def __contains__(self, type: str) -> bool:
        identifier = type_identifier(type)
        return any(each.type == identifier for each in self)

    def _index(self, place: int | str) -> int:
        if isinstance(place, int):
            return place
        identifier = type_identifier(place)
        for index, each in enumerate(self):
            if each.type == identifier:
                return index
        raise KeyError(place)

    def replace(self, place: int | str, value: str | bytes, type: str | None = None) -> Name:
        """The name with another value of the attribute at an index, or of the first of a type.

        Everything else stays octet for octet. `type` gives the attribute another type as well.
        """
        index = self._index(place)
        if type is None:
            type = place if isinstance(place, str) else [each.type for each in self][index]
        name, attribute = self._view(), _new_attribute(type, value)
        return self._made(
            functions.name_view_replace(byref(name), index, byref(attribute), None))

    def remove(self, place: int | str) -> Name:
        """The name without the attribute at an index, or without the first of a type."""
        name = self._view()
        return self._made(functions.name_view_remove(byref(name), self._index(place)))

    def insert(self, rdn: int, type: str, value: str | bytes, joins_rdn: bool = False) -> Name:
        """The name with one attribute more, before the RDN at an index, or as a part of it."""
        name, attribute = self._view(), _new_attribute(type, value, joins_rdn)
        return self._made(functions.name_view_insert(byref(name), rdn, byref(attribute), None))

    def append(self, type: str, value: str | bytes) -> Name:
        """The name with one RDN more, the least significant."""
        return self.insert(self._view().rdn_count, type, value)

    def match(self, other: Name, rule: Rule = Rule.RFC5280) -> Match:
        """Whether the names are the same, and if not, where they differ."""
        return _compare(functions.match_names, self._der, other._der, rule)

    def is_within(self, subtree: Name, rule: Rule = Rule.RFC5280) -> Match:
        """Whether the name begins with the RDNs of another; every name is within the empty one."""
        return _compare(functions.name_within, subtree._der, self._der, rule)

    def key(self, rule: Rule = Rule.RFC5280) -> bytes:
        """Octets that are the same exactly for names that are, for dictionaries and databases.

        The key of a subtree stands in front of the keys of all names within it and of no others.
        """
        return bytes(functions.match_key(self._der, rule))

    def _key(self) -> bytes:
        if not hasattr(self, "_comparable"):
            try:
                key = self.key()
            except Refusal:  # was read as LENIENT
                key = b"\xff" + self._der
            object.__setattr__(self, "_comparable", key)
        return self._comparable


def _text_of(attribute: Any) -> str | None:
    try:
        return str(functions.attribute_view_text(byref(attribute)))
    except Refusal:
        return None


def _explained(text: str, octets: bytes, refusal: Refusal) -> Refusal:
    """The refusal with the sentence for texts of names, and the place in characters."""
    offset = NO_PLACE if refusal.offset is None else refusal.offset
    met = 0xFFFFFFFF if refusal.met is None else refusal.met
    known = structures.refusal(refusal.reason, met, refusal.expected, offset)
    error = structures.text_error()
    functions.rfc4514_explain(octets, byref(known), byref(error))
    message = functions.rfc4514_sentence(octets, byref(known))
    return Refusal(refusal.reason, message, refusal.offset, refusal.met, refusal.expected,
                   error.character)


def _place(place: Any) -> Place:
    return Place(*(None if each == NO_PLACE else each for each in (place.rdn, place.attribute)))


def _compare(function: Any, first: bytes, second: bytes, rule: Rule) -> Match:
    match = structures.match()
    function(first, second, rule, byref(match))
    sentence, type = functions.match_sentence(byref(match)), copy(match.type)
    return Match(Answer(match.verdict), Reason(match.reason), sentence, match.side,
                 _place(match.first), _place(match.second), oid_text(type) if type else "")
