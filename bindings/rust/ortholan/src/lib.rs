#![doc = include_str!("../../README.md")]
#![warn(missing_docs)]

#[cfg(doctest)]
#[doc = include_str!("../../../../docs/languages.md")]
mod languages {}

mod call;
mod certificate;
mod check;
mod constraints;
mod extension_json;
mod general_name;
mod identity;
mod matching;
mod name;
mod pem;
mod refusal;
mod text_options;
mod verdict;

pub use certificate::{Certificate, CertificateKind, Extension, Extensions};
pub use check::{check, Fault};
pub use constraints::{permits, permits_names, Finding, Permission, PermitOptions};
pub use extension_json::{extension_from_json, extensions_from_json};
pub use general_name::{
    alternative_names, AlternativeNames, GeneralName, GeneralNames, NameKind, OtherNameKind,
};
pub use identity::{identify, identify_by_names, Identity, Mismatch, Reference, ReferenceKind};
pub use matching::{match_names, within, Match, MatchKey, MatchRule};
pub use name::{Attribute, Attributes, Name, NameView};
pub use ortholan_sys as sys;
pub use pem::{pem_blocks, PemBlock, PemBlocks};
pub use refusal::{Reason, Refusal};
pub use text_options::{RdnOrder, StringPolicy, TextOptions};
pub use verdict::{Reading, Verdict};

/// Content octets of an OBJECT IDENTIFIER of dotted text (X.690 8.19); arcs of any size.
pub fn oid_from_text(text: &str) -> Result<Vec<u8>, Refusal> {
    call::plain(|out, room, size| unsafe {
        sys::ortholan_oid_from_text(call::text(text), out, room, size)
    })
}

/// Dotted text of an OBJECT IDENTIFIER's content octets.
pub fn oid_to_text(oid: &[u8]) -> Result<String, Refusal> {
    call::plain(|out, room, size| unsafe {
        sys::ortholan_oid_to_text(call::octets(oid), out.cast(), room, size)
    })
    .map(call::string)
}
