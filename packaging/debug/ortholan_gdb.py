"""Pretty-printers of Ortholan's classes for GDB.

Found by GDB itself where the library's package is installed; elsewhere

  (gdb) source ortholan_gdb.py

A name is shown as its text, in the short keys of X509Name::GetX500String's style 3. Everything is
read from memory: nothing in the program is called, so that a core file and a program in any state
will do. What cannot be read is shown as <unreadable>.
"""
import gdb
import gdb.printing

MAX_NAME = 1 << 16  # octets of a name that are read
MAX_TEXT = 1000  # characters
MAX_HEX = 32  # octets

# As the library renders them; types without a key are shown as dotted identifiers.
KEYS = {
    "2.5.4.3": "CN", "2.5.4.4": "SN", "2.5.4.5": "SERIALNUMBER", "2.5.4.6": "C", "2.5.4.7": "L",
    "2.5.4.8": "S", "2.5.4.9": "STREET", "2.5.4.10": "O", "2.5.4.11": "OU", "2.5.4.12": "T",
    "2.5.4.13": "Description", "2.5.4.16": "postalAddress", "2.5.4.17": "PostalCode",
    "2.5.4.18": "POBox", "2.5.4.20": "Phone", "2.5.4.24": "X21Address", "2.5.4.42": "G",
    "2.5.4.43": "I", "2.5.4.46": "dnQualifier", "2.5.4.65": "pseudonym",
    "0.9.2342.19200300.100.1.25": "DC", "1.2.840.113549.1.9.1": "E",
    "1.2.840.113556.1.2.141": "department",
}

# Tags of X.680, and what the octets of a string are.
SEQUENCE, OBJECT_IDENTIFIER = 0x30, 0x06
CONSTRUCTED, CONTEXT = 0x20, 0x80
STRINGS = {0x0C: "utf-8", 0x13: "utf-8", 0x14: "utf-8", 0x16: "utf-8", 0x1A: "utf-8",
           0x1E: "utf-16-be"}
MAX_NESTING = 32

# CERT_RDN_* value types: what they are called, and what their octets are.
VALUE_TYPES = {
    0: ("any type", None), 1: ("encoded", None), 2: ("octets", None),
    3: ("NumericString", "utf-8"), 4: ("PrintableString", "utf-8"), 5: ("TeletexString", "utf-8"),
    6: ("VideotexString", None), 7: ("IA5String", "utf-8"), 8: ("GraphicString", None),
    9: ("VisibleString", "utf-8"), 10: ("GeneralString", None), 11: ("UniversalString", None),
    12: ("BMPString", "utf-16-le"), 13: ("UTF8String", "utf-8"),
}

# The alternatives of RFC 5280's GeneralName, by tag.
KINDS = ["otherName", "rfc822Name", "dNSName", "x400Address", "directoryName", "ediPartyName",
         "uniformResourceIdentifier", "iPAddress", "registeredID"]


def elements(octets):
    """The elements that follow each other in DER: tag octet, content, whole encoding."""
    position = 0
    while position < len(octets):
        start = position
        if len(octets) - position < 2 or octets[position] & 0x1F == 0x1F:
            raise ValueError("no element")
        tag, size = octets[position], octets[position + 1]
        position += 2
        if size >= 0x80:
            count = size & 0x7F
            if not 1 <= count <= 4 or len(octets) - position < count:
                raise ValueError("no length")
            size = int.from_bytes(octets[position:position + count], "big")
            position += count
        if len(octets) - position < size:
            raise ValueError("cut short")
        position += size
        yield tag, octets[position - size:position], octets[start:position]


def dotted(content):
    """An OBJECT IDENTIFIER, its first octet as first arc x 40 + second, as the library reads it."""
    if not content or content[-1] & 0x80:
        raise ValueError("no identifier")
    arcs, arc = [content[0] // 40, content[0] % 40], 0
    for octet in content[1:]:
        arc = arc << 7 | octet & 0x7F
        if not octet & 0x80:
            arcs.append(arc)
            arc = 0
    return ".".join(map(str, arcs))


def hexadecimal(octets):
    return " ".join(f"{octet:02X}" for octet in octets)


def value_text(tag, content, encoding, depth=0):
    if tag in STRINGS:
        return content.decode(STRINGS[tag], "surrogatepass" if tag == 0x1E else "replace")
    if tag == SEQUENCE and depth < MAX_NESTING:
        lines = [value_text(*each, depth + 1) for each in elements(content)]
        return "\n".join(line for line in lines if line)
    return hexadecimal(encoding)


def quoted(text):
    if text and not set(text) & set("#;,+\"\\=<>\n\r'") and text == text.strip():
        return text
    return '"' + text.replace('"', '""') + '"'


def attribute_text(*attribute):
    parts = children(*attribute)
    if len(parts) != 2:
        raise ValueError("no attribute")
    if parts[0][0] != OBJECT_IDENTIFIER:
        parts.reverse()
    if parts[0][0] != OBJECT_IDENTIFIER:
        raise ValueError("no type")
    oid = dotted(parts[0][1])
    return KEYS.get(oid, oid) + "=" + quoted(value_text(*parts[1]))


def children(tag, content, _):
    """As in the library, any constructed element will do."""
    if not tag & CONSTRUCTED:
        raise ValueError("not constructed")
    return list(elements(content))


def name_text(der):
    """The text of a Name; attributes of one RDN, which the library refuses, are joined by "+"."""
    name = next(elements(der), (0, b"", b""))
    rdns = [children(*rdn) for rdn in children(*name)]
    return ",".join("+".join(attribute_text(*each) for each in rdn) for rdn in rdns)


def visible(text):
    """Without what a terminal would obey, and in the characters that GDB can print."""
    cut = text[:MAX_TEXT] + ("..." if len(text) > MAX_TEXT else "")
    shown = "".join(c if c.isprintable() else f"\\u{ord(c):04X}" for c in cut)
    try:
        shown.encode(gdb.host_charset() if hasattr(gdb, "host_charset") else "ascii")
        return shown
    except (LookupError, UnicodeError):
        return shown.encode("ascii", "backslashreplace").decode()


def memory(address, size):
    return gdb.selected_inferior().read_memory(address, size).tobytes() if size else b""


def blob(value, most):
    """The size of an IdentObj, and its octets, at most so many."""
    size = int(value["cbData"])
    return size, memory(int(value["pbData"]), min(size, most))


def blob_text(value):
    size, octets = blob(value, MAX_HEX)
    if size == 0:
        return "empty"
    return f"{size} octets: {hexadecimal(octets)}" + (" ..." if size > MAX_HEX else "")


def string_text(value):
    """A CZEPString: behind the counter that its base class holds, a pointer to the text, its length."""
    representation = int(value["imp_"])
    if representation == 0:
        return ""
    pointer = gdb.lookup_type("char").pointer().sizeof
    words = memory(representation + 2 * pointer, pointer + 4)
    buffer = int.from_bytes(words[:pointer], "little")
    length = int.from_bytes(words[pointer:], "little", signed=True)
    if length < 0:
        raise ValueError("no string")
    return memory(buffer, min(length, MAX_TEXT + 1)).decode("utf-8", "replace")


def show_name(value):
    size, octets = blob(value, MAX_NAME)
    if size == 0:
        return "empty"
    try:
        return visible(name_text(octets)) or "no RDNs"
    except ValueError:
        return "no name: " + blob_text(value)


def show_string(value):
    return '"' + visible(string_text(value)) + '"'


def show_attribute(value):
    name, charset = VALUE_TYPES.get(int(value["valueType"]), (str(int(value["valueType"])), None))
    text = blob_text(value["value"])
    if charset is not None:
        # Wide text that the decoder filled in has NULs behind it.
        octets = blob(value["value"], 2 * MAX_TEXT + 2)[1]
        text = visible(octets.decode(charset, "replace").rstrip("\0"))
    return f"{visible(string_text(value['oid']))} {name}: {text}".lstrip()


def show_pair(value):
    return visible(string_text(value["key"]) + "=" + string_text(value["value"]))


def show_general_name(value):
    tag = int(value["tag_"])
    kind = KINDS[tag] if tag < len(KINDS) else f"[{tag}]"
    text = blob_text(value["content_"])
    try:
        octet, content, whole = next(elements(blob(value["content_"], MAX_NAME)[1]))
        if kind in ("rfc822Name", "dNSName", "uniformResourceIdentifier"):
            text = visible(content.decode("utf-8", "replace"))
        elif kind == "registeredID":
            text = dotted(content)
        elif kind == "iPAddress" and len(content) == 4:
            text = ".".join(map(str, content))
        elif kind == "directoryName":
            # A decoded name keeps the tag of the alternative around it.
            text = visible(name_text(content if octet & CONTEXT else whole))
    except (StopIteration, ValueError):
        pass
    return f"{kind}: {text}"


def show_extension(value):
    oid = visible(blob(value["oid"], MAX_TEXT)[1].decode("ascii", "replace"))
    critical = "critical" if int(value["critical"]) else "not critical"
    return f"{oid}, {critical}, {blob_text(value['value'])}"


def printer(show):
    class Printer:
        def __init__(self, value):
            self._value = value

        def to_string(self):
            try:
                return show(self._value)
            except Exception:  # pylint: disable=broad-except
                return "<unreadable>"

    return Printer


PRINTERS = {
    "IdentObj": blob_text,
    "X509Name": show_name,
    "CZEPString": show_string,
    "RDNAttr": show_attribute,
    "SimpleRDN": show_pair,
    "GeneralName": show_general_name,
    "CertExtension": show_extension,
}


def collection():
    printers = gdb.printing.RegexpCollectionPrettyPrinter("ortholan")
    for name, show in PRINTERS.items():
        printers.add_printer(name, f"^Ortholan::{name}$", printer(show))
    return printers


gdb.printing.register_pretty_printer(gdb.current_objfile(), collection(), replace=True)
