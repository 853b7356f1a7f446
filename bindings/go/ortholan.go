// Package ortholan reads names and extensions of X.509 certificates to the letter, compares them and
// judges, each verdict with its reason. It stands on the C functions of the Ortholan library, which
// pkg-config finds.
//
//	name, err := ortholan.ParseName("CN=Alpha,O=Org")
//	if err != nil {
//		return err // *ortholan.Refusal: what is expected at which character
//	}
//	fmt.Printf("%X %s\n", name.DER(), name)
//
// Everything that comes out is a value with octets of its own: nothing is to be closed, and
// goroutines may share it. Name, GeneralName and Key are comparable and serve as keys of maps.
package ortholan

// #cgo pkg-config: ortholan
// #include <ortholan/strict.h>
import "C"

// OIDFromText makes the content octets of an OBJECT IDENTIFIER of dotted text (X.690 8.19), with
// arcs of any size.
func OIDFromText(text string) ([]byte, error) {
	var m memory
	defer m.free()
	given := m.text(text)
	return write(func(out room, _ *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_oid_from_text(given, out.octets(), out.size(), out.needs)
	})
}

// OIDToText is the dotted text of an OBJECT IDENTIFIER's content octets.
func OIDToText(oid []byte) (string, error) {
	var m memory
	defer m.free()
	given := m.octets(oid)
	text, err := write(func(out room, _ *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_oid_to_text(given, out.text(), out.size(), out.needs)
	})
	return string(text), err
}
