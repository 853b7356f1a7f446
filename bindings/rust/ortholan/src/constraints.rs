//! Name constraints (RFC 5280 4.2.1.10 and 6.1).

use crate::call;
use crate::refusal::{Reason, Refusal};
use crate::sys::*;
use crate::verdict::Verdict;
use std::fmt;
use std::marker::PhantomData;

/// What may be chosen.
#[derive(Clone, Copy, Debug)]
pub struct PermitOptions {
    /// Comparisons of a name with a subtree, at most.
    pub budget: u64,
    /// Findings, at most; with one the search ends at the first refusal.
    pub most_findings: usize,
}

impl Default for PermitOptions {
    fn default() -> Self {
        PermitOptions { budget: ORTHOLAN_DEFAULT_BUDGET, most_findings: 1 }
    }
}

/// A verdict with its reasons.
#[derive(Clone, Debug)]
#[must_use]
pub struct Permission<'a> {
    /// The verdict.
    pub verdict: Verdict,
    /// Those of the verdict's kind before others.
    pub findings: Vec<Finding<'a>>,
}

impl Permission<'_> {
    /// Whether the verdict is yes.
    pub fn is_yes(&self) -> bool {
        self.verdict.is_yes()
    }
}

/// One reason why names are not permitted, or why that cannot be told. Its text is one English
/// sentence without a full stop; certificates are counted from 1, the leaf.
#[derive(Clone, Copy, Debug)]
pub struct Finding<'a> {
    finding: ortholan_finding,
    octets: PhantomData<&'a [u8]>,
}

unsafe impl Send for Finding<'_> {}
unsafe impl Sync for Finding<'_> {}

impl<'a> Finding<'a> {
    /// What is wrong with the name.
    pub fn reason(&self) -> Reason {
        Reason(self.finding.reason)
    }

    /// [`Verdict::No`] or [`Verdict::CannotTell`].
    pub fn verdict(&self) -> Verdict {
        Verdict::of(self.finding.verdict)
    }

    /// Index of the certificate whose name it is, 0 for the leaf.
    pub fn certificate(&self) -> usize {
        self.finding.certificate
    }

    /// Index of the certificate whose constraints decide.
    pub fn authority(&self) -> usize {
        self.finding.authority
    }

    /// The GeneralName, or the subject's Name.
    pub fn name(&self) -> &'a [u8] {
        unsafe { call::slice(self.finding.name) }
    }

    /// GeneralName that is the base of the subtree that decides; empty where none does.
    pub fn subtree(&self) -> &'a [u8] {
        unsafe { call::slice(self.finding.subtree) }
    }
}

impl fmt::Display for Finding<'_> {
    fn fmt(&self, formatter: &mut fmt::Formatter<'_>) -> fmt::Result {
        let sentence = call::filled(|out, room, size| unsafe {
            ortholan_finding_sentence(&self.finding, out.cast(), room, size)
        });
        formatter.write_str(&sentence.map(call::string).unwrap_or_default())
    }
}

fn judge<'a, F>(options: &PermitOptions, call: F) -> Result<Permission<'a>, Refusal>
where
    F: FnOnce(
        *const ortholan_permit_options,
        *mut ortholan_verdict,
        *mut ortholan_finding,
        usize,
        *mut usize,
    ) -> ortholan_reason,
{
    let plain = ortholan_permit_options { budget: options.budget };
    let mut verdict = ORTHOLAN_VERDICT_CANNOT_TELL;
    let mut findings = vec![unsafe { std::mem::zeroed() }; options.most_findings];
    let (room, mut count) = (findings.len(), 0);
    match call(&plain, &mut verdict, findings.as_mut_ptr(), room, &mut count) {
        ORTHOLAN_REASON_NONE => {
            findings.truncate(count);
            let findings = findings.into_iter();
            Ok(Permission {
                verdict: Verdict::of(verdict),
                findings: findings
                    .map(|finding| Finding { finding, octets: PhantomData })
                    .collect(),
            })
        }
        reason => Err(Refusal::without_place(reason)),
    }
}

/// Holds the names of each certificate of a chain, from the leaf up, against the constraints of
/// those above it. What cannot be read is a finding; refused is only a lack of memory, and a chain
/// without certificates.
pub fn permits<'a>(chain: &[&'a [u8]], options: &PermitOptions) -> Result<Permission<'a>, Refusal> {
    let views: Vec<_> = chain.iter().map(|der| call::octets(der)).collect();
    judge(options, |plain, verdict, findings, room, count| unsafe {
        ortholan_permits(views.as_ptr(), views.len(), plain, verdict, findings, room, count)
    })
}

/// The same for loose parts: the value of one NameConstraints extension, a subject, the value of
/// its alternative-name extension; the last two may be without octets.
pub fn permits_names<'a>(
    constraints: &'a [u8],
    subject: &'a [u8],
    alternative_names: &'a [u8],
    options: &PermitOptions,
) -> Result<Permission<'a>, Refusal> {
    let part = |octets: &[u8]| if octets.is_empty() { call::NOTHING } else { call::octets(octets) };
    judge(options, |plain, verdict, findings, room, count| unsafe {
        ortholan_permits_names(
            call::octets(constraints),
            part(subject),
            part(alternative_names),
            plain,
            verdict,
            findings,
            room,
            count,
        )
    })
}
