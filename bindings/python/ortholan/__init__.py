"""Names, alternative names and extensions of X.509 certificates, and verdicts about them.

    >>> import ortholan
    >>> print(ortholan.Name.from_der(bytes.fromhex("3010310E300C06035504031305416C706861")))
    CN=Alpha
    >>> ortholan.Name("CN=Alpha,O=Org") == ortholan.Name("CN=ALPHA,O= org ")
    True
    >>> [each.kind.name for each in map(ortholan.GeneralName, ["DNS:a.example", "IP:::1"])]
    ['DNS', 'ADDRESS']

Octets are bytes, identifiers dotted text, text is str. What is refused is raised as Refusal, a
ValueError with reason and offset; a verdict is never raised, and only a yes is true. Objects are
values: they do not change, can be pickled, and threads may share them.

`ortholan.classic` has the objects of the older C interface, which read generously and speak another
text form, and `ortholan.batch` the operations for whole lists.
"""

from . import batch, classic
from ._values import Reading
from .attribute_types import (
    AttributeType,
    Syntax,
    attribute_type,
    attribute_types,
    short_name,
    type_identifier,
)
from .certificates import (
    Certificate,
    CertificateKind,
    Extension,
    PemBlock,
    extension_identifier,
    load_certificates,
    read_extensions,
    read_pem,
    write_extensions,
)
from .checks import Fault, check
from .constraints import Finding, NamePlace, Permission, permits, permits_names
from .general_names import (
    GeneralName,
    HostChoices,
    Kind,
    Mailbox,
    OtherKind,
    OtherName,
    Uri,
    check_host,
    read_general_names,
    write_general_names,
)
from .identity import Identity, Mismatch, identify, identify_by_names
from .names import (
    RDN,
    Attribute,
    Match,
    Name,
    Place,
    Rule,
    TextOptions,
)
from .reasons import Answer, Reason, Refusal, Verdict

__all__ = [
    "Answer", "Attribute", "AttributeType", "CANNOT_TELL", "Certificate", "CertificateKind",
    "Extension", "Fault", "Finding", "GeneralName", "HostChoices", "Identity", "Kind",
    "Mailbox", "Match", "Mismatch", "NO", "Name", "NamePlace", "OtherKind", "OtherName",
    "PemBlock", "Permission", "Place", "RDN", "Reading", "Reason", "Refusal", "Rule", "Syntax",
    "TextOptions", "Uri", "Verdict", "YES", "attribute_type", "attribute_types", "batch",
    "check", "check_host", "classic", "extension_identifier", "identify", "identify_by_names",
    "load_certificates", "permits", "permits_names", "read_extensions", "read_general_names",
    "read_pem", "short_name", "type_identifier", "write_extensions", "write_general_names",
]

__version__: str = classic.version()

YES = Answer.YES
NO = Answer.NO
CANNOT_TELL = Answer.CANNOT_TELL
