//! Why an input was refused.

use crate::call;
use crate::sys::*;
use std::error::Error;
use std::ffi::CStr;
use std::fmt;

/// Why something was refused or decided: an `ORTHOLAN_REASON_` number of [`crate::sys`].
#[derive(Clone, Copy, Debug, PartialEq, Eq, PartialOrd, Ord, Hash)]
pub struct Reason(pub i32);

impl Reason {
    /// One English sentence; empty for 0.
    pub fn sentence(self) -> &'static str {
        // Static and terminated, whatever the number.
        let text = unsafe { CStr::from_ptr(ortholan_reason_sentence(self.0)) };
        text.to_str().unwrap_or_default()
    }
}

impl fmt::Display for Reason {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        formatter.write_str(self.sentence())
    }
}

/// Why and where an input was refused. Its text is one English sentence without a full stop.
#[derive(Clone, Debug, PartialEq, Eq)]
pub struct Refusal {
    reason: Reason,
    offset: Option<usize>,
    met: u32,
    expected: u32,
    item: Option<usize>,
    sentence: String,
}

impl Refusal {
    pub(crate) fn new(reason: ortholan_reason, mut place: ortholan_refusal) -> Self {
        place.reason = reason;
        let sentence = call::filled(|out, room, size| unsafe {
            ortholan_refusal_sentence(&place, out.cast(), room, size)
        });
        Refusal {
            reason: Reason(reason),
            offset: Some(place.offset).filter(|&offset| offset != ORTHOLAN_NO_PLACE),
            met: place.met,
            expected: place.expected,
            item: None,
            sentence: sentence.map(call::string).unwrap_or_default(),
        }
    }

    pub(crate) fn without_place(reason: ortholan_reason) -> Self {
        Self::new(reason, call::no_refusal())
    }

    pub(crate) fn with_sentence(self, sentence: String) -> Self {
        Refusal { sentence, ..self }
    }

    pub(crate) fn with_item(self, item: usize) -> Self {
        Refusal { item: Some(item), ..self }
    }

    /// Why.
    pub fn reason(&self) -> Reason {
        self.reason
    }

    /// Octets of the input before the place, where there is one.
    pub fn offset(&self) -> Option<usize> {
        self.offset
    }

    /// Octet or character at the place; `ORTHOLAN_MET_END` where the input ended.
    pub fn met(&self) -> u32 {
        self.met
    }

    /// Identifier octet that the structure has there, or a bound; 0 where none.
    pub fn expected(&self) -> u32 {
        self.expected
    }

    /// Which of several inputs was refused, from 0.
    pub fn item(&self) -> Option<usize> {
        self.item
    }
}

impl fmt::Display for Refusal {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        formatter.write_str(&self.sentence)
    }
}

impl Error for Refusal {}
