"""General names typed (RFC 5280 4.2.1.6): hosts, mailboxes, URIs, addresses, other names.

    >>> name = GeneralName("IP:192.0.2.1")
    >>> name.kind, name.value, name.der.hex()
    (<Kind.ADDRESS: 7>, IPv4Address('192.0.2.1'), '8704c0000201')
    >>> GeneralName.dns("example.org"), GeneralName.upn("user@example.org")
    (<GeneralName DNS:example.org>, <GeneralName UPN:user@example.org>)
    >>> read_general_names(write_general_names(["DNS:a.example", "IP:::1"]))
    [<GeneralName DNS:a.example>, <GeneralName IP:::1>]
    >>> GeneralName("DNS:a b")
    Traceback (most recent call last):
    ortholan.reasons.Refusal: at offset 5: a character stands there that no host name has
"""

from __future__ import annotations

import dataclasses
import enum
import ipaddress
from ctypes import byref
from functools import partial
from typing import Any, Callable, Iterable, Union

from ._calls import each, functions
from ._library import copy, structures
from ._values import OctetsLike, Reading, Value, element, octets_of, oid_text
from .names import Name
from .reasons import Refusal

Address = Union[ipaddress.IPv4Address, ipaddress.IPv6Address]
Network = Union[ipaddress.IPv4Network, ipaddress.IPv6Network]


class Kind(enum.IntEnum):
    """The nine kinds, by the number of their tag."""

    OTHER = 0
    MAIL = 1
    DNS = 2
    X400 = 3
    DIRECTORY = 4
    EDI_PARTY = 5
    URI = 6
    ADDRESS = 7
    REGISTERED_ID = 8


class OtherKind(enum.IntEnum):
    """What a type of other name stands for."""

    UNKNOWN = 0
    UPN = 1
    SERVICE = 2
    UTF8_MAILBOX = 3
    KERBEROS = 4
    XMPP = 5
    PERMANENT_ID = 6
    HARDWARE_MODULE = 7
    GUID = 8


@dataclasses.dataclass(frozen=True)
class OtherName:
    """An other name taken apart; parts that its kind has not are empty.

    Attributes:
        kind: what the type stands for.
        type: its dotted identifier.
        value: the whole element inside the explicit tag.
        text: of a UPN, service, mailbox, XMPP address or permanent identifier; a Kerberos realm.
        oid: assigner of a permanent identifier or type of a hardware module, dotted.
        octets: serial number of a hardware module, a GUID as Windows stores it.
    """

    kind: OtherKind
    type: str
    value: bytes
    text: str
    oid: str
    octets: bytes


@dataclasses.dataclass(frozen=True)
class Mailbox:
    """A mailbox (RFC 5321 4.1.2): its local part as written, and a host or an address."""

    local: str
    host: str | Address

    @classmethod
    def parse(cls, text: str, utf8: bool = False) -> Mailbox:
        """Takes a mailbox apart; with `utf8` its local part may go beyond ASCII (RFC 6531 3.3)."""
        octets, made = text.encode("utf-8"), structures.mailbox()
        functions.mailbox_read(octets, utf8, byref(made))
        return cls(_text(made.local), _address(made) or _text(made.host))


@dataclasses.dataclass(frozen=True)
class Uri:
    """A URI (RFC 3986 3), its parts as written; `rest` is path, query and fragment."""

    scheme: str
    userinfo: str
    host: str | Address
    port: str
    rest: str
    has_authority: bool

    @classmethod
    def parse(cls, text: str) -> Uri:
        """Takes a URI apart."""
        octets, made = text.encode("utf-8"), structures.uri()
        functions.uri_read(octets, byref(made))
        return cls(_text(made.scheme), _text(made.userinfo), _address(made) or _text(made.host),
                   _text(made.port), _text(made.rest), bool(made.has_authority))


class HostChoices(enum.IntFlag):
    """What a host name may have beyond letters, digits and inner hyphens."""

    NOTHING = 0
    UNDERSCORES = 1
    TRAILING_DOT = 2
    EDGE_HYPHENS = 4
    WILDCARD = 8


def check_host(text: str, choices: HostChoices = HostChoices.NOTHING) -> None:
    """Refuses a text that is no host name (RFC 1034 3.5), at its place."""
    functions.host_check(text.encode("utf-8"), choices)


def _text(view: Any) -> str:
    return copy(view).decode("utf-8")


def _address(parts: Any) -> Address | None:
    size = parts.address_size
    return ipaddress.ip_address(bytes(parts.address[:size])) if size else None


def _network(octets: bytes) -> Network | None:
    """A range of name constraints, an address with its mask; None for a mask with holes."""
    half = len(octets) // 2
    mask = int.from_bytes(octets[half:], "big")
    length = bin(mask).count("1")
    if mask != (1 << 8 * half) - (1 << 8 * half - length):
        return None
    return ipaddress.ip_network((octets[:half], length), strict=False)


NameValue = Union[str, Address, Network, Name, OtherName, bytes]


class GeneralName(Value):
    """One general name, a value: its DER. `str` is text that is safe to show and to log."""

    __slots__ = ()

    def __init__(self, text: str, allows_range: bool = False) -> None:
        """From "DNS:example.org", "IP:192.0.2.1", "email:", "URI:", "dirName:", "RID:", "UPN:", ...

        With `allows_range` an address may have a mask, as in name constraints.
        """
        der = functions.general_name_from_text(text.encode("utf-8"), allows_range)
        self._take(der)

    @classmethod
    def _of(cls, prefix: str, value: str) -> GeneralName:
        return cls(prefix + value.replace("\\", "\\\\"))

    @classmethod
    def dns(cls, host: str) -> GeneralName:
        """A host name, perhaps with a wildcard."""
        return cls._of("DNS:", host)

    @classmethod
    def email(cls, mailbox: str) -> GeneralName:
        """A mailbox in ASCII."""
        return cls._of("email:", mailbox)

    @classmethod
    def uri(cls, uri: str) -> GeneralName:
        """A URI."""
        return cls._of("URI:", uri)

    @classmethod
    def ip(cls, address: str | Address | Network) -> GeneralName:
        """An address; a network stands in name constraints alone."""
        is_range = isinstance(address, (ipaddress.IPv4Network, ipaddress.IPv6Network))
        return cls(f"IP:{address}", allows_range=is_range)

    @classmethod
    def directory(cls, name: Name) -> GeneralName:
        """A directory name, octet for octet."""
        return cls._made(element(0xA4, name.der))

    @classmethod
    def registered_id(cls, oid: str) -> GeneralName:
        """An identifier in dotted digits."""
        return cls._of("RID:", oid)

    @classmethod
    def upn(cls, name: str) -> GeneralName:
        """A user principal name of Windows."""
        return cls._of("UPN:", name)

    @classmethod
    def srv(cls, service: str) -> GeneralName:
        """A service with its host, "_imaps.example.org" (RFC 4985)."""
        return cls._of("SRV:", service)

    def _view(self) -> Any:
        made = structures.general_name_view()
        functions.general_name_view_read(self._der, self._reading, byref(made))
        return made

    @property
    def kind(self) -> Kind:
        """Which of the nine it is."""
        return Kind(self._view().kind)

    @property
    def content(self) -> bytes:
        """Characters, octets of an address, the whole Name of a directory name, else what is
        inside the tag."""
        return copy(self._view().content)

    @property
    def value(self) -> NameValue:
        """The name as what it is.

        Text of a host, mailbox, URI or identifier; an address or network of `ipaddress`; a Name;
        an OtherName. The content octets where it is of another kind or malformed inside.
        """
        name = self._view()
        try:
            return _READERS[Kind(name.kind)](name)
        except (KeyError, ValueError):
            return copy(name.content)

    def __str__(self) -> str:
        return str(functions.general_name_to_text(self._der))


def _value_of_address(name: Any) -> Address | Network | bytes:
    octets = copy(name.content)
    if len(octets) in (4, 16):
        return ipaddress.ip_address(octets)
    return (_network(octets) if len(octets) in (8, 32) else None) or octets


def _value_of_other(name: Any) -> OtherName:
    other = structures.other_name()
    functions.other_name_read(byref(name), byref(other))
    oid = copy(other.oid)
    return OtherName(OtherKind(other.kind), oid_text(copy(other.type)), copy(other.value),
                     _text(other.text), oid_text(oid) if oid else "", copy(other.octets))


def _value_of_characters(name: Any) -> str:
    return copy(name.content).decode("ascii")


_READERS: dict[Kind, Callable[[Any], NameValue]] = {
    Kind.OTHER: _value_of_other,
    Kind.MAIL: _value_of_characters,
    Kind.DNS: _value_of_characters,
    Kind.DIRECTORY: lambda name: Name.from_der(copy(name.content), Reading.STRUCTURE),
    Kind.URI: _value_of_characters,
    Kind.ADDRESS: _value_of_address,
    Kind.REGISTERED_ID: lambda name: oid_text(copy(name.content)),
}


def read_general_names(der: OctetsLike, reading: Reading = Reading.DER) -> list[GeneralName]:
    """The names in the value of an alternative-name extension."""
    octets, names = octets_of(der), structures.general_names_view()
    functions.general_names_view_read(octets, reading, byref(names))
    found = each(partial(functions.general_names_view_next, byref(names)),
                 structures.general_name_view())
    return [GeneralName._made(copy(name.bytes)) for name in found]


def write_general_names(names: Iterable[str | GeneralName]) -> bytes:
    """The value of an alternative-name extension, of names or their texts, at least one."""
    made = [name if isinstance(name, GeneralName) else GeneralName(name) for name in names]
    der = element(0x30, b"".join(name.der for name in made))
    read_general_names(der, Reading.STRUCTURE)
    return der
