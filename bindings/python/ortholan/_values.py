"""What the values of this package share: they are their octets, and do not change."""

from __future__ import annotations

import enum
import functools
from typing import Any, TypeVar, Union

from ._calls import functions

OctetsLike = Union[bytes, bytearray, memoryview]
Self = TypeVar("Self", bound="Value")


class Reading(enum.IntEnum):
    """How closely an encoding is read.

    DER is to the letter. LENIENT is for people who must look at what is not quite DER; no verdict
    takes it. STRUCTURE is DER but for what changes no meaning, without a look at strings.
    """

    DER = 0
    LENIENT = 1
    STRUCTURE = 2


def octets_of(octets: OctetsLike) -> bytes:
    """A copy, unless it is bytes already; a TypeError for numbers and text."""
    return octets if type(octets) is bytes else bytes(memoryview(octets))


def oid_text(octets: bytes) -> str:
    """Dotted text of an identifier's content octets."""
    return str(functions.oid_to_text(octets))


def oid_content(text: str) -> bytes:
    """An identifier's content octets, of dotted text."""
    return bytes(functions.oid_from_text(text.encode("utf-8")))


def element(identifier: int, content: bytes) -> bytes:
    """An element in DER, of a tag below 31."""
    size = len(content)
    if size < 0x80:
        return bytes((identifier, size)) + content
    length = size.to_bytes((size.bit_length() + 7) // 8, "big")
    return bytes((identifier, 0x80 | len(length))) + length + content


@functools.total_ordering
class Value:
    """Something that is its DER; equality, order and hash are those of the octets."""

    __slots__ = ("_der", "_reading")

    _der: bytes
    _reading: Reading

    @classmethod
    def from_der(cls: type[Self], der: OctetsLike, reading: Reading = Reading.DER) -> Self:
        """Reads what is the whole of the octets; the refusal tells the offset."""
        made = cls._made(octets_of(der), reading)
        made._view()
        return made

    @classmethod
    def _made(cls: type[Self], der: bytes, reading: Reading = Reading.STRUCTURE) -> Self:
        """Of octets that were read or written already."""
        made = cls.__new__(cls)
        made._take(der, reading)
        return made

    def _take(self, der: bytes, reading: Reading = Reading.STRUCTURE) -> None:
        object.__setattr__(self, "_der", der)
        object.__setattr__(self, "_reading", reading)

    def _view(self) -> Any:
        """The structure that the library reads from the octets."""
        raise NotImplementedError

    @property
    def der(self) -> bytes:
        """The whole encoding."""
        return self._der

    def _key(self) -> bytes:
        """What is compared."""
        return self._der

    def __setattr__(self, name: str, value: Any) -> None:
        raise AttributeError(f"{type(self).__name__} does not change")

    def __bytes__(self) -> bytes:
        return self._der

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, type(self)):
            return NotImplemented
        return self._key() == other._key()

    def __lt__(self, other: Value) -> bool:
        if not isinstance(other, type(self)):
            return NotImplemented
        return self._key() < other._key()

    def __hash__(self) -> int:
        return hash(self._key())

    def __reduce__(self) -> tuple[Any, ...]:
        return type(self).from_der, (self._der, self._reading)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} {self}>"
