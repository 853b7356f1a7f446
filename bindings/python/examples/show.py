#!/usr/bin/env python3
"""Shows names: of the certificates in files, PEM or DER, or of a name's text.

    show.py server.pem
    show.py 'CN=Alpha,O=Org,C=RU'
"""

import pathlib
import sys

import ortholan


def show_name(name: ortholan.Name) -> None:
    print("subject:", name)
    for attribute in name:
        # The text of one attribute is safe to show as well: what cannot be seen is escaped.
        print(f"  {attribute.key} ({attribute.type}):", ortholan.Name.build([attribute]))


def show_certificate(certificate: ortholan.Certificate) -> None:
    show_name(certificate.subject or ortholan.Name(""))
    for extension in certificate.extensions:
        print(f"extension {extension.oid}{', critical' if extension.critical else ''}")
    for name in certificate.alternative_names:
        print(f"  {name.kind.name}: {name}")


def show_file(path: pathlib.Path) -> bool:
    """Whether all certificates could be shown: one that cannot does not hide the others."""
    octets, sound = path.read_bytes(), True
    blocks = ortholan.read_pem(octets) if b"-----BEGIN " in octets else [
        ortholan.PemBlock("CERTIFICATE", octets)]
    for number, block in enumerate(blocks, 1):
        try:
            show_certificate(ortholan.Certificate(block.octets))
        except ortholan.Refusal as refusal:
            print(f"{path}: certificate {number}: {refusal}", file=sys.stderr)
            sound = False
    return sound


def main(arguments: list[str]) -> int:
    if not arguments:
        print((__doc__ or "").strip(), file=sys.stderr)
        return 2
    status = 0
    for argument in arguments:
        try:
            path = pathlib.Path(argument)
            if not path.exists():
                show_name(ortholan.Name(argument))
            elif not show_file(path):
                status = 1
        except (OSError, ValueError) as error:
            print(f"{argument}: {error}", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
