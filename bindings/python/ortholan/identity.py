"""Whose certificate: whether it is for a host, address, mailbox, URI or service (RFC 9525).

    >>> from ortholan import write_general_names
    >>> names = write_general_names(["DNS:*.example.org", "IP:192.0.2.1"])
    >>> answer = identify_by_names(names, host="www.example.org")
    >>> bool(answer), answer.name
    (True, <GeneralName DNS:*.example.org>)
    >>> print(identify_by_names(names, host="example.org"))
    no: no name of the certificate is the one that was asked for
    >>> for each in identify_by_names(names, host="example.org").mismatches: print(each)
    DNS:*.example.org: "*" stands for exactly one label
    IP:192.0.2.1: the name is of another kind

Alternative names alone count, never the subject. Signature, validity, usage and revocation are not
looked at.
"""

from __future__ import annotations

import dataclasses
from ctypes import byref
from typing import Any, Union

from ._calls import each, functions
from ._library import copy, structures, text_view
from ._values import OctetsLike, Value, octets_of
from .general_names import Address, GeneralName
from .reasons import Answer, Reason, Verdict

Asked = Union[str, Address, None]

_KINDS = {"host": 1, "ip": 2, "email": 3, "uri": 4, "srv": 5}
_NO_UNDERSCORE = 1


@dataclasses.dataclass(frozen=True)
class Mismatch:
    """A presented name, whole in DER, and why it is not the one that was asked for."""

    der: bytes
    reason: Reason

    @property
    def text(self) -> str:
        """"DNS:example.org", also of a malformed name; "" for what is none of the nine kinds."""
        try:
            return str(functions.general_name_to_text(self.der))
        except ValueError:
            return ""

    def __str__(self) -> str:
        return f"{self.text}: {self.reason.sentence}"


@dataclasses.dataclass(frozen=True)
class Identity(Verdict):
    """Whether a certificate is for what was asked.

    Attributes:
        name: for a yes the name that matched, else None.
        mismatches: every other name, with the reason.
    """

    name: GeneralName | None
    mismatches: tuple[Mismatch, ...]


def _reference(underscores: bool, asked: dict[str, Asked]) -> Any:
    given = [(kind, text) for kind, text in asked.items() if text is not None]
    if len(given) != 1:
        raise TypeError(f"give one of {', '.join(asked)}")
    kind, text = given[0]
    choices = 0 if underscores else _NO_UNDERSCORE
    return structures.reference(_KINDS[kind], choices, text_view(str(text)))


def _ask(function: Any, der: OctetsLike, underscores: bool,
         asked: dict[str, Asked]) -> Identity:
    octets, reference = octets_of(der), _reference(underscores, asked)
    found = structures.identity()
    place = function(octets, byref(reference), byref(found))
    name = None
    if found.verdict == Answer.YES:
        name = GeneralName._made(copy(found.name))
    reason = Reason(found.reason)
    sentence = functions.refusal_sentence(byref(place)) if place.reason else reason.sentence
    return Identity(Answer(found.verdict), reason, sentence, name, _mismatches(found, reference))


def _mismatches(identity: Any, reference: Any) -> tuple[Mismatch, ...]:
    presented = structures.presented_name()

    def explain(*place: Any) -> None:
        functions.identity_explain(byref(identity), byref(reference), *place)

    return tuple(Mismatch(copy(name.bytes), Reason(name.reason))
                 for name in each(explain, presented) if name.reason)


def identify(certificate: Value | OctetsLike, *, host: str | None = None,
             ip: str | Address | None = None, email: str | None = None, uri: str | None = None,
             srv: str | None = None, underscores: bool = True) -> Identity:
    """Whether a certificate is for the one thing that is given.

    A question that is none of its kind is refused; a certificate that cannot be read is answered
    by CANNOT_TELL. Without `underscores` hosts that have one are taken for no host names.
    """
    der = certificate.der if isinstance(certificate, Value) else certificate
    asked = {"host": host, "ip": ip, "email": email, "uri": uri, "srv": srv}
    return _ask(functions.identify, der, underscores, asked)


def identify_by_names(names: OctetsLike, *, host: str | None = None,
                      ip: str | Address | None = None, email: str | None = None,
                      uri: str | None = None, srv: str | None = None,
                      underscores: bool = True) -> Identity:
    """The same of the value of an alternative-name extension alone."""
    asked = {"host": host, "ip": ip, "email": email, "uri": uri, "srv": srv}
    return _ask(functions.identify_by_names, names, underscores, asked)
