// From <ortholan/strict.h>, by scripts/bindings/declarations.py: do not edit.

use std::os::raw::c_char;

pub type ortholan_reason = i32;
pub type ortholan_verdict = i32;

pub const ORTHOLAN_VERDICT_CANNOT_TELL: i32 = 0;
pub const ORTHOLAN_VERDICT_YES: i32 = 1;
pub const ORTHOLAN_VERDICT_NO: i32 = 2;
pub const ORTHOLAN_REASON_NONE: i32 = 0;
pub const ORTHOLAN_REASON_ARGUMENT: i32 = 1;
pub const ORTHOLAN_REASON_MEMORY: i32 = 2;
pub const ORTHOLAN_REASON_ROOM: i32 = 3;
pub const ORTHOLAN_REASON_NOT_FOUND: i32 = 4;
pub const ORTHOLAN_REASON_TRUNCATED: i32 = 20;
pub const ORTHOLAN_REASON_LEFT_OVER: i32 = 21;
pub const ORTHOLAN_REASON_IDENTIFIER: i32 = 22;
pub const ORTHOLAN_REASON_INDEFINITE: i32 = 23;
pub const ORTHOLAN_REASON_LENGTH_FORM: i32 = 24;
pub const ORTHOLAN_REASON_TAG_FORM: i32 = 25;
pub const ORTHOLAN_REASON_OID: i32 = 26;
pub const ORTHOLAN_REASON_SET_ORDER: i32 = 27;
pub const ORTHOLAN_REASON_ALPHABET: i32 = 28;
pub const ORTHOLAN_REASON_ENCODING: i32 = 29;
pub const ORTHOLAN_REASON_EMPTY: i32 = 30;
pub const ORTHOLAN_REASON_DEPTH: i32 = 31;
pub const ORTHOLAN_REASON_BOOLEAN: i32 = 32;
pub const ORTHOLAN_REASON_INTEGER: i32 = 33;
pub const ORTHOLAN_REASON_BIT_STRING: i32 = 34;
pub const ORTHOLAN_REASON_DEFAULT: i32 = 35;
pub const ORTHOLAN_REASON_TIME: i32 = 36;
pub const ORTHOLAN_REASON_NO_STRING: i32 = 37;
pub const ORTHOLAN_REASON_TOO_LONG: i32 = 38;
pub const ORTHOLAN_REASON_FORM: i32 = 39;
pub const ORTHOLAN_REASON_NULL: i32 = 40;
pub const ORTHOLAN_REASON_DUPLICATE_EXTENSION: i32 = 120;
pub const ORTHOLAN_READ_DER: i32 = 0;
pub const ORTHOLAN_READ_LENIENT: i32 = 1;
pub const ORTHOLAN_READ_STRUCTURE: i32 = 2;
pub const ORTHOLAN_SYNTAX_FREE_TEXT: i32 = 0;
pub const ORTHOLAN_SYNTAX_PRINTABLE: i32 = 1;
pub const ORTHOLAN_SYNTAX_IA5: i32 = 2;
pub const ORTHOLAN_SYNTAX_NUMERIC: i32 = 3;
pub const ORTHOLAN_SYNTAX_UTF8: i32 = 4;
pub const ORTHOLAN_SYNTAX_IA5_OR_UTF8: i32 = 5;
pub const ORTHOLAN_SYNTAX_POSTAL_ADDRESS: i32 = 6;
pub const ORTHOLAN_SYNTAX_NO_TEXT: i32 = 7;
pub const ORTHOLAN_REASON_PEM_END: i32 = 121;
pub const ORTHOLAN_REASON_PEM_LABEL: i32 = 122;
pub const ORTHOLAN_REASON_BASE64: i32 = 123;
pub const ORTHOLAN_CERTIFICATE: i32 = 1;
pub const ORTHOLAN_CERTIFICATE_REQUEST: i32 = 2;
pub const ORTHOLAN_REVOCATION_LIST: i32 = 3;
pub const ORTHOLAN_REASON_TEXT_UTF8: i32 = 80;
pub const ORTHOLAN_REASON_TEXT_NO_TYPE: i32 = 81;
pub const ORTHOLAN_REASON_TEXT_NO_EQUALS: i32 = 82;
pub const ORTHOLAN_REASON_TEXT_TYPE: i32 = 83;
pub const ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE: i32 = 84;
pub const ORTHOLAN_REASON_TEXT_OID: i32 = 85;
pub const ORTHOLAN_REASON_TEXT_PAIR: i32 = 86;
pub const ORTHOLAN_REASON_TEXT_UNESCAPED: i32 = 87;
pub const ORTHOLAN_REASON_TEXT_HEX: i32 = 88;
pub const ORTHOLAN_REASON_TEXT_ELEMENT: i32 = 89;
pub const ORTHOLAN_REASON_TEXT_VALUE_UTF8: i32 = 90;
pub const ORTHOLAN_REASON_TEXT_QUOTE: i32 = 91;
pub const ORTHOLAN_REASON_TEXT_BEHIND_QUOTE: i32 = 92;
pub const ORTHOLAN_REASON_TEXT_ALPHABET: i32 = 93;
pub const ORTHOLAN_REASON_TEXT_NO_STRING: i32 = 94;
pub const ORTHOLAN_REASON_TYPE_NAME: i32 = 95;
pub const ORTHOLAN_REASON_TEXT_LINE: i32 = 96;
pub const ORTHOLAN_RDNS_REVERSED: i32 = 0;
pub const ORTHOLAN_RDNS_AS_ENCODED: i32 = 1;
pub const ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8: i32 = 0;
pub const ORTHOLAN_STRINGS_UTF8: i32 = 1;
pub const ORTHOLAN_REASON_EXCLUDED: i32 = 300;
pub const ORTHOLAN_REASON_NOT_PERMITTED: i32 = 301;
pub const ORTHOLAN_REASON_UNDEFINED_FORM: i32 = 302;
pub const ORTHOLAN_REASON_SUBTREE_DISTANCE: i32 = 303;
pub const ORTHOLAN_REASON_SUBTREE_MASK: i32 = 304;
pub const ORTHOLAN_REASON_SUBTREE_EMPTY: i32 = 305;
pub const ORTHOLAN_REASON_URI_WITHOUT_HOST: i32 = 306;
pub const ORTHOLAN_REASON_MAILBOX_QUOTED: i32 = 307;
pub const ORTHOLAN_REASON_MAILBOX_CASE: i32 = 308;
pub const ORTHOLAN_REASON_MAILBOX_AT_ADDRESS: i32 = 309;
pub const ORTHOLAN_REASON_MAILBOX_BEYOND_ASCII: i32 = 310;
pub const ORTHOLAN_REASON_DIRECTORY_UNTOLD: i32 = 311;
pub const ORTHOLAN_REASON_BUDGET: i32 = 312;
pub const ORTHOLAN_REASON_UNREADABLE_CERTIFICATE: i32 = 313;
pub const ORTHOLAN_NAME_NONE: i32 = 0;
pub const ORTHOLAN_NAME_SUBJECT: i32 = 1;
pub const ORTHOLAN_NAME_EMAIL: i32 = 2;
pub const ORTHOLAN_NAME_ALTERNATIVE: i32 = 3;
pub const ORTHOLAN_NAME_LIST: i32 = 4;
pub const ORTHOLAN_NAME_CONSTRAINTS: i32 = 5;
pub const ORTHOLAN_REASON_HOST_EMPTY: i32 = 140;
pub const ORTHOLAN_REASON_HOST_EMPTY_LABEL: i32 = 141;
pub const ORTHOLAN_REASON_HOST_LONG_LABEL: i32 = 142;
pub const ORTHOLAN_REASON_HOST_LONG: i32 = 143;
pub const ORTHOLAN_REASON_HOST_CHARACTER: i32 = 144;
pub const ORTHOLAN_REASON_HOST_UNDERSCORE: i32 = 145;
pub const ORTHOLAN_REASON_HOST_HYPHEN: i32 = 146;
pub const ORTHOLAN_REASON_HOST_NUMERIC: i32 = 147;
pub const ORTHOLAN_REASON_HOST_UNICODE: i32 = 148;
pub const ORTHOLAN_REASON_HOST_TRAILING_DOT: i32 = 149;
pub const ORTHOLAN_REASON_HOST_WILDCARD: i32 = 150;
pub const ORTHOLAN_REASON_MAILBOX_AT: i32 = 151;
pub const ORTHOLAN_REASON_MAILBOX_LOCAL: i32 = 152;
pub const ORTHOLAN_REASON_MAILBOX_LITERAL: i32 = 153;
pub const ORTHOLAN_REASON_URI_SCHEME: i32 = 154;
pub const ORTHOLAN_REASON_URI_CHARACTER: i32 = 155;
pub const ORTHOLAN_REASON_URI_LITERAL: i32 = 156;
pub const ORTHOLAN_REASON_URI_PORT: i32 = 157;
pub const ORTHOLAN_REASON_SERVICE: i32 = 158;
pub const ORTHOLAN_REASON_OTHER_NAME: i32 = 159;
pub const ORTHOLAN_REASON_ADDRESS_TEXT: i32 = 160;
pub const ORTHOLAN_REASON_ADDRESS_RANGE: i32 = 161;
pub const ORTHOLAN_REASON_NAME_KIND: i32 = 162;
pub const ORTHOLAN_REASON_NAME_ESCAPE: i32 = 163;
pub const ORTHOLAN_REASON_NAME_VALUE: i32 = 164;
pub const ORTHOLAN_REASON_GENERAL_NAME: i32 = 170;
pub const ORTHOLAN_REASON_NAME_CHARACTER: i32 = 171;
pub const ORTHOLAN_REASON_ADDRESS_SIZE: i32 = 172;
pub const ORTHOLAN_OTHER_UNKNOWN: i32 = 0;
pub const ORTHOLAN_OTHER_UPN: i32 = 1;
pub const ORTHOLAN_OTHER_SERVICE: i32 = 2;
pub const ORTHOLAN_OTHER_UTF8_MAILBOX: i32 = 3;
pub const ORTHOLAN_OTHER_KERBEROS: i32 = 4;
pub const ORTHOLAN_OTHER_XMPP: i32 = 5;
pub const ORTHOLAN_OTHER_PERMANENT_ID: i32 = 6;
pub const ORTHOLAN_OTHER_HARDWARE_MODULE: i32 = 7;
pub const ORTHOLAN_OTHER_GUID: i32 = 8;
pub const ORTHOLAN_NAME_OTHER: i32 = 0;
pub const ORTHOLAN_NAME_MAIL: i32 = 1;
pub const ORTHOLAN_NAME_DNS: i32 = 2;
pub const ORTHOLAN_NAME_X400: i32 = 3;
pub const ORTHOLAN_NAME_DIRECTORY: i32 = 4;
pub const ORTHOLAN_NAME_EDI_PARTY: i32 = 5;
pub const ORTHOLAN_NAME_URI: i32 = 6;
pub const ORTHOLAN_NAME_ADDRESS: i32 = 7;
pub const ORTHOLAN_NAME_REGISTERED_ID: i32 = 8;
pub const ORTHOLAN_HOST_UNDERSCORES: i32 = 1;
pub const ORTHOLAN_HOST_TRAILING_DOT: i32 = 2;
pub const ORTHOLAN_HOST_EDGE_HYPHENS: i32 = 4;
pub const ORTHOLAN_HOST_WILDCARD: i32 = 8;
pub const ORTHOLAN_ALTERNATIVE_NAMES_VALUE: i32 = 0;
pub const ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL: i32 = 1;
pub const ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION: i32 = 2;
pub const ORTHOLAN_KEY_USAGE_DIGITAL_SIGNATURE: i32 = 1;
pub const ORTHOLAN_KEY_USAGE_NON_REPUDIATION: i32 = 2;
pub const ORTHOLAN_KEY_USAGE_KEY_ENCIPHERMENT: i32 = 4;
pub const ORTHOLAN_KEY_USAGE_DATA_ENCIPHERMENT: i32 = 8;
pub const ORTHOLAN_KEY_USAGE_KEY_AGREEMENT: i32 = 16;
pub const ORTHOLAN_KEY_USAGE_KEY_CERT_SIGN: i32 = 32;
pub const ORTHOLAN_KEY_USAGE_CRL_SIGN: i32 = 64;
pub const ORTHOLAN_KEY_USAGE_ENCIPHER_ONLY: i32 = 128;
pub const ORTHOLAN_KEY_USAGE_DECIPHER_ONLY: i32 = 256;
pub const ORTHOLAN_CRL_KEY_COMPROMISE: i32 = 2;
pub const ORTHOLAN_CRL_CA_COMPROMISE: i32 = 4;
pub const ORTHOLAN_CRL_AFFILIATION_CHANGED: i32 = 8;
pub const ORTHOLAN_CRL_SUPERSEDED: i32 = 16;
pub const ORTHOLAN_CRL_CESSATION_OF_OPERATION: i32 = 32;
pub const ORTHOLAN_CRL_CERTIFICATE_HOLD: i32 = 64;
pub const ORTHOLAN_CRL_PRIVILEGE_WITHDRAWN: i32 = 128;
pub const ORTHOLAN_CRL_AA_COMPROMISE: i32 = 256;
pub const ORTHOLAN_ENTRUST_KEY_UPDATE_ALLOWED: i32 = 1;
pub const ORTHOLAN_ENTRUST_NEW_EXTENSIONS: i32 = 2;
pub const ORTHOLAN_ENTRUST_PKIX_CERTIFICATE: i32 = 4;
pub const ORTHOLAN_ENTRUST_ENTERPRISE_CATEGORY: i32 = 8;
pub const ORTHOLAN_ENTRUST_WEB_CATEGORY: i32 = 16;
pub const ORTHOLAN_ENTRUST_SET_CATEGORY: i32 = 32;
pub const ORTHOLAN_REASON_EXTENSION_TYPE: i32 = 400;
pub const ORTHOLAN_REASON_TLS_SIZE: i32 = 401;
pub const ORTHOLAN_REASON_JSON: i32 = 402;
pub const ORTHOLAN_REASON_JSON_TWICE: i32 = 403;
pub const ORTHOLAN_REASON_JSON_DEPTH: i32 = 404;
pub const ORTHOLAN_REASON_JSON_FORM: i32 = 405;
pub const ORTHOLAN_REASON_JSON_MEMBER: i32 = 406;
pub const ORTHOLAN_REASON_JSON_LACKS: i32 = 407;
pub const ORTHOLAN_REASON_JSON_WORD: i32 = 408;
pub const ORTHOLAN_REASON_JSON_NUMBER: i32 = 409;
pub const ORTHOLAN_REASON_JSON_TEXT: i32 = 410;
pub const ORTHOLAN_REASON_JSON_DIFFERENT: i32 = 411;
pub const ORTHOLAN_REASON_NO_MATCH: i32 = 200;
pub const ORTHOLAN_REASON_NO_ALTERNATIVE_NAMES: i32 = 201;
pub const ORTHOLAN_REASON_NO_CERTIFICATE: i32 = 202;
pub const ORTHOLAN_REASON_OTHER_KIND: i32 = 203;
pub const ORTHOLAN_REASON_OTHER_HOST: i32 = 204;
pub const ORTHOLAN_REASON_WILDCARD_LABELS: i32 = 205;
pub const ORTHOLAN_REASON_OTHER_ADDRESS: i32 = 206;
pub const ORTHOLAN_REASON_OTHER_FAMILY: i32 = 207;
pub const ORTHOLAN_REASON_OTHER_LOCAL_PART: i32 = 208;
pub const ORTHOLAN_REASON_OTHER_SCHEME: i32 = 209;
pub const ORTHOLAN_REASON_OTHER_SERVICE_NAME: i32 = 210;
pub const ORTHOLAN_REASON_HOST_IS_ADDRESS: i32 = 211;
pub const ORTHOLAN_REASON_URI_HOST: i32 = 212;
pub const ORTHOLAN_REASON_ASCII_LOCAL_PART: i32 = 213;
pub const ORTHOLAN_REFERENCE_HOST: i32 = 1;
pub const ORTHOLAN_REFERENCE_ADDRESS: i32 = 2;
pub const ORTHOLAN_REFERENCE_MAILBOX: i32 = 3;
pub const ORTHOLAN_REFERENCE_URI: i32 = 4;
pub const ORTHOLAN_REFERENCE_SERVICE: i32 = 5;
pub const ORTHOLAN_IDENTIFY_NO_UNDERSCORE: i32 = 1;
pub const ORTHOLAN_MATCH_RFC5280: i32 = 0;
pub const ORTHOLAN_MATCH_ASCII_CASE: i32 = 1;
pub const ORTHOLAN_MATCH_OCTETS: i32 = 2;
pub const ORTHOLAN_MATCH_ANY_ORDER: i32 = 256;
pub const ORTHOLAN_REASON_RDN_COUNT: i32 = 180;
pub const ORTHOLAN_REASON_RDN_SIZE: i32 = 181;
pub const ORTHOLAN_REASON_ATTRIBUTE_TYPE: i32 = 182;
pub const ORTHOLAN_REASON_VALUE: i32 = 183;
pub const ORTHOLAN_REASON_RDN: i32 = 184;
pub const ORTHOLAN_REASON_VALUE_TYPE: i32 = 185;
pub const ORTHOLAN_REASON_VALUE_TEXT: i32 = 186;
pub const ORTHOLAN_REASON_VALUE_UNDEFINED: i32 = 187;
pub const ORTHOLAN_REASON_VALUE_TELETEX: i32 = 188;
pub const ORTHOLAN_MET_END: u32 = 4294967295;
pub const ORTHOLAN_NO_PLACE: usize = usize::MAX;
pub const ORTHOLAN_DEFAULT_BUDGET: u64 = 16777216;

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_octets {
    pub data: *const u8,
    pub size: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_text {
    pub data: *const c_char,
    pub size: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_refusal {
    pub reason: ortholan_reason,
    pub met: u32,
    pub expected: u32,
    pub offset: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_attribute_type {
    pub oid: ortholan_octets,
    pub name: ortholan_text,
    pub long_name: ortholan_text,
    pub aliases: ortholan_text,
    pub syntax: i32,
    pub bound: u32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_certificate_view {
    pub kind: i32,
    pub der: ortholan_octets,
    pub subject: ortholan_octets,
    pub issuer: ortholan_octets,
    pub serial: ortholan_octets,
    pub not_before: ortholan_octets,
    pub not_after: ortholan_octets,
    pub extensions: ortholan_octets,
    pub extension_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_extension_view {
    pub oid: ortholan_octets,
    pub value: ortholan_octets,
    pub bytes: ortholan_octets,
    pub critical: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_pem_block {
    pub label: ortholan_text,
    pub base64: ortholan_text,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_check_rule {
    pub name: *const c_char,
    pub section: *const c_char,
    pub sentence: *const c_char,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_fault {
    pub rule: *const c_char,
    pub section: *const c_char,
    pub sentence: *const c_char,
    pub extension: ortholan_octets,
    pub part: ortholan_octets,
    pub refusal: ortholan_refusal,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_name_view {
    pub der: ortholan_octets,
    pub rdn_count: usize,
    pub attribute_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_attribute_view {
    pub r#type: ortholan_octets,
    pub value: ortholan_octets,
    pub content: ortholan_octets,
    pub rdn: usize,
    pub identifier: u32,
    pub begins_rdn: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_name_cursor {
    pub index: usize,
    pub offset: usize,
    pub rdn: usize,
    pub rdn_end: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_type_name {
    pub name: ortholan_text,
    pub oid: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_rfc4514_options {
    pub order: i32,
    pub strings: i32,
    pub long_names: i32,
    pub exact: i32,
    pub names: *const ortholan_type_name,
    pub name_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_text_error {
    pub reason: ortholan_reason,
    pub offset: usize,
    pub size: usize,
    pub character: usize,
    pub expected: *const c_char,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_column {
    pub data: *const u8,
    pub size: usize,
    pub offsets: *const i64,
    pub count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_column_room {
    pub data: *mut u8,
    pub size: usize,
    pub offsets: *mut i64,
    pub reasons: *mut ortholan_reason,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_finding {
    pub reason: ortholan_reason,
    pub verdict: ortholan_verdict,
    pub certificate: usize,
    pub authority: usize,
    pub place: i32,
    pub name: ortholan_octets,
    pub subtree: ortholan_octets,
    pub subtree_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_permit_options {
    pub budget: u64,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_new_distribution_point {
    pub full_name: *const ortholan_text,
    pub full_name_count: usize,
    pub reasons: u32,
    pub crl_issuer: *const ortholan_text,
    pub crl_issuer_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_new_access_description {
    pub method: ortholan_octets,
    pub location: ortholan_text,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_new_policy {
    pub oid: ortholan_octets,
    pub cps: ortholan_text,
    pub notice: ortholan_text,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_general_name_view {
    pub kind: i32,
    pub other: i32,
    pub bytes: ortholan_octets,
    pub content: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_general_names_view {
    pub der: ortholan_octets,
    pub names: ortholan_octets,
    pub count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_mailbox {
    pub local: ortholan_text,
    pub host: ortholan_text,
    pub address: [u8; 16],
    pub address_size: usize,
    pub has_ascii_local: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_uri {
    pub scheme: ortholan_text,
    pub userinfo: ortholan_text,
    pub host: ortholan_text,
    pub port: ortholan_text,
    pub rest: ortholan_text,
    pub address: [u8; 16],
    pub address_size: usize,
    pub has_authority: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_other_name {
    pub kind: i32,
    pub identifier: u32,
    pub r#type: ortholan_octets,
    pub value: ortholan_octets,
    pub text: ortholan_text,
    pub oid: ortholan_octets,
    pub octets: ortholan_octets,
    pub components: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_edi_party {
    pub assigner: ortholan_octets,
    pub party: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_integer {
    pub content: ortholan_octets,
    pub value: i64,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_bits {
    pub content: ortholan_octets,
    pub flags: u32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_string {
    pub content: ortholan_octets,
    pub identifier: u32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_moment {
    pub seconds: i64,
    pub is_there: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_list {
    pub elements: ortholan_octets,
    pub count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_basic_constraints {
    pub is_authority: i32,
    pub path_length: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_authority_key_identifier {
    pub key_identifier: ortholan_octets,
    pub issuer: ortholan_general_names_view,
    pub serial_number: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_key_usage_period {
    pub not_before: ortholan_moment,
    pub not_after: ortholan_moment,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_policy {
    pub oid: ortholan_octets,
    pub qualifiers: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_policy_qualifier {
    pub oid: ortholan_octets,
    pub value: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_notice_reference {
    pub organization: ortholan_string,
    pub numbers: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_user_notice {
    pub reference: ortholan_notice_reference,
    pub text: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_policy_mapping {
    pub issuer_policy: ortholan_octets,
    pub subject_policy: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_policy_constraints {
    pub require_explicit_policy: ortholan_integer,
    pub inhibit_policy_mapping: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_name_subtrees {
    pub permitted: ortholan_list,
    pub excluded: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_name_subtree {
    pub base: ortholan_octets,
    pub minimum: ortholan_integer,
    pub maximum: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_distribution_point_name {
    pub full_name: ortholan_general_names_view,
    pub relative_name: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_distribution_point {
    pub name: ortholan_distribution_point_name,
    pub reasons: ortholan_bits,
    pub crl_issuer: ortholan_general_names_view,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_issuing_distribution_point {
    pub name: ortholan_distribution_point_name,
    pub only_user_certificates: i32,
    pub only_authority_certificates: i32,
    pub is_indirect: i32,
    pub only_attribute_certificates: i32,
    pub only_some_reasons: ortholan_bits,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_access_description {
    pub method: ortholan_octets,
    pub location: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_directory_attribute {
    pub r#type: ortholan_octets,
    pub values: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_signed_timestamp {
    pub bytes: ortholan_octets,
    pub version: u64,
    pub log_id: ortholan_octets,
    pub time: u64,
    pub extensions: ortholan_octets,
    pub hash: u64,
    pub signature_algorithm: u64,
    pub signature: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_qc_statement {
    pub oid: ortholan_octets,
    pub info: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_qc_currency {
    pub alphabetic: ortholan_string,
    pub numeric: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_qc_limit {
    pub currency: ortholan_qc_currency,
    pub amount: ortholan_integer,
    pub exponent: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_qc_place {
    pub url: ortholan_string,
    pub language: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_qc_semantics {
    pub oid: ortholan_octets,
    pub authorities: ortholan_general_names_view,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_psd2_statement {
    pub roles: ortholan_list,
    pub authority: ortholan_string,
    pub authority_identifier: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_psd2_role {
    pub oid: ortholan_octets,
    pub name: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_organization_identifier {
    pub scheme: ortholan_string,
    pub country: ortholan_string,
    pub state: ortholan_string,
    pub reference: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_certificate_template {
    pub oid: ortholan_octets,
    pub major_version: ortholan_integer,
    pub minor_version: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_security_name {
    pub r#type: ortholan_octets,
    pub text: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_security_identifier {
    pub name: ortholan_security_name,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_capability {
    pub oid: ortholan_octets,
    pub parameters: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_algorithm {
    pub oid: ortholan_octets,
    pub parameters: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_hash {
    pub algorithm: ortholan_algorithm,
    pub value: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype {
    pub images: ortholan_list,
    pub audio: ortholan_list,
    pub reference_hashes: ortholan_list,
    pub reference_uris: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotypes {
    pub communities: ortholan_list,
    pub issuer: ortholan_logotype,
    pub subject: ortholan_logotype,
    pub others: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_other_logotype {
    pub r#type: ortholan_octets,
    pub logotype: ortholan_logotype,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype_file {
    pub media_type: ortholan_string,
    pub hashes: ortholan_list,
    pub uris: ortholan_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype_image_information {
    pub r#type: ortholan_integer,
    pub file_size: ortholan_integer,
    pub width: ortholan_integer,
    pub height: ortholan_integer,
    pub bits: ortholan_integer,
    pub table_size: ortholan_integer,
    pub language: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype_image {
    pub file: ortholan_logotype_file,
    pub information: ortholan_logotype_image_information,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype_audio_information {
    pub file_size: ortholan_integer,
    pub play_time: ortholan_integer,
    pub channels: ortholan_integer,
    pub sample_rate: ortholan_integer,
    pub language: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_logotype_audio {
    pub file: ortholan_logotype_file,
    pub information: ortholan_logotype_audio_information,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_biometric_data {
    pub r#type: ortholan_integer,
    pub oid: ortholan_octets,
    pub hash_algorithm: ortholan_algorithm,
    pub hash: ortholan_octets,
    pub uri: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_address_family {
    pub family: ortholan_octets,
    pub ranges: ortholan_list,
    pub is_inherited: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_address_range {
    pub prefix: ortholan_octets,
    pub first: ortholan_octets,
    pub last: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_autonomous_system_list {
    pub systems: ortholan_list,
    pub is_inherited: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_autonomous_systems {
    pub numbers: ortholan_autonomous_system_list,
    pub routing_domains: ortholan_autonomous_system_list,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_autonomous_system {
    pub first: ortholan_integer,
    pub last: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_entrust_version {
    pub version: ortholan_octets,
    pub flags: ortholan_bits,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_proxy_policy {
    pub language: ortholan_octets,
    pub policy: ortholan_octets,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_proxy_information {
    pub path_length: ortholan_integer,
    pub policy: ortholan_proxy_policy,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_issuer_sign_tool {
    pub tool: ortholan_string,
    pub authority_tool: ortholan_string,
    pub tool_certificate: ortholan_string,
    pub authority_tool_certificate: ortholan_string,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_adobe_timestamp {
    pub version: ortholan_integer,
    pub location: ortholan_octets,
    pub needs_authentication: i32,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_adobe_archive {
    pub version: ortholan_integer,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_extension_type {
    pub oid: ortholan_octets,
    pub name: *const c_char,
    pub title: *const c_char,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_reference {
    pub kind: i32,
    pub choices: u32,
    pub text: ortholan_text,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_identity {
    pub verdict: ortholan_verdict,
    pub reason: ortholan_reason,
    pub name: ortholan_octets,
    pub index: usize,
    pub names: ortholan_octets,
    pub name_count: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_presented_name {
    pub bytes: ortholan_octets,
    pub reason: ortholan_reason,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_match_place {
    pub rdn: usize,
    pub attribute: usize,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_match {
    pub verdict: ortholan_verdict,
    pub reason: ortholan_reason,
    pub side: i32,
    pub first: ortholan_match_place,
    pub second: ortholan_match_place,
    pub r#type: ortholan_octets,
    pub refusal: ortholan_refusal,
}

#[repr(C)]
#[derive(Clone, Copy, Debug)]
pub struct ortholan_new_attribute {
    pub oid: ortholan_octets,
    pub r#type: ortholan_text,
    pub text: ortholan_text,
    pub element: ortholan_octets,
    pub string_type: u32,
    pub joins_rdn: i32,
}

extern "C" {
    pub fn ortholan_refusal_sentence(
        refusal: *const ortholan_refusal,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_reason_sentence(
        reason: ortholan_reason,
    ) -> *const c_char;
    pub fn ortholan_reason_name(
        reason: ortholan_reason,
    ) -> *const c_char;
    pub fn ortholan_oid_to_text(
        oid: ortholan_octets,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_oid_from_text(
        text: ortholan_text,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_attribute_type_count(
    ) -> usize;
    pub fn ortholan_attribute_type_at(
        index: usize,
        r#type: *mut ortholan_attribute_type,
    ) -> ortholan_reason;
    pub fn ortholan_attribute_type_of(
        oid: ortholan_octets,
        r#type: *mut ortholan_attribute_type,
    ) -> ortholan_reason;
    pub fn ortholan_attribute_type_named(
        name: ortholan_text,
        r#type: *mut ortholan_attribute_type,
    ) -> ortholan_reason;
    pub fn ortholan_certificate_view_read(
        der: ortholan_octets,
        mode: i32,
        certificate: *mut ortholan_certificate_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_certificate_view_next_extension(
        certificate: *const ortholan_certificate_view,
        offset: *mut usize,
        extension: *mut ortholan_extension_view,
    ) -> ortholan_reason;
    pub fn ortholan_certificate_view_extension(
        certificate: *const ortholan_certificate_view,
        oid: ortholan_octets,
        extension: *mut ortholan_extension_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extensions_view_read(
        der: ortholan_octets,
        mode: i32,
        extensions: *mut ortholan_certificate_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extensions_write(
        extensions: *const ortholan_extension_view,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extension_request_write(
        extensions: ortholan_octets,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_time_to_text(
        time: ortholan_octets,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_pem_next(
        text: ortholan_text,
        offset: *mut usize,
        block: *mut ortholan_pem_block,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_pem_octets(
        block: *const ortholan_pem_block,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_check(
        der: ortholan_octets,
        faults: *mut ortholan_fault,
        room: usize,
        count: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_check_rule_at(
        index: usize,
        rule: *mut ortholan_check_rule,
    ) -> ortholan_reason;
    pub fn ortholan_name_view_read(
        der: ortholan_octets,
        mode: i32,
        name: *mut ortholan_name_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_view_attribute(
        name: *const ortholan_name_view,
        index: usize,
        cursor: *mut ortholan_name_cursor,
        attribute: *mut ortholan_attribute_view,
    ) -> ortholan_reason;
    pub fn ortholan_attribute_view_text(
        attribute: *const ortholan_attribute_view,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_rfc4514_write(
        name: *const ortholan_name_view,
        options: *const ortholan_rfc4514_options,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_rfc4514_read(
        text: ortholan_text,
        options: *const ortholan_rfc4514_options,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_rfc4514_explain(
        text: ortholan_text,
        refusal: *const ortholan_refusal,
        error: *mut ortholan_text_error,
    ) -> ortholan_reason;
    pub fn ortholan_rfc4514_sentence(
        text: ortholan_text,
        refusal: *const ortholan_refusal,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_column_rfc4514_write(
        names: *const ortholan_column,
        mode: i32,
        options: *const ortholan_rfc4514_options,
        room: *const ortholan_column_room,
        done: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_column_rfc4514_read(
        texts: *const ortholan_column,
        options: *const ortholan_rfc4514_options,
        room: *const ortholan_column_room,
        done: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_column_match_key(
        names: *const ortholan_column,
        rule: i32,
        room: *const ortholan_column_room,
        done: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_column_general_name_to_text(
        names: *const ortholan_column,
        room: *const ortholan_column_room,
        done: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_permits(
        chain: *const ortholan_octets,
        chain_size: usize,
        options: *const ortholan_permit_options,
        verdict: *mut ortholan_verdict,
        findings: *mut ortholan_finding,
        room: usize,
        count: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_permits_names(
        constraints: ortholan_octets,
        subject: ortholan_octets,
        alternative_names: ortholan_octets,
        options: *const ortholan_permit_options,
        verdict: *mut ortholan_verdict,
        findings: *mut ortholan_finding,
        room: usize,
        count: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_finding_sentence(
        finding: *const ortholan_finding,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_basic_constraints_write(
        is_authority: i32,
        path_length: i64,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_bits_write(
        flags: u32,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_oids_write(
        oids: *const ortholan_octets,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_octet_string_write(
        octets: ortholan_octets,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_authority_key_identifier_write(
        key_identifier: ortholan_octets,
        issuer: *const ortholan_text,
        issuer_count: usize,
        serial_number: ortholan_octets,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_integer_write(
        number: i64,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_tls_features_write(
        features: *const u16,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_distribution_points_write(
        points: *const ortholan_new_distribution_point,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_information_access_write(
        descriptions: *const ortholan_new_access_description,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_policies_write(
        policies: *const ortholan_new_policy,
        count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_name_subtrees_write(
        permitted: *const ortholan_text,
        permitted_count: usize,
        excluded: *const ortholan_text,
        excluded_count: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_general_names_view_read(
        der: ortholan_octets,
        mode: i32,
        names: *mut ortholan_general_names_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_general_names_view_next(
        names: *const ortholan_general_names_view,
        offset: *mut usize,
        name: *mut ortholan_general_name_view,
    ) -> ortholan_reason;
    pub fn ortholan_general_name_view_read(
        der: ortholan_octets,
        mode: i32,
        name: *mut ortholan_general_name_view,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_mailbox_read(
        text: ortholan_text,
        has_utf8: i32,
        mailbox: *mut ortholan_mailbox,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_uri_read(
        text: ortholan_text,
        uri: *mut ortholan_uri,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_other_name_read(
        name: *const ortholan_general_name_view,
        other: *mut ortholan_other_name,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_edi_party_read(
        name: *const ortholan_general_name_view,
        party: *mut ortholan_edi_party,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_host_check(
        host: ortholan_text,
        choices: u32,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_address_to_text(
        address: ortholan_octets,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_address_from_text(
        text: ortholan_text,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_general_name_to_text(
        name: ortholan_octets,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_general_name_from_text(
        text: ortholan_text,
        allows_range: i32,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_alternative_names_from_text(
        texts: *const ortholan_text,
        count: usize,
        form: i32,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        wrong: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extension_string_text(
        string: *const ortholan_string,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_oid_next(
        list: *const ortholan_list,
        offset: *mut usize,
        oid: *mut ortholan_octets,
    ) -> ortholan_reason;
    pub fn ortholan_integer_next(
        list: *const ortholan_list,
        offset: *mut usize,
        number: *mut ortholan_integer,
    ) -> ortholan_reason;
    pub fn ortholan_string_next(
        list: *const ortholan_list,
        offset: *mut usize,
        string: *mut ortholan_string,
    ) -> ortholan_reason;
    pub fn ortholan_element_next(
        list: *const ortholan_list,
        offset: *mut usize,
        element: *mut ortholan_octets,
    ) -> ortholan_reason;
    pub fn ortholan_integer_read(
        value: ortholan_octets,
        mode: i32,
        number: *mut ortholan_integer,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_octet_string_read(
        value: ortholan_octets,
        mode: i32,
        octets: *mut ortholan_octets,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_string_read(
        value: ortholan_octets,
        mode: i32,
        string: *mut ortholan_string,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_moment_read(
        value: ortholan_octets,
        mode: i32,
        moment: *mut ortholan_moment,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_null_read(
        value: ortholan_octets,
        mode: i32,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_oids_read(
        value: ortholan_octets,
        mode: i32,
        oids: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_integers_read(
        value: ortholan_octets,
        mode: i32,
        numbers: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_bits_read(
        value: ortholan_octets,
        mode: i32,
        bits: *mut ortholan_bits,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_basic_constraints_read(
        value: ortholan_octets,
        mode: i32,
        constraints: *mut ortholan_basic_constraints,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_authority_key_identifier_read(
        value: ortholan_octets,
        mode: i32,
        identifier: *mut ortholan_authority_key_identifier,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_key_usage_period_read(
        value: ortholan_octets,
        mode: i32,
        period: *mut ortholan_key_usage_period,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_policies_read(
        value: ortholan_octets,
        mode: i32,
        policies: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_policy_next(
        policies: *const ortholan_list,
        offset: *mut usize,
        policy: *mut ortholan_policy,
    ) -> ortholan_reason;
    pub fn ortholan_policy_qualifier_next(
        qualifiers: *const ortholan_list,
        offset: *mut usize,
        qualifier: *mut ortholan_policy_qualifier,
    ) -> ortholan_reason;
    pub fn ortholan_user_notice_read(
        value: ortholan_octets,
        mode: i32,
        notice: *mut ortholan_user_notice,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_policy_mappings_read(
        value: ortholan_octets,
        mode: i32,
        mappings: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_policy_mapping_next(
        mappings: *const ortholan_list,
        offset: *mut usize,
        mapping: *mut ortholan_policy_mapping,
    ) -> ortholan_reason;
    pub fn ortholan_policy_constraints_read(
        value: ortholan_octets,
        mode: i32,
        constraints: *mut ortholan_policy_constraints,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_subtrees_read(
        value: ortholan_octets,
        mode: i32,
        subtrees: *mut ortholan_name_subtrees,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_subtree_next(
        subtrees: *const ortholan_list,
        offset: *mut usize,
        subtree: *mut ortholan_name_subtree,
    ) -> ortholan_reason;
    pub fn ortholan_distribution_points_read(
        value: ortholan_octets,
        mode: i32,
        points: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_distribution_point_next(
        points: *const ortholan_list,
        offset: *mut usize,
        point: *mut ortholan_distribution_point,
    ) -> ortholan_reason;
    pub fn ortholan_issuing_distribution_point_read(
        value: ortholan_octets,
        mode: i32,
        point: *mut ortholan_issuing_distribution_point,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_information_access_read(
        value: ortholan_octets,
        mode: i32,
        descriptions: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_access_description_next(
        descriptions: *const ortholan_list,
        offset: *mut usize,
        description: *mut ortholan_access_description,
    ) -> ortholan_reason;
    pub fn ortholan_directory_attributes_read(
        value: ortholan_octets,
        mode: i32,
        attributes: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_directory_attribute_next(
        attributes: *const ortholan_list,
        offset: *mut usize,
        attribute: *mut ortholan_directory_attribute,
    ) -> ortholan_reason;
    pub fn ortholan_signed_timestamps_read(
        value: ortholan_octets,
        mode: i32,
        timestamps: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_signed_timestamp_next(
        timestamps: *const ortholan_list,
        offset: *mut usize,
        timestamp: *mut ortholan_signed_timestamp,
    ) -> ortholan_reason;
    pub fn ortholan_qc_statements_read(
        value: ortholan_octets,
        mode: i32,
        statements: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_qc_statement_next(
        statements: *const ortholan_list,
        offset: *mut usize,
        statement: *mut ortholan_qc_statement,
    ) -> ortholan_reason;
    pub fn ortholan_qc_limit_read(
        info: ortholan_octets,
        mode: i32,
        limit: *mut ortholan_qc_limit,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_qc_places_read(
        info: ortholan_octets,
        mode: i32,
        places: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_qc_place_next(
        places: *const ortholan_list,
        offset: *mut usize,
        place: *mut ortholan_qc_place,
    ) -> ortholan_reason;
    pub fn ortholan_qc_countries_read(
        info: ortholan_octets,
        mode: i32,
        countries: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_qc_semantics_read(
        info: ortholan_octets,
        mode: i32,
        semantics: *mut ortholan_qc_semantics,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_psd2_statement_read(
        info: ortholan_octets,
        mode: i32,
        statement: *mut ortholan_psd2_statement,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_psd2_role_next(
        roles: *const ortholan_list,
        offset: *mut usize,
        role: *mut ortholan_psd2_role,
    ) -> ortholan_reason;
    pub fn ortholan_organization_identifier_read(
        value: ortholan_octets,
        mode: i32,
        identifier: *mut ortholan_organization_identifier,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_certificate_template_read(
        value: ortholan_octets,
        mode: i32,
        made_by: *mut ortholan_certificate_template,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_security_identifier_read(
        value: ortholan_octets,
        mode: i32,
        identifier: *mut ortholan_security_identifier,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_capabilities_read(
        value: ortholan_octets,
        mode: i32,
        capabilities: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_capability_next(
        capabilities: *const ortholan_list,
        offset: *mut usize,
        capability: *mut ortholan_capability,
    ) -> ortholan_reason;
    pub fn ortholan_logotypes_read(
        value: ortholan_octets,
        mode: i32,
        logotypes: *mut ortholan_logotypes,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_logotype_next(
        logotypes: *const ortholan_list,
        offset: *mut usize,
        logotype: *mut ortholan_logotype,
    ) -> ortholan_reason;
    pub fn ortholan_other_logotype_next(
        logotypes: *const ortholan_list,
        offset: *mut usize,
        logotype: *mut ortholan_other_logotype,
    ) -> ortholan_reason;
    pub fn ortholan_logotype_image_next(
        images: *const ortholan_list,
        offset: *mut usize,
        image: *mut ortholan_logotype_image,
    ) -> ortholan_reason;
    pub fn ortholan_logotype_audio_next(
        audio: *const ortholan_list,
        offset: *mut usize,
        recording: *mut ortholan_logotype_audio,
    ) -> ortholan_reason;
    pub fn ortholan_hash_next(
        hashes: *const ortholan_list,
        offset: *mut usize,
        hash: *mut ortholan_hash,
    ) -> ortholan_reason;
    pub fn ortholan_biometric_information_read(
        value: ortholan_octets,
        mode: i32,
        data: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_biometric_data_next(
        list: *const ortholan_list,
        offset: *mut usize,
        data: *mut ortholan_biometric_data,
    ) -> ortholan_reason;
    pub fn ortholan_address_families_read(
        value: ortholan_octets,
        mode: i32,
        families: *mut ortholan_list,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_address_family_next(
        families: *const ortholan_list,
        offset: *mut usize,
        family: *mut ortholan_address_family,
    ) -> ortholan_reason;
    pub fn ortholan_address_range_next(
        ranges: *const ortholan_list,
        offset: *mut usize,
        range: *mut ortholan_address_range,
    ) -> ortholan_reason;
    pub fn ortholan_address_range_ends(
        family: ortholan_octets,
        range: *const ortholan_address_range,
        first: *mut u8,
        last: *mut u8,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_autonomous_systems_read(
        value: ortholan_octets,
        mode: i32,
        systems: *mut ortholan_autonomous_systems,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_autonomous_system_next(
        systems: *const ortholan_list,
        offset: *mut usize,
        system: *mut ortholan_autonomous_system,
    ) -> ortholan_reason;
    pub fn ortholan_entrust_version_read(
        value: ortholan_octets,
        mode: i32,
        version: *mut ortholan_entrust_version,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_proxy_information_read(
        value: ortholan_octets,
        mode: i32,
        information: *mut ortholan_proxy_information,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_issuer_sign_tool_read(
        value: ortholan_octets,
        mode: i32,
        tools: *mut ortholan_issuer_sign_tool,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_adobe_timestamp_read(
        value: ortholan_octets,
        mode: i32,
        timestamp: *mut ortholan_adobe_timestamp,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_adobe_archive_read(
        value: ortholan_octets,
        mode: i32,
        archive: *mut ortholan_adobe_archive,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extension_type_at(
        index: usize,
        r#type: *mut ortholan_extension_type,
    ) -> ortholan_reason;
    pub fn ortholan_extension_type_of(
        oid: ortholan_octets,
        r#type: *mut ortholan_extension_type,
    ) -> ortholan_reason;
    pub fn ortholan_extension_name(
        oid: ortholan_octets,
    ) -> *const c_char;
    pub fn ortholan_extension_oid_from_name(
        name: ortholan_text,
        out: *mut u8,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_extension_json(
        oid: ortholan_octets,
        value: ortholan_octets,
        mode: i32,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extension_text(
        oid: ortholan_octets,
        value: ortholan_octets,
        mode: i32,
        indent: usize,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extensions_json(
        der: ortholan_octets,
        mode: i32,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extension_from_json(
        r#type: ortholan_text,
        json: ortholan_text,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_extensions_from_json(
        json: ortholan_text,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_identify(
        certificate: ortholan_octets,
        reference: *const ortholan_reference,
        identity: *mut ortholan_identity,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_identify_by_names(
        names: ortholan_octets,
        reference: *const ortholan_reference,
        identity: *mut ortholan_identity,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_identity_explain(
        identity: *const ortholan_identity,
        reference: *const ortholan_reference,
        offset: *mut usize,
        presented: *mut ortholan_presented_name,
    ) -> ortholan_reason;
    pub fn ortholan_match_names(
        first: ortholan_octets,
        second: ortholan_octets,
        rule: i32,
        r#match: *mut ortholan_match,
    ) -> ortholan_verdict;
    pub fn ortholan_name_within(
        subtree: ortholan_octets,
        name: ortholan_octets,
        rule: i32,
        r#match: *mut ortholan_match,
    ) -> ortholan_verdict;
    pub fn ortholan_match_sentence(
        r#match: *const ortholan_match,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
    ) -> ortholan_reason;
    pub fn ortholan_match_key(
        name: ortholan_octets,
        rule: i32,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_match_hash(
        key: ortholan_octets,
    ) -> u64;
    pub fn ortholan_prepare_text(
        text: ortholan_text,
        out: *mut c_char,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_build(
        attributes: *const ortholan_new_attribute,
        count: usize,
        options: *const ortholan_rfc4514_options,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_view_replace(
        name: *const ortholan_name_view,
        index: usize,
        attribute: *const ortholan_new_attribute,
        options: *const ortholan_rfc4514_options,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_view_remove(
        name: *const ortholan_name_view,
        index: usize,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
    pub fn ortholan_name_view_insert(
        name: *const ortholan_name_view,
        rdn: usize,
        attribute: *const ortholan_new_attribute,
        options: *const ortholan_rfc4514_options,
        out: *mut u8,
        room: usize,
        size: *mut usize,
        refusal: *mut ortholan_refusal,
    ) -> ortholan_reason;
}
