//! Verdicts, and how closely encodings are read.

use crate::sys::*;

/// What was decided. Only one of them is a yes.
#[derive(Clone, Copy, Debug, PartialEq, Eq, Hash)]
#[must_use]
pub enum Verdict {
    /// Yes.
    Yes,
    /// No.
    No,
    /// The input does not let anybody decide: never to be taken for a yes.
    CannotTell,
}

impl Verdict {
    pub(crate) fn of(number: ortholan_verdict) -> Self {
        match number {
            ORTHOLAN_VERDICT_YES => Verdict::Yes,
            ORTHOLAN_VERDICT_NO => Verdict::No,
            _ => Verdict::CannotTell,
        }
    }

    /// Whether it is [`Verdict::Yes`].
    pub fn is_yes(self) -> bool {
        self == Verdict::Yes
    }
}

/// How closely an encoding is read; verdicts never take [`Reading::Lenient`].
#[derive(Clone, Copy, Debug, Default, PartialEq, Eq, Hash)]
pub enum Reading {
    /// DER, with the alphabets and encodings of string types.
    #[default]
    Der,
    /// Any definite form of a length, SETs in any order, strings outside their alphabet.
    Lenient,
    /// DER but for what changes no meaning, and without a look at strings.
    Structure,
}

impl Reading {
    pub(crate) fn word(self) -> i32 {
        match self {
            Reading::Der => ORTHOLAN_READ_DER,
            Reading::Lenient => ORTHOLAN_READ_LENIENT,
            Reading::Structure => ORTHOLAN_READ_STRUCTURE,
        }
    }
}
