//! What the text of names looks like.

use crate::call;
use crate::refusal::Refusal;
use crate::sys::*;

/// The order of RDNs in a text.
#[derive(Clone, Copy, Debug, Default, PartialEq, Eq)]
pub enum RdnOrder {
    /// The last RDN of the encoding first (RFC 4514 2.1).
    #[default]
    Reversed,
    /// As they stand in the encoding.
    AsEncoded,
}

/// The string type of free text; types that prescribe one, such as C and DC, get theirs.
#[derive(Clone, Copy, Debug, Default, PartialEq, Eq)]
pub enum StringPolicy {
    /// PrintableString where its alphabet allows, else UTF8String.
    #[default]
    PrintableOrUtf8,
    /// UTF8String.
    Utf8,
}

/// What text of RFC 4514 looks like. Text that was written is read back with the same options.
///
/// ```
/// use ortholan::{Name, RdnOrder, TextOptions};
///
/// let options = TextOptions { order: RdnOrder::AsEncoded, ..TextOptions::default() }
///     .with_type("device", "1.2.3.4")?;
/// let name = Name::from_text_as("O=Org,device=7", &options)?;
/// assert_eq!(name.text(&TextOptions::default())?, "1.2.3.4=#130137,O=Org");
/// # Ok::<(), ortholan::Refusal>(())
/// ```
#[derive(Clone, Debug, Default)]
pub struct TextOptions {
    /// The order of RDNs.
    pub order: RdnOrder,
    /// The string type of free text.
    pub strings: StringPolicy,
    /// commonName, not CN.
    pub long_names: bool,
    /// Digits of the encoding where a plain value would not be read as the same octets.
    pub exact: bool,
    /// Names of the caller's own for types, each with the content octets of its identifier; they
    /// come before those that the library knows.
    pub names: Vec<(String, Vec<u8>)>,
}

impl TextOptions {
    /// The same with one more name for a type, by its dotted identifier.
    pub fn with_type(mut self, name: &str, oid: &str) -> Result<Self, Refusal> {
        self.names.push((name.to_owned(), crate::oid_from_text(oid)?));
        Ok(self)
    }

    /// Hands them on as the C functions take them.
    pub(crate) fn with_plain<T>(&self, call: impl FnOnce(&ortholan_rfc4514_options) -> T) -> T {
        let names: Vec<_> = self
            .names
            .iter()
            .map(|(name, oid)| ortholan_type_name {
                name: call::text(name),
                oid: call::octets(oid),
            })
            .collect();
        call(&ortholan_rfc4514_options {
            order: self.order as i32,
            strings: self.strings as i32,
            long_names: self.long_names.into(),
            exact: self.exact.into(),
            names: names.as_ptr(),
            name_count: names.len(),
        })
    }
}
