"""The objects of <ortholan/ortholan_c.h>: names, general names and extensions, read generously.

They can be changed, and speak the text form of the library's C++ classes (docs/name-text.md). What
stands in `ortholan` itself is stricter, and gives verdicts with reasons.

    >>> name = Name("CN=Alpha, O=Org, C=RU", sort=True)
    >>> str(name)
    'C=RU,O=Org,CN=Alpha'
    >>> name["O"] = "Org, Ltd"
    >>> [(attribute.key, attribute.value) for attribute in name]
    [('C', 'RU'), ('O', 'Org, Ltd'), ('CN', 'Alpha')]
    >>> name == Name.from_der(name.der)
    True

Whatever the library refuses is raised as OrtholanError. Objects are not to be used by two threads
at once.
"""

from __future__ import annotations

import ctypes
import enum
from typing import Any, Iterator, NamedTuple, TypeVar

from ._declarations import CLASSIC_FUNCTIONS
from ._library import declared, structures


class Attribute(NamedTuple):
    """One attribute of a name: dotted identifier, short key, text, DER of the value."""

    type: str
    key: str
    value: str
    der: bytes


class Result(enum.IntEnum):
    """What a function of the library returns."""

    OK = 0
    ARGUMENT = 1
    MEMORY = 2
    UTF8 = 3
    NAME_TEXT = 4
    TYPE = 5
    VALUE = 6
    DER = 7
    MULTI_VALUED = 8
    NOT_FOUND = 9
    SYSTEM = 10
    INTERNAL = 11


class Encode(enum.IntFlag):
    """How text is written into a name."""

    COMMA = 0x04000000
    SEMICOLON = 0x40000000
    CRLF = 0x08000000
    UTF8 = 0x00040000
    ALWAYS = 0x00100000


class Style(enum.IntFlag):
    """How a name is written as text: one of the first three, and | a separator."""

    VALUES = 1
    OIDS = 2
    KEYS = 3
    SEMICOLON = 0x40000000
    CRLF = 0x08000000


class Kind(enum.IntEnum):
    """The alternatives of a general name."""

    OTHER_NAME = 0
    RFC822_NAME = 1
    DNS_NAME = 2
    X400_ADDRESS = 3
    DIRECTORY_NAME = 4
    EDI_PARTY_NAME = 5
    URI = 6
    IP_ADDRESS = 7
    REGISTERED_ID = 8


class Fault(enum.IntEnum):
    """What is wrong with the first place of a name text that is."""

    NO_TEXT = 1
    MISSING_TYPE = 2
    MISSING_EQUALS = 3
    UNKNOWN_TYPE = 4
    MISSING_VALUE = 5
    UNEXPECTED_EQUALS = 6
    UNEXPECTED_TEXT = 7
    WRONG_CHARACTER = 8


class OrtholanError(Exception):
    """A refusal: `result` says what kind, `status` is the library's own code or 0."""

    def __init__(self, result: int, status: int, message: str) -> None:
        super().__init__(message)
        self.result = result
        self.status = status


class NameTextError(OrtholanError):
    """A name text that is refused: the fault, and its place and length in characters."""

    def __init__(self, status: int, message: str, fault: Fault, position: int,
                 length: int) -> None:
        super().__init__(Result.NAME_TEXT, status, message)
        self.fault = fault
        self.position = position
        self.length = length


_functions = {name: called for name, (called, _) in declared(CLASSIC_FUNCTIONS).items()}


def _check(result: int, _function: Any, _arguments: Any) -> int:
    if result != Result.OK:
        message = _functions["last_error_message"]().decode("utf-8")
        status = _functions["last_status"]()
        known = result in Result.__members__.values()
        raise OrtholanError(Result(result) if known else result, status, message)
    return result


for _called in _functions.values():
    if _called.restype is ctypes.c_int32:
        _called.errcheck = _check


def version() -> str:
    """Version of the library."""
    return str(_functions["version"]().decode("ascii"))


def _call(name: str, *arguments: Any) -> Any:
    return _functions[name](*arguments)


def _terminated(text: str) -> bytes:
    """UTF-8 for an argument that ends at its first NUL."""
    if "\0" in text:
        raise ValueError("NUL in an attribute type or identifier")
    return text.encode("utf-8")


def _octets(name: str, *arguments: Any) -> bytes:
    """What a function gives out as memory and its size."""
    block = ctypes.c_void_p()
    size = ctypes.c_size_t()
    _call(name, *arguments, ctypes.byref(block), ctypes.byref(size))
    try:
        return ctypes.string_at(block, size.value)
    finally:
        _functions["free"](block)


def _explained(octets: bytes, options: int, error: OrtholanError) -> OrtholanError:
    """The refusal of a name text, with the place."""
    fault = ctypes.c_uint32()
    position = ctypes.c_size_t()
    length = ctypes.c_size_t()
    message = ctypes.c_void_p()
    outputs = [ctypes.byref(output) for output in (fault, position, length, message)]
    _call("name_text_error_n", octets, len(octets), options, *outputs)
    try:
        sentence = ctypes.string_at(message).decode("utf-8")
    finally:
        _functions["free"](message)
    if fault.value == 0:
        return error
    before = octets[: position.value].decode("utf-8")
    met = octets[position.value : position.value + length.value].decode("utf-8")
    return NameTextError(error.status, sentence, Fault(fault.value), len(before), len(met))


def _number(kind: Any, name: str, *arguments: Any) -> int:
    number = kind()
    _call(name, *arguments, ctypes.byref(number))
    return int(number.value)


Made = TypeVar("Made", bound="_Handle")


class _Handle:
    """Owns a handle; `_free` is the library's function that takes it back."""

    _free = ""

    def __init__(self, function: str, *arguments: Any) -> None:
        self._handle = None
        handle = ctypes.c_void_p()
        _call(function, *arguments, ctypes.byref(handle))
        self._handle = handle

    @classmethod
    def _made(cls: type[Made], function: str, *arguments: Any) -> Made:
        made = cls.__new__(cls)
        _Handle.__init__(made, function, *arguments)
        return made

    def __del__(self) -> None:
        if getattr(self, "_handle", None) is not None:
            _functions[self._free](self._handle)
            self._handle = None


class Name(_Handle):
    """A distinguished name. Changing an attribute leaves the octets of the others alone."""

    _free = "name_free"

    def __init__(self, text: str | None = None, options: int = 0, sort: bool = False) -> None:
        """From a name text; without one, the name without attributes, to be filled with add()."""
        if text is None:
            super().__init__("name_new")
        else:
            octets = text.encode("utf-8")
            try:
                super().__init__("name_from_text_n", octets, len(octets), options, int(sort))
            except OrtholanError as error:
                if error.result == Result.NAME_TEXT:
                    raise _explained(octets, options, error) from None
                raise

    @classmethod
    def from_der(cls, der: bytes) -> Name:
        return cls._made("name_from_der", bytes(der), len(der))

    @property
    def der(self) -> bytes:
        return _octets("name_der", self._handle)

    def text(self, style: int = Style.KEYS) -> str:
        """For display: decide by == or by the DER."""
        return _octets("name_text", self._handle, style).decode("utf-8")

    def copy(self) -> Name:
        return self._made("name_copy", self._handle)

    def add(self, type: str, value: str, options: int = 0) -> Name:
        """Appends an attribute; `type` is a key ("CN") or a dotted identifier. Returns the name."""
        octets = value.encode("utf-8")
        _call("name_add_n", self._handle, _terminated(type), octets, len(octets), options)
        return self

    def attributes(self) -> list[Attribute]:
        """All attributes, in the order of the encoding."""
        block = ctypes.c_void_p()
        count = ctypes.c_size_t()
        _call("name_attributes", self._handle, ctypes.byref(block), ctypes.byref(count))
        try:
            array = ctypes.cast(block, ctypes.POINTER(structures.attribute))
            return [
                Attribute(
                    ctypes.string_at(item.type).decode("ascii"),
                    ctypes.string_at(item.key).decode("utf-8"),
                    ctypes.string_at(item.value, item.value_size).decode("utf-8"),
                    ctypes.string_at(item.der, item.der_size),
                )
                for item in array[: count.value]
            ]
        finally:
            _functions["free"](block)

    def get(self, type: str, default: str | None = None) -> str | None:
        """Value of the first attribute of the type."""
        try:
            return self[type]
        except KeyError:
            return default

    def __getitem__(self, type: str) -> str:
        try:
            return _octets("name_get", self._handle, _terminated(type)).decode("utf-8")
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                raise KeyError(type) from None
            raise

    def __setitem__(self, type: str, value: str) -> None:
        octets = value.encode("utf-8")
        _call("name_set_n", self._handle, _terminated(type), octets, len(octets), 0)

    def __delitem__(self, type: str) -> None:
        try:
            _call("name_remove", self._handle, _terminated(type))
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                raise KeyError(type) from None
            raise

    def __contains__(self, type: str) -> bool:
        return self.get(type) is not None

    def __iter__(self) -> Iterator[Attribute]:
        return iter(self.attributes())

    def __len__(self) -> int:
        return _number(ctypes.c_size_t, "name_count", self._handle)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Name):
            return NotImplemented
        return _number(ctypes.c_int, "name_equal", self._handle, other._handle) != 0

    __hash__ = None  # type: ignore[assignment]

    def __str__(self) -> str:
        return self.text()

    def __repr__(self) -> str:
        return "<Name %r>" % self.text()


class GeneralName(_Handle):
    """One alternative name."""

    _free = "general_name_free"

    def __init__(self, der: bytes) -> None:
        super().__init__("general_name_from_der", bytes(der), len(der))

    @property
    def kind(self) -> int:
        """A Kind, or the number of a tag that has none."""
        kind = _number(ctypes.c_uint32, "general_name_kind", self._handle)
        return Kind(kind) if kind in Kind.__members__.values() else kind

    @property
    def value(self) -> bytes:
        """Content octets, without the tag: an address, a Name in DER, characters, ..."""
        return _octets("general_name_value", self._handle)

    @property
    def der(self) -> bytes:
        return _octets("general_name_der", self._handle)

    def __str__(self) -> str:
        """The library's text for display; raw octets for kinds that are no text."""
        return _octets("general_name_text", self._handle).decode("utf-8")

    def __repr__(self) -> str:
        return "<GeneralName %s %s>" % (getattr(self.kind, "name", self.kind), self.value.hex())


class _GeneralNames(_Handle):
    _free = "general_names_free"


def general_names(der: bytes) -> list[GeneralName]:
    """The names in the value of a subjectAltName extension and the like."""
    names = _GeneralNames("general_names_from_der", bytes(der), len(der))
    count = _number(ctypes.c_size_t, "general_names_count", names._handle)
    return [GeneralName._made("general_names_get", names._handle, i) for i in range(count)]


class Extension(_Handle):
    """One certificate extension; `value` is the content of its OCTET STRING."""

    _free = "extension_free"

    def __init__(self, oid: str, critical: bool, value: bytes) -> None:
        arguments = (_terminated(oid), int(bool(critical)), bytes(value), len(value))
        super().__init__("extension_new", *arguments)

    @classmethod
    def from_der(cls, der: bytes) -> Extension:
        return cls._made("extension_from_der", bytes(der), len(der))

    @property
    def oid(self) -> str:
        block = ctypes.c_void_p()
        _call("extension_oid", self._handle, ctypes.byref(block))
        try:
            return ctypes.string_at(block).decode("ascii")
        finally:
            _functions["free"](block)

    @property
    def critical(self) -> bool:
        return _number(ctypes.c_int, "extension_critical", self._handle) != 0

    @property
    def value(self) -> bytes:
        return _octets("extension_value", self._handle)

    @property
    def der(self) -> bytes:
        return _octets("extension_der", self._handle)

    def __repr__(self) -> str:
        return "<Extension %s%s>" % (self.oid, " critical" if self.critical else "")


class Extensions(_Handle):
    """A list of extensions, in order, that can be searched and updated by identifier."""

    _free = "extensions_free"

    def __init__(self) -> None:
        super().__init__("extensions_new")

    @classmethod
    def from_der(cls, der: bytes) -> Extensions:
        return cls._made("extensions_from_der", bytes(der), len(der))

    @property
    def der(self) -> bytes:
        return _octets("extensions_der", self._handle)

    def find(self, oid: str) -> Extension | None:
        """The first extension with the identifier, or None."""
        try:
            return Extension._made("extensions_find", self._handle, _terminated(oid))
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                return None
            raise

    def set(self, extension: Extension) -> None:
        """Replaces the first extension with the same identifier, or appends."""
        _call("extensions_set", self._handle, extension._handle)

    def __len__(self) -> int:
        return _number(ctypes.c_size_t, "extensions_count", self._handle)

    def __getitem__(self, index: int) -> Extension:
        if not 0 <= index < len(self):
            raise IndexError(index)
        return Extension._made("extensions_get", self._handle, index)
