#!/usr/bin/env python3
"""Shows names: of certificates in files, PEM or DER, or of a name text.

    show.py server.pem
    show.py 'CN=Alpha, O=Org, C=RU'
"""

import ipaddress
import os
import ssl
import sys

import ortholan

SUBJECT_ALT_NAME = "2.5.29.17"


def element(der, start):
    """The element at `start`: identifier octet, where its content starts, where it ends."""
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
    while position < end:
        _, _, next_position = element(der, position)
        yield der[position:next_position]
        position = next_position


def subject_and_extensions(certificate):
    """RFC 5280 4.1: the fields of the part that is signed."""
    fields = list(children(next(children(certificate))))
    if fields[0][0] == 0xA0:  # version
        fields.pop(0)
    subject = ortholan.Name.from_der(fields[4])
    wrapped = [next(children(field)) for field in fields[6:] if field[0] == 0xA3]
    extensions = ortholan.Extensions.from_der(wrapped[0]) if wrapped else ortholan.Extensions()
    return subject, extensions


def alternative(name):
    """What a general name says, by its content."""
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
    return name.value.hex()


def show_name(name):
    print("subject:", name)
    for attribute in name:
        print("  %s (%s): %s" % (attribute.key, attribute.type, attribute.value))


def show_certificate(path):
    with open(path, "rb") as file:
        octets = file.read()
    if b"-----BEGIN" in octets:
        octets = ssl.PEM_cert_to_DER_cert(octets.decode("ascii"))
    subject, extensions = subject_and_extensions(octets)
    show_name(subject)
    for extension in extensions:
        print("extension %s%s" % (extension.oid, ", critical" if extension.critical else ""))
        if extension.oid == SUBJECT_ALT_NAME:
            for name in ortholan.general_names(extension.value):
                print("  %s: %s" % (name.kind.name, alternative(name)))


def main(arguments):
    if not arguments:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    for argument in arguments:
        try:
            if os.path.exists(argument):
                show_certificate(argument)
            else:
                show_name(ortholan.Name(argument))
        except (ortholan.OrtholanError, OSError, ValueError, IndexError) as error:
            print("%s: %s" % (argument, error), file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
