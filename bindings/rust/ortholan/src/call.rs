//! How the C functions are called: views over slices, and room for what they write.

use crate::refusal::Refusal;
use crate::sys::*;
use std::slice;

/// Room that is enough for most.
const GUESS: usize = 256;

pub fn octets(slice: &[u8]) -> ortholan_octets {
    ortholan_octets { data: slice.as_ptr(), size: slice.len() }
}

pub fn text(text: &str) -> ortholan_text {
    ortholan_text { data: text.as_ptr().cast(), size: text.len() }
}

pub const NOTHING: ortholan_octets = ortholan_octets { data: std::ptr::null(), size: 0 };

/// The octets of a view.
///
/// # Safety
/// The view points into octets that live as long as `'a`, or is empty.
pub unsafe fn slice<'a>(view: ortholan_octets) -> &'a [u8] {
    if view.size == 0 {
        &[]
    } else {
        slice::from_raw_parts(view.data, view.size)
    }
}

/// Text that the library wrote, or took from UTF-8 that it checked.
pub fn string(octets: Vec<u8>) -> String {
    match String::from_utf8(octets) {
        Ok(text) => text,
        Err(error) => String::from_utf8_lossy(error.as_bytes()).into_owned(),
    }
}

pub fn no_refusal() -> ortholan_refusal {
    ortholan_refusal {
        reason: ORTHOLAN_REASON_NONE,
        met: 0,
        expected: 0,
        offset: ORTHOLAN_NO_PLACE,
    }
}

/// Calls a function that writes into room, again with as much as it needs.
pub fn filled<F>(mut call: F) -> Result<Vec<u8>, ortholan_reason>
where
    F: FnMut(*mut u8, usize, *mut usize) -> ortholan_reason,
{
    let mut room = vec![0; GUESS];
    loop {
        let mut size = 0;
        match call(room.as_mut_ptr(), room.len(), &mut size) {
            ORTHOLAN_REASON_NONE => {
                room.truncate(size);
                return Ok(room);
            }
            ORTHOLAN_REASON_ROOM if size > room.len() => room.resize(size, 0),
            reason => return Err(reason),
        }
    }
}

/// The same for functions that tell no place.
pub fn plain<F>(call: F) -> Result<Vec<u8>, Refusal>
where
    F: FnMut(*mut u8, usize, *mut usize) -> ortholan_reason,
{
    filled(call).map_err(Refusal::without_place)
}

/// The same for functions that do.
pub fn placed<F>(mut call: F) -> Result<Vec<u8>, Refusal>
where
    F: FnMut(*mut u8, usize, *mut usize, *mut ortholan_refusal) -> ortholan_reason,
{
    let mut refusal = no_refusal();
    filled(|out, room, size| call(out, room, size, &mut refusal))
        .map_err(|reason| Refusal::new(reason, refusal))
}

/// Calls a function that fills a structure.
///
/// # Safety
/// Zeros are a value of the structure.
pub unsafe fn read<T, F>(call: F) -> Result<T, Refusal>
where
    F: FnOnce(*mut T, *mut ortholan_refusal) -> ortholan_reason,
{
    let (mut structure, mut refusal) = (std::mem::zeroed(), no_refusal());
    match call(&mut structure, &mut refusal) {
        ORTHOLAN_REASON_NONE => Ok(structure),
        reason => Err(Refusal::new(reason, refusal)),
    }
}
