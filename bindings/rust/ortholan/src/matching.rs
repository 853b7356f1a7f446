//! Whether two names are the same, subtrees, and keys for maps (RFC 5280 7.1, RFC 4518).

use crate::call;
use crate::refusal::{Reason, Refusal};
use crate::sys::*;
use crate::verdict::Verdict;
use std::borrow::Borrow;
use std::fmt;
use std::marker::PhantomData;

/// By which rule attribute values are the same.
#[derive(Clone, Copy, Debug, PartialEq, Eq)]
pub struct MatchRule(i32);

impl MatchRule {
    /// caseIgnoreMatch after the preparation of RFC 4518, as RFC 5280 7.1 demands it.
    pub const RFC5280: MatchRule = MatchRule(ORTHOLAN_MATCH_RFC5280);
    /// ASCII case and white space alone.
    pub const ASCII_CASE: MatchRule = MatchRule(ORTHOLAN_MATCH_ASCII_CASE);
    /// The octets.
    pub const OCTETS: MatchRule = MatchRule(ORTHOLAN_MATCH_OCTETS);

    /// The same with RDNs in any order, for lists that people write by hand; never for a verdict
    /// about certificates.
    pub fn any_order(self) -> MatchRule {
        MatchRule(self.0 | ORTHOLAN_MATCH_ANY_ORDER)
    }
}

/// A verdict about two encoded names with its reason.
#[derive(Clone, Copy)]
#[must_use]
pub struct Match<'a> {
    found: ortholan_match,
    names: PhantomData<&'a [u8]>,
}

unsafe impl Send for Match<'_> {}
unsafe impl Sync for Match<'_> {}

impl Match<'_> {
    fn by(call: impl FnOnce(*mut ortholan_match) -> ortholan_verdict) -> Self {
        let mut found = unsafe { std::mem::zeroed() };
        call(&mut found);
        Match { found, names: PhantomData }
    }

    /// The verdict.
    pub fn verdict(&self) -> Verdict {
        Verdict::of(self.found.verdict)
    }

    /// Whether the verdict is yes.
    pub fn is_yes(&self) -> bool {
        self.verdict().is_yes()
    }

    /// Why not.
    pub fn reason(&self) -> Reason {
        Reason(self.found.reason)
    }

    /// The RDN of the first name that the reason is about, from 0.
    pub fn rdn(&self) -> Option<usize> {
        Some(self.found.first.rdn).filter(|&rdn| rdn != ORTHOLAN_NO_PLACE)
    }

    /// Which name the reason is about, 1 or 2; `None` for both.
    pub fn side(&self) -> Option<i32> {
        Some(self.found.side).filter(|&side| side != 0)
    }
}

/// One English sentence without a full stop.
impl fmt::Display for Match<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        let sentence = call::filled(|out, room, size| unsafe {
            ortholan_match_sentence(&self.found, out.cast(), room, size)
        });
        formatter.write_str(&sentence.map(call::string).unwrap_or_default())
    }
}

impl fmt::Debug for Match<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        write!(formatter, "Match({:?}: {self})", self.verdict())
    }
}

/// Whether two encoded Names are the same.
pub fn match_names<'a>(first: &'a [u8], second: &'a [u8], rule: MatchRule) -> Match<'a> {
    Match::by(|found| unsafe {
        ortholan_match_names(call::octets(first), call::octets(second), rule.0, found)
    })
}

/// Whether a name begins with the RDNs of a subtree; every name is within the empty one.
pub fn within<'a>(subtree: &'a [u8], name: &'a [u8], rule: MatchRule) -> Match<'a> {
    Match::by(|found| unsafe {
        ortholan_name_within(call::octets(subtree), call::octets(name), rule.0, found)
    })
}

/// Octets that are the same exactly for names that are the same under a rule: a key for maps and
/// databases. Keys do not change within a major version of the library.
///
/// ```
/// use ortholan::{MatchKey, Name};
/// use std::collections::HashSet;
///
/// let trusted: HashSet<MatchKey> = [Name::from_text("CN=Alpha,O=Org")?.view().key()?].into();
/// assert!(trusted.contains(&Name::from_text("cn=ALPHA,o= org ")?.view().key()?));
/// # Ok::<(), ortholan::Refusal>(())
/// ```
#[derive(Clone, Debug, PartialEq, Eq, PartialOrd, Ord, Hash)]
pub struct MatchKey(Vec<u8>);

impl MatchKey {
    /// The key of an encoded Name. What makes a name unreadable is refused.
    pub fn of(name: &[u8], rule: MatchRule) -> Result<Self, Refusal> {
        call::placed(|out, room, size, refusal| unsafe {
            ortholan_match_key(call::octets(name), rule.0, out, room, size, refusal)
        })
        .map(MatchKey)
    }

    /// The octets of the key.
    pub fn as_bytes(&self) -> &[u8] {
        &self.0
    }

    /// Whether the name of another key is within the name of this one; both without
    /// [`MatchRule::any_order`].
    pub fn holds(&self, other: &MatchKey) -> bool {
        other.0.starts_with(&self.0)
    }
}

impl Borrow<[u8]> for MatchKey {
    fn borrow(&self) -> &[u8] {
        &self.0
    }
}
