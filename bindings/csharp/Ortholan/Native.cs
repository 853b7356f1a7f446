// From <ortholan/strict.h>, by scripts/bindings/declarations.py: do not edit.

using System;
using System.Runtime.InteropServices;

namespace Ortholan.Native
{
    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Octets
    {
        public byte* data;
        public UIntPtr size;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Text
    {
        public byte* data;
        public UIntPtr size;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Refusal
    {
        public int reason;
        public uint met;
        public uint expected;
        public UIntPtr offset;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AttributeType
    {
        public Octets oid;
        public Text name;
        public Text long_name;
        public Text aliases;
        public int syntax;
        public uint bound;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct CertificateView
    {
        public int kind;
        public Octets der;
        public Octets subject;
        public Octets issuer;
        public Octets serial;
        public Octets not_before;
        public Octets not_after;
        public Octets extensions;
        public UIntPtr extension_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct ExtensionView
    {
        public Octets oid;
        public Octets value;
        public Octets bytes;
        public int critical;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PemBlock
    {
        public Text label;
        public Text base64;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct CheckRule
    {
        public byte* name;
        public byte* section;
        public byte* sentence;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Fault
    {
        public byte* rule;
        public byte* section;
        public byte* sentence;
        public Octets extension;
        public Octets part;
        public Refusal refusal;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NameView
    {
        public Octets der;
        public UIntPtr rdn_count;
        public UIntPtr attribute_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AttributeView
    {
        public Octets type;
        public Octets value;
        public Octets content;
        public UIntPtr rdn;
        public uint identifier;
        public int begins_rdn;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NameCursor
    {
        public UIntPtr index;
        public UIntPtr offset;
        public UIntPtr rdn;
        public UIntPtr rdn_end;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct TypeName
    {
        public Text name;
        public Octets oid;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Rfc4514Options
    {
        public int order;
        public int strings;
        public int long_names;
        public int exact;
        public TypeName* names;
        public UIntPtr name_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct TextError
    {
        public int reason;
        public UIntPtr offset;
        public UIntPtr size;
        public UIntPtr character;
        public byte* expected;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Column
    {
        public byte* data;
        public UIntPtr size;
        public long* offsets;
        public UIntPtr count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct ColumnRoom
    {
        public byte* data;
        public UIntPtr size;
        public long* offsets;
        public int* reasons;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Finding
    {
        public int reason;
        public int verdict;
        public UIntPtr certificate;
        public UIntPtr authority;
        public int place;
        public Octets name;
        public Octets subtree;
        public UIntPtr subtree_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PermitOptions
    {
        public ulong budget;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NewDistributionPoint
    {
        public Text* full_name;
        public UIntPtr full_name_count;
        public uint reasons;
        public Text* crl_issuer;
        public UIntPtr crl_issuer_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NewAccessDescription
    {
        public Octets method;
        public Text location;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NewPolicy
    {
        public Octets oid;
        public Text cps;
        public Text notice;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct GeneralNameView
    {
        public int kind;
        public int other;
        public Octets bytes;
        public Octets content;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct GeneralNamesView
    {
        public Octets der;
        public Octets names;
        public UIntPtr count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Mailbox
    {
        public Text local;
        public Text host;
        public fixed byte address[16];
        public UIntPtr address_size;
        public int has_ascii_local;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Uri
    {
        public Text scheme;
        public Text userinfo;
        public Text host;
        public Text port;
        public Text rest;
        public fixed byte address[16];
        public UIntPtr address_size;
        public int has_authority;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct OtherName
    {
        public int kind;
        public uint identifier;
        public Octets type;
        public Octets value;
        public Text text;
        public Octets oid;
        public Octets octets;
        public Octets components;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct EdiParty
    {
        public Octets assigner;
        public Octets party;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Integer
    {
        public Octets content;
        public long value;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Bits
    {
        public Octets content;
        public uint flags;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct String
    {
        public Octets content;
        public uint identifier;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Moment
    {
        public long seconds;
        public int is_there;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct List
    {
        public Octets elements;
        public UIntPtr count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct BasicConstraints
    {
        public int is_authority;
        public Integer path_length;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AuthorityKeyIdentifier
    {
        public Octets key_identifier;
        public GeneralNamesView issuer;
        public Integer serial_number;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct KeyUsagePeriod
    {
        public Moment not_before;
        public Moment not_after;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Policy
    {
        public Octets oid;
        public List qualifiers;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PolicyQualifier
    {
        public Octets oid;
        public Octets value;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NoticeReference
    {
        public String organization;
        public List numbers;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct UserNotice
    {
        public NoticeReference reference;
        public String text;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PolicyMapping
    {
        public Octets issuer_policy;
        public Octets subject_policy;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PolicyConstraints
    {
        public Integer require_explicit_policy;
        public Integer inhibit_policy_mapping;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NameSubtrees
    {
        public List permitted;
        public List excluded;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NameSubtree
    {
        public Octets @base;
        public Integer minimum;
        public Integer maximum;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct DistributionPointName
    {
        public GeneralNamesView full_name;
        public Octets relative_name;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct DistributionPoint
    {
        public DistributionPointName name;
        public Bits reasons;
        public GeneralNamesView crl_issuer;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct IssuingDistributionPoint
    {
        public DistributionPointName name;
        public int only_user_certificates;
        public int only_authority_certificates;
        public int is_indirect;
        public int only_attribute_certificates;
        public Bits only_some_reasons;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AccessDescription
    {
        public Octets method;
        public Octets location;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct DirectoryAttribute
    {
        public Octets type;
        public List values;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct SignedTimestamp
    {
        public Octets bytes;
        public ulong version;
        public Octets log_id;
        public ulong time;
        public Octets extensions;
        public ulong hash;
        public ulong signature_algorithm;
        public Octets signature;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct QcStatement
    {
        public Octets oid;
        public Octets info;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct QcCurrency
    {
        public String alphabetic;
        public Integer numeric;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct QcLimit
    {
        public QcCurrency currency;
        public Integer amount;
        public Integer exponent;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct QcPlace
    {
        public String url;
        public String language;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct QcSemantics
    {
        public Octets oid;
        public GeneralNamesView authorities;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Psd2Statement
    {
        public List roles;
        public String authority;
        public String authority_identifier;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Psd2Role
    {
        public Octets oid;
        public String name;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct OrganizationIdentifier
    {
        public String scheme;
        public String country;
        public String state;
        public String reference;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct CertificateTemplate
    {
        public Octets oid;
        public Integer major_version;
        public Integer minor_version;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct SecurityName
    {
        public Octets type;
        public Octets text;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct SecurityIdentifier
    {
        public SecurityName name;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Capability
    {
        public Octets oid;
        public Octets parameters;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Algorithm
    {
        public Octets oid;
        public Octets parameters;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Hash
    {
        public Algorithm algorithm;
        public Octets value;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Logotype
    {
        public List images;
        public List audio;
        public List reference_hashes;
        public List reference_uris;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Logotypes
    {
        public List communities;
        public Logotype issuer;
        public Logotype subject;
        public List others;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct OtherLogotype
    {
        public Octets type;
        public Logotype logotype;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct LogotypeFile
    {
        public String media_type;
        public List hashes;
        public List uris;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct LogotypeImageInformation
    {
        public Integer type;
        public Integer file_size;
        public Integer width;
        public Integer height;
        public Integer bits;
        public Integer table_size;
        public String language;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct LogotypeImage
    {
        public LogotypeFile file;
        public LogotypeImageInformation information;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct LogotypeAudioInformation
    {
        public Integer file_size;
        public Integer play_time;
        public Integer channels;
        public Integer sample_rate;
        public String language;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct LogotypeAudio
    {
        public LogotypeFile file;
        public LogotypeAudioInformation information;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct BiometricData
    {
        public Integer type;
        public Octets oid;
        public Algorithm hash_algorithm;
        public Octets hash;
        public String uri;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AddressFamily
    {
        public Octets family;
        public List ranges;
        public int is_inherited;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AddressRange
    {
        public Octets prefix;
        public Octets first;
        public Octets last;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AutonomousSystemList
    {
        public List systems;
        public int is_inherited;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AutonomousSystems
    {
        public AutonomousSystemList numbers;
        public AutonomousSystemList routing_domains;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AutonomousSystem
    {
        public Integer first;
        public Integer last;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct EntrustVersion
    {
        public Octets version;
        public Bits flags;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct ProxyPolicy
    {
        public Octets language;
        public Octets policy;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct ProxyInformation
    {
        public Integer path_length;
        public ProxyPolicy policy;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct IssuerSignTool
    {
        public String tool;
        public String authority_tool;
        public String tool_certificate;
        public String authority_tool_certificate;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AdobeTimestamp
    {
        public Integer version;
        public Octets location;
        public int needs_authentication;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct AdobeArchive
    {
        public Integer version;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct ExtensionType
    {
        public Octets oid;
        public byte* name;
        public byte* title;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Reference
    {
        public int kind;
        public uint choices;
        public Text text;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Identity
    {
        public int verdict;
        public int reason;
        public Octets name;
        public UIntPtr index;
        public Octets names;
        public UIntPtr name_count;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct PresentedName
    {
        public Octets bytes;
        public int reason;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct MatchPlace
    {
        public UIntPtr rdn;
        public UIntPtr attribute;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct Match
    {
        public int verdict;
        public int reason;
        public int side;
        public MatchPlace first;
        public MatchPlace second;
        public Octets type;
        public Refusal refusal;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal unsafe struct NewAttribute
    {
        public Octets oid;
        public Text type;
        public Text text;
        public Octets element;
        public uint string_type;
        public int joins_rdn;
    }

    internal static class Constants
    {
        public const int ORTHOLAN_VERDICT_CANNOT_TELL = 0;
        public const int ORTHOLAN_VERDICT_YES = 1;
        public const int ORTHOLAN_VERDICT_NO = 2;
        public const int ORTHOLAN_REASON_NONE = 0;
        public const int ORTHOLAN_REASON_ARGUMENT = 1;
        public const int ORTHOLAN_REASON_MEMORY = 2;
        public const int ORTHOLAN_REASON_ROOM = 3;
        public const int ORTHOLAN_REASON_NOT_FOUND = 4;
        public const int ORTHOLAN_REASON_TRUNCATED = 20;
        public const int ORTHOLAN_REASON_LEFT_OVER = 21;
        public const int ORTHOLAN_REASON_IDENTIFIER = 22;
        public const int ORTHOLAN_REASON_INDEFINITE = 23;
        public const int ORTHOLAN_REASON_LENGTH_FORM = 24;
        public const int ORTHOLAN_REASON_TAG_FORM = 25;
        public const int ORTHOLAN_REASON_OID = 26;
        public const int ORTHOLAN_REASON_SET_ORDER = 27;
        public const int ORTHOLAN_REASON_ALPHABET = 28;
        public const int ORTHOLAN_REASON_ENCODING = 29;
        public const int ORTHOLAN_REASON_EMPTY = 30;
        public const int ORTHOLAN_REASON_DEPTH = 31;
        public const int ORTHOLAN_REASON_BOOLEAN = 32;
        public const int ORTHOLAN_REASON_INTEGER = 33;
        public const int ORTHOLAN_REASON_BIT_STRING = 34;
        public const int ORTHOLAN_REASON_DEFAULT = 35;
        public const int ORTHOLAN_REASON_TIME = 36;
        public const int ORTHOLAN_REASON_NO_STRING = 37;
        public const int ORTHOLAN_REASON_TOO_LONG = 38;
        public const int ORTHOLAN_REASON_FORM = 39;
        public const int ORTHOLAN_REASON_NULL = 40;
        public const int ORTHOLAN_REASON_DUPLICATE_EXTENSION = 120;
        public const int ORTHOLAN_READ_DER = 0;
        public const int ORTHOLAN_READ_LENIENT = 1;
        public const int ORTHOLAN_READ_STRUCTURE = 2;
        public const int ORTHOLAN_SYNTAX_FREE_TEXT = 0;
        public const int ORTHOLAN_SYNTAX_PRINTABLE = 1;
        public const int ORTHOLAN_SYNTAX_IA5 = 2;
        public const int ORTHOLAN_SYNTAX_NUMERIC = 3;
        public const int ORTHOLAN_SYNTAX_UTF8 = 4;
        public const int ORTHOLAN_SYNTAX_IA5_OR_UTF8 = 5;
        public const int ORTHOLAN_SYNTAX_POSTAL_ADDRESS = 6;
        public const int ORTHOLAN_SYNTAX_NO_TEXT = 7;
        public const int ORTHOLAN_REASON_PEM_END = 121;
        public const int ORTHOLAN_REASON_PEM_LABEL = 122;
        public const int ORTHOLAN_REASON_BASE64 = 123;
        public const int ORTHOLAN_CERTIFICATE = 1;
        public const int ORTHOLAN_CERTIFICATE_REQUEST = 2;
        public const int ORTHOLAN_REVOCATION_LIST = 3;
        public const int ORTHOLAN_REASON_TEXT_UTF8 = 80;
        public const int ORTHOLAN_REASON_TEXT_NO_TYPE = 81;
        public const int ORTHOLAN_REASON_TEXT_NO_EQUALS = 82;
        public const int ORTHOLAN_REASON_TEXT_TYPE = 83;
        public const int ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE = 84;
        public const int ORTHOLAN_REASON_TEXT_OID = 85;
        public const int ORTHOLAN_REASON_TEXT_PAIR = 86;
        public const int ORTHOLAN_REASON_TEXT_UNESCAPED = 87;
        public const int ORTHOLAN_REASON_TEXT_HEX = 88;
        public const int ORTHOLAN_REASON_TEXT_ELEMENT = 89;
        public const int ORTHOLAN_REASON_TEXT_VALUE_UTF8 = 90;
        public const int ORTHOLAN_REASON_TEXT_QUOTE = 91;
        public const int ORTHOLAN_REASON_TEXT_BEHIND_QUOTE = 92;
        public const int ORTHOLAN_REASON_TEXT_ALPHABET = 93;
        public const int ORTHOLAN_REASON_TEXT_NO_STRING = 94;
        public const int ORTHOLAN_REASON_TYPE_NAME = 95;
        public const int ORTHOLAN_REASON_TEXT_LINE = 96;
        public const int ORTHOLAN_RDNS_REVERSED = 0;
        public const int ORTHOLAN_RDNS_AS_ENCODED = 1;
        public const int ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8 = 0;
        public const int ORTHOLAN_STRINGS_UTF8 = 1;
        public const int ORTHOLAN_REASON_EXCLUDED = 300;
        public const int ORTHOLAN_REASON_NOT_PERMITTED = 301;
        public const int ORTHOLAN_REASON_UNDEFINED_FORM = 302;
        public const int ORTHOLAN_REASON_SUBTREE_DISTANCE = 303;
        public const int ORTHOLAN_REASON_SUBTREE_MASK = 304;
        public const int ORTHOLAN_REASON_SUBTREE_EMPTY = 305;
        public const int ORTHOLAN_REASON_URI_WITHOUT_HOST = 306;
        public const int ORTHOLAN_REASON_MAILBOX_QUOTED = 307;
        public const int ORTHOLAN_REASON_MAILBOX_CASE = 308;
        public const int ORTHOLAN_REASON_MAILBOX_AT_ADDRESS = 309;
        public const int ORTHOLAN_REASON_MAILBOX_BEYOND_ASCII = 310;
        public const int ORTHOLAN_REASON_DIRECTORY_UNTOLD = 311;
        public const int ORTHOLAN_REASON_BUDGET = 312;
        public const int ORTHOLAN_REASON_UNREADABLE_CERTIFICATE = 313;
        public const int ORTHOLAN_NAME_NONE = 0;
        public const int ORTHOLAN_NAME_SUBJECT = 1;
        public const int ORTHOLAN_NAME_EMAIL = 2;
        public const int ORTHOLAN_NAME_ALTERNATIVE = 3;
        public const int ORTHOLAN_NAME_LIST = 4;
        public const int ORTHOLAN_NAME_CONSTRAINTS = 5;
        public const int ORTHOLAN_REASON_HOST_EMPTY = 140;
        public const int ORTHOLAN_REASON_HOST_EMPTY_LABEL = 141;
        public const int ORTHOLAN_REASON_HOST_LONG_LABEL = 142;
        public const int ORTHOLAN_REASON_HOST_LONG = 143;
        public const int ORTHOLAN_REASON_HOST_CHARACTER = 144;
        public const int ORTHOLAN_REASON_HOST_UNDERSCORE = 145;
        public const int ORTHOLAN_REASON_HOST_HYPHEN = 146;
        public const int ORTHOLAN_REASON_HOST_NUMERIC = 147;
        public const int ORTHOLAN_REASON_HOST_UNICODE = 148;
        public const int ORTHOLAN_REASON_HOST_TRAILING_DOT = 149;
        public const int ORTHOLAN_REASON_HOST_WILDCARD = 150;
        public const int ORTHOLAN_REASON_MAILBOX_AT = 151;
        public const int ORTHOLAN_REASON_MAILBOX_LOCAL = 152;
        public const int ORTHOLAN_REASON_MAILBOX_LITERAL = 153;
        public const int ORTHOLAN_REASON_URI_SCHEME = 154;
        public const int ORTHOLAN_REASON_URI_CHARACTER = 155;
        public const int ORTHOLAN_REASON_URI_LITERAL = 156;
        public const int ORTHOLAN_REASON_URI_PORT = 157;
        public const int ORTHOLAN_REASON_SERVICE = 158;
        public const int ORTHOLAN_REASON_OTHER_NAME = 159;
        public const int ORTHOLAN_REASON_ADDRESS_TEXT = 160;
        public const int ORTHOLAN_REASON_ADDRESS_RANGE = 161;
        public const int ORTHOLAN_REASON_NAME_KIND = 162;
        public const int ORTHOLAN_REASON_NAME_ESCAPE = 163;
        public const int ORTHOLAN_REASON_NAME_VALUE = 164;
        public const int ORTHOLAN_REASON_GENERAL_NAME = 170;
        public const int ORTHOLAN_REASON_NAME_CHARACTER = 171;
        public const int ORTHOLAN_REASON_ADDRESS_SIZE = 172;
        public const int ORTHOLAN_OTHER_UNKNOWN = 0;
        public const int ORTHOLAN_OTHER_UPN = 1;
        public const int ORTHOLAN_OTHER_SERVICE = 2;
        public const int ORTHOLAN_OTHER_UTF8_MAILBOX = 3;
        public const int ORTHOLAN_OTHER_KERBEROS = 4;
        public const int ORTHOLAN_OTHER_XMPP = 5;
        public const int ORTHOLAN_OTHER_PERMANENT_ID = 6;
        public const int ORTHOLAN_OTHER_HARDWARE_MODULE = 7;
        public const int ORTHOLAN_OTHER_GUID = 8;
        public const int ORTHOLAN_NAME_OTHER = 0;
        public const int ORTHOLAN_NAME_MAIL = 1;
        public const int ORTHOLAN_NAME_DNS = 2;
        public const int ORTHOLAN_NAME_X400 = 3;
        public const int ORTHOLAN_NAME_DIRECTORY = 4;
        public const int ORTHOLAN_NAME_EDI_PARTY = 5;
        public const int ORTHOLAN_NAME_URI = 6;
        public const int ORTHOLAN_NAME_ADDRESS = 7;
        public const int ORTHOLAN_NAME_REGISTERED_ID = 8;
        public const int ORTHOLAN_HOST_UNDERSCORES = 1;
        public const int ORTHOLAN_HOST_TRAILING_DOT = 2;
        public const int ORTHOLAN_HOST_EDGE_HYPHENS = 4;
        public const int ORTHOLAN_HOST_WILDCARD = 8;
        public const int ORTHOLAN_ALTERNATIVE_NAMES_VALUE = 0;
        public const int ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL = 1;
        public const int ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION = 2;
        public const int ORTHOLAN_KEY_USAGE_DIGITAL_SIGNATURE = 1;
        public const int ORTHOLAN_KEY_USAGE_NON_REPUDIATION = 2;
        public const int ORTHOLAN_KEY_USAGE_KEY_ENCIPHERMENT = 4;
        public const int ORTHOLAN_KEY_USAGE_DATA_ENCIPHERMENT = 8;
        public const int ORTHOLAN_KEY_USAGE_KEY_AGREEMENT = 16;
        public const int ORTHOLAN_KEY_USAGE_KEY_CERT_SIGN = 32;
        public const int ORTHOLAN_KEY_USAGE_CRL_SIGN = 64;
        public const int ORTHOLAN_KEY_USAGE_ENCIPHER_ONLY = 128;
        public const int ORTHOLAN_KEY_USAGE_DECIPHER_ONLY = 256;
        public const int ORTHOLAN_CRL_KEY_COMPROMISE = 2;
        public const int ORTHOLAN_CRL_CA_COMPROMISE = 4;
        public const int ORTHOLAN_CRL_AFFILIATION_CHANGED = 8;
        public const int ORTHOLAN_CRL_SUPERSEDED = 16;
        public const int ORTHOLAN_CRL_CESSATION_OF_OPERATION = 32;
        public const int ORTHOLAN_CRL_CERTIFICATE_HOLD = 64;
        public const int ORTHOLAN_CRL_PRIVILEGE_WITHDRAWN = 128;
        public const int ORTHOLAN_CRL_AA_COMPROMISE = 256;
        public const int ORTHOLAN_ENTRUST_KEY_UPDATE_ALLOWED = 1;
        public const int ORTHOLAN_ENTRUST_NEW_EXTENSIONS = 2;
        public const int ORTHOLAN_ENTRUST_PKIX_CERTIFICATE = 4;
        public const int ORTHOLAN_ENTRUST_ENTERPRISE_CATEGORY = 8;
        public const int ORTHOLAN_ENTRUST_WEB_CATEGORY = 16;
        public const int ORTHOLAN_ENTRUST_SET_CATEGORY = 32;
        public const int ORTHOLAN_REASON_EXTENSION_TYPE = 400;
        public const int ORTHOLAN_REASON_TLS_SIZE = 401;
        public const int ORTHOLAN_REASON_JSON = 402;
        public const int ORTHOLAN_REASON_JSON_TWICE = 403;
        public const int ORTHOLAN_REASON_JSON_DEPTH = 404;
        public const int ORTHOLAN_REASON_JSON_FORM = 405;
        public const int ORTHOLAN_REASON_JSON_MEMBER = 406;
        public const int ORTHOLAN_REASON_JSON_LACKS = 407;
        public const int ORTHOLAN_REASON_JSON_WORD = 408;
        public const int ORTHOLAN_REASON_JSON_NUMBER = 409;
        public const int ORTHOLAN_REASON_JSON_TEXT = 410;
        public const int ORTHOLAN_REASON_JSON_DIFFERENT = 411;
        public const int ORTHOLAN_REASON_NO_MATCH = 200;
        public const int ORTHOLAN_REASON_NO_ALTERNATIVE_NAMES = 201;
        public const int ORTHOLAN_REASON_NO_CERTIFICATE = 202;
        public const int ORTHOLAN_REASON_OTHER_KIND = 203;
        public const int ORTHOLAN_REASON_OTHER_HOST = 204;
        public const int ORTHOLAN_REASON_WILDCARD_LABELS = 205;
        public const int ORTHOLAN_REASON_OTHER_ADDRESS = 206;
        public const int ORTHOLAN_REASON_OTHER_FAMILY = 207;
        public const int ORTHOLAN_REASON_OTHER_LOCAL_PART = 208;
        public const int ORTHOLAN_REASON_OTHER_SCHEME = 209;
        public const int ORTHOLAN_REASON_OTHER_SERVICE_NAME = 210;
        public const int ORTHOLAN_REASON_HOST_IS_ADDRESS = 211;
        public const int ORTHOLAN_REASON_URI_HOST = 212;
        public const int ORTHOLAN_REASON_ASCII_LOCAL_PART = 213;
        public const int ORTHOLAN_REFERENCE_HOST = 1;
        public const int ORTHOLAN_REFERENCE_ADDRESS = 2;
        public const int ORTHOLAN_REFERENCE_MAILBOX = 3;
        public const int ORTHOLAN_REFERENCE_URI = 4;
        public const int ORTHOLAN_REFERENCE_SERVICE = 5;
        public const int ORTHOLAN_IDENTIFY_NO_UNDERSCORE = 1;
        public const int ORTHOLAN_MATCH_RFC5280 = 0;
        public const int ORTHOLAN_MATCH_ASCII_CASE = 1;
        public const int ORTHOLAN_MATCH_OCTETS = 2;
        public const int ORTHOLAN_MATCH_ANY_ORDER = 256;
        public const int ORTHOLAN_REASON_RDN_COUNT = 180;
        public const int ORTHOLAN_REASON_RDN_SIZE = 181;
        public const int ORTHOLAN_REASON_ATTRIBUTE_TYPE = 182;
        public const int ORTHOLAN_REASON_VALUE = 183;
        public const int ORTHOLAN_REASON_RDN = 184;
        public const int ORTHOLAN_REASON_VALUE_TYPE = 185;
        public const int ORTHOLAN_REASON_VALUE_TEXT = 186;
        public const int ORTHOLAN_REASON_VALUE_UNDEFINED = 187;
        public const int ORTHOLAN_REASON_VALUE_TELETEX = 188;
    }

    internal static unsafe class Calls
    {
        private const string Library = "ortholan";

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_refusal_sentence(Refusal* refusal, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern byte* ortholan_reason_sentence(int reason);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern byte* ortholan_reason_name(int reason);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_oid_to_text(Octets oid, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_oid_from_text(Text text, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern UIntPtr ortholan_attribute_type_count();

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_attribute_type_at(UIntPtr index, AttributeType* type);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_attribute_type_of(Octets oid, AttributeType* type);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_attribute_type_named(Text name, AttributeType* type);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_certificate_view_read(Octets der, int mode, CertificateView* certificate, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_certificate_view_next_extension(CertificateView* certificate, UIntPtr* offset, ExtensionView* extension);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_certificate_view_extension(CertificateView* certificate, Octets oid, ExtensionView* extension, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extensions_view_read(Octets der, int mode, CertificateView* extensions, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extensions_write(ExtensionView* extensions, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_request_write(Octets extensions, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_time_to_text(Octets time, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_pem_next(Text text, UIntPtr* offset, PemBlock* block, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_pem_octets(PemBlock* block, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_check(Octets der, Fault* faults, UIntPtr room, UIntPtr* count, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_check_rule_at(UIntPtr index, CheckRule* rule);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_view_read(Octets der, int mode, NameView* name, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_view_attribute(NameView* name, UIntPtr index, NameCursor* cursor, AttributeView* attribute);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_attribute_view_text(AttributeView* attribute, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_rfc4514_write(NameView* name, Rfc4514Options* options, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_rfc4514_read(Text text, Rfc4514Options* options, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_rfc4514_explain(Text text, Refusal* refusal, TextError* error);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_rfc4514_sentence(Text text, Refusal* refusal, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_column_rfc4514_write(Column* names, int mode, Rfc4514Options* options, ColumnRoom* room, UIntPtr* done);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_column_rfc4514_read(Column* texts, Rfc4514Options* options, ColumnRoom* room, UIntPtr* done);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_column_match_key(Column* names, int rule, ColumnRoom* room, UIntPtr* done);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_column_general_name_to_text(Column* names, ColumnRoom* room, UIntPtr* done);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_permits(Octets* chain, UIntPtr chain_size, PermitOptions* options, int* verdict, Finding* findings, UIntPtr room, UIntPtr* count);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_permits_names(Octets constraints, Octets subject, Octets alternative_names, PermitOptions* options, int* verdict, Finding* findings, UIntPtr room, UIntPtr* count);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_finding_sentence(Finding* finding, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_basic_constraints_write(int is_authority, long path_length, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_bits_write(uint flags, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_oids_write(Octets* oids, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_octet_string_write(Octets octets, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_authority_key_identifier_write(Octets key_identifier, Text* issuer, UIntPtr issuer_count, Octets serial_number, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_integer_write(long number, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_tls_features_write(ushort* features, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_distribution_points_write(NewDistributionPoint* points, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_information_access_write(NewAccessDescription* descriptions, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policies_write(NewPolicy* policies, UIntPtr count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_subtrees_write(Text* permitted, UIntPtr permitted_count, Text* excluded, UIntPtr excluded_count, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_general_names_view_read(Octets der, int mode, GeneralNamesView* names, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_general_names_view_next(GeneralNamesView* names, UIntPtr* offset, GeneralNameView* name);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_general_name_view_read(Octets der, int mode, GeneralNameView* name, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_mailbox_read(Text text, int has_utf8, Mailbox* mailbox, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_uri_read(Text text, Uri* uri, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_other_name_read(GeneralNameView* name, OtherName* other, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_edi_party_read(GeneralNameView* name, EdiParty* party, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_host_check(Text host, uint choices, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_to_text(Octets address, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_from_text(Text text, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_general_name_to_text(Octets name, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_general_name_from_text(Text text, int allows_range, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_alternative_names_from_text(Text* texts, UIntPtr count, int form, byte* @out, UIntPtr room, UIntPtr* size, UIntPtr* wrong, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_string_text(String* @string, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_oid_next(List* list, UIntPtr* offset, Octets* oid);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_integer_next(List* list, UIntPtr* offset, Integer* number);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_string_next(List* list, UIntPtr* offset, String* @string);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_element_next(List* list, UIntPtr* offset, Octets* element);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_integer_read(Octets value, int mode, Integer* number, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_octet_string_read(Octets value, int mode, Octets* octets, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_string_read(Octets value, int mode, String* @string, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_moment_read(Octets value, int mode, Moment* moment, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_null_read(Octets value, int mode, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_oids_read(Octets value, int mode, List* oids, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_integers_read(Octets value, int mode, List* numbers, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_bits_read(Octets value, int mode, Bits* bits, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_basic_constraints_read(Octets value, int mode, BasicConstraints* constraints, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_authority_key_identifier_read(Octets value, int mode, AuthorityKeyIdentifier* identifier, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_key_usage_period_read(Octets value, int mode, KeyUsagePeriod* period, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policies_read(Octets value, int mode, List* policies, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policy_next(List* policies, UIntPtr* offset, Policy* policy);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policy_qualifier_next(List* qualifiers, UIntPtr* offset, PolicyQualifier* qualifier);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_user_notice_read(Octets value, int mode, UserNotice* notice, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policy_mappings_read(Octets value, int mode, List* mappings, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policy_mapping_next(List* mappings, UIntPtr* offset, PolicyMapping* mapping);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_policy_constraints_read(Octets value, int mode, PolicyConstraints* constraints, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_subtrees_read(Octets value, int mode, NameSubtrees* subtrees, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_subtree_next(List* subtrees, UIntPtr* offset, NameSubtree* subtree);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_distribution_points_read(Octets value, int mode, List* points, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_distribution_point_next(List* points, UIntPtr* offset, DistributionPoint* point);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_issuing_distribution_point_read(Octets value, int mode, IssuingDistributionPoint* point, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_information_access_read(Octets value, int mode, List* descriptions, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_access_description_next(List* descriptions, UIntPtr* offset, AccessDescription* description);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_directory_attributes_read(Octets value, int mode, List* attributes, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_directory_attribute_next(List* attributes, UIntPtr* offset, DirectoryAttribute* attribute);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_signed_timestamps_read(Octets value, int mode, List* timestamps, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_signed_timestamp_next(List* timestamps, UIntPtr* offset, SignedTimestamp* timestamp);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_statements_read(Octets value, int mode, List* statements, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_statement_next(List* statements, UIntPtr* offset, QcStatement* statement);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_limit_read(Octets info, int mode, QcLimit* limit, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_places_read(Octets info, int mode, List* places, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_place_next(List* places, UIntPtr* offset, QcPlace* place);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_countries_read(Octets info, int mode, List* countries, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_qc_semantics_read(Octets info, int mode, QcSemantics* semantics, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_psd2_statement_read(Octets info, int mode, Psd2Statement* statement, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_psd2_role_next(List* roles, UIntPtr* offset, Psd2Role* role);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_organization_identifier_read(Octets value, int mode, OrganizationIdentifier* identifier, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_certificate_template_read(Octets value, int mode, CertificateTemplate* made_by, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_security_identifier_read(Octets value, int mode, SecurityIdentifier* identifier, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_capabilities_read(Octets value, int mode, List* capabilities, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_capability_next(List* capabilities, UIntPtr* offset, Capability* capability);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_logotypes_read(Octets value, int mode, Logotypes* logotypes, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_logotype_next(List* logotypes, UIntPtr* offset, Logotype* logotype);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_other_logotype_next(List* logotypes, UIntPtr* offset, OtherLogotype* logotype);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_logotype_image_next(List* images, UIntPtr* offset, LogotypeImage* image);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_logotype_audio_next(List* audio, UIntPtr* offset, LogotypeAudio* recording);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_hash_next(List* hashes, UIntPtr* offset, Hash* hash);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_biometric_information_read(Octets value, int mode, List* data, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_biometric_data_next(List* list, UIntPtr* offset, BiometricData* data);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_families_read(Octets value, int mode, List* families, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_family_next(List* families, UIntPtr* offset, AddressFamily* family);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_range_next(List* ranges, UIntPtr* offset, AddressRange* range);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_address_range_ends(Octets family, AddressRange* range, byte* first, byte* last, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_autonomous_systems_read(Octets value, int mode, AutonomousSystems* systems, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_autonomous_system_next(List* systems, UIntPtr* offset, AutonomousSystem* system);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_entrust_version_read(Octets value, int mode, EntrustVersion* version, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_proxy_information_read(Octets value, int mode, ProxyInformation* information, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_issuer_sign_tool_read(Octets value, int mode, IssuerSignTool* tools, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_adobe_timestamp_read(Octets value, int mode, AdobeTimestamp* timestamp, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_adobe_archive_read(Octets value, int mode, AdobeArchive* archive, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_type_at(UIntPtr index, ExtensionType* type);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_type_of(Octets oid, ExtensionType* type);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern byte* ortholan_extension_name(Octets oid);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_oid_from_name(Text name, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_json(Octets oid, Octets value, int mode, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_text(Octets oid, Octets value, int mode, UIntPtr indent, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extensions_json(Octets der, int mode, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extension_from_json(Text type, Text json, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_extensions_from_json(Text json, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_identify(Octets certificate, Reference* reference, Identity* identity, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_identify_by_names(Octets names, Reference* reference, Identity* identity, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_identity_explain(Identity* identity, Reference* reference, UIntPtr* offset, PresentedName* presented);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_match_names(Octets first, Octets second, int rule, Match* match);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_within(Octets subtree, Octets name, int rule, Match* match);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_match_sentence(Match* match, byte* @out, UIntPtr room, UIntPtr* size);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_match_key(Octets name, int rule, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern ulong ortholan_match_hash(Octets key);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_prepare_text(Text text, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_build(NewAttribute* attributes, UIntPtr count, Rfc4514Options* options, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_view_replace(NameView* name, UIntPtr index, NewAttribute* attribute, Rfc4514Options* options, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_view_remove(NameView* name, UIntPtr index, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);

        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ortholan_name_view_insert(NameView* name, UIntPtr rdn, NewAttribute* attribute, Rfc4514Options* options, byte* @out, UIntPtr room, UIntPtr* size, Refusal* refusal);
    }
}
