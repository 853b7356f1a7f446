package ortholan

// #include <ortholan/strict.h>
import "C"

// JSON is the value of the extension in one line: {"cA":true,"pathLenConstraint":0}; what it looks like
// stands in <ortholan/strict/extensions.h>. Refused where the value is not of the extension's
// structure; of an extension that is not known it is its octets.
func (e Extension) JSON() (string, error) {
	var m memory
	defer m.free()
	oid, value := m.octets(e.OID), m.octets(e.Value)
	json, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_extension_json(oid, value, C.ORTHOLAN_READ_DER, out.text(), out.size(),
			out.needs, place)
	})
	return string(json), err
}

// Words are the same in plain words, a line for each fact; safe to show.
func (e Extension) Words() (string, error) {
	var m memory
	defer m.free()
	oid, value := m.octets(e.OID), m.octets(e.Value)
	words, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_extension_text(oid, value, C.ORTHOLAN_READ_DER, 0, out.text(), out.size(),
			out.needs, place)
	})
	return string(words), err
}

// ExtensionsJSON are all extensions as a JSON array of objects with oid, name, critical and value. A
// value that is refused stands there by its octets, with a refusal behind it.
func (c *Certificate) ExtensionsJSON() (string, error) {
	var m memory
	defer m.free()
	der := m.octets(c.DER)
	json, err := write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_extensions_json(der, C.ORTHOLAN_READ_DER, out.text(), out.size(), out.needs,
			place)
	})
	return string(json), err
}

// ExtensionFromJSON is the value of an extension in DER from its JSON, by the extension's name or dotted
// digits. Refused is a place of the JSON.
func ExtensionFromJSON(name, json string) ([]byte, error) {
	var m memory
	defer m.free()
	known, given := m.text(name), m.text(json)
	return write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_extension_from_json(known, given, out.octets(), out.size(), out.needs, place)
	})
}

// ExtensionsFromJSON are extensions in DER from JSON: an array as ExtensionsJSON puts it becomes SEQUENCE
// OF Extension, a single object of it one Extension.
func ExtensionsFromJSON(json string) ([]byte, error) {
	var m memory
	defer m.free()
	given := m.text(json)
	return write(func(out room, place *C.ortholan_refusal) C.ortholan_reason {
		return C.ortholan_extensions_from_json(given, out.octets(), out.size(), out.needs, place)
	})
}
