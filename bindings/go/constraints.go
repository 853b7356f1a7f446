package ortholan

// #include <ortholan/strict.h>
import "C"

// PermitOptions are what may be chosen.
type PermitOptions struct {
	Budget       uint64 // comparisons of a name with a subtree, at most; 0 for 16777216
	MostFindings int    // 0 for one, with which the search ends at the first refusal
}

// Finding is one reason why names are not permitted, or why that cannot be told.
type Finding struct {
	Code        Code
	Verdict     Verdict // No or CannotTell
	Certificate int     // index of the certificate whose name it is, 0 for the leaf
	Authority   int     // index of the certificate whose constraints decide
	Name        []byte  // the GeneralName, or the subject's Name
	Subtree     []byte  // GeneralName that is the base of the subtree that decides, or nothing
	Sentence    string  // one English sentence; certificates are counted from 1, the leaf
}

// Permission is a verdict with its reasons, those of the verdict's kind before others.
type Permission struct {
	Verdict  Verdict
	Findings []Finding
}

// Yes says whether the verdict is yes.
func (p Permission) Yes() bool { return p.Verdict == Yes }

// Permits holds the names of each certificate of a chain, from the leaf up, against the constraints
// of those above it (RFC 5280 4.2.1.10 and 6.1). What cannot be read is a finding; refused is only a
// lack of memory, and a chain without certificates.
func Permits(chain [][]byte, options PermitOptions) (Permission, error) {
	var m memory
	defer m.free()
	given := array[C.ortholan_octets](&m, len(chain))
	for i, der := range chain {
		given[i] = m.octets(der)
	}
	return judge(options, func(plain *C.ortholan_permit_options, verdict *C.ortholan_verdict,
		findings *C.ortholan_finding, size C.size_t, count *C.size_t) C.ortholan_reason {
		return C.ortholan_permits(first(given), C.size_t(len(given)), plain, verdict, findings, size, count)
	})
}

// PermitsNames is the same for loose parts: the value of one NameConstraints extension, a subject,
// the value of its alternative-name extension; the last two may be empty.
func PermitsNames(constraints, subject, names []byte, options PermitOptions) (Permission, error) {
	var m memory
	defer m.free()
	parts := [3]C.ortholan_octets{m.octets(constraints), m.octets(subject), m.octets(names)}
	return judge(options, func(plain *C.ortholan_permit_options, verdict *C.ortholan_verdict,
		findings *C.ortholan_finding, size C.size_t, count *C.size_t) C.ortholan_reason {
		return C.ortholan_permits_names(parts[0], parts[1], parts[2], plain, verdict, findings, size, count)
	})
}

type judging func(*C.ortholan_permit_options, *C.ortholan_verdict, *C.ortholan_finding, C.size_t,
	*C.size_t) C.ortholan_reason

func judge(options PermitOptions, call judging) (Permission, error) {
	most := options.MostFindings
	if most <= 0 {
		most = 1
	}
	findings := make([]C.ortholan_finding, most)
	plain := C.ortholan_permit_options{budget: C.uint64_t(options.Budget)}
	var verdict C.ortholan_verdict
	var count C.size_t
	reason := call(&plain, &verdict, &findings[0], C.size_t(most), &count)
	if reason != C.ORTHOLAN_REASON_NONE {
		return Permission{}, refused(reason, noRefusal())
	}
	permission := Permission{Verdict: Verdict(verdict)}
	for i := range findings[:count] {
		permission.Findings = append(permission.Findings, finding(&findings[i]))
	}
	return permission, nil
}

func finding(found *C.ortholan_finding) Finding {
	return Finding{
		Code:        Code(found.reason),
		Verdict:     Verdict(found.verdict),
		Certificate: int(found.certificate),
		Authority:   int(found.authority),
		Name:        copied(found.name),
		Subtree:     copied(found.subtree),
		Sentence: sentence(func(out room) C.ortholan_reason {
			return C.ortholan_finding_sentence(found, out.text(), out.size(), out.needs)
		}),
	}
}
