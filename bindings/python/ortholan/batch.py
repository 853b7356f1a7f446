"""Lists at once: an answer an item in the same order, and the Refusal in the place of a bad item.

    >>> texts([Name("CN=Alpha").der, b"0"])
    ['CN=Alpha', Refusal(<Reason.TRUNCATED: 20>, ...)]
    >>> ders(["CN=Alpha,O=Org"])[0].hex()
    '301e310c300a060355040a13034f7267310e300c06035504031305416c706861'
    >>> match([(Name("CN=a").der, Name("CN=A").der), (Name("CN=a").der, b"0")])
    [<Answer.YES: 1>, <Answer.CANNOT_TELL: 0>]

Octets are those of names, without objects in between. The first four hand thousands of items to the
library in one call, while other threads of Python run.
"""

from __future__ import annotations

import array
import ctypes
import itertools
from typing import Any, Callable, Iterable, Iterator, List, Tuple, TypeVar, Union

from ._calls import functions
from ._library import structures, view
from ._values import Reading
from .names import Name, Rule, TextOptions
from .reasons import Answer, Refusal

__all__ = ["ders", "general_name_texts", "keys", "match", "texts", "within"]

Made = TypeVar("Made")
Texts = List[Union[str, Refusal]]
Octets = List[Union[bytes, Refusal]]

# Items of one call: enough to make its price small, few enough to stay in the cache.
_MOST = 4096


def _slices(items: Iterable[bytes]) -> Iterator[list[bytes]]:
    rest = iter(items)
    return iter(lambda: list(itertools.islice(rest, _MOST)), [])


def _column(items: list[bytes]) -> tuple[Any, Any]:
    """An ortholan_column, and what it points into."""
    data = b"".join(items)
    offsets = array.array("q", itertools.accumulate(map(len, items), initial=0))
    address, _ = offsets.buffer_info()
    return structures.column(view(data).data, len(data), address, len(items)), (data, offsets)


def _told(ask: Callable[[bytes], object], item: bytes) -> Refusal:
    """The refusal of an item with its place, which a column does not tell."""
    try:
        ask(item)
    except Refusal as refusal:
        return refusal
    raise AssertionError("an item was refused in a column alone")


def _answers(items: Iterable[bytes], call: Callable[[Any, Any, Any], None],
             take: Callable[[bytes], Made],
             ask: Callable[[bytes], object]) -> list[Made | Refusal]:
    """Gives columns of the items to `call`, and those that it refuses to `ask` once more."""
    made: list[Made | Refusal] = []
    size = 256 * _MOST
    for rest in _slices(items):
        while rest:
            column, _kept = _column(rest)
            out, ends = (ctypes.c_char * size)(), (ctypes.c_int64 * (len(rest) + 1))()
            reasons, done = (ctypes.c_int32 * len(rest))(), ctypes.c_size_t()
            room = structures.column_room(ctypes.addressof(out), size, ctypes.addressof(ends),
                                          ctypes.addressof(reasons))
            call(ctypes.byref(column), ctypes.byref(room), ctypes.byref(done))
            count = done.value
            marks, octets = ends[: count + 1], ctypes.string_at(out, ends[count])
            for item, begin, end, reason in zip(rest, marks, marks[1:], reasons):
                made.append(_told(ask, item) if reason else take(octets[begin:end]))
            rest = rest[count:]
            size *= 1 if count else 2
    return made


def texts(names: Iterable[bytes], options: TextOptions | None = None,
          reading: Reading = Reading.DER) -> Texts:
    """Text of RFC 4514 for names in DER."""
    given = (options or TextOptions()).pointer()

    def call(column: Any, *places: Any) -> None:
        functions.column_rfc4514_write(column, reading, given, *places)

    return _answers(names, call, bytes.decode,
                    lambda name: Name.from_der(name, reading).text(options or TextOptions()))


def ders(texts: Iterable[str], options: TextOptions | None = None) -> Octets:
    """Names in DER for texts of RFC 4514."""
    given = (options or TextOptions()).pointer()

    def call(column: Any, *places: Any) -> None:
        functions.column_rfc4514_read(column, given, *places)

    return _answers((text.encode("utf-8") for text in texts), call, bytes,
                    lambda text: Name(text.decode(), options or TextOptions()))


def keys(names: Iterable[bytes], rule: Rule = Rule.RFC5280) -> Octets:
    """Keys of names in DER, the same exactly for names that are the same."""

    def call(column: Any, *places: Any) -> None:
        functions.column_match_key(column, rule, *places)

    return _answers(names, call, bytes, lambda name: functions.match_key(name, rule))


def general_name_texts(names: Iterable[bytes]) -> Texts:
    """Texts of general names in DER."""
    return _answers(names, functions.column_general_name_to_text, bytes.decode,
                    functions.general_name_to_text)


def match(pairs: Iterable[Tuple[bytes, bytes]], rule: Rule = Rule.RFC5280) -> list[Answer]:
    """Whether two names in DER are the same, for each pair."""
    compare = functions.match_names
    return [_ANSWERS[compare(first, second, rule, None)] for first, second in pairs]


def within(subtree: Name, names: Iterable[bytes], rule: Rule = Rule.RFC5280) -> list[Answer]:
    """Whether each name in DER begins with the RDNs of one name."""
    compare, der = functions.name_within, subtree.der
    return [_ANSWERS[compare(der, name, rule, None)] for name in names]


_ANSWERS = {answer.value: answer for answer in Answer}
