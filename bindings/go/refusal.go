package ortholan

// #include <ortholan/strict.h>
import "C"

// Code says why something was refused or decided: an ORTHOLAN_REASON_ number of the library's
// headers, 0 for no reason.
type Code int32

// String is one English sentence; "" for 0.
func (c Code) String() string {
	return C.GoString(C.ortholan_reason_sentence(C.ortholan_reason(c)))
}

const (
	notFound = Code(C.ORTHOLAN_REASON_NOT_FOUND)
	noPlace  = C.size_t(C.ORTHOLAN_NO_PLACE)
)

// Refusal says why and where an input was refused; functions return it as an error.
type Refusal struct {
	Code     Code
	Offset   int    // octets of the input before the place, or -1
	Met      uint32 // octet or character there; 0xFFFFFFFF where the input ended
	Expected uint32 // identifier octet that the structure has there, or a bound; 0 where none
	Item     int    // which of several inputs it is about, from 0
	Sentence string // one English sentence without a full stop
}

// Error is the sentence.
func (r *Refusal) Error() string { return r.Sentence }

func noRefusal() C.ortholan_refusal {
	return C.ortholan_refusal{offset: noPlace}
}

// refused makes the error of a call, nil without a reason.
func refused(reason C.ortholan_reason, place C.ortholan_refusal) error {
	if reason == C.ORTHOLAN_REASON_NONE {
		return nil
	}
	place.reason = reason
	return &Refusal{
		Code:     Code(reason),
		Offset:   placeOf(place.offset),
		Met:      uint32(place.met),
		Expected: uint32(place.expected),
		Sentence: sentence(func(out room) C.ortholan_reason {
			return C.ortholan_refusal_sentence(&place, out.text(), out.size(), out.needs)
		}),
	}
}

func placeOf(offset C.size_t) int {
	if offset == noPlace {
		return -1
	}
	return int(offset)
}

// Verdict is what was decided. Only Yes is a yes; the zero value is not.
type Verdict int32

// The three verdicts.
const (
	CannotTell Verdict = C.ORTHOLAN_VERDICT_CANNOT_TELL
	Yes        Verdict = C.ORTHOLAN_VERDICT_YES
	No         Verdict = C.ORTHOLAN_VERDICT_NO
)

func (v Verdict) String() string {
	switch v {
	case Yes:
		return "yes"
	case No:
		return "no"
	}
	return "cannot tell"
}

// Reading is how closely an encoding is read; verdicts never take Lenient.
type Reading int32

const (
	// DER with the alphabets and encodings of string types.
	DER Reading = C.ORTHOLAN_READ_DER
	// Lenient takes any definite form of a length, SETs in any order, strings outside their alphabet.
	Lenient Reading = C.ORTHOLAN_READ_LENIENT
	// Structure is DER but for what changes no meaning, and without a look at strings.
	Structure Reading = C.ORTHOLAN_READ_STRUCTURE
)
