"""The shared library, with the structures and functions that _declarations.py names.

It is looked for in the environment variable ORTHOLAN_LIBRARY (a path), beside this file, and where
the system keeps its libraries. Calls release the interpreter's lock.
"""

from __future__ import annotations

import ctypes
import ctypes.util
import os
import pathlib
import re
import sys
import types
from typing import Any

from . import _declarations

NO_PLACE: int = ctypes.c_size_t(-1).value

_NUMBERS: dict[str, Any] = {
    "int": ctypes.c_int,
    "int32_t": ctypes.c_int32,
    "ortholan_reason": ctypes.c_int32,
    "ortholan_result": ctypes.c_int32,
    "ortholan_verdict": ctypes.c_int32,
    "size_t": ctypes.c_size_t,
    "uint8_t": ctypes.c_uint8,
    "uint32_t": ctypes.c_uint32,
    "uint64_t": ctypes.c_uint64,
    "void": None,
}
_STRUCTURE = re.compile(r"typedef struct ortholan_(\w+) \{(.*?)\}", re.DOTALL)
_FIELD = re.compile(r"\s*(.*?)(\w+)(?:\[(\d+)\])?;")
_FUNCTION = re.compile(r"([^;(]+?)ortholan_(\w+)\(([^)]*)\);")


class Input(ctypes.Structure):
    """Octets that Python holds, as functions take them by value: an ortholan_octets or _text."""

    _fields_ = [("data", ctypes.c_char_p), ("size", ctypes.c_size_t)]

    @classmethod
    def from_param(cls, value: Any) -> Input:
        return value if isinstance(value, Input) else cls(value, len(value))


def _load() -> ctypes.CDLL:
    file = {"win32": "ortholan.dll", "darwin": "libortholan.dylib"}.get(
        sys.platform, "libortholan.so.1"
    )
    beside = pathlib.Path(__file__).resolve().with_name(file)
    path = os.environ.get("ORTHOLAN_LIBRARY") or (str(beside) if beside.exists() else None)
    return ctypes.CDLL(path or ctypes.util.find_library("ortholan") or file)


def _declared_structures() -> types.SimpleNamespace:
    made: dict[str, Any] = {}
    for name, body in _STRUCTURE.findall(_declarations.STRUCTURES):
        fields = []
        for kind, field, count in _FIELD.findall(body):
            kind = kind.strip().replace("ortholan_", "", 1) if "*" not in kind else "*"
            known = ctypes.c_void_p if kind == "*" else made.get(kind) or _number(kind)
            fields.append((field, known * int(count) if count else known))
        made[name] = type(name, (ctypes.Structure,), {"_fields_": fields})
    return types.SimpleNamespace(**made)


def _number(kind: str) -> Any:
    return _NUMBERS[kind] if kind in _NUMBERS else _NUMBERS["ortholan_" + kind]


def _parameter(declaration: str) -> Any:
    kind = declaration.rpartition(" ")[0]
    if "*" in kind:
        return ctypes.c_void_p
    return Input if kind in ("ortholan_octets", "ortholan_text") else _NUMBERS[kind]


def declared(declarations: str) -> dict[str, tuple[Any, list[str]]]:
    """Functions of the library with their types, and their parameters as they are declared."""
    made = {}
    for result, name, parameters in _FUNCTION.findall(declarations):
        function = getattr(library, "ortholan_" + name)
        each = [" ".join(p.split()) for p in parameters.split(",") if p != "void"]
        function.argtypes = [_parameter(parameter) for parameter in each]
        function.restype = ctypes.c_char_p if "*" in result else _NUMBERS[result.strip()]
        made[name] = function, each
    return made


def view(octets: bytes) -> Any:
    """Octets for a field of a structure, which keeps them alive."""
    return structures.octets.from_buffer(Input(octets, len(octets)))


def text_view(text: str) -> Any:
    """Text for a field of a structure, which keeps it alive."""
    octets = text.encode("utf-8")
    return structures.text.from_buffer(Input(octets, len(octets)))


def copy(view: Any) -> bytes:
    """The octets of an ortholan_octets or ortholan_text that the library filled in."""
    return ctypes.string_at(view.data, view.size) if view.size else b""


library = _load()
structures: Any = _declared_structures()
strict_functions = declared(_declarations.FUNCTIONS)
