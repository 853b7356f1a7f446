"""Why something is refused or decided: reasons, refusals and verdicts.

    >>> Reason(27), Reason.SET_ORDER.sentence
    (<Reason.SET_ORDER: 27>, 'the elements of a SET are not in ascending order')

A refusal is an exception, for an input that is none; a verdict is never raised, and only a yes is
true.
"""

from __future__ import annotations

import ctypes
import dataclasses
import enum
from typing import Any

from ._library import NO_PLACE, strict_functions, structures

_name, _ = strict_functions["reason_name"]
_sentence, _ = strict_functions["reason_sentence"]
_refusal_sentence, _ = strict_functions["refusal_sentence"]


class Reason(enum.IntEnum):
    """Reasons by their numbers in the C headers, which say more of each."""

    NONE = 0
    ARGUMENT = 1
    MEMORY = 2
    ROOM = 3
    NOT_FOUND = 4
    TRUNCATED = 20
    LEFT_OVER = 21
    IDENTIFIER = 22
    INDEFINITE = 23
    LENGTH_FORM = 24
    TAG_FORM = 25
    OID = 26
    SET_ORDER = 27
    ALPHABET = 28
    ENCODING = 29
    EMPTY = 30
    DEPTH = 31
    BOOLEAN = 32
    INTEGER = 33
    BIT_STRING = 34
    DEFAULT = 35
    TIME = 36
    NO_STRING = 37
    TOO_LONG = 38
    FORM = 39
    NULL = 40
    TEXT_UTF8 = 80
    TEXT_NO_TYPE = 81
    TEXT_NO_EQUALS = 82
    TEXT_TYPE = 83
    TEXT_UNKNOWN_TYPE = 84
    TEXT_OID = 85
    TEXT_PAIR = 86
    TEXT_UNESCAPED = 87
    TEXT_HEX = 88
    TEXT_ELEMENT = 89
    TEXT_VALUE_UTF8 = 90
    TEXT_QUOTE = 91
    TEXT_BEHIND_QUOTE = 92
    TEXT_ALPHABET = 93
    TEXT_NO_STRING = 94
    TYPE_NAME = 95
    TEXT_LINE = 96
    DUPLICATE_EXTENSION = 120
    PEM_END = 121
    PEM_LABEL = 122
    BASE64 = 123
    HOST_EMPTY = 140
    HOST_EMPTY_LABEL = 141
    HOST_LONG_LABEL = 142
    HOST_LONG = 143
    HOST_CHARACTER = 144
    HOST_UNDERSCORE = 145
    HOST_HYPHEN = 146
    HOST_NUMERIC = 147
    HOST_UNICODE = 148
    HOST_TRAILING_DOT = 149
    HOST_WILDCARD = 150
    MAILBOX_AT = 151
    MAILBOX_LOCAL = 152
    MAILBOX_LITERAL = 153
    URI_SCHEME = 154
    URI_CHARACTER = 155
    URI_LITERAL = 156
    URI_PORT = 157
    SERVICE = 158
    OTHER_NAME = 159
    ADDRESS_TEXT = 160
    ADDRESS_RANGE = 161
    NAME_KIND = 162
    NAME_ESCAPE = 163
    NAME_VALUE = 164
    GENERAL_NAME = 170
    NAME_CHARACTER = 171
    ADDRESS_SIZE = 172
    RDN_COUNT = 180
    RDN_SIZE = 181
    ATTRIBUTE_TYPE = 182
    VALUE = 183
    RDN = 184
    VALUE_TYPE = 185
    VALUE_TEXT = 186
    VALUE_UNDEFINED = 187
    VALUE_TELETEX = 188
    NO_MATCH = 200
    NO_ALTERNATIVE_NAMES = 201
    NO_CERTIFICATE = 202
    OTHER_KIND = 203
    OTHER_HOST = 204
    WILDCARD_LABELS = 205
    OTHER_ADDRESS = 206
    OTHER_FAMILY = 207
    OTHER_LOCAL_PART = 208
    OTHER_SCHEME = 209
    OTHER_SERVICE_NAME = 210
    HOST_IS_ADDRESS = 211
    URI_HOST = 212
    ASCII_LOCAL_PART = 213
    EXCLUDED = 300
    NOT_PERMITTED = 301
    UNDEFINED_FORM = 302
    SUBTREE_DISTANCE = 303
    SUBTREE_MASK = 304
    SUBTREE_EMPTY = 305
    URI_WITHOUT_HOST = 306
    MAILBOX_QUOTED = 307
    MAILBOX_CASE = 308
    MAILBOX_AT_ADDRESS = 309
    MAILBOX_BEYOND_ASCII = 310
    DIRECTORY_UNTOLD = 311
    BUDGET = 312
    UNREADABLE_CERTIFICATE = 313

    @property
    def sentence(self) -> str:
        """One English sentence."""
        return str(_sentence(self).decode("utf-8"))

    @classmethod
    def _missing_(cls, value: object) -> Reason | None:
        """A reason that a later library has."""
        if not isinstance(value, int):
            return None
        member = int.__new__(cls, value)
        member._name_ = _name(value).decode("ascii") or f"REASON_{value}"
        member._value_ = value
        return member


class Answer(enum.IntEnum):
    """What was decided."""

    CANNOT_TELL = 0
    YES = 1
    NO = 2


@dataclasses.dataclass(frozen=True)
class Verdict:
    """What was decided, and why; true for a yes alone.

    Attributes:
        answer: YES, NO or CANNOT_TELL. Where a no would let something through, as of an excluded
            subtree, take CANNOT_TELL for a refusal as well.
        reason: why not; Reason.NONE for a yes.
        sentence: the same in English, without a full stop; may be "" for a yes.
    """

    answer: Answer
    reason: Reason
    sentence: str

    def __bool__(self) -> bool:
        return self.answer is Answer.YES

    def __str__(self) -> str:
        word = self.answer.name.lower().replace("_", " ")
        return f"{word}: {self.sentence}" if self.sentence else word


class Refusal(ValueError):
    """An input that is refused.

    Attributes:
        reason: why.
        offset: octets of the input, or of the text in UTF-8, before the place; None without one.
        met: the octet or character there; None at the end of the input.
        expected: the identifier octet or the bound that was expected; 0 where there is none.
        position: characters of the text before the place; None for octets.
    """

    def __init__(self, reason: Reason, message: str, offset: int | None = None,
                 met: int | None = None, expected: int = 0, position: int | None = None) -> None:
        super().__init__(reason, message, offset, met, expected, position)
        self.reason = reason
        self.offset = offset
        self.met = met
        self.expected = expected
        self.position = position

    def __str__(self) -> str:
        return str(self.args[1])


def refusal_of(reason: int, refusal: Any, text: str | None = None) -> Exception:
    """The exception for what a function returned and its ortholan_refusal.

    `text` is the text that was refused, if it was one.
    """
    if reason == Reason.MEMORY:
        return MemoryError()
    refusal.reason = reason
    offset = None if refusal.offset == NO_PLACE else refusal.offset
    position = None
    if text is not None and offset is not None:
        position = len(text.encode("utf-8")[:offset].decode("utf-8", "ignore"))
    met = None if refusal.met == 0xFFFFFFFF else refusal.met
    message = sentence_of(_refusal_sentence, refusal)
    return Refusal(Reason(reason), message, offset, met, refusal.expected, position)


def sentence_of(function: Any, *arguments: Any) -> str:
    """The text that a function writes of structures, which cannot fail for any other reason than
    room."""
    room = 256
    while True:
        out, size = (ctypes.c_char * room)(), ctypes.c_size_t()
        places = [ctypes.byref(argument) for argument in arguments]
        if function(*places, out, room, ctypes.byref(size)) != Reason.ROOM:
            return ctypes.string_at(out, size.value).decode("utf-8")
        room = size.value
