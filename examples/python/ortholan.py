"""X.509 names, general names and extensions, by the Ortholan library.

    >>> name = Name("CN=Alpha, O=Org, C=RU", sort=True)
    >>> str(name)
    'C=RU,O=Org,CN=Alpha'
    >>> name["O"] = "Org, Ltd"
    >>> [(attribute.key, attribute.value) for attribute in name]
    [('C', 'RU'), ('O', 'Org, Ltd'), ('CN', 'Alpha')]
    >>> name == Name.from_der(name.der)
    True

The module needs the shared library alone and nothing but Python's standard library. It is looked for
in the environment variable ORTHOLAN_LIBRARY (a path), beside this file, and where the system keeps
its libraries.

Whatever the library refuses is raised as OrtholanError. Objects are not to be used by two threads
at once.
"""

import ctypes
import ctypes.util
import enum
import os
import sys
from collections import namedtuple

Attribute = namedtuple("Attribute", "type key value der")
Attribute.__doc__ = "One attribute of a name: dotted identifier, short key, text, DER of the value."


class Result(enum.IntEnum):
    """What a function of the library returns."""

    OK = 0
    ARGUMENT = 1
    MEMORY = 2
    UTF8 = 3
    NAME_TEXT = 4
    TYPE = 5
    VALUE = 6
    DER = 7
    MULTI_VALUED = 8
    NOT_FOUND = 9
    SYSTEM = 10
    INTERNAL = 11


class Encode(enum.IntFlag):
    """How text is written into a name."""

    COMMA = 0x04000000
    SEMICOLON = 0x40000000
    CRLF = 0x08000000
    UTF8 = 0x00040000
    ALWAYS = 0x00100000


class Style(enum.IntFlag):
    """How a name is written as text: one of the first three, and | a separator."""

    VALUES = 1
    OIDS = 2
    KEYS = 3
    SEMICOLON = 0x40000000
    CRLF = 0x08000000


class Kind(enum.IntEnum):
    """The alternatives of a general name."""

    OTHER_NAME = 0
    RFC822_NAME = 1
    DNS_NAME = 2
    X400_ADDRESS = 3
    DIRECTORY_NAME = 4
    EDI_PARTY_NAME = 5
    URI = 6
    IP_ADDRESS = 7
    REGISTERED_ID = 8


class Fault(enum.IntEnum):
    """What is wrong with the first place of a name text that is."""

    NO_TEXT = 1
    MISSING_TYPE = 2
    MISSING_EQUALS = 3
    UNKNOWN_TYPE = 4
    MISSING_VALUE = 5
    UNEXPECTED_EQUALS = 6
    UNEXPECTED_TEXT = 7
    WRONG_CHARACTER = 8


class OrtholanError(Exception):
    """A refusal: `result` says what kind, `status` is the library's own code or 0."""

    def __init__(self, result, status, message):
        super().__init__(message)
        self.result = result
        self.status = status


class NameTextError(OrtholanError):
    """A name text that is refused: the fault, and its place and length in characters."""

    def __init__(self, status, message, fault, position, length):
        super().__init__(Result.NAME_TEXT, status, message)
        self.fault = fault
        self.position = position
        self.length = length


class _Attribute(ctypes.Structure):
    _fields_ = [
        ("type", ctypes.c_char_p),
        ("key", ctypes.c_char_p),
        ("value", ctypes.c_void_p),
        ("value_size", ctypes.c_size_t),
        ("der", ctypes.c_void_p),
        ("der_size", ctypes.c_size_t),
    ]


def _load():
    here = os.path.dirname(os.path.abspath(__file__))
    file = {"win32": "ortholan.dll", "darwin": "libortholan.dylib"}.get(
        sys.platform, "libortholan.so.1"
    )
    beside = os.path.join(here, file)
    path = os.environ.get("ORTHOLAN_LIBRARY") or (beside if os.path.exists(beside) else None)
    if path is None:
        path = ctypes.util.find_library("ortholan") or file
    return ctypes.CDLL(path)


_library = _load()

# A letter an argument: h handle, H where a handle goes, s text, p octets, z size, u 32 bits, i int,
# T where text or an array goes, Z where a size goes, I and U where a number goes.
_ARGUMENTS = {
    "h": ctypes.c_void_p,
    "H": ctypes.POINTER(ctypes.c_void_p),
    "s": ctypes.c_char_p,
    "p": ctypes.c_char_p,
    "z": ctypes.c_size_t,
    "u": ctypes.c_uint32,
    "i": ctypes.c_int,
    "T": ctypes.POINTER(ctypes.c_void_p),
    "Z": ctypes.POINTER(ctypes.c_size_t),
    "I": ctypes.POINTER(ctypes.c_int),
    "U": ctypes.POINTER(ctypes.c_uint32),
}
_FUNCTIONS = {
    "name_from_text_n": "szuiH",
    "name_text_error_n": "szuUZZT",
    "name_from_der": "pzH",
    "name_new": "H",
    "name_copy": "hH",
    "name_text": "huTZ",
    "name_der": "hTZ",
    "name_count": "hZ",
    "name_attributes": "hTZ",
    "name_get": "hsTZ",
    "name_add_n": "hsszu",
    "name_set_n": "hsszu",
    "name_remove": "hs",
    "name_equal": "hhI",
    "general_name_from_der": "pzH",
    "general_name_kind": "hU",
    "general_name_text": "hTZ",
    "general_name_value": "hTZ",
    "general_name_der": "hTZ",
    "general_names_from_der": "pzH",
    "general_names_count": "hZ",
    "general_names_get": "hzH",
    "extension_new": "sipzH",
    "extension_from_der": "pzH",
    "extension_oid": "hT",
    "extension_critical": "hI",
    "extension_value": "hTZ",
    "extension_der": "hTZ",
    "extensions_new": "H",
    "extensions_from_der": "pzH",
    "extensions_count": "hZ",
    "extensions_get": "hzH",
    "extensions_find": "hsH",
    "extensions_set": "hh",
    "extensions_der": "hTZ",
}


def _check(result, _function, _arguments):
    if result != Result.OK:
        message = _library.ortholan_last_error_message().decode("utf-8")
        status = _library.ortholan_last_status()
        known = result in Result.__members__.values()
        raise OrtholanError(Result(result) if known else result, status, message)
    return result


def _declare():
    for name, arguments in _FUNCTIONS.items():
        function = getattr(_library, "ortholan_" + name)
        function.argtypes = [_ARGUMENTS[letter] for letter in arguments]
        function.restype = ctypes.c_int32
        function.errcheck = _check
    for name in ("free", "name_free", "general_name_free", "general_names_free"):
        getattr(_library, "ortholan_" + name).argtypes = [ctypes.c_void_p]
        getattr(_library, "ortholan_" + name).restype = None
    for name in ("extension_free", "extensions_free"):
        getattr(_library, "ortholan_" + name).argtypes = [ctypes.c_void_p]
        getattr(_library, "ortholan_" + name).restype = None
    _library.ortholan_last_status.restype = ctypes.c_uint32
    _library.ortholan_last_error_message.restype = ctypes.c_char_p
    _library.ortholan_version.restype = ctypes.c_char_p


_declare()


def version():
    """Version of the library."""
    return _library.ortholan_version().decode("ascii")


def _call(name, *arguments):
    return getattr(_library, "ortholan_" + name)(*arguments)


def _terminated(text):
    """UTF-8 for an argument that ends at its first NUL."""
    if "\0" in text:
        raise ValueError("NUL in an attribute type or identifier")
    return text.encode("utf-8")


def _octets(name, *arguments):
    """What a function gives out as memory and its size."""
    block = ctypes.c_void_p()
    size = ctypes.c_size_t()
    _call(name, *arguments, ctypes.byref(block), ctypes.byref(size))
    try:
        return ctypes.string_at(block, size.value)
    finally:
        _library.ortholan_free(block)


def _explained(octets, options, error):
    """The refusal of a name text, with the place."""
    fault = ctypes.c_uint32()
    position = ctypes.c_size_t()
    length = ctypes.c_size_t()
    message = ctypes.c_void_p()
    outputs = [ctypes.byref(output) for output in (fault, position, length, message)]
    _call("name_text_error_n", octets, len(octets), options, *outputs)
    try:
        sentence = ctypes.string_at(message).decode("utf-8")
    finally:
        _library.ortholan_free(message)
    if fault.value == 0:
        return error
    before = octets[: position.value].decode("utf-8")
    met = octets[position.value : position.value + length.value].decode("utf-8")
    return NameTextError(error.status, sentence, Fault(fault.value), len(before), len(met))


def _number(kind, name, *arguments):
    number = kind()
    _call(name, *arguments, ctypes.byref(number))
    return number.value


class _Handle:
    """Owns a handle; `_free` is the library's function that takes it back."""

    _free = None

    def __init__(self, function, *arguments):
        self._handle = None
        handle = ctypes.c_void_p()
        _call(function, *arguments, ctypes.byref(handle))
        self._handle = handle

    @classmethod
    def _made(cls, function, *arguments):
        made = cls.__new__(cls)
        _Handle.__init__(made, function, *arguments)
        return made

    def __del__(self):
        if getattr(self, "_handle", None) is not None:
            getattr(_library, self._free)(self._handle)
            self._handle = None


class Name(_Handle):
    """A distinguished name. Changing an attribute leaves the octets of the others alone."""

    _free = "ortholan_name_free"

    def __init__(self, text=None, options=0, sort=False):
        """From a name text; without one, the name without attributes, to be filled with add()."""
        if text is None:
            super().__init__("name_new")
        else:
            octets = text.encode("utf-8")
            try:
                super().__init__("name_from_text_n", octets, len(octets), options, int(sort))
            except OrtholanError as error:
                if error.result == Result.NAME_TEXT:
                    raise _explained(octets, options, error) from None
                raise

    @classmethod
    def from_der(cls, der):
        return cls._made("name_from_der", bytes(der), len(der))

    @property
    def der(self):
        return _octets("name_der", self._handle)

    def text(self, style=Style.KEYS):
        """For display: decide by == or by the DER."""
        return _octets("name_text", self._handle, style).decode("utf-8")

    def copy(self):
        return self._made("name_copy", self._handle)

    def add(self, type, value, options=0):
        """Appends an attribute; `type` is a key ("CN") or a dotted identifier. Returns the name."""
        octets = value.encode("utf-8")
        _call("name_add_n", self._handle, _terminated(type), octets, len(octets), options)
        return self

    def attributes(self):
        """All attributes, in the order of the encoding."""
        block = ctypes.c_void_p()
        count = ctypes.c_size_t()
        _call("name_attributes", self._handle, ctypes.byref(block), ctypes.byref(count))
        try:
            array = ctypes.cast(block, ctypes.POINTER(_Attribute))
            return [
                Attribute(
                    item.type.decode("ascii"),
                    item.key.decode("utf-8"),
                    ctypes.string_at(item.value, item.value_size).decode("utf-8"),
                    ctypes.string_at(item.der, item.der_size),
                )
                for item in array[: count.value]
            ]
        finally:
            _library.ortholan_free(block)

    def get(self, type, default=None):
        """Value of the first attribute of the type."""
        try:
            return self[type]
        except KeyError:
            return default

    def __getitem__(self, type):
        try:
            return _octets("name_get", self._handle, _terminated(type)).decode("utf-8")
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                raise KeyError(type) from None
            raise

    def __setitem__(self, type, value):
        octets = value.encode("utf-8")
        _call("name_set_n", self._handle, _terminated(type), octets, len(octets), 0)

    def __delitem__(self, type):
        try:
            _call("name_remove", self._handle, _terminated(type))
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                raise KeyError(type) from None
            raise

    def __contains__(self, type):
        return self.get(type) is not None

    def __iter__(self):
        return iter(self.attributes())

    def __len__(self):
        return _number(ctypes.c_size_t, "name_count", self._handle)

    def __eq__(self, other):
        if not isinstance(other, Name):
            return NotImplemented
        return _number(ctypes.c_int, "name_equal", self._handle, other._handle) != 0

    __hash__ = None

    def __str__(self):
        return self.text()

    def __repr__(self):
        return "<Name %r>" % self.text()


class GeneralName(_Handle):
    """One alternative name."""

    _free = "ortholan_general_name_free"

    def __init__(self, der):
        super().__init__("general_name_from_der", bytes(der), len(der))

    @property
    def kind(self):
        """A Kind, or the number of a tag that has none."""
        kind = _number(ctypes.c_uint32, "general_name_kind", self._handle)
        return Kind(kind) if kind in Kind.__members__.values() else kind

    @property
    def value(self):
        """Content octets, without the tag: an address, a Name in DER, characters, ..."""
        return _octets("general_name_value", self._handle)

    @property
    def der(self):
        return _octets("general_name_der", self._handle)

    def __str__(self):
        """The library's text for display; raw octets for kinds that are no text."""
        return _octets("general_name_text", self._handle).decode("utf-8")

    def __repr__(self):
        return "<GeneralName %s %s>" % (getattr(self.kind, "name", self.kind), self.value.hex())


class _GeneralNames(_Handle):
    _free = "ortholan_general_names_free"


def general_names(der):
    """The names in the value of a subjectAltName extension and the like."""
    names = _GeneralNames("general_names_from_der", bytes(der), len(der))
    count = _number(ctypes.c_size_t, "general_names_count", names._handle)
    return [GeneralName._made("general_names_get", names._handle, i) for i in range(count)]


class Extension(_Handle):
    """One certificate extension; `value` is the content of its OCTET STRING."""

    _free = "ortholan_extension_free"

    def __init__(self, oid, critical, value):
        arguments = (_terminated(oid), int(bool(critical)), bytes(value), len(value))
        super().__init__("extension_new", *arguments)

    @classmethod
    def from_der(cls, der):
        return cls._made("extension_from_der", bytes(der), len(der))

    @property
    def oid(self):
        block = ctypes.c_void_p()
        _call("extension_oid", self._handle, ctypes.byref(block))
        try:
            return ctypes.string_at(block).decode("ascii")
        finally:
            _library.ortholan_free(block)

    @property
    def critical(self):
        return _number(ctypes.c_int, "extension_critical", self._handle) != 0

    @property
    def value(self):
        return _octets("extension_value", self._handle)

    @property
    def der(self):
        return _octets("extension_der", self._handle)

    def __repr__(self):
        return "<Extension %s%s>" % (self.oid, " critical" if self.critical else "")


class Extensions(_Handle):
    """A list of extensions, in order, that can be searched and updated by identifier."""

    _free = "ortholan_extensions_free"

    def __init__(self):
        super().__init__("extensions_new")

    @classmethod
    def from_der(cls, der):
        return cls._made("extensions_from_der", bytes(der), len(der))

    @property
    def der(self):
        return _octets("extensions_der", self._handle)

    def find(self, oid):
        """The first extension with the identifier, or None."""
        try:
            return Extension._made("extensions_find", self._handle, _terminated(oid))
        except OrtholanError as error:
            if error.result == Result.NOT_FOUND:
                return None
            raise

    def set(self, extension):
        """Replaces the first extension with the same identifier, or appends."""
        _call("extensions_set", self._handle, extension._handle)

    def __len__(self):
        return _number(ctypes.c_size_t, "extensions_count", self._handle)

    def __getitem__(self, index):
        if not 0 <= index < len(self):
            raise IndexError(index)
        return Extension._made("extensions_get", self._handle, index)
