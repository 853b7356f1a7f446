package ortholan

// #include <ortholan/strict.h>
import "C"

// ReferenceKind is what a certificate is asked for.
type ReferenceKind int32

// The kinds of questions.
const (
	Host    ReferenceKind = C.ORTHOLAN_REFERENCE_HOST    // "www.example.org"
	Address ReferenceKind = C.ORTHOLAN_REFERENCE_ADDRESS // "192.0.2.1", "2001:db8::1"
	Mailbox ReferenceKind = C.ORTHOLAN_REFERENCE_MAILBOX // "joe@example.org"
	URI     ReferenceKind = C.ORTHOLAN_REFERENCE_URI     // scheme and host count
	Service ReferenceKind = C.ORTHOLAN_REFERENCE_SERVICE // "_imaps.example.org" (RFC 4985)
)

// Reference is a question.
type Reference struct {
	Kind          ReferenceKind
	Text          string
	NoUnderscores bool // hosts with an underscore are no host names
}

func (r Reference) plain(m *memory) C.ortholan_reference {
	reference := C.ortholan_reference{kind: C.int32_t(r.Kind), text: m.text(r.Text)}
	if r.NoUnderscores {
		reference.choices = C.ORTHOLAN_IDENTIFY_NO_UNDERSCORE
	}
	return reference
}

// Mismatch is a presented name, and why it is not the one that was asked for.
type Mismatch struct {
	DER  []byte // the whole element, which may be malformed inside
	Code Code   // that it is malformed, or else what differs
}

// Identity is the answer.
type Identity struct {
	Verdict    Verdict
	Code       Code        // why not
	Name       GeneralName // for Yes the name that matched
	Mismatches []Mismatch  // the other names
}

// Yes says whether the verdict is yes.
func (i Identity) Yes() bool { return i.Verdict == Yes }

// Identify says whether a certificate is for what is asked (RFC 9525); its alternative names alone
// count. A certificate that cannot be read cannot be told; refused is only a question that is none
// of its kind.
func Identify(certificate []byte, reference Reference) (Identity, error) {
	return identify(certificate, reference, func(der C.ortholan_octets, question *C.ortholan_reference,
		answer *C.ortholan_identity, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_identify(der, question, answer, place)
	})
}

// IdentifyByNames is the same of the value of an alternative-name extension alone.
func IdentifyByNames(names []byte, reference Reference) (Identity, error) {
	return identify(names, reference, func(der C.ortholan_octets, question *C.ortholan_reference,
		answer *C.ortholan_identity, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_identify_by_names(der, question, answer, place)
	})
}

type ask func(C.ortholan_octets, *C.ortholan_reference, *C.ortholan_identity,
	*C.ortholan_refusal) C.ortholan_reason

func identify(der []byte, reference Reference, call ask) (Identity, error) {
	var m memory
	defer m.free()
	var answer C.ortholan_identity
	question, place := reference.plain(&m), noRefusal()
	reason := call(m.octets(der), &question, &answer, &place)
	if reason != C.ORTHOLAN_REASON_NONE {
		return Identity{}, refused(reason, place)
	}
	identity := Identity{Verdict: Verdict(answer.verdict), Code: Code(answer.reason)}
	if identity.Yes() {
		identity.Name, _ = ReadGeneralNameAs(copied(answer.name), Structure)
	}
	var offset C.size_t
	var each C.ortholan_presented_name
	for C.ortholan_identity_explain(&answer, &question, &offset, &each) == C.ORTHOLAN_REASON_NONE {
		if each.reason != C.ORTHOLAN_REASON_NONE {
			identity.Mismatches = append(identity.Mismatches, Mismatch{copied(each.bytes), Code(each.reason)})
		}
	}
	return identity, nil
}
