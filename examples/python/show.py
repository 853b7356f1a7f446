#!/usr/bin/env python3
"""Shows names: of certificates in files, PEM or DER, or of a name text.

    show.py server.pem
    show.py 'CN=Alpha, O=Org, C=RU'
"""

import base64
import ipaddress
import os
import re
import sys

import ortholan

SUBJECT_ALT_NAME = "2.5.29.17"
BLOCK = re.compile(rb"-----BEGIN ([^-]*CERTIFICATE)-----(.*?)-----END \1-----", re.DOTALL)


def visible(text):
    """For a person's eyes: what cannot be printed is escaped, so that nobody forges a line."""
    return "".join(
        each if each.isprintable() and each != "\\" else each.encode("unicode_escape").decode()
        for each in text
    )


def element(der, start):
    """The element at `start`: identifier octet, where its content starts, where it ends."""
    if start + 2 > len(der) or der[start] & 0x1F == 0x1F or der[start + 1] == 0x80:
        raise ValueError("no DER of a certificate")
    size = der[start + 1]
    content = start + 2
    if size & 0x80:
        content += size & 0x7F
        size = int.from_bytes(der[start + 2 : content], "big")
    if content + size > len(der):
        raise ValueError("the certificate is cut short")
    return der[start], content, content + size


def children(der):
    """The elements inside an element, whole."""
    _, position, end = element(der, 0)
    found = []
    while position < end:
        _, _, next_position = element(der, position)
        found.append(der[position:next_position])
        position = next_position
    return found


def certificates(octets):
    """All certificates of a file, one after the other: PEM blocks, or DER."""
    if b"-----BEGIN" in octets:
        for block in BLOCK.finditer(octets):
            yield base64.b64decode(block.group(2))
        return
    while octets:
        _, _, end = element(octets, 0)
        yield octets[:end]
        octets = octets[end:]


def subject_and_extensions(certificate):
    """RFC 5280 4.1: the fields of the part that is signed."""
    parts = children(certificate)
    fields = children(parts[0]) if parts else []
    if fields and fields[0][0] == 0xA0:  # version
        fields.pop(0)
    if len(fields) < 6:
        raise ValueError("no certificate")
    wrapped = [children(field)[0] for field in fields[6:] if field[0] == 0xA3]
    extensions = ortholan.Extensions.from_der(wrapped[0]) if wrapped else ortholan.Extensions()
    return ortholan.Name.from_der(fields[4]), extensions


def alternative(name):
    """What a general name says, by its content; octets where it is not of its kind's form."""
    try:
        if name.kind == ortholan.Kind.IP_ADDRESS:
            return str(ipaddress.ip_address(name.value))
        if name.kind == ortholan.Kind.DIRECTORY_NAME:
            return str(ortholan.Name.from_der(name.value))
        if name.kind in (
            ortholan.Kind.RFC822_NAME,
            ortholan.Kind.DNS_NAME,
            ortholan.Kind.URI,
            ortholan.Kind.REGISTERED_ID,
        ):
            return str(name)
    except (ortholan.OrtholanError, ValueError):
        pass
    return name.value.hex()


def show_name(name):
    print("subject:", visible(str(name)))
    for attribute in name:
        print("  %s (%s): %s" % (attribute.key, attribute.type, visible(attribute.value)))


def show_certificate(certificate):
    subject, extensions = subject_and_extensions(certificate)
    show_name(subject)
    for extension in extensions:
        print("extension %s%s" % (extension.oid, ", critical" if extension.critical else ""))
        if extension.oid == SUBJECT_ALT_NAME:
            for name in ortholan.general_names(extension.value):
                # Not each kind's number has a name.
                kind = getattr(name.kind, "name", "[%d]" % name.kind)
                print("  %s: %s" % (kind, visible(alternative(name))))


def show_file(path):
    """Whether all certificates could be shown: one that cannot does not hide the others."""
    with open(path, "rb") as file:
        octets = file.read()
    sound = True
    number = 0
    try:
        for number, certificate in enumerate(certificates(octets), 1):
            try:
                show_certificate(certificate)
            except (ortholan.OrtholanError, ValueError, IndexError) as error:
                print("%s: certificate %d: %s" % (path, number, error), file=sys.stderr)
                sound = False
    except ValueError as error:
        print("%s: after certificate %d: %s" % (path, number, error), file=sys.stderr)
        sound = False
    if number == 0 and sound:
        raise ValueError("no certificate")
    return sound


def main(arguments):
    if not arguments:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    status = 0
    for argument in arguments:
        try:
            if not os.path.exists(argument):
                show_name(ortholan.Name(argument))
            elif not show_file(argument):
                status = 1
        except (ortholan.OrtholanError, OSError, ValueError) as error:
            print("%s: %s" % (argument, error), file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
