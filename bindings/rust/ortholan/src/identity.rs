//! Whose certificate (RFC 9525, RFC 5280 4.2.1.6, RFC 9598).

use crate::call;
use crate::general_name::GeneralName;
use crate::refusal::{Reason, Refusal};
use crate::sys::*;
use crate::verdict::{Reading, Verdict};
use std::marker::PhantomData;

/// Kinds of what a certificate is asked for.
#[derive(Clone, Copy, Debug, PartialEq, Eq, Hash)]
pub enum ReferenceKind {
    /// A host name in letters, digits, hyphens and A-labels.
    Host,
    /// An IPv4 or IPv6 address as text, without brackets.
    Address,
    /// "joe@example.org"
    Mailbox,
    /// A URI, of which scheme and host count.
    Uri,
    /// "_imaps.example.org" (RFC 4985)
    Service,
}

/// A question.
#[derive(Clone, Copy, Debug)]
pub struct Reference<'a> {
    kind: ReferenceKind,
    text: &'a str,
    choices: u32,
}

impl<'a> Reference<'a> {
    /// A question of a kind.
    pub fn new(kind: ReferenceKind, text: &'a str) -> Self {
        Reference { kind, text, choices: 0 }
    }

    /// Is it for this host?
    pub fn host(text: &'a str) -> Self {
        Self::new(ReferenceKind::Host, text)
    }

    /// The same with hosts that have an underscore taken for no host names.
    pub fn without_underscores(self) -> Self {
        Reference { choices: self.choices | ORTHOLAN_IDENTIFY_NO_UNDERSCORE as u32, ..self }
    }

    fn plain(&self) -> ortholan_reference {
        let kind = match self.kind {
            ReferenceKind::Host => ORTHOLAN_REFERENCE_HOST,
            ReferenceKind::Address => ORTHOLAN_REFERENCE_ADDRESS,
            ReferenceKind::Mailbox => ORTHOLAN_REFERENCE_MAILBOX,
            ReferenceKind::Uri => ORTHOLAN_REFERENCE_URI,
            ReferenceKind::Service => ORTHOLAN_REFERENCE_SERVICE,
        };
        ortholan_reference { kind, choices: self.choices, text: call::text(self.text) }
    }
}

/// The answer. A certificate that cannot be read is answered by [`Verdict::CannotTell`].
#[derive(Clone, Copy, Debug)]
#[must_use]
pub struct Identity<'a> {
    answer: ortholan_identity,
    reference: Reference<'a>,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Identity<'_> {}
unsafe impl Sync for Identity<'_> {}

impl<'a> Identity<'a> {
    /// The verdict.
    pub fn verdict(&self) -> Verdict {
        Verdict::of(self.answer.verdict)
    }

    /// Whether the verdict is yes.
    pub fn is_yes(&self) -> bool {
        self.verdict().is_yes()
    }

    /// Why not.
    pub fn reason(&self) -> Reason {
        Reason(self.answer.reason)
    }

    /// The name that matched.
    pub fn matched(&self) -> Option<GeneralName<'a>> {
        let name = unsafe { call::slice(self.answer.name) };
        GeneralName::read_as(name, Reading::Structure).ok()
    }

    /// The names, with what makes each of them another one; the one that matched is left out.
    pub fn mismatches(&self) -> Vec<Mismatch<'a>> {
        let (reference, mut offset) = (self.reference.plain(), 0);
        let mut mismatches = Vec::new();
        while let Ok(presented) = unsafe {
            call::read(|presented: *mut ortholan_presented_name, _| {
                ortholan_identity_explain(&self.answer, &reference, &mut offset, presented)
            })
        } {
            if presented.reason != ORTHOLAN_REASON_NONE {
                let der = unsafe { call::slice(presented.bytes) };
                mismatches.push(Mismatch { der, reason: Reason(presented.reason) });
            }
        }
        mismatches
    }
}

/// A presented name, and why it is not the one that was asked for.
#[derive(Clone, Copy, Debug, PartialEq, Eq)]
pub struct Mismatch<'a> {
    /// The whole element, which may be malformed inside.
    pub der: &'a [u8],
    /// That it is malformed, or else what differs.
    pub reason: Reason,
}

type Ask = unsafe extern "C" fn(
    ortholan_octets,
    *const ortholan_reference,
    *mut ortholan_identity,
    *mut ortholan_refusal,
) -> ortholan_reason;

fn ask<'a>(call: Ask, der: &'a [u8], reference: &Reference<'a>) -> Result<Identity<'a>, Refusal> {
    let plain = reference.plain();
    let answer =
        unsafe { call::read(|answer, place| call(call::octets(der), &plain, answer, place)) }?;
    Ok(Identity { answer, reference: *reference, octets: PhantomData })
}

/// Whether a certificate is for what is asked; its alternative names alone count. Refused is only
/// a question that is none of its kind, with the place in its text.
pub fn identify<'a>(der: &'a [u8], reference: &Reference<'a>) -> Result<Identity<'a>, Refusal> {
    ask(ortholan_identify, der, reference)
}

/// The same of the value of an alternative-name extension alone.
pub fn identify_by_names<'a>(
    names: &'a [u8],
    reference: &Reference<'a>,
) -> Result<Identity<'a>, Refusal> {
    ask(ortholan_identify_by_names, names, reference)
}
