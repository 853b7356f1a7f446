//! What RFC 5280 forbids in a certificate, a request or a CRL.

use crate::call;
use crate::refusal::Refusal;
use crate::sys::*;
use std::ffi::CStr;
use std::fmt;
use std::os::raw::c_char;

/// One fault. Its text is one English sentence without a full stop.
#[derive(Clone, Copy, Debug, PartialEq, Eq)]
pub struct Fault<'a> {
    /// "path-length-without-ca"; stays the same.
    pub rule: &'static str,
    /// Of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6".
    pub section: &'static str,
    /// What is wrong; may change.
    pub sentence: &'static str,
    /// Content octets of the identifier of the extension that it is about, be it missing.
    pub extension: &'a [u8],
    /// Where in the input; empty where something is missing.
    pub part: &'a [u8],
}

impl fmt::Display for Fault<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        let source = if self.section.starts_with("RFC") { "" } else { "RFC 5280 " };
        write!(formatter, "{} ({}{})", self.sentence, source, self.section)
    }
}

/// # Safety
/// The text is static, terminated and ASCII.
unsafe fn words(text: *const c_char) -> &'static str {
    CStr::from_ptr(text).to_str().unwrap_or_default()
}

/// Everything that RFC 5280 forbids in a certificate, a request or a CRL: as a whole, in its names, in each extension. Keys,
/// signatures and times are not looked at.
pub fn check(der: &[u8]) -> Result<Vec<Fault<'_>>, Refusal> {
    let mut faults: Vec<ortholan_fault> = Vec::new();
    let (mut count, mut place) = (16, call::no_refusal());
    while faults.len() < count {
        faults.resize(count, unsafe { std::mem::zeroed() });
        let (given, room, first) = (call::octets(der), faults.len(), faults.as_mut_ptr());
        match unsafe { ortholan_check(given, first, room, &mut count, &mut place) } {
            ORTHOLAN_REASON_NONE => {}
            reason => return Err(Refusal::new(reason, place)),
        }
    }
    let told = faults[..count].iter().map(|fault| unsafe {
        Fault {
            rule: words(fault.rule),
            section: words(fault.section),
            sentence: words(fault.sentence),
            extension: call::slice(fault.extension),
            part: call::slice(fault.part),
        }
    });
    Ok(told.collect())
}
