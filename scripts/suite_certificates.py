"""Certificates for the suites: names and extensions as given, everything else a stand-in, but such
that every peer reads it."""

# Ed25519 (RFC 8410), with the base point for a key.
ALGORITHM = bytes.fromhex("300506032B6570")
KEY = bytes.fromhex("302A300506032B6570032100" + "58" + 31 * "66")
OTHER_ISSUER = bytes.fromhex("3011310F300D06035504030C06697373756572")  # CN=issuer
SUBJECT_ALT_NAME, NAME_CONSTRAINTS = 17, 30


def der(identifier, *parts):
    """An element of DER with a one-octet identifier."""
    content = b"".join(parts)
    size = len(content)
    if size < 0x80:
        return bytes([identifier, size]) + content
    length = size.to_bytes((size.bit_length() + 7) // 8, "big")
    return bytes([identifier, 0x80 | len(length)]) + length + content


def extension(number, value):
    """The Extension with the identifier 2.5.29.`number`; nothing where the value is None."""
    if value is None:
        return b""
    return der(0x30, der(0x06, bytes([0x55, 0x1D, number])), der(0x04, value))


def certificate(issuer, subject, extensions):
    """A certificate of two Names and of Extensions, one behind the other."""
    validity = der(0x30, der(0x17, b"260101000000Z"), der(0x17, b"360101000000Z"))
    body = der(0x30, der(0xA0, b"\x02\x01\x02"), b"\x02\x01\x01", ALGORITHM, issuer, validity, subject,
               KEY, der(0xA3, der(0x30, extensions)) if extensions else b"")
    return der(0x30, body, ALGORITHM, der(0x03, bytes(65)))


class Link:
    """One certificate of a chain as name_constraints.tsv writes it: whether its issuer is its
    subject, the subject, and the values of two extensions, None for one that is absent."""

    def __init__(self, text):
        same, subject, names, constraints = text.split(":")
        self.self_issued = same == "="
        self.subject = bytes.fromhex(subject)
        self.constraints = self._value(constraints)
        issuer = self.subject if self.self_issued else OTHER_ISSUER
        self.der = certificate(issuer, self.subject,
                               extension(SUBJECT_ALT_NAME, self._value(names)) +
                               extension(NAME_CONSTRAINTS, self.constraints))

    @staticmethod
    def _value(digits):
        if digits == "":
            return None
        return b"" if digits == "-" else bytes.fromhex(digits)


def elements(content):
    """The elements that stand one behind the other: pairs of identifier octet and content."""
    while content:
        identifier, size, start = content[0], content[1], 2
        if size & 0x80:
            start += size & 0x7F
            size = int.from_bytes(content[2:start], "big")
        yield identifier, content[start:start + size]
        content = content[start + size:]


def name_values(name):
    """The RDNs of a Name, each a sorted list of type, string type and value; PrintableString,
    IA5String and UTF8String with the same characters are the same. Octets that are no Name stand for
    themselves."""
    text = {0x0C, 0x13, 0x16}
    values = []
    try:
        (_, rdns), = elements(name)
        for _, rdn in elements(rdns):
            attributes = [list(elements(attribute)) for _, attribute in elements(rdn)]
            values.append(sorted((kind, 0 if tag in text else tag, value)
                                 for (_, kind), (tag, value) in attributes))
    except (IndexError, ValueError):
        return name
    return values
