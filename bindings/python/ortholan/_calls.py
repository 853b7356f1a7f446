"""The functions of the strict layer as Python calls them.

    functions.oid_to_text(b"\\x55\\x04\\x03")       # "2.5.4.3": what comes out is returned
    functions.oid_from_text(b"2.5.")               # what is refused is raised
    functions.match_names(a, b, 0, byref(match))   # a verdict is returned
"""

from __future__ import annotations

import ctypes
import types
from typing import Any, Callable, Iterator

from ._library import NO_PLACE, strict_functions, structures
from .reasons import Reason, Refusal, refusal_of

_FIRST_ROOM = 256


def _with_room(function: Any, place: int, is_text: bool, has_refusal: bool) -> Callable[..., Any]:
    def call(*arguments: Any) -> Any:
        room = _FIRST_ROOM
        while True:
            out, size = (ctypes.c_char * room)(), ctypes.c_size_t()
            refusal = structures.refusal(offset=NO_PLACE)
            last = (ctypes.byref(refusal),) if has_refusal else ()
            before, behind = arguments[:place], arguments[place:]
            reason = function(*before, out, room, ctypes.byref(size), *behind, *last)
            if reason == 0:
                octets = ctypes.string_at(out, size.value)
                return octets.decode("utf-8") if is_text else octets
            if reason != Reason.ROOM:
                raise refusal_of(reason, refusal)
            room = size.value

    return call


def _with_refusal(function: Any) -> Callable[..., Any]:
    def call(*arguments: Any) -> Any:
        """Returns the ortholan_refusal, in which a verdict may have its place."""
        refusal = structures.refusal(offset=NO_PLACE)
        reason = function(*arguments, ctypes.byref(refusal))
        if reason:
            raise refusal_of(reason, refusal)
        return refusal

    return call


def _with_reason(function: Any) -> Callable[..., None]:
    def call(*arguments: Any) -> None:
        reason = function(*arguments)
        if reason:
            raise refusal_of(reason, structures.refusal(offset=NO_PLACE))

    return call


def _called(function: Any, parameters: list[str]) -> Callable[..., Any]:
    """How a function is called follows from its declaration."""
    if function.restype in (ctypes.c_char_p, ctypes.c_size_t):
        return function  # type: ignore[no-any-return]
    has_refusal = parameters[-1] == "ortholan_refusal* refusal"
    for place, parameter in enumerate(parameters):
        if parameter in ("char* out", "uint8_t* out"):
            return _with_room(function, place, parameter == "char* out", has_refusal)
    if parameters[-1] == "ortholan_match* match":
        return function  # type: ignore[no-any-return]
    return _with_refusal(function) if has_refusal else _with_reason(function)


functions: Any = types.SimpleNamespace(
    **{name: _called(*declared) for name, declared in strict_functions.items()}
)


def each(function: Callable[..., Any], item: Any) -> Iterator[Any]:
    """What a function that moves an offset finds, one after the other in the same structure.

    `function` takes the places of the offset and of the structure.
    """
    offset = ctypes.c_size_t()
    while True:
        try:
            function(ctypes.byref(offset), ctypes.byref(item))
        except Refusal as refusal:
            if refusal.reason == Reason.NOT_FOUND:
                return
            raise
        yield item
