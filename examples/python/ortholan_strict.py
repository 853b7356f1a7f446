"""Certificates, their names, and verdicts about them, by the strict layer of the Ortholan library.

    >>> name = Name("CN=Alpha,O=Org")
    >>> str(name), name.values("2.5.4.3")
    ('CN=Alpha,O=Org', ['Alpha'])
    >>> bool(name.match(Name("CN=ALPHA,O= org ")))
    True
    >>> [str(each) for each in general_names(alternative_names(["DNS:a.example", "IP:::1"]))]
    ['DNS:a.example', 'IP:::1']
    >>> GeneralName("DNS:a b")
    Traceback (most recent call last):
    ortholan_strict.Refused: at offset 5: a character stands there that no host name has

Octets are bytes, identifiers dotted text. What is refused is raised as Refused, with one sentence;
a verdict is never raised. Objects are values: they do not change, and threads may share them. The
module stands beside ortholan.py, which finds the library.
"""

from __future__ import annotations

import ctypes
import enum
import functools
from typing import Iterable, Iterator, NamedTuple

from ortholan import Kind, _library

NO_PLACE = ctypes.c_size_t(-1).value
_ROOM = 3
_NOT_FOUND = 4
_ALTERNATIVE_NAMES = "2.5.29.17"


class Reading(enum.IntEnum):
    """How closely an encoding is read."""

    DER = 0
    LENIENT = 1
    STRUCTURE = 2


class Verdict(enum.IntEnum):
    """Only YES lets something through."""

    CANNOT_TELL = 0
    YES = 1
    NO = 2


class Rule(enum.IntFlag):
    """By which rule names are the same: one of the first three."""

    RFC5280 = 0
    ASCII_CASE = 1
    OCTETS = 2
    ANY_ORDER = 0x100


class CertificateKind(enum.IntEnum):
    CERTIFICATE = 1
    REQUEST = 2
    REVOCATION_LIST = 3


class Reference(enum.IntEnum):
    """Kinds of what a certificate is asked for."""

    HOST = 1
    ADDRESS = 2
    MAILBOX = 3
    URI = 4
    SERVICE = 5


class Form(enum.IntEnum):
    """What alternative names come out as: the value, or a whole Extension."""

    VALUE = 0
    CRITICAL = 1
    EXTENSION = 2


class Refused(ValueError):
    """An input that is refused: `reason` by number, `offset` octets before the place, or None."""

    def __init__(self, reason: int, offset: int, message: str) -> None:
        super().__init__(message)
        self.reason = reason
        self.offset = None if offset == NO_PLACE else offset


class Answer(NamedTuple):
    """A verdict, true for YES alone, and why; for YES of `identify` the name that matched."""

    verdict: Verdict
    sentences: list[str]
    name: GeneralName | None = None

    def __bool__(self) -> bool:
        return self.verdict == Verdict.YES


class Attribute(NamedTuple):
    """One attribute of a name; `text` is None for a value that is no text."""

    type: str
    text: str | None
    value: bytes  # the whole element
    rdn: int


class Extension(NamedTuple):
    oid: str
    critical: bool
    value: bytes  # inside the OCTET STRING


class PemBlock(NamedTuple):
    label: str
    octets: bytes


def _structure(name: str, /, **fields: type) -> type[ctypes.Structure]:
    return type(name, (ctypes.Structure,), {"_fields_": list(fields.items())})


_i, _u, _z = ctypes.c_int32, ctypes.c_uint32, ctypes.c_size_t
_Octets = _structure("_Octets", data=ctypes.c_void_p, size=_z)
_Refusal = _structure("_Refusal", reason=_i, met=_u, expected=_u, offset=_z)
_Name = _structure("_Name", der=_Octets, rdn_count=_z, attribute_count=_z)
_Cursor = _structure("_Cursor", index=_z, offset=_z, rdn=_z, rdn_end=_z)
_Attribute = _structure("_Attribute", type=_Octets, value=_Octets, content=_Octets, rdn=_z,
                        identifier=_u, begins_rdn=_i)
_TextOptions = _structure("_TextOptions", order=_i, strings=_i, long_names=_i, exact=_i,
                          names=ctypes.c_void_p, name_count=_z)
_Match = _structure("_Match", verdict=_i, reason=_i, side=_i, places=_z * 4, type=_Octets,
                    refusal=_Refusal)
_GeneralName = _structure("_GeneralName", kind=_i, other=_i, bytes=_Octets, content=_Octets)
_GeneralNames = _structure("_GeneralNames", der=_Octets, names=_Octets, count=_z)
_Certificate = _structure("_Certificate", kind=_i, der=_Octets, subject=_Octets, issuer=_Octets,
                          serial=_Octets, not_before=_Octets, not_after=_Octets,
                          extensions=_Octets, extension_count=_z)
_Extension = _structure("_Extension", oid=_Octets, value=_Octets, bytes=_Octets, critical=_i)
_PemBlock = _structure("_PemBlock", label=_Octets, base64=_Octets)
_Reference = _structure("_Reference", kind=_i, choices=_u, text=_Octets)
_Identity = _structure("_Identity", verdict=_i, reason=_i, name=_Octets, index=_z, names=_Octets,
                       name_count=_z)
_Finding = _structure("_Finding", reason=_i, verdict=_i, certificate=_z, authority=_z, place=_i,
                      name=_Octets, subtree=_Octets, subtree_count=_z)

# A letter an argument: o octets or text, i a number, z a size, p a structure's place, B the room
# for what comes out and its size, R where a refusal goes.
_ARGUMENTS = {
    "o": [_Octets],
    "i": [_i],
    "z": [_z],
    "p": [ctypes.c_void_p],
    "B": [ctypes.c_void_p, _z, ctypes.c_void_p],
    "R": [ctypes.c_void_p],
}
_FUNCTIONS = {
    "refusal_sentence": "pB",
    "oid_to_text": "oB",
    "oid_from_text": "oB",
    "name_view_read": "oipR",
    "name_view_attribute": "pzpp",
    "attribute_view_text": "pB",
    "rfc4514_write": "ppBR",
    "rfc4514_read": "opBR",
    "rfc4514_sentence": "opB",
    "match_names": "ooip",
    "name_within": "ooip",
    "match_sentence": "pB",
    "match_key": "oiBR",
    "general_name_view_read": "oipR",
    "general_names_view_read": "oipR",
    "general_names_view_next": "ppp",
    "general_name_to_text": "oBR",
    "general_name_from_text": "oiBR",
    "alternative_names_from_text": "pziBpR",
    "certificate_view_read": "oipR",
    "certificate_view_next_extension": "ppp",
    "extensions_view_read": "oipR",
    "extensions_write": "pzBR",
    "time_to_text": "oB",
    "pem_next": "oppR",
    "pem_octets": "pB",
    "identify": "oppR",
    "identify_by_names": "oppR",
    "permits": "pzpppzp",
    "finding_sentence": "pB",
}


def _declared(name: str, letters: str):
    function = getattr(_library, "ortholan_" + name)
    function.argtypes = [each for letter in letters for each in _ARGUMENTS[letter]]
    function.restype = ctypes.c_int32
    return function


_declarations = {name: _declared(name, letters) for name, letters in _FUNCTIONS.items()}
_library.ortholan_reason_sentence.argtypes = [_i]
_library.ortholan_reason_sentence.restype = ctypes.c_char_p


def _view(octets: bytes) -> _Octets:
    """Valid as long as `octets`."""
    return _Octets(ctypes.cast(octets, ctypes.c_void_p), len(octets))


def _copy(view: _Octets) -> bytes:
    return ctypes.string_at(view.data, view.size) if view.size else b""


def _try(name: str, refusal: _Refusal, arguments: tuple) -> tuple[int, bytes]:
    """Calls a function: what it returns, and what came out where it has room for that."""
    room = 256
    while True:
        out, size, given, plain = ctypes.create_string_buffer(room), _z(), iter(arguments), []
        for letter in _FUNCTIONS[name]:
            if letter == "B":
                plain += [out, room, ctypes.byref(size)]
            elif letter == "R":
                plain.append(ctypes.byref(refusal))
            else:
                argument = next(given)
                plain.append(_view(argument) if isinstance(argument, bytes) else argument)
        result = _declarations[name](*plain)
        if "B" not in _FUNCTIONS[name] or result != _ROOM:
            return result, out.raw[: size.value]
        room = size.value


def _call(name: str, *arguments) -> bytes:
    """The same for functions that return a reason, which is raised."""
    refusal = _Refusal(offset=NO_PLACE)
    result, out = _try(name, refusal, arguments)
    if result:
        refusal.reason = result
        raise Refused(result, refusal.offset, _sentence("refusal_sentence", refusal))
    return out


def _sentence(name: str, structure: ctypes.Structure) -> str:
    return _try(name, _Refusal(), (ctypes.byref(structure),))[1].decode("utf-8")


def _each(name: str, view: ctypes.Structure, item: ctypes.Structure) -> Iterator[ctypes.Structure]:
    """What a function that moves an offset finds, one after the other in the same structure."""
    offset = _z()
    place = view if isinstance(view, bytes) else ctypes.byref(view)
    try:
        while True:
            _call(name, place, ctypes.byref(offset), ctypes.byref(item))
            yield item
    except Refused as error:
        if error.reason != _NOT_FOUND:
            raise


def _oid(octets: bytes) -> str:
    return _call("oid_to_text", octets).decode("ascii")


@functools.total_ordering
class _Value:
    """Something that is its DER: equality, order and hash are those of the octets."""

    der: bytes

    def __eq__(self, other: object) -> bool:
        return self.der == other.der if type(other) is type(self) else NotImplemented

    def __lt__(self, other: _Value) -> bool:
        return self.der < other.der if type(other) is type(self) else NotImplemented

    def __hash__(self) -> int:
        return hash(self.der)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} {self}>"


class Name(_Value):
    """A distinguished name; its text is that of RFC 4514, safe to show. A range of attributes."""

    def __init__(self, text: str) -> None:
        octets, refusal = text.encode("utf-8"), _Refusal()
        reason, self.der = _try("rfc4514_read", refusal, (octets, None))
        if reason:
            message = _call("rfc4514_sentence", octets, ctypes.byref(refusal)).decode("utf-8")
            raise Refused(reason, refusal.offset, message)
        self._reading = Reading.STRUCTURE

    @classmethod
    def from_der(cls, der: bytes, reading: Reading = Reading.DER) -> Name:
        name = cls.__new__(cls)
        name.der, name._reading = bytes(der), reading
        name._view()
        return name

    def _view(self) -> _Name:
        view = _Name()
        _call("name_view_read", self.der, self._reading, ctypes.byref(view))
        return view

    def text(self, exact: bool = False, long_names: bool = False) -> str:
        """`exact` keeps what the text would lose; `long_names` writes commonName."""
        options = _TextOptions(long_names=long_names, exact=exact)
        view = self._view()
        return _call("rfc4514_write", ctypes.byref(view), ctypes.byref(options)).decode("utf-8")

    def __str__(self) -> str:
        return self.text()

    def __iter__(self) -> Iterator[Attribute]:
        """In the order of the encoding, the most significant first."""
        view, cursor, found = self._view(), _Cursor(), _Attribute()
        for index in range(view.attribute_count):
            arguments = [ctypes.byref(each) for each in (view, cursor, found)]
            _call("name_view_attribute", arguments[0], index, *arguments[1:])
            reason, text = _try("attribute_view_text", _Refusal(), (arguments[2],))
            shown = None if reason else text.decode("utf-8")
            yield Attribute(_oid(_copy(found.type)), shown, _copy(found.value), found.rdn)

    def values(self, type: str) -> list[str]:
        """Texts of all attributes of a type, by its identifier."""
        return [each.text for each in self if each.type == type and each.text is not None]

    def match(self, other: Name, rule: Rule = Rule.RFC5280) -> Answer:
        """Whether the names are the same."""
        return self._compare("match_names", self.der, other.der, rule)

    def is_within(self, subtree: Name, rule: Rule = Rule.RFC5280) -> Answer:
        """Whether the name begins with the RDNs of another."""
        return self._compare("name_within", subtree.der, self.der, rule)

    @staticmethod
    def _compare(function: str, first: bytes, second: bytes, rule: Rule) -> Answer:
        match = _Match()
        verdict, _ = _try(function, _Refusal(), (first, second, rule, ctypes.byref(match)))
        why = [] if verdict == Verdict.YES else [_sentence("match_sentence", match)]
        return Answer(Verdict(verdict), why)

    def key(self, rule: Rule = Rule.RFC5280) -> bytes:
        """For dictionaries and databases: the same for names that are the same."""
        return _call("match_key", self.der, rule)


class GeneralName(_Value):
    """One alternative name: `GeneralName("DNS:example.org")`, `"IP:192.0.2.1"`, `"UPN:..."`."""

    def __init__(self, text: str, allows_range: bool = False) -> None:
        self.der = _call("general_name_from_text", text.encode("utf-8"), int(allows_range))

    @classmethod
    def from_der(cls, der: bytes, reading: Reading = Reading.DER) -> GeneralName:
        name = cls.__new__(cls)
        name.der = bytes(der)
        _call("general_name_view_read", name.der, reading, ctypes.byref(_GeneralName()))
        return name

    @property
    def kind(self) -> Kind:
        return Kind(self._read().kind)

    @property
    def content(self) -> bytes:
        """Characters, octets of an address, the whole Name of a directory name."""
        return _copy(self._read().content)

    def _read(self) -> _GeneralName:
        view = _GeneralName()
        _call("general_name_view_read", self.der, Reading.STRUCTURE, ctypes.byref(view))
        return view

    def __str__(self) -> str:
        """Safe to show: what cannot be seen is escaped."""
        return _call("general_name_to_text", self.der).decode("utf-8")


def general_names(der: bytes, reading: Reading = Reading.DER) -> list[GeneralName]:
    """The names in the value of an alternative-name extension."""
    view = _GeneralNames()
    _call("general_names_view_read", der, reading, ctypes.byref(view))
    found = _each("general_names_view_next", view, _GeneralName())
    return [GeneralName.from_der(_copy(each.bytes), Reading.STRUCTURE) for each in found]


def alternative_names(texts: Iterable[str], form: Form = Form.VALUE) -> bytes:
    """Alternative names in DER, of one text each."""
    octets = [text.encode("utf-8") for text in texts]
    views = (_Octets * len(octets))(*map(_view, octets))
    return _call("alternative_names_from_text", views, len(octets), form, None)


def _extensions(view: _Certificate) -> list[Extension]:
    found = _each("certificate_view_next_extension", view, _Extension())
    return [Extension(_oid(_copy(e.oid)), bool(e.critical), _copy(e.value)) for e in found]


def read_extensions(der: bytes, reading: Reading = Reading.DER) -> list[Extension]:
    """A list of extensions by itself, SEQUENCE OF Extension."""
    view = _Certificate()
    _call("extensions_view_read", der, reading, ctypes.byref(view))
    return _extensions(view)


def write_extensions(extensions: Iterable[Extension]) -> bytes:
    octets = [(_call("oid_from_text", e.oid.encode("ascii")), e) for e in extensions]
    views = [_Extension(_view(oid), _view(e.value), _Octets(), e.critical) for oid, e in octets]
    return _call("extensions_write", (_Extension * len(views))(*views), len(views))


class Certificate(_Value):
    """A certificate, a request or a CRL; parts that the kind has not are None or empty."""

    def __init__(self, der: bytes, reading: Reading = Reading.DER) -> None:
        self.der, self._reading = bytes(der), reading
        view = _Certificate()
        _call("certificate_view_read", self.der, reading, ctypes.byref(view))
        self.kind = CertificateKind(view.kind)
        serial = _copy(view.serial)
        self.serial = int.from_bytes(serial, "big", signed=True) if serial else None
        self._subject, self._issuer = _copy(view.subject), _copy(view.issuer)
        self._times = _copy(view.not_before), _copy(view.not_after)
        self.extensions = _extensions(view)

    @property
    def subject(self) -> Name | None:
        return Name.from_der(self._subject, self._reading) if self._subject else None

    @property
    def issuer(self) -> Name | None:
        return Name.from_der(self._issuer, self._reading) if self._issuer else None

    @property
    def not_before(self) -> str:
        """ "2026-11-21T22:05:00Z", as all times."""
        return _call("time_to_text", self._times[0]).decode("ascii")

    @property
    def not_after(self) -> str:
        return _call("time_to_text", self._times[1]).decode("ascii")

    @property
    def alternative_names(self) -> list[GeneralName]:
        """Of the subject. An extension that stands twice is no list at all, and refused."""
        found = [each.value for each in self.extensions if each.oid == _ALTERNATIVE_NAMES]
        if len(found) > 1:
            raise Refused(120, NO_PLACE, _reason(120))
        return general_names(found[0], self._reading) if found else []

    def identify(self, kind: Reference, text: str) -> Answer:
        """Whether the certificate is for a host, an address, a mailbox, a URI or a service."""
        return _identify("identify", self.der, kind, text)

    def __str__(self) -> str:
        return f"{self.kind.name} {self.subject or self.issuer}"


def _reason(number: int) -> str:
    return _library.ortholan_reason_sentence(number).decode("utf-8")


def _identify(function: str, der: bytes, kind: Reference, text: str) -> Answer:
    octets, identity = text.encode("utf-8"), _Identity()
    reference = _Reference(kind=kind, text=_view(octets))
    _call(function, der, ctypes.byref(reference), ctypes.byref(identity))
    if identity.verdict == Verdict.YES:
        name = GeneralName.from_der(_copy(identity.name), Reading.STRUCTURE)
        return Answer(Verdict.YES, [], name)
    return Answer(Verdict(identity.verdict), [_reason(identity.reason)])


def identify_by_names(names: bytes, kind: Reference, text: str) -> Answer:
    """The same of the value of an alternative-name extension alone."""
    return _identify("identify_by_names", names, kind, text)


def permits(chain: Iterable[bytes], most: int = 8) -> Answer:
    """Whether the name constraints of a chain, from the leaf up, permit its names."""
    octets = list(chain)
    views = (_Octets * len(octets))(*map(_view, octets))
    findings, verdict, count = (_Finding * most)(), _i(), _z()
    places = ctypes.byref(verdict), findings, most, ctypes.byref(count)
    _call("permits", views, len(octets), None, *places)
    sentences = [_sentence("finding_sentence", each) for each in findings[: count.value]]
    return Answer(Verdict(verdict.value), sentences)


def read_pem(text: bytes) -> list[PemBlock]:
    """All blocks of PEM text, whatever stands between them."""
    blocks = []
    for block in _each("pem_next", text, _PemBlock()):
        octets = _call("pem_octets", ctypes.byref(block))
        blocks.append(PemBlock(_copy(block.label).decode("utf-8"), octets))
    return blocks
