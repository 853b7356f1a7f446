//! Distinguished names (RFC 5280 4.1.2.4) and their text (RFC 4514).

use crate::call;
use crate::matching::{match_names, within, Match, MatchKey, MatchRule};
use crate::refusal::Refusal;
use crate::sys::*;
use crate::text_options::TextOptions;
use crate::verdict::Reading;
use std::fmt;
use std::hash::{Hash, Hasher};
use std::marker::PhantomData;
use std::str::FromStr;

/// A name over borrowed octets, read once.
#[derive(Clone, Copy)]
pub struct NameView<'a> {
    view: ortholan_name_view,
    octets: PhantomData<&'a [u8]>,
}

// The pointer is that of a shared slice.
unsafe impl Send for NameView<'_> {}
unsafe impl Sync for NameView<'_> {}

impl<'a> NameView<'a> {
    /// Reads a Name in DER that is the whole of `der`.
    pub fn read(der: &'a [u8]) -> Result<Self, Refusal> {
        Self::read_as(der, Reading::Der)
    }

    /// The same, as closely as asked.
    pub fn read_as(der: &'a [u8], reading: Reading) -> Result<Self, Refusal> {
        let view = unsafe {
            call::read(|view, refusal| {
                ortholan_name_view_read(call::octets(der), reading.word(), view, refusal)
            })
        }?;
        Ok(NameView { view, octets: PhantomData })
    }

    /// The whole encoding.
    pub fn der(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.der) }
    }

    /// RelativeDistinguishedNames.
    pub fn rdn_count(&self) -> usize {
        self.view.rdn_count
    }

    /// Whether there is no RDN.
    pub fn is_empty(&self) -> bool {
        self.view.rdn_count == 0
    }

    /// The attributes in the order of the encoding, the most significant RDN first.
    pub fn attributes(&self) -> Attributes<'a> {
        let cursor = ortholan_name_cursor { index: 0, offset: 0, rdn: 0, rdn_end: 0 };
        Attributes { name: *self, index: 0, cursor }
    }

    /// The texts of all attributes of a type, by its dotted identifier ("2.5.4.3" is commonName).
    /// As they stand there: a character that cannot be seen is not escaped.
    pub fn values(&self, oid: &str) -> Vec<String> {
        match crate::oid_from_text(oid) {
            Ok(oid) => self
                .attributes()
                .filter(|attribute| attribute.oid() == oid.as_slice())
                .filter_map(|attribute| attribute.text().ok())
                .collect(),
            Err(_) => Vec::new(),
        }
    }

    /// Text that is safe to show and to log.
    pub fn text(&self, options: &TextOptions) -> Result<String, Refusal> {
        options
            .with_plain(|plain| {
                call::placed(|out, room, size, refusal| unsafe {
                    ortholan_rfc4514_write(&self.view, plain, out.cast(), room, size, refusal)
                })
            })
            .map(call::string)
    }

    /// Whether another name is the same, by RFC 5280 7.1.
    pub fn matches<'b>(&'b self, other: NameView<'b>) -> Match<'b> {
        match_names(self.der(), other.der(), MatchRule::RFC5280)
    }

    /// Whether the name begins with the RDNs of another.
    pub fn is_within<'b>(&'b self, subtree: NameView<'b>) -> Match<'b> {
        within(subtree.der(), self.der(), MatchRule::RFC5280)
    }

    /// The key under which the name is found in maps, by RFC 5280 7.1.
    pub fn key(&self) -> Result<MatchKey, Refusal> {
        MatchKey::of(self.der(), MatchRule::RFC5280)
    }

    /// The name with octets of its own.
    pub fn to_name(&self) -> Name {
        Name {
            der: self.der().to_vec(),
            rdn_count: self.view.rdn_count,
            attribute_count: self.view.attribute_count,
        }
    }
}

/// The text of RFC 4514; of a name whose text is refused the reason, in angle brackets.
impl fmt::Display for NameView<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        match self.text(&TextOptions::default()) {
            Ok(text) => formatter.write_str(&text),
            Err(refusal) => write!(formatter, "<{refusal}>"),
        }
    }
}

impl fmt::Debug for NameView<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        write!(formatter, "NameView({self})")
    }
}

impl<'a> IntoIterator for NameView<'a> {
    type Item = Attribute<'a>;
    type IntoIter = Attributes<'a>;

    fn into_iter(self) -> Attributes<'a> {
        self.attributes()
    }
}

/// The attributes of a name.
#[derive(Clone)]
pub struct Attributes<'a> {
    name: NameView<'a>,
    index: usize,
    cursor: ortholan_name_cursor,
}

impl<'a> Iterator for Attributes<'a> {
    type Item = Attribute<'a>;

    fn next(&mut self) -> Option<Attribute<'a>> {
        let view = unsafe {
            call::read(|view, _| {
                ortholan_name_view_attribute(&self.name.view, self.index, &mut self.cursor, view)
            })
        };
        self.index += 1;
        Some(Attribute { view: view.ok()?, octets: PhantomData })
    }
}

/// One attribute of a name.
#[derive(Clone, Copy)]
pub struct Attribute<'a> {
    view: ortholan_attribute_view,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Attribute<'_> {}
unsafe impl Sync for Attribute<'_> {}

impl<'a> Attribute<'a> {
    /// Content octets of the type's identifier; [`crate::oid_to_text`] shows them.
    pub fn oid(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.r#type) }
    }

    /// The whole element of the value.
    pub fn value(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.value) }
    }

    /// Content octets of the value.
    pub fn content(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.content) }
    }

    /// Identifier octet of the value: 0x13 is PrintableString.
    pub fn identifier(&self) -> u32 {
        self.view.identifier
    }

    /// Index of its RDN.
    pub fn rdn(&self) -> usize {
        self.view.rdn
    }

    /// Whether it is the first of its RDN.
    pub fn begins_rdn(&self) -> bool {
        self.view.begins_rdn != 0
    }

    /// The value of a string.
    pub fn text(&self) -> Result<String, Refusal> {
        call::plain(|out, room, size| unsafe {
            ortholan_attribute_view_text(&self.view, out.cast(), room, size)
        })
        .map(call::string)
    }
}

/// A name with octets of its own. Equality, order and hash are those of the octets; names that RFC
/// 5280 holds for the same have the same [`MatchKey`].
#[derive(Clone)]
pub struct Name {
    der: Vec<u8>,
    rdn_count: usize,
    attribute_count: usize,
}

impl Name {
    /// Reads text of RFC 4514; the refusal says what is expected at which character.
    pub fn from_text(text: &str) -> Result<Self, Refusal> {
        Self::from_text_as(text, &TextOptions::default())
    }

    /// The same with options.
    pub fn from_text_as(text: &str, options: &TextOptions) -> Result<Self, Refusal> {
        let view = call::text(text);
        let mut place = call::no_refusal();
        let read = options.with_plain(|plain| {
            call::filled(|out, room, size| unsafe {
                ortholan_rfc4514_read(view, plain, out, room, size, &mut place)
            })
        });
        let der = read.map_err(|reason| {
            let sentence = call::filled(|out, room, size| unsafe {
                ortholan_rfc4514_sentence(view, &place, out.cast(), room, size)
            });
            let refusal = Refusal::new(reason, place);
            match sentence {
                Ok(sentence) => refusal.with_sentence(call::string(sentence)),
                Err(_) => refusal,
            }
        })?;
        Ok(NameView::read_as(&der, Reading::Structure)?.to_name())
    }

    /// A name of types and values, an RDN each, the most significant first. A type is a name such as CN
    /// or dotted digits; [`Refusal::item`] says which attribute was refused.
    ///
    /// ```
    /// let name = ortholan::Name::build(&[("C", "RU"), ("O", "Org, Ltd"), ("2.5.4.3", "Alpha")])?;
    /// assert_eq!(name.to_string(), "CN=Alpha,O=Org\\, Ltd,C=RU");
    /// # Ok::<(), ortholan::Refusal>(())
    /// ```
    pub fn build(attributes: &[(&str, &str)]) -> Result<Self, Refusal> {
        let plain = |&(name, value): &(&str, &str)| ortholan_new_attribute {
            oid: call::NOTHING,
            r#type: call::text(name),
            text: call::text(value),
            element: call::NOTHING,
            string_type: 0,
            joins_rdn: 0,
        };
        let plain: Vec<_> = attributes.iter().map(plain).collect();
        let der = call::placed(|out, room, size, refusal| unsafe {
            let (first, count) = (plain.as_ptr(), plain.len());
            ortholan_name_build(first, count, std::ptr::null(), out, room, size, refusal)
        })
        .map_err(|refusal| {
            let item = refusal.met() as usize;
            refusal.with_item(item)
        })?;
        Ok(NameView::read_as(&der, Reading::Structure)?.to_name())
    }

    /// Reads a Name in DER that is the whole of `der`.
    pub fn from_der(der: &[u8]) -> Result<Self, Refusal> {
        Ok(NameView::read(der)?.to_name())
    }

    /// The whole encoding.
    pub fn der(&self) -> &[u8] {
        &self.der
    }

    /// The name as a view, for everything that a view can tell.
    pub fn view(&self) -> NameView<'_> {
        let view = ortholan_name_view {
            der: call::octets(&self.der),
            rdn_count: self.rdn_count,
            attribute_count: self.attribute_count,
        };
        NameView { view, octets: PhantomData }
    }

    /// Text that is safe to show and to log.
    pub fn text(&self, options: &TextOptions) -> Result<String, Refusal> {
        self.view().text(options)
    }
}

impl FromStr for Name {
    type Err = Refusal;

    fn from_str(text: &str) -> Result<Self, Refusal> {
        Self::from_text(text)
    }
}

impl fmt::Display for Name {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        self.view().fmt(formatter)
    }
}

impl fmt::Debug for Name {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        write!(formatter, "Name({self})")
    }
}

impl PartialEq for Name {
    fn eq(&self, other: &Self) -> bool {
        self.der == other.der
    }
}

impl Eq for Name {}

impl PartialOrd for Name {
    fn partial_cmp(&self, other: &Self) -> Option<std::cmp::Ordering> {
        Some(self.cmp(other))
    }
}

impl Ord for Name {
    fn cmp(&self, other: &Self) -> std::cmp::Ordering {
        self.der.cmp(&other.der)
    }
}

impl Hash for Name {
    fn hash<H: Hasher>(&self, state: &mut H) {
        self.der.hash(state);
    }
}
