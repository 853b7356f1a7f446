"""Name constraints: may the authorities of a chain name what its certificates name (RFC 5280
4.2.1.10)?

    >>> from ortholan import write_general_names
    >>> names = write_general_names(["DNS:a.example.net"])
    >>> constraints = bytes.fromhex("300FA10D300B8209") + b"" + b"a.example"
    >>> print(permits_names(constraints, alternative_names=names))
    yes

Signatures, times, usages and chain building are somebody else's.
"""

from __future__ import annotations

import dataclasses
import enum
from ctypes import byref, c_int32, c_size_t
from typing import Any, Iterable

from ._calls import functions
from ._library import copy, structures, view
from ._values import OctetsLike, octets_of
from .certificates import Certificate
from .names import Name
from .reasons import Answer, Reason, Verdict


class NamePlace(enum.IntEnum):
    """Where a name of a finding stands in its certificate."""

    NONE = 0
    SUBJECT = 1
    EMAIL = 2
    ALTERNATIVE = 3
    LIST = 4
    CONSTRAINTS = 5


@dataclasses.dataclass(frozen=True)
class Finding(Verdict):
    """One reason why a chain is not permitted, or why that cannot be told.

    Attributes:
        certificate: index of the certificate whose name it is, 0 for the leaf.
        authority: index of the certificate whose constraints decide.
        place: where the name stands.
        name: the GeneralName or the subject's Name in DER, the text of an e-mail attribute.
        subtree: base of the subtree, a GeneralName in DER; empty where none decides.
    """

    certificate: int
    authority: int
    place: NamePlace
    name: bytes
    subtree: bytes


@dataclasses.dataclass(frozen=True)
class Permission(Verdict):
    """Whether names are permitted; the reason is that of the first finding."""

    findings: tuple[Finding, ...]


def _finding(found: Any) -> Finding:
    sentence = functions.finding_sentence(byref(found))
    return Finding(Answer(found.verdict), Reason(found.reason), sentence, found.certificate,
                   found.authority, NamePlace(found.place), copy(found.name), copy(found.subtree))


def _ask(function: Any, arguments: tuple[Any, ...], budget: int, most: int) -> Permission:
    findings, verdict, count = (structures.finding * most)(), c_int32(), c_size_t()
    options = structures.permit_options(budget)
    function(*arguments, byref(options), byref(verdict), findings, most, byref(count))
    found = tuple(map(_finding, findings[: count.value]))
    reason, sentence = (found[0].reason, found[0].sentence) if found else (Reason.NONE, "")
    return Permission(Answer(verdict.value), reason, sentence, found)


def permits(chain: Iterable[Certificate | OctetsLike], budget: int = 0,
            most: int = 16) -> Permission:
    """Whether the name constraints of a chain permit its names.

    Args:
        chain: from the leaf up to the authority whose constraints count first.
        budget: comparisons of a name with a subtree, at most; 0 for the library's own limit.
        most: findings that are kept; with 1 the search ends at the first refusal.
    """
    octets = [each.der if isinstance(each, Certificate) else octets_of(each) for each in chain]
    views = (structures.octets * len(octets))(*map(view, octets))
    return _ask(functions.permits, (views, len(octets)), budget, most)


def permits_names(constraints: OctetsLike, subject: Name | None = None,
                  alternative_names: OctetsLike = b"", budget: int = 0,
                  most: int = 16) -> Permission:
    """The same for loose parts, before a certificate is issued.

    Args:
        constraints: value of a NameConstraints extension.
        subject: the name that is to be certified.
        alternative_names: value of a SubjectAltName extension.
    """
    parts = (octets_of(constraints), subject.der if subject is not None else b"",
             octets_of(alternative_names))
    return _ask(functions.permits_names, parts, budget, most)
