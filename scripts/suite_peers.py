"""The libraries that scripts/suites.py asks. Each class has a method for each question that its
library answers by one public function; Cannot is raised for a row that the function takes no part of.

    constraints(chain)                  may the chain of Links name what it names
    identity(kind, reference, names)    is a certificate with the alternative names for the reference
    same(first, second)                 are two Names the same
    within(subtree, name)               does a Name begin with the RDNs of another
    read(text)                          the Name of a text of RFC 4514, None where it is refused
    write(name)                         the text of a Name, None where it is refused
"""

import ctypes
from ctypes import POINTER, Structure, byref, c_char_p, c_int, c_int32, c_long, c_size_t, c_uint
from ctypes import c_uint32, c_uint64, c_ulong, c_void_p
import ctypes.util
import ipaddress

from suite_certificates import SUBJECT_ALT_NAME, certificate, elements, extension

NOBODY = bytes.fromhex("3000")


class Cannot(Exception):
    """The library has no answer to this row."""


def leaf(names):
    return certificate(NOBODY, NOBODY, extension(SUBJECT_ALT_NAME, names))


def load(name):
    path = ctypes.util.find_library(name)
    if path is None:
        raise OSError(f"{name} is not installed")
    return ctypes.CDLL(path)


def declare(library, result, *functions):
    """Sets the type that functions return, where it is no int."""
    for function in functions:
        getattr(library, function).restype = result


def c_text(text):
    octets = text.encode()
    if b"\0" in octets:
        raise Cannot
    return octets


def holds(chain, check):
    """Whether check(authority, certificate) holds for each authority with constraints and each
    certificate below it that is not self-issued or is the leaf (RFC 5280 6.1.3 b)."""
    return all(check(authority, below.der)
               for i, authority in enumerate(chain) if i > 0 and authority.constraints is not None
               for j, below in enumerate(chain[:i]) if j == 0 or not below.self_issued)


class Octets(Structure):
    """ortholan_octets and ortholan_text."""
    _fields_ = [("data", c_char_p), ("size", c_size_t)]

    def __init__(self, octets=b""):
        super().__init__(octets, len(octets))


class Reference(Structure):
    _fields_ = [("kind", c_int32), ("choices", c_uint32), ("text", Octets)]


class Identity(Structure):
    _fields_ = [("verdict", c_int32), ("reason", c_int32), ("name", Octets), ("index", c_size_t),
                ("names", Octets), ("count", c_size_t)]


class Ortholan:
    KINDS = {"host": 1, "ip": 2, "email": 3, "uri": 4}
    YES = 1

    def __init__(self, path):
        self.library = ctypes.CDLL(path)
        self.library.ortholan_version.restype = c_char_p

    def version(self):
        return self.library.ortholan_version().decode()

    def constraints(self, chain):
        octets = (Octets * len(chain))(*[Octets(link.der) for link in chain])
        verdict, count = c_int32(), c_size_t()
        self.library.ortholan_permits(octets, c_size_t(len(chain)), None, byref(verdict), None,
                                      c_size_t(0), byref(count))
        return verdict.value == self.YES

    def identity(self, kind, reference, names):
        asked = Reference(self.KINDS[kind], 0, Octets(reference.encode()))
        identity = Identity()
        refused = self.library.ortholan_identify(Octets(leaf(names)), byref(asked), byref(identity), None)
        return refused == 0 and identity.verdict == self.YES

    def same(self, first, second):
        return self.library.ortholan_match_names(Octets(first), Octets(second), 0, None) == self.YES

    def within(self, subtree, name):
        return self.library.ortholan_name_within(Octets(subtree), Octets(name), 0, None) == self.YES

    def read(self, text):
        room, size = ctypes.create_string_buffer(65536), c_size_t()
        refused = self.library.ortholan_rfc4514_read(Octets(text.encode()), None, room,
                                                     c_size_t(len(room)), byref(size), None)
        return None if refused else room.raw[:size.value]

    def write(self, name):
        view = ctypes.create_string_buffer(256)
        if self.library.ortholan_name_view_read(Octets(name), 0, view, None):
            return None
        room, size = ctypes.create_string_buffer(65536), c_size_t()
        refused = self.library.ortholan_rfc4514_write(view, None, room, c_size_t(len(room)), byref(size),
                                                      None)
        return None if refused else room.raw[:size.value].decode()


class OpenSSL:
    RFC2253 = 0x1110317  # XN_FLAG_RFC2253
    NAME_CONSTRAINTS = 666  # NID_name_constraints
    BIO_CTRL_INFO = 3

    def __init__(self):
        self.library = load("crypto")
        declare(self.library, c_char_p, "OpenSSL_version")
        declare(self.library, c_void_p, "d2i_X509", "X509_get_ext_d2i", "d2i_X509_NAME", "BIO_new",
                "BIO_s_mem")
        declare(self.library, c_long, "BIO_ctrl")

    def version(self):
        return self.library.OpenSSL_version(c_int(0)).decode().split()[1]

    def _decoded(self, function, octets):
        """The object behind the octets, None where they are not all of one; never freed."""
        start = ctypes.create_string_buffer(octets, len(octets))
        at = c_void_p(ctypes.addressof(start))
        decoded = getattr(self.library, function)(None, byref(at), c_long(len(octets)))
        if not decoded or at.value != ctypes.addressof(start) + len(octets):
            return None
        return c_void_p(decoded)

    def _check(self, authority, der):
        above, below = self._decoded("d2i_X509", authority.der), self._decoded("d2i_X509", der)
        # The check looks at names that X509_check_purpose has read.
        if not above or not below or self.library.X509_check_purpose(below, -1, 0) != 1:
            return False
        tree = c_void_p(self.library.X509_get_ext_d2i(above, self.NAME_CONSTRAINTS, None, None))
        return bool(tree) and self.library.NAME_CONSTRAINTS_check(below, tree) == 0

    def constraints(self, chain):
        return holds(chain, self._check)

    def identity(self, kind, reference, names):
        if kind == "uri":
            raise Cannot
        below, text = self._decoded("d2i_X509", leaf(names)), reference.encode()
        if below is None:
            return False
        if kind == "ip":
            return self.library.X509_check_ip_asc(below, c_text(reference), c_uint(0)) == 1
        if kind == "email":
            return self.library.X509_check_email(below, text, c_size_t(len(text)), c_uint(0)) == 1
        return self.library.X509_check_host(below, text, c_size_t(len(text)), c_uint(0), None) == 1

    def same(self, first, second):
        names = [self._decoded("d2i_X509_NAME", name) for name in (first, second)]
        return all(names) and self.library.X509_NAME_cmp(*names) == 0

    def write(self, name):
        decoded = self._decoded("d2i_X509_NAME", name)
        bio = c_void_p(self.library.BIO_new(c_void_p(self.library.BIO_s_mem())))
        if not decoded or self.library.X509_NAME_print_ex(bio, decoded, 0, c_ulong(self.RFC2253)) < 0:
            return None
        text = c_void_p()
        size = self.library.BIO_ctrl(bio, self.BIO_CTRL_INFO, c_long(0), byref(text))
        return ctypes.string_at(text, size).decode(errors="replace") if size else ""


class Datum(Structure):
    _fields_ = [("data", c_char_p), ("size", c_uint)]

    def __init__(self, octets=b""):
        super().__init__(octets, len(octets))


class OutDatum(Structure):
    _fields_ = [("data", c_void_p), ("size", c_uint)]

    def octets(self):
        return ctypes.string_at(self.data, self.size)


class GnuTLS:
    DER = 0  # GNUTLS_X509_FMT_DER
    FORMS = (1, 2, 3, 4, 6)  # GNUTLS_SAN_: DNS, mailbox, URI, address, directory name

    def __init__(self):
        self.library = load("gnutls")
        declare(self.library, c_char_p, "gnutls_check_version")

    def version(self):
        return self.library.gnutls_check_version(None).decode()

    def _certificate(self, octets):
        handle = c_void_p()
        self.library.gnutls_x509_crt_init(byref(handle))
        refused = self.library.gnutls_x509_crt_import(handle, byref(Datum(octets)), self.DER)
        return None if refused else handle

    def _check(self, authority, der):
        tree, below = c_void_p(), self._certificate(der)
        self.library.gnutls_x509_name_constraints_init(byref(tree))
        refused = self.library.gnutls_x509_ext_import_name_constraints(byref(Datum(authority.constraints)), tree,
                                                                       c_uint(0))
        return below is not None and refused == 0 and all(
            self.library.gnutls_x509_name_constraints_check_crt(tree, form, below) for form in self.FORMS)

    def constraints(self, chain):
        return holds(chain, self._check)

    def identity(self, kind, reference, names):
        if kind == "uri":
            raise Cannot
        below = self._certificate(leaf(names))
        if below is None:
            return False
        if kind == "ip":
            try:
                address = ipaddress.ip_address(reference).packed
            except ValueError:
                raise Cannot from None  # the function takes octets
            return self.library.gnutls_x509_crt_check_ip(below, address, c_uint(len(address)), 0) != 0
        check = {"email": "gnutls_x509_crt_check_email", "host": "gnutls_x509_crt_check_hostname2"}[kind]
        return getattr(self.library, check)(below, c_text(reference), c_uint(0)) != 0

    def _name(self):
        handle = c_void_p()
        self.library.gnutls_x509_dn_init(byref(handle))
        return handle

    def read(self, text):
        name, out = self._name(), OutDatum()
        refused = (self.library.gnutls_x509_dn_set_str(name, c_text(text), None) or
                   self.library.gnutls_x509_dn_export2(name, self.DER, byref(out)))
        return None if refused else out.octets()

    def write(self, name):
        handle, out = self._name(), OutDatum()
        refused = (self.library.gnutls_x509_dn_import(handle, byref(Datum(name))) or
                   self.library.gnutls_x509_dn_get_str2(handle, byref(out), c_uint(0)))
        return None if refused else out.octets().decode(errors="replace")


class Botan:
    def __init__(self):
        self.library = load("botan-2")
        declare(self.library, c_char_p, "botan_version_string")

    def version(self):
        return self.library.botan_version_string().decode().split()[1]

    def identity(self, kind, reference, names):
        if kind != "host":
            raise Cannot
        octets, below = leaf(names), c_void_p()
        if self.library.botan_x509_cert_load(byref(below), octets, c_size_t(len(octets))) != 0:
            return False
        return self.library.botan_x509_cert_hostname_match(below, c_text(reference)) == 0


class MbedTLS:
    def __init__(self):
        self.library = load("mbedx509")
        self.crypto = load("mbedcrypto")

    def version(self):
        text = ctypes.create_string_buffer(16)
        self.crypto.mbedtls_version_get_string(text)
        return text.value.decode()

    def read(self, text):
        names = c_void_p()
        if self.library.mbedtls_x509_string_to_names(byref(names), c_text(text)) != 0:
            return None
        room = ctypes.create_string_buffer(65536)
        start = ctypes.addressof(room)
        at = c_void_p(start + len(room))
        size = self.library.mbedtls_x509_write_names(byref(at), c_void_p(start), names)
        return ctypes.string_at(at, size) if size > 0 else None


class Pyca:
    def __init__(self):
        import cryptography
        from cryptography import x509
        self.x509 = x509
        self.number = cryptography.__version__

    def version(self):
        return self.number

    def _name(self, octets):
        try:
            return self.x509.load_der_x509_certificate(certificate(NOBODY, octets, b"")).subject
        except ValueError:
            return None

    def same(self, first, second):
        name = self._name(first)
        return name is not None and name == self._name(second)

    def read(self, text):
        try:
            return self.x509.Name.from_rfc4514_string(text).public_bytes()
        except ValueError:
            return None

    def write(self, name):
        read = self._name(name)
        return read and read.rfc4514_string()


PEERS = {"OpenSSL": OpenSSL, "GnuTLS": GnuTLS, "Botan": Botan, "mbedTLS": MbedTLS,
         "python3-cryptography": Pyca}
