"""Certificates, certificate requests and CRLs, and the files that hold them.

    >>> certificates = load_certificates("alternative_names.pem")    # doctest: +SKIP
    >>> print(certificates[0].subject, *certificates[0].alternative_names)    # doctest: +SKIP
    CN=Gamma UPN:user email:user@example.org DNS:example.org ...

    >>> extension = Extension.of("basicConstraints", {"cA": True}, critical=True)
    >>> extension.oid, extension.value.hex(), extension.meaning
    ('2.5.29.19', '30030101ff', {'cA': True})

Keys and signatures are not looked at.
"""

from __future__ import annotations

import dataclasses
import datetime
import enum
import json
import os
import pathlib
from ctypes import byref
from functools import partial
from typing import Any, Iterable, Union

from ._calls import each, functions
from ._library import copy, structures, view
from ._values import OctetsLike, Reading, Value, octets_of, oid_content, oid_text
from .general_names import Address, GeneralName, read_general_names, write_general_names
from .identity import Identity, identify
from .names import Name
from .reasons import Reason, Refusal

ALTERNATIVE_NAMES = "2.5.29.17"

# Labels of PEM blocks (RFC 7468) that hold what is read here.
_LABELS = {"CERTIFICATE", "X509 CERTIFICATE", "CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST",
           "X509 CRL"}

PathLike = Union[str, "os.PathLike[str]"]


class CertificateKind(enum.IntEnum):
    """What was read."""

    CERTIFICATE = 1
    REQUEST = 2
    REVOCATION_LIST = 3


@dataclasses.dataclass(frozen=True)
class PemBlock:
    """A block of PEM text."""

    label: str
    octets: bytes


@dataclasses.dataclass(frozen=True)
class Extension:
    """One extension: dotted identifier, and what is inside the OCTET STRING."""

    oid: str
    critical: bool
    value: bytes

    @classmethod
    def for_names(cls, names: Iterable[str | GeneralName], critical: bool = False) -> Extension:
        """Subject alternative names; critical where the subject has no attributes."""
        return cls(ALTERNATIVE_NAMES, critical, write_general_names(names))

    @property
    def der(self) -> bytes:
        """The whole Extension."""
        whole = write_extensions([self])
        found = structures.certificate_view()
        functions.extensions_view_read(whole, Reading.STRUCTURE, byref(found))
        return copy(found.extensions)

    @classmethod
    def of(cls, type: str, meaning: Any, critical: bool = False) -> Extension:
        """An extension of what it means, as `meaning` has it, by its name or dotted digits.

        What is wrong is refused, at the place in the JSON of `meaning`.
        """
        octets, text = type.encode("utf-8"), json.dumps(meaning, separators=(",", ":"))
        value = functions.extension_from_json(octets, text.encode("utf-8"))
        return cls(extension_identifier(type), critical, value)

    @property
    def name(self) -> str:
        """What its standard calls it, "basicConstraints"; the identifier of one not known."""
        found = functions.extension_name(oid_content(self.oid))
        return str(found.decode("ascii")) if found else self.oid

    @property
    def meaning(self) -> Any:
        """The value in dictionaries, lists, text and numbers, by the names of its ASN.1.

        {"cA": True, "pathLenConstraint": 0}; <ortholan/strict/extensions.h> has the forms. A value
        that is not of the extension's structure is refused; one not known is {"octets": digits}.
        """
        found = functions.extension_json(oid_content(self.oid), self.value, Reading.DER)
        return json.loads(found)

    @property
    def text(self) -> str:
        """The value in plain words, a line for each fact, safe to show."""
        return str(functions.extension_text(oid_content(self.oid), self.value, Reading.DER, 0))

    @property
    def names(self) -> list[GeneralName]:
        """The value read as general names, as alternative names have them."""
        return read_general_names(self.value)


def extension_identifier(type: str) -> str:
    """The dotted identifier of an extension, "2.5.29.19" of "basicConstraints"."""
    return oid_text(functions.extension_oid_from_name(type.encode("utf-8")))


def _extensions(certificate: Any) -> list[Extension]:
    found = each(partial(functions.certificate_view_next_extension, byref(certificate)),
                 structures.extension_view())
    return [Extension(oid_text(copy(e.oid)), bool(e.critical), copy(e.value)) for e in found]


def read_extensions(der: OctetsLike, reading: Reading = Reading.DER) -> list[Extension]:
    """A list of extensions by itself, SEQUENCE OF Extension."""
    octets, found = octets_of(der), structures.certificate_view()
    functions.extensions_view_read(octets, reading, byref(found))
    return _extensions(found)


def write_extensions(extensions: Iterable[Extension]) -> bytes:
    """Such a list in DER, in the order given; at least one, and none of them twice."""
    views = [
        structures.extension_view(oid=view(oid_content(each.oid)),
                                  value=view(each.value), critical=each.critical)
        for each in extensions
    ]
    array = (structures.extension_view * len(views))(*views)
    return bytes(functions.extensions_write(array, len(views)))


class Certificate(Value):
    """A certificate, a request or a CRL, a value; parts that the kind has not are None or empty.

    Its shape is checked as it is read; names, times and extensions are when they are asked for.
    """

    __slots__ = ("_parts",)

    _parts: Any

    def __init__(self, der: OctetsLike, reading: Reading = Reading.DER) -> None:
        """Reads what is the whole of the octets."""
        self._take(octets_of(der), reading)
        self._view()

    def _view(self) -> Any:
        if not hasattr(self, "_parts"):
            made = structures.certificate_view()
            functions.certificate_view_read(self._der, self._reading, byref(made))
            object.__setattr__(self, "_parts", made)
        return self._parts

    @classmethod
    def load(cls, path: PathLike, reading: Reading = Reading.DER) -> Certificate:
        """The only one of a file, PEM or DER; a ValueError where there are several."""
        found = load_certificates(path, reading)
        if len(found) != 1:
            raise ValueError(f"{os.fspath(path)}: {len(found)} certificates; load_certificates "
                             "takes several")
        return found[0]

    @property
    def kind(self) -> CertificateKind:
        """Which of the three it is."""
        return CertificateKind(self._view().kind)

    def _name(self, part: Any) -> Name | None:
        der = copy(part)
        return Name.from_der(der, self._reading) if der else None

    @property
    def subject(self) -> Name | None:
        """Whom it is for; None of a CRL."""
        return self._name(self._view().subject)

    @property
    def issuer(self) -> Name | None:
        """Who made it; None of a request."""
        return self._name(self._view().issuer)

    @property
    def serial_number(self) -> int | None:
        """Of a certificate; None of the others."""
        octets = copy(self._view().serial)
        return int.from_bytes(octets, "big", signed=True) if octets else None

    @property
    def not_before(self) -> datetime.datetime | None:
        """When it begins to hold, in UTC; thisUpdate of a CRL."""
        return _moment(copy(self._view().not_before))

    @property
    def not_after(self) -> datetime.datetime | None:
        """When it holds last, in UTC; nextUpdate of a CRL."""
        return _moment(copy(self._view().not_after))

    @property
    def extensions(self) -> list[Extension]:
        """All extensions in their order; of a request those that it asks for."""
        return _extensions(self._view())

    def extension(self, type: str) -> Extension | None:
        """The one extension of a type, "keyUsage" or dotted digits, or None; one that stands there
        twice is refused."""
        oid = extension_identifier(type)
        found = structures.extension_view()
        try:
            functions.certificate_view_extension(
                byref(self._view()), oid_content(oid), byref(found))
        except Refusal as refusal:
            if refusal.reason == Reason.NOT_FOUND:
                return None
            raise
        return Extension(oid, bool(found.critical), copy(found.value))

    @property
    def alternative_names(self) -> list[GeneralName]:
        """Of the subject."""
        found = self.extension(ALTERNATIVE_NAMES)
        return read_general_names(found.value, self._reading) if found else []

    def identify(self, *, host: str | None = None, ip: str | Address | None = None,
                 email: str | None = None, uri: str | None = None, srv: str | None = None,
                 underscores: bool = True) -> Identity:
        """Whether it is for the one thing that is given; see ortholan.identify."""
        return identify(self, host=host, ip=ip, email=email, uri=uri, srv=srv,
                        underscores=underscores)

    def __str__(self) -> str:
        kind = self.kind.name.lower().replace("_", " ")
        return f"{kind} {self.subject if self.subject is not None else self.issuer}"


def _moment(element: bytes) -> datetime.datetime | None:
    if not element:
        return None
    text = functions.time_to_text(element)
    return datetime.datetime.strptime(text, "%Y-%m-%dT%H:%M:%SZ").replace(
        tzinfo=datetime.timezone.utc)


def read_pem(text: str | OctetsLike) -> list[PemBlock]:
    """All blocks of PEM text, whatever stands between them (RFC 7468)."""
    octets = text.encode("utf-8") if isinstance(text, str) else octets_of(text)
    return [PemBlock(copy(block.label).decode("utf-8"), functions.pem_octets(byref(block)))
            for block in each(partial(functions.pem_next, octets), structures.pem_block())]


def load_certificates(path: PathLike, reading: Reading = Reading.DER) -> list[Certificate]:
    """All certificates, requests and CRLs of a file: PEM, where other blocks are passed over, or
    one in DER. A ValueError where a PEM file holds none."""
    octets = pathlib.Path(path).read_bytes()
    if b"-----BEGIN " not in octets:
        return [Certificate(octets, reading)]
    found = [Certificate(block.octets, reading) for block in read_pem(octets)
             if block.label in _LABELS]
    if not found:
        raise ValueError(f"{os.fspath(path)}: no block of a certificate, a request or a CRL")
    return found
