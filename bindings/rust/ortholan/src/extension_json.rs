//! Values of extensions as JSON and as plain words, and back; `<ortholan/strict/extensions.h>` says
//! what the JSON looks like.

use crate::call;
use crate::certificate::{Certificate, Extension};
use crate::refusal::Refusal;
use crate::sys::*;

impl Extension<'_> {
    /// The value as JSON, in one line: `{"cA":true,"pathLenConstraint":0}`. Refused where it is not
    /// of the extension's structure; of an extension that is not known it is its octets.
    pub fn json(&self) -> Result<String, Refusal> {
        let (oid, value) = (call::octets(self.oid()), call::octets(self.value()));
        call::placed(|out, room, size, refusal| unsafe {
            ortholan_extension_json(oid, value, ORTHOLAN_READ_DER, out.cast(), room, size, refusal)
        })
        .map(call::string)
    }

    /// The same in plain words, a line for each fact; safe to show.
    pub fn words(&self) -> Result<String, Refusal> {
        let (oid, value) = (call::octets(self.oid()), call::octets(self.value()));
        let mode = ORTHOLAN_READ_DER;
        call::placed(|out, room, size, refusal| unsafe {
            ortholan_extension_text(oid, value, mode, 0, out.cast(), room, size, refusal)
        })
        .map(call::string)
    }
}

impl Certificate<'_> {
    /// All extensions as a JSON array of objects with `oid`, `name`, `critical` and `value`. A value
    /// that is refused stands there by its octets, with a `refusal` behind it.
    pub fn extensions_json(&self) -> Result<String, Refusal> {
        let der = call::octets(self.der());
        call::placed(|out, room, size, refusal| unsafe {
            ortholan_extensions_json(der, ORTHOLAN_READ_DER, out.cast(), room, size, refusal)
        })
        .map(call::string)
    }
}

/// The value of an extension in DER from its JSON. Refused is a place of the JSON.
///
/// ```
/// let value = ortholan::extension_from_json("basicConstraints", "{\"cA\":true}")?;
/// assert_eq!(value, [0x30, 3, 1, 1, 0xFF]);
/// # Ok::<(), ortholan::Refusal>(())
/// ```
pub fn extension_from_json(name: &str, json: &str) -> Result<Vec<u8>, Refusal> {
    let (name, json) = (call::text(name), call::text(json));
    call::placed(|out, room, size, refusal| unsafe {
        ortholan_extension_from_json(name, json, out, room, size, refusal)
    })
}

/// Extensions in DER from JSON: an array as [`Certificate::extensions_json`] puts it becomes
/// SEQUENCE OF Extension, a single object of it one Extension.
pub fn extensions_from_json(json: &str) -> Result<Vec<u8>, Refusal> {
    let json = call::text(json);
    call::placed(|out, room, size, refusal| unsafe {
        ortholan_extensions_from_json(json, out, room, size, refusal)
    })
}
