"""Alternative names that the library built, as another reader finds them in a certificate."""

import datetime

import ortholan
from cryptography import x509
from cryptography.hazmat.primitives.asymmetric import ed25519
from cryptography.hazmat.primitives.serialization import Encoding

import rows

DAY = datetime.datetime(2026, 1, 1)
OTHERS = {"1.3.6.1.4.1.311.20.2.3": "UPN", "1.3.6.1.5.5.7.8.7": "SRV"}
KINDS = {
    x509.DNSName: "DNS",
    x509.RFC822Name: "email",
    x509.UniformResourceIdentifier: "URI",
    x509.IPAddress: "IP",
}


def certificate(value, critical):
    """A certificate with the value as its alternative names, read again from its octets."""
    key = ed25519.Ed25519PrivateKey.generate()
    name = x509.Name([])
    builder = x509.CertificateBuilder(name, name, key.public_key(), 1, DAY, DAY)
    extension = x509.UnrecognizedExtension(x509.ObjectIdentifier("2.5.29.17"), value)
    signed = builder.add_extension(extension, critical).sign(key, None)
    return x509.load_der_x509_certificate(signed.public_bytes(Encoding.DER))


def shown(name):
    """A name as the library's text would have it."""
    if isinstance(name, x509.OtherName):
        return f"{OTHERS[name.type_id.dotted_string]}:{name.value[2:].decode()}"
    if isinstance(name, x509.RegisteredID):
        return f"RID:{name.value.dotted_string}"
    return f"{KINDS[type(name)]}:{name.value}"


def test_alternative_names_are_read_alike():
    def answer(row):
        value = ortholan.write_general_names(row["names"].split("|"))
        found = certificate(value, bool(row["critical"])).extensions.get_extension_for_class(
            x509.SubjectAlternativeName
        )
        return "|".join(map(shown, found.value)), "1" if found.critical else ""

    rows.check("strict_alternative_names.tsv", answer, "names", "critical")
