//! Certificates, requests and CRLs: their names, times and extensions (RFC 5280 4.1 and 5.1).

use crate::call;
use crate::general_name::GeneralNames;
use crate::identity::{identify, Identity, Reference};
use crate::name::NameView;
use crate::refusal::Refusal;
use crate::sys::*;
use crate::verdict::Reading;
use std::marker::PhantomData;

const ALTERNATIVE_NAMES: &[u8] = &[0x55, 0x1D, 0x11];

/// What was read.
#[derive(Clone, Copy, Debug, PartialEq, Eq, Hash)]
pub enum CertificateKind {
    /// A certificate.
    Certificate,
    /// A certificate request (RFC 2986).
    Request,
    /// A CRL.
    RevocationList,
}

/// A certificate, a request or a CRL over borrowed octets; parts that the kind has not are `None`.
/// Keys and signatures are not looked at.
#[derive(Clone, Copy, Debug)]
pub struct Certificate<'a> {
    view: ortholan_certificate_view,
    reading: Reading,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Certificate<'_> {}
unsafe impl Sync for Certificate<'_> {}

impl<'a> Certificate<'a> {
    /// Reads one in DER that is the whole of `der`. The outer shape is checked; names, times and
    /// the values of extensions are where they are asked for.
    pub fn read(der: &'a [u8]) -> Result<Self, Refusal> {
        Self::read_as(der, Reading::Der)
    }

    /// The same, as closely as asked.
    pub fn read_as(der: &'a [u8], reading: Reading) -> Result<Self, Refusal> {
        let view = unsafe {
            call::read(|view, refusal| {
                ortholan_certificate_view_read(call::octets(der), reading.word(), view, refusal)
            })
        }?;
        Ok(Certificate { view, reading, octets: PhantomData })
    }

    /// The kind.
    pub fn kind(&self) -> CertificateKind {
        match self.view.kind {
            ORTHOLAN_CERTIFICATE_REQUEST => CertificateKind::Request,
            ORTHOLAN_REVOCATION_LIST => CertificateKind::RevocationList,
            _ => CertificateKind::Certificate,
        }
    }

    /// The whole encoding.
    pub fn der(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.der) }
    }

    fn part(&self, view: ortholan_octets) -> Option<&'a [u8]> {
        Some(unsafe { call::slice(view) }).filter(|octets| !octets.is_empty())
    }

    /// The subject; a CRL has none.
    pub fn subject(&self) -> Result<Option<NameView<'a>>, Refusal> {
        let part = self.part(self.view.subject);
        part.map(|der| NameView::read_as(der, self.reading)).transpose()
    }

    /// The issuer; a request has none.
    pub fn issuer(&self) -> Result<Option<NameView<'a>>, Refusal> {
        let part = self.part(self.view.issuer);
        part.map(|der| NameView::read_as(der, self.reading)).transpose()
    }

    /// Content octets of the serial number; a certificate alone has one.
    pub fn serial(&self) -> Option<&'a [u8]> {
        self.part(self.view.serial)
    }

    /// "2026-11-21T22:05:00Z"; of a CRL thisUpdate.
    pub fn not_before(&self) -> Result<Option<String>, Refusal> {
        self.part(self.view.not_before).map(time).transpose()
    }

    /// The same; of a CRL nextUpdate.
    pub fn not_after(&self) -> Result<Option<String>, Refusal> {
        self.part(self.view.not_after).map(time).transpose()
    }

    /// The extensions; of a request those that it asks for.
    pub fn extensions(&self) -> Extensions<'a> {
        Extensions { view: self.view, offset: 0, octets: PhantomData }
    }

    /// The one extension of a type, by the content octets of its identifier. Refused where there
    /// are several.
    pub fn extension(&self, oid: &[u8]) -> Result<Option<Extension<'a>>, Refusal> {
        let found = unsafe {
            call::read(|view, refusal| {
                let oid = call::octets(oid);
                ortholan_certificate_view_extension(&self.view, oid, view, refusal)
            })
        };
        match found {
            Ok(view) => Ok(Some(Extension { view, octets: PhantomData })),
            Err(refusal) if refusal.reason().0 == ORTHOLAN_REASON_NOT_FOUND => Ok(None),
            Err(refusal) => Err(refusal),
        }
    }

    /// The subject's alternative names, an iterator; `None` without that extension.
    pub fn alternative_names(&self) -> Result<Option<GeneralNames<'a>>, Refusal> {
        let extension = self.extension(ALTERNATIVE_NAMES)?;
        extension.map(|each| GeneralNames::read_as(each.value(), self.reading)).transpose()
    }

    /// Whether the certificate is for a host, an address, a mailbox, a URI or a service.
    pub fn identify(&self, reference: &Reference<'a>) -> Result<Identity<'a>, Refusal> {
        identify(self.der(), reference)
    }
}

fn time(element: &[u8]) -> Result<String, Refusal> {
    call::plain(|out, room, size| unsafe {
        ortholan_time_to_text(call::octets(element), out.cast(), room, size)
    })
    .map(call::string)
}

/// The extensions of a certificate: an iterator.
#[derive(Clone)]
pub struct Extensions<'a> {
    view: ortholan_certificate_view,
    offset: usize,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Extensions<'_> {}
unsafe impl Sync for Extensions<'_> {}

impl<'a> Iterator for Extensions<'a> {
    type Item = Extension<'a>;

    fn next(&mut self) -> Option<Extension<'a>> {
        let view = unsafe {
            call::read(|view, _| {
                ortholan_certificate_view_next_extension(&self.view, &mut self.offset, view)
            })
        };
        Some(Extension { view: view.ok()?, octets: PhantomData })
    }
}

/// One extension.
#[derive(Clone, Copy, Debug)]
pub struct Extension<'a> {
    view: ortholan_extension_view,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Extension<'_> {}
unsafe impl Sync for Extension<'_> {}

impl<'a> Extension<'a> {
    /// Content octets of the identifier; [`crate::oid_to_text`] shows them.
    pub fn oid(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.oid) }
    }

    /// What is inside the OCTET STRING.
    pub fn value(&self) -> &'a [u8] {
        unsafe { call::slice(self.view.value) }
    }

    /// Whether it is critical.
    pub fn is_critical(&self) -> bool {
        self.view.critical != 0
    }
}
