package ortholan

// #include <ortholan/strict.h>
import "C"

// Fault is one thing that RFC 5280 forbids.
type Fault struct {
	Rule      string // "path-length-without-ca"; stays the same
	Section   string // of RFC 5280, "4.2.1.9"; of others "RFC 3779 2.2.3.6"
	Sentence  string // what is wrong, without a full stop; may change
	Extension []byte // content octets of the extension's identifier, be it missing
	Part      []byte // where in the input; empty where something is missing
}

// Check finds everything that RFC 5280 forbids in a certificate, a request or a CRL: as a whole, in its
// names, in each extension. Keys, signatures and times are not looked at.
func Check(der []byte) ([]Fault, error) {
	var m memory
	defer m.free()
	given, place := m.octets(der), noRefusal()
	var found []C.ortholan_fault
	count := C.size_t(16)
	for len(found) < int(count) {
		found = make([]C.ortholan_fault, count)
		reason := C.ortholan_check(given, &found[0], C.size_t(len(found)), &count, &place)
		if reason != C.ORTHOLAN_REASON_NONE {
			return nil, refused(reason, place)
		}
	}
	faults := make([]Fault, count)
	for i, each := range found[:count] {
		faults[i] = Fault{
			Rule:      C.GoString(each.rule),
			Section:   C.GoString(each.section),
			Sentence:  C.GoString(each.sentence),
			Extension: copied(each.extension),
			Part:      copied(each.part),
		}
	}
	return faults, nil
}
