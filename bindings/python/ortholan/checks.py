"""What RFC 5280 forbids in the names and extensions of a certificate, a request or a CRL.

    >>> from ortholan import Certificate
    >>> for fault in check(Certificate.load("ca.pem")): print(fault)    # doctest: +SKIP
    a path length stands in what is no authority (RFC 5280 4.2.1.9)
"""

from __future__ import annotations

import ctypes
import dataclasses
from typing import Any

from ._calls import functions
from ._library import copy, structures
from ._values import OctetsLike, Value, octets_of, oid_text
from .reasons import Refusal, refusal_of

_ROOM = 64


@dataclasses.dataclass(frozen=True)
class Fault:
    """One fault.

    Attributes:
        rule: name of the rule, "path-length-without-ca", which stays the same.
        section: of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6".
        sentence: what is wrong, without a full stop.
        extension: dotted identifier of the extension that it is about, be it missing, or "".
        part: the name, attribute, extension or general name that is wrong; empty for a missing one.
        refusal: why the part cannot be read, with the place in it, or None.
    """

    rule: str
    section: str
    sentence: str
    extension: str
    part: bytes
    refusal: Refusal | None

    def __str__(self) -> str:
        source = self.section if self.section.startswith("RFC") else f"RFC 5280 {self.section}"
        return f"{self.sentence} ({source})"


def _fault(found: Any) -> Fault:
    rule, section, sentence = (ctypes.string_at(word).decode("ascii")
                               for word in (found.rule, found.section, found.sentence))
    oid = copy(found.extension)
    refusal = refusal_of(found.refusal.reason, found.refusal) if found.refusal.reason else None
    return Fault(rule, section, sentence, oid_text(oid) if oid else "", copy(found.part),
                 refusal if isinstance(refusal, Refusal) else None)


def check(certificate: Value | OctetsLike) -> list[Fault]:
    """All faults, of the document, then of its names, then of each extension; an empty list where
    there is none. Keys, signatures and times are not looked at. Refuses what is none of the three.
    """
    der = certificate.der if isinstance(certificate, Value) else octets_of(certificate)
    room = _ROOM
    while True:
        faults, count = (structures.fault * room)(), ctypes.c_size_t()
        functions.check(der, faults, room, ctypes.byref(count))
        if count.value <= room:
            return [_fault(fault) for fault in faults[: count.value]]
        room = count.value
