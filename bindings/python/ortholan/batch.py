"""Lists at once: an answer an item in the same order, and the Refusal in the place of a bad item.

    >>> texts([Name("CN=Alpha").der, b"0"])
    ['CN=Alpha', Refusal(<Reason.TRUNCATED: 20>, ...)]
    >>> ders(["CN=Alpha,O=Org"])[0].hex()
    '301e310c300a060355040a13034f7267310e300c06035504031305416c706861'
    >>> match([(Name("CN=a").der, Name("CN=A").der), (Name("CN=a").der, b"0")])
    [<Answer.YES: 1>, <Answer.CANNOT_TELL: 0>]

Octets are those of names, without objects in between; nothing here stops at an item that is bad.
"""

from __future__ import annotations

import ctypes
from typing import Any, Callable, Iterable, List, Tuple, TypeVar, Union

from ._library import strict_functions, structures
from ._values import Reading
from .names import Name, Rule, TextOptions
from .reasons import Answer, Reason, Refusal, refusal_of

__all__ = ["ders", "general_name_texts", "keys", "match", "texts", "within"]

Made = TypeVar("Made")
Texts = List[Union[str, Refusal]]
Octets = List[Union[bytes, Refusal]]


def _function(name: str) -> Any:
    return strict_functions[name][0]


def _run(items: Iterable[bytes], call: Callable[..., int],
         take: Callable[[bytes], Made]) -> list[Made | Refusal]:
    """Calls `call` for each item with the item, the same room for all, and where a refusal goes."""
    room = 4096
    out, size, refusal = (ctypes.c_char * room)(), ctypes.c_size_t(), structures.refusal()
    size_place, refusal_place = ctypes.byref(size), ctypes.byref(refusal)
    made: list[Made | Refusal] = []
    for item in items:
        reason = call(item, out, room, size_place, refusal_place)
        if reason == Reason.ROOM:
            room = 2 * size.value
            out = (ctypes.c_char * room)()
            reason = call(item, out, room, size_place, refusal_place)
        if reason == 0:
            made.append(take(ctypes.string_at(out, size.value)))
            continue
        failure = refusal_of(reason, refusal)
        if not isinstance(failure, Refusal):
            raise failure
        made.append(failure)
    return made


def texts(names: Iterable[bytes], options: TextOptions | None = None,
          reading: Reading = Reading.DER) -> Texts:
    """Text of RFC 4514 for names in DER."""
    read, write = _function("name_view_read"), _function("rfc4514_write")
    view, given = structures.name_view(), (options or TextOptions()).pointer()
    place = ctypes.byref(view)

    def call(name: bytes, *room: Any) -> int:
        return read(name, reading, place, room[-1]) or write(place, given, *room)  # type: ignore

    return _run(names, call, bytes.decode)


def ders(texts: Iterable[str], options: TextOptions | None = None) -> Octets:
    """Names in DER for texts of RFC 4514."""
    read, given = _function("rfc4514_read"), (options or TextOptions()).pointer()
    return _run((text.encode("utf-8") for text in texts),
                lambda text, *room: read(text, given, *room), bytes)


def keys(names: Iterable[bytes], rule: Rule = Rule.RFC5280) -> Octets:
    """Keys of names in DER, the same exactly for names that are the same."""
    key = _function("match_key")
    return _run(names, lambda name, *room: key(name, rule, *room), bytes)


def general_name_texts(names: Iterable[bytes]) -> Texts:
    """Texts of general names in DER."""
    return _run(names, _function("general_name_to_text"), bytes.decode)


def match(pairs: Iterable[Tuple[bytes, bytes]], rule: Rule = Rule.RFC5280) -> list[Answer]:
    """Whether two names in DER are the same, for each pair."""
    compare = _function("match_names")
    return [_ANSWERS[compare(first, second, rule, None)] for first, second in pairs]


def within(subtree: Name, names: Iterable[bytes], rule: Rule = Rule.RFC5280) -> list[Answer]:
    """Whether each name in DER begins with the RDNs of one name."""
    compare, der = _function("name_within"), subtree.der
    return [_ANSWERS[compare(der, name, rule, None)] for name in names]


_ANSWERS = {answer.value: answer for answer in Answer}
