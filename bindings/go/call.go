package ortholan

// #include <ortholan/strict.h>
// #include <stdlib.h>
import "C"

import "unsafe"

// memory holds copies of what a call is given. Views that the library returns point into its input,
// and C code may not put pointers to Go's memory into Go's memory: so the input is C's.
type memory struct {
	blocks []unsafe.Pointer
}

func (m *memory) free() {
	for _, block := range m.blocks {
		C.free(block)
	}
}

func (m *memory) octets(octets []byte) C.ortholan_octets {
	if len(octets) == 0 {
		return C.ortholan_octets{}
	}
	block := C.CBytes(octets)
	m.blocks = append(m.blocks, block)
	return C.ortholan_octets{data: (*C.uint8_t)(block), size: C.size_t(len(octets))}
}

func (m *memory) text(text string) C.ortholan_text {
	octets := m.octets([]byte(text))
	return C.ortholan_text{data: (*C.char)(unsafe.Pointer(octets.data)), size: octets.size}
}

// array makes an array of zeros, as Go wants it before pointers are written into C's memory.
func array[T any](m *memory, count int) []T {
	var each T
	block := C.calloc(C.size_t(count)+1, C.size_t(unsafe.Sizeof(each)))
	m.blocks = append(m.blocks, block)
	return unsafe.Slice((*T)(block), count)
}

// first is the place of an array, nil for an empty one.
func first[T any](array []T) *T {
	if len(array) == 0 {
		return nil
	}
	return &array[0]
}

func copied(octets C.ortholan_octets) []byte {
	return append([]byte(nil), unsafe.Slice((*byte)(octets.data), int(octets.size))...)
}

// room is where a call writes to, and where it says how much it needs.
type room struct {
	buffer []byte
	needs  *C.size_t
}

func (r room) octets() *C.uint8_t { return (*C.uint8_t)(unsafe.Pointer(&r.buffer[0])) }
func (r room) text() *C.char      { return (*C.char)(unsafe.Pointer(&r.buffer[0])) }
func (r room) size() C.size_t     { return C.size_t(len(r.buffer)) }

// fill calls a function that writes into room, again with as much as it needs.
func fill(call func(room) C.ortholan_reason) ([]byte, C.ortholan_reason) {
	out := room{make([]byte, 256), new(C.size_t)}
	reason := call(out)
	if reason == C.ORTHOLAN_REASON_ROOM {
		out.buffer = make([]byte, *out.needs)
		reason = call(out)
	}
	if reason != C.ORTHOLAN_REASON_NONE {
		return nil, reason
	}
	return out.buffer[:*out.needs], reason
}

// write is fill with a reason as an error.
func write(call func(room, *C.ortholan_refusal) C.ortholan_reason) ([]byte, error) {
	place := noRefusal()
	out, reason := fill(func(out room) C.ortholan_reason { return call(out, &place) })
	return out, refused(reason, place)
}

// sentence is the text of a function that cannot be refused.
func sentence(call func(room) C.ortholan_reason) string {
	text, _ := fill(call)
	return string(text)
}

// number turns true into C's 1.
func number(is bool) C.int32_t {
	if is {
		return 1
	}
	return 0
}
