//! PEM text (RFC 7468).

use crate::call;
use crate::refusal::Refusal;
use crate::sys::*;

/// A block of PEM text.
#[derive(Clone, Debug, PartialEq, Eq)]
pub struct PemBlock {
    /// "CERTIFICATE"
    pub label: String,
    /// What its base64 stands for.
    pub octets: Vec<u8>,
}

/// The blocks of PEM text, whatever stands between them: an iterator, which ends behind a block
/// that is out of form.
pub fn pem_blocks(text: &[u8]) -> PemBlocks<'_> {
    PemBlocks { text, offset: 0, ended: false }
}

/// See [`pem_blocks`].
#[derive(Clone, Debug)]
pub struct PemBlocks<'a> {
    text: &'a [u8],
    offset: usize,
    ended: bool,
}

impl Iterator for PemBlocks<'_> {
    type Item = Result<PemBlock, Refusal>;

    fn next(&mut self) -> Option<Self::Item> {
        if self.ended {
            return None;
        }
        let text = ortholan_text { data: self.text.as_ptr().cast(), size: self.text.len() };
        let found = unsafe {
            call::read(|block, refusal| ortholan_pem_next(text, &mut self.offset, block, refusal))
        };
        self.ended = found.is_err();
        match found {
            Ok(block) => Some(octets(&block)),
            Err(refusal) if refusal.reason().0 == ORTHOLAN_REASON_NOT_FOUND => None,
            Err(refusal) => Some(Err(refusal)),
        }
    }
}

fn octets(block: &ortholan_pem_block) -> Result<PemBlock, Refusal> {
    let label = ortholan_octets { data: block.label.data.cast(), size: block.label.size };
    let label = unsafe { call::slice(label) }.to_vec();
    let octets =
        call::plain(|out, room, size| unsafe { ortholan_pem_octets(block, out, room, size) })?;
    Ok(PemBlock { label: call::string(label), octets })
}
