"""Elements of DER, for tests that make their own."""


def element(tag, content):
    size = len(content)
    octets = size.to_bytes((size.bit_length() + 7) // 8, "big")
    return bytes([tag]) + (bytes([size]) if size < 128 else
                           bytes([0x80 | len(octets)]) + octets) + content


def identifier(dotted):
    """The OBJECT IDENTIFIER of dotted digits."""
    arcs = [int(arc) for arc in dotted.split(".")]
    content = b""
    for arc in [arcs[0] * 40 + arcs[1], *arcs[2:]]:
        septets = [arc & 0x7F]
        while arc := arc >> 7:
            septets.append(0x80 | arc & 0x7F)
        content += bytes(reversed(septets))
    return element(6, content)
