//! General names (RFC 5280 4.2.1.6): hosts, mailboxes, URIs, addresses, other names.

use crate::call;
use crate::name::NameView;
use crate::refusal::Refusal;
use crate::sys::*;
use crate::verdict::Reading;
use std::fmt;
use std::marker::PhantomData;
use std::net::IpAddr;

macro_rules! kinds {
    ($(#[$about:meta])* $kind:ident, else $other:ident: $($number:path => $name:ident, $says:literal;)*) => {
        $(#[$about])*
        #[derive(Clone, Copy, Debug, PartialEq, Eq, Hash)]
        pub enum $kind {
            $(#[doc = $says] $name,)*
        }

        impl $kind {
            fn of(number: i32) -> Self {
                match number {
                    $($number => $kind::$name,)*
                    _ => $kind::$other,
                }
            }
        }
    };
}

kinds! {
    /// The nine kinds (RFC 5280 4.2.1.6).
    NameKind, else Other:
    ORTHOLAN_NAME_OTHER => Other, "An other name; [`GeneralName::other_kind`] says which.";
    ORTHOLAN_NAME_MAIL => Mail, "A mailbox, rfc822Name.";
    ORTHOLAN_NAME_DNS => Dns, "A DNS name.";
    ORTHOLAN_NAME_X400 => X400, "An X.400 address.";
    ORTHOLAN_NAME_DIRECTORY => Directory, "A distinguished name.";
    ORTHOLAN_NAME_EDI_PARTY => EdiParty, "An EDIPartyName.";
    ORTHOLAN_NAME_URI => Uri, "A URI.";
    ORTHOLAN_NAME_ADDRESS => Address, "An address, in name constraints with its mask.";
    ORTHOLAN_NAME_REGISTERED_ID => RegisteredId, "An OBJECT IDENTIFIER.";
}

kinds! {
    /// What kind of other name a type stands for.
    OtherNameKind, else Unknown:
    ORTHOLAN_OTHER_UNKNOWN => Unknown, "A type that is not known, or no other name.";
    ORTHOLAN_OTHER_UPN => Upn, "User principal name of Windows.";
    ORTHOLAN_OTHER_SERVICE => Service, "SRVName (RFC 4985).";
    ORTHOLAN_OTHER_UTF8_MAILBOX => Utf8Mailbox, "SmtpUTF8Mailbox (RFC 9598).";
    ORTHOLAN_OTHER_KERBEROS => Kerberos, "KRB5PrincipalName (RFC 4556 3.2.2).";
    ORTHOLAN_OTHER_XMPP => Xmpp, "XmppAddr (RFC 6120 13.7.1.4).";
    ORTHOLAN_OTHER_PERMANENT_ID => PermanentId, "PermanentIdentifier (RFC 4043).";
    ORTHOLAN_OTHER_HARDWARE_MODULE => HardwareModule, "HardwareModuleName (RFC 4108 5).";
    ORTHOLAN_OTHER_GUID => Guid, "GUID of a domain controller.";
}

/// One general name over borrowed octets. Its text is "DNS:example.org"; what cannot be seen is
/// escaped.
#[derive(Clone, Copy)]
pub struct GeneralName<'a> {
    view: ortholan_general_name_view,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for GeneralName<'_> {}
unsafe impl Sync for GeneralName<'_> {}

impl<'a> GeneralName<'a> {
    /// Reads one name in DER that is the whole of `der`.
    pub fn read(der: &'a [u8]) -> Result<Self, Refusal> {
        Self::read_as(der, Reading::Der)
    }

    /// The same, as closely as asked.
    pub fn read_as(der: &'a [u8], reading: Reading) -> Result<Self, Refusal> {
        let view = unsafe {
            call::read(|view, refusal| {
                ortholan_general_name_view_read(call::octets(der), reading.word(), view, refusal)
            })
        }?;
        Ok(GeneralName { view, octets: PhantomData })
    }

    /// The DER of the text of a name: "DNS:example.org", "IP:192.0.2.1", "UPN:joe@example.org".
    /// An address may have a mask.
    pub fn from_text(text: &str) -> Result<Vec<u8>, Refusal> {
        call::placed(|out, room, size, refusal| unsafe {
            ortholan_general_name_from_text(call::text(text), 1, out, room, size, refusal)
        })
    }

    /// The kind.
    pub fn kind(&self) -> NameKind {
        NameKind::of(self.view.kind)
    }

    /// The kind of an other name.
    pub fn other_kind(&self) -> OtherNameKind {
        OtherNameKind::of(self.view.other)
    }

    /// The whole element.
    pub fn der(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.bytes) }
    }

    /// Characters, octets of an address, content of an identifier, the whole Name of a directory
    /// name; of other kinds what is inside the tag.
    pub fn content(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.content) }
    }

    /// The address, of a name that is one without a mask.
    pub fn address(&self) -> Option<IpAddr> {
        if self.kind() != NameKind::Address {
            return None;
        }
        let content = self.content();
        <[u8; 4]>::try_from(content)
            .map(IpAddr::from)
            .or_else(|_| <[u8; 16]>::try_from(content).map(IpAddr::from))
            .ok()
    }

    /// The distinguished name, of a name that is one; refused where it is out of form.
    pub fn directory_name(&self) -> Option<Result<NameView<'a>, Refusal>> {
        let is_directory = self.kind() == NameKind::Directory;
        is_directory.then(|| NameView::read(self.content()))
    }
}

impl fmt::Display for GeneralName<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        let text = call::placed(|out, room, size, refusal| unsafe {
            ortholan_general_name_to_text(self.view.bytes, out.cast(), room, size, refusal)
        });
        match text {
            Ok(text) => formatter.write_str(&call::string(text)),
            Err(refusal) => write!(formatter, "<{refusal}>"),
        }
    }
}

impl fmt::Debug for GeneralName<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        write!(formatter, "GeneralName({self})")
    }
}

impl PartialEq for GeneralName<'_> {
    fn eq(&self, other: &Self) -> bool {
        self.der() == other.der()
    }
}

impl Eq for GeneralName<'_> {}

/// The names in the value of an alternative-name extension: an iterator.
#[derive(Clone)]
pub struct GeneralNames<'a> {
    view: ortholan_general_names_view,
    offset: usize,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for GeneralNames<'_> {}
unsafe impl Sync for GeneralNames<'_> {}

impl<'a> GeneralNames<'a> {
    /// Reads a list in DER that is the whole of `der`.
    pub fn read(der: &'a [u8]) -> Result<Self, Refusal> {
        Self::read_as(der, Reading::Der)
    }

    /// The same, as closely as asked.
    pub fn read_as(der: &'a [u8], reading: Reading) -> Result<Self, Refusal> {
        let view = unsafe {
            call::read(|view, refusal| {
                ortholan_general_names_view_read(call::octets(der), reading.word(), view, refusal)
            })
        }?;
        Ok(GeneralNames { view, offset: 0, octets: PhantomData })
    }
}

impl<'a> Iterator for GeneralNames<'a> {
    type Item = GeneralName<'a>;

    fn next(&mut self) -> Option<GeneralName<'a>> {
        let view = unsafe {
            call::read(|view, _| {
                ortholan_general_names_view_next(&self.view, &mut self.offset, view)
            })
        };
        Some(GeneralName { view: view.ok()?, octets: PhantomData })
    }
}

/// What alternative names come out as.
#[derive(Clone, Copy, Debug, PartialEq, Eq)]
pub enum AlternativeNames {
    /// The value of the extension.
    Value,
    /// A whole Extension, critical, as a subject without names needs it.
    Critical,
    /// A whole Extension that is not critical.
    Extension,
}

/// Alternative names in DER, of one text each; [`Refusal::item`] says which text was refused.
pub fn alternative_names(texts: &[&str], form: AlternativeNames) -> Result<Vec<u8>, Refusal> {
    let views: Vec<_> = texts.iter().map(|each| call::text(each)).collect();
    let word = match form {
        AlternativeNames::Value => ORTHOLAN_ALTERNATIVE_NAMES_VALUE,
        AlternativeNames::Critical => ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL,
        AlternativeNames::Extension => ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION,
    };
    let mut wrong = 0;
    call::placed(|out, room, size, refusal| unsafe {
        ortholan_alternative_names_from_text(
            views.as_ptr(),
            views.len(),
            word,
            out,
            room,
            size,
            &mut wrong,
            refusal,
        )
    })
    .map_err(|refusal| refusal.with_item(wrong))
}
