//! The C functions of `<ortholan/strict.h>` as they are; their headers say what each takes and
//! gives. The crate `ortholan` has them safe.
#![allow(non_camel_case_types)]
#![no_std]

extern crate std;

include!("declarations.rs");
