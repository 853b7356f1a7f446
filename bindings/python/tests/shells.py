"""Certificates of nothing but what a test is about, written apart from the package."""


def element(identifier, content):
    size = len(content)
    length = b"" if size < 0x80 else size.to_bytes((size.bit_length() + 7) // 8, "big")
    return bytes([identifier, 0x80 | len(length) if length else size]) + length + content


def extension(number, value):
    """One below 2.5.29, or nothing for None."""
    if value is None:
        return b""
    return element(0x30, element(0x06, bytes([0x55, 0x1D, number])) + element(0x04, value))


def certificate(extensions, issuer=b"\x30\x00", subject=b"\x30\x00"):
    """`extensions` in DER, one behind the other."""
    algorithm, bits = element(0x30, element(0x06, b"\x2a\x03")), element(0x03, b"\x00")
    validity = element(0x30, 2 * element(0x17, b"260101000000Z"))
    head = bytes.fromhex("A003020102020101")
    body = head + algorithm + issuer + validity + subject + element(0x30, algorithm + bits)
    if extensions:
        body += element(0xA3, element(0x30, extensions))
    return element(0x30, element(0x30, body) + algorithm + bits)
