"""What of the C headers this package calls, in their words: the one table of signatures.

A test compares each of them with the headers. The shape of a function says how it is called, see
_calls.py: `out`, `room` and `size` are the room for what comes out, a last `refusal` tells why not.
"""

STRUCTURES = """
typedef struct ortholan_octets { const uint8_t* data; size_t size; } ortholan_octets;
typedef struct ortholan_text { const char* data; size_t size; } ortholan_text;
typedef struct ortholan_refusal { ortholan_reason reason; uint32_t met; uint32_t expected;
    size_t offset; } ortholan_refusal;
typedef struct ortholan_name_view { ortholan_octets der; size_t rdn_count; size_t attribute_count;
    } ortholan_name_view;
typedef struct ortholan_attribute_view { ortholan_octets type; ortholan_octets value;
    ortholan_octets content; size_t rdn; uint32_t identifier; int32_t begins_rdn;
    } ortholan_attribute_view;
typedef struct ortholan_name_cursor { size_t index; size_t offset; size_t rdn; size_t rdn_end;
    } ortholan_name_cursor;
typedef struct ortholan_type_name { ortholan_text name; ortholan_octets oid; } ortholan_type_name;
typedef struct ortholan_rfc4514_options { int32_t order; int32_t strings; int32_t long_names;
    int32_t exact; const ortholan_type_name* names; size_t name_count; } ortholan_rfc4514_options;
typedef struct ortholan_text_error { ortholan_reason reason; size_t offset; size_t size;
    size_t character; const char* expected; } ortholan_text_error;
typedef struct ortholan_new_attribute { ortholan_octets oid; ortholan_text type;
    ortholan_text text; ortholan_octets element; uint32_t string_type; int32_t joins_rdn;
    } ortholan_new_attribute;
typedef struct ortholan_match_place { size_t rdn; size_t attribute; } ortholan_match_place;
typedef struct ortholan_match { ortholan_verdict verdict; ortholan_reason reason; int32_t side;
    ortholan_match_place first; ortholan_match_place second; ortholan_octets type;
    ortholan_refusal refusal; } ortholan_match;
typedef struct ortholan_general_name_view { int32_t kind; int32_t other; ortholan_octets bytes;
    ortholan_octets content; } ortholan_general_name_view;
typedef struct ortholan_general_names_view { ortholan_octets der; ortholan_octets names;
    size_t count; } ortholan_general_names_view;
typedef struct ortholan_mailbox { ortholan_text local; ortholan_text host; uint8_t address[16];
    size_t address_size; int32_t has_ascii_local; } ortholan_mailbox;
typedef struct ortholan_uri { ortholan_text scheme; ortholan_text userinfo; ortholan_text host;
    ortholan_text port; ortholan_text rest; uint8_t address[16]; size_t address_size;
    int32_t has_authority; } ortholan_uri;
typedef struct ortholan_other_name { int32_t kind; uint32_t identifier; ortholan_octets type;
    ortholan_octets value; ortholan_text text; ortholan_octets oid; ortholan_octets octets;
    ortholan_octets components; } ortholan_other_name;
typedef struct ortholan_certificate_view { int32_t kind; ortholan_octets der;
    ortholan_octets subject; ortholan_octets issuer; ortholan_octets serial;
    ortholan_octets not_before; ortholan_octets not_after; ortholan_octets extensions;
    size_t extension_count; } ortholan_certificate_view;
typedef struct ortholan_extension_view { ortholan_octets oid; ortholan_octets value;
    ortholan_octets bytes; int32_t critical; } ortholan_extension_view;
typedef struct ortholan_pem_block { ortholan_text label; ortholan_text base64;
    } ortholan_pem_block;
typedef struct ortholan_reference { int32_t kind; uint32_t choices; ortholan_text text;
    } ortholan_reference;
typedef struct ortholan_identity { ortholan_verdict verdict; ortholan_reason reason;
    ortholan_octets name; size_t index; ortholan_octets names; size_t name_count;
    } ortholan_identity;
typedef struct ortholan_presented_name { ortholan_octets bytes; ortholan_reason reason;
    } ortholan_presented_name;
typedef struct ortholan_finding { ortholan_reason reason; ortholan_verdict verdict;
    size_t certificate; size_t authority; int32_t place; ortholan_octets name;
    ortholan_octets subtree; size_t subtree_count; } ortholan_finding;
typedef struct ortholan_permit_options { uint64_t budget; } ortholan_permit_options;
typedef struct ortholan_attribute_type { ortholan_octets oid; ortholan_text name;
    ortholan_text long_name; ortholan_text aliases; int32_t syntax; uint32_t bound;
    } ortholan_attribute_type;
typedef struct ortholan_fault { const char* rule; const char* section; const char* sentence;
    ortholan_octets extension; ortholan_octets part; ortholan_refusal refusal; } ortholan_fault;
typedef struct ortholan_column { const uint8_t* data; size_t size; const int64_t* offsets;
    size_t count; } ortholan_column;
typedef struct ortholan_column_room { uint8_t* data; size_t size; int64_t* offsets;
    ortholan_reason* reasons; } ortholan_column_room;
typedef struct ortholan_attribute { const char* type; const char* key; const char* value;
    size_t value_size; const uint8_t* der; size_t der_size; } ortholan_attribute;
"""

# <ortholan/strict.h>
FUNCTIONS = """
ortholan_reason ortholan_refusal_sentence(const ortholan_refusal* refusal, char* out, size_t room,
    size_t* size);
const char* ortholan_reason_sentence(ortholan_reason reason);
const char* ortholan_reason_name(ortholan_reason reason);
ortholan_reason ortholan_oid_to_text(ortholan_octets oid, char* out, size_t room, size_t* size);
ortholan_reason ortholan_oid_from_text(ortholan_text text, uint8_t* out, size_t room,
    size_t* size);
ortholan_reason ortholan_name_view_read(ortholan_octets der, int32_t mode,
    ortholan_name_view* name, ortholan_refusal* refusal);
ortholan_reason ortholan_name_view_attribute(const ortholan_name_view* name, size_t index,
    ortholan_name_cursor* cursor, ortholan_attribute_view* attribute);
ortholan_reason ortholan_attribute_view_text(const ortholan_attribute_view* attribute, char* out,
    size_t room, size_t* size);
ortholan_reason ortholan_rfc4514_write(const ortholan_name_view* name,
    const ortholan_rfc4514_options* options, char* out, size_t room, size_t* size,
    ortholan_refusal* refusal);
ortholan_reason ortholan_rfc4514_read(ortholan_text text, const ortholan_rfc4514_options* options,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_rfc4514_explain(ortholan_text text, const ortholan_refusal* refusal,
    ortholan_text_error* error);
ortholan_reason ortholan_rfc4514_sentence(ortholan_text text, const ortholan_refusal* refusal,
    char* out, size_t room, size_t* size);
ortholan_reason ortholan_name_build(const ortholan_new_attribute* attributes, size_t count,
    const ortholan_rfc4514_options* options, uint8_t* out, size_t room, size_t* size,
    ortholan_refusal* refusal);
ortholan_reason ortholan_name_view_replace(const ortholan_name_view* name, size_t index,
    const ortholan_new_attribute* attribute, const ortholan_rfc4514_options* options,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_name_view_remove(const ortholan_name_view* name, size_t index,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_name_view_insert(const ortholan_name_view* name, size_t rdn,
    const ortholan_new_attribute* attribute, const ortholan_rfc4514_options* options,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_verdict ortholan_match_names(ortholan_octets first, ortholan_octets second, int32_t rule,
    ortholan_match* match);
ortholan_verdict ortholan_name_within(ortholan_octets subtree, ortholan_octets name, int32_t rule,
    ortholan_match* match);
ortholan_reason ortholan_match_sentence(const ortholan_match* match, char* out, size_t room,
    size_t* size);
ortholan_reason ortholan_match_key(ortholan_octets name, int32_t rule, uint8_t* out, size_t room,
    size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_general_names_view_read(ortholan_octets der, int32_t mode,
    ortholan_general_names_view* names, ortholan_refusal* refusal);
ortholan_reason ortholan_general_names_view_next(const ortholan_general_names_view* names,
    size_t* offset, ortholan_general_name_view* name);
ortholan_reason ortholan_general_name_view_read(ortholan_octets der, int32_t mode,
    ortholan_general_name_view* name, ortholan_refusal* refusal);
ortholan_reason ortholan_mailbox_read(ortholan_text text, int32_t has_utf8,
    ortholan_mailbox* mailbox, ortholan_refusal* refusal);
ortholan_reason ortholan_uri_read(ortholan_text text, ortholan_uri* uri,
    ortholan_refusal* refusal);
ortholan_reason ortholan_other_name_read(const ortholan_general_name_view* name,
    ortholan_other_name* other, ortholan_refusal* refusal);
ortholan_reason ortholan_host_check(ortholan_text host, uint32_t choices,
    ortholan_refusal* refusal);
ortholan_reason ortholan_general_name_to_text(ortholan_octets name, char* out, size_t room,
    size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_general_name_from_text(ortholan_text text, int32_t allows_range,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_certificate_view_read(ortholan_octets der, int32_t mode,
    ortholan_certificate_view* certificate, ortholan_refusal* refusal);
ortholan_reason ortholan_certificate_view_next_extension(
    const ortholan_certificate_view* certificate, size_t* offset,
    ortholan_extension_view* extension);
ortholan_reason ortholan_certificate_view_extension(const ortholan_certificate_view* certificate,
    ortholan_octets oid, ortholan_extension_view* extension, ortholan_refusal* refusal);
ortholan_reason ortholan_extensions_view_read(ortholan_octets der, int32_t mode,
    ortholan_certificate_view* extensions, ortholan_refusal* refusal);
ortholan_reason ortholan_extensions_write(const ortholan_extension_view* extensions, size_t count,
    uint8_t* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_time_to_text(ortholan_octets time, char* out, size_t room, size_t* size);
ortholan_reason ortholan_pem_next(ortholan_text text, size_t* offset, ortholan_pem_block* block,
    ortholan_refusal* refusal);
ortholan_reason ortholan_pem_octets(const ortholan_pem_block* block, uint8_t* out, size_t room,
    size_t* size);
ortholan_reason ortholan_identify(ortholan_octets certificate,
    const ortholan_reference* reference, ortholan_identity* identity, ortholan_refusal* refusal);
ortholan_reason ortholan_identify_by_names(ortholan_octets names,
    const ortholan_reference* reference, ortholan_identity* identity, ortholan_refusal* refusal);
ortholan_reason ortholan_identity_explain(const ortholan_identity* identity,
    const ortholan_reference* reference, size_t* offset, ortholan_presented_name* presented);
ortholan_reason ortholan_permits(const ortholan_octets* chain, size_t chain_size,
    const ortholan_permit_options* options, ortholan_verdict* verdict, ortholan_finding* findings,
    size_t room, size_t* count);
ortholan_reason ortholan_permits_names(ortholan_octets constraints, ortholan_octets subject,
    ortholan_octets alternative_names, const ortholan_permit_options* options,
    ortholan_verdict* verdict, ortholan_finding* findings, size_t room, size_t* count);
ortholan_reason ortholan_finding_sentence(const ortholan_finding* finding, char* out, size_t room,
    size_t* size);
const char* ortholan_extension_name(ortholan_octets oid);
ortholan_reason ortholan_extension_oid_from_name(ortholan_text name, uint8_t* out, size_t room,
    size_t* size);
ortholan_reason ortholan_extension_json(ortholan_octets oid, ortholan_octets value, int32_t mode,
    char* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_extension_text(ortholan_octets oid, ortholan_octets value, int32_t mode,
    size_t indent, char* out, size_t room, size_t* size, ortholan_refusal* refusal);
ortholan_reason ortholan_extension_from_json(ortholan_text type, ortholan_text json, uint8_t* out,
    size_t room, size_t* size, ortholan_refusal* refusal);
size_t ortholan_attribute_type_count(void);
ortholan_reason ortholan_attribute_type_at(size_t index, ortholan_attribute_type* type);
ortholan_reason ortholan_attribute_type_of(ortholan_octets oid, ortholan_attribute_type* type);
ortholan_reason ortholan_attribute_type_named(ortholan_text name, ortholan_attribute_type* type);
ortholan_reason ortholan_check(ortholan_octets der, ortholan_fault* faults, size_t room,
    size_t* count, ortholan_refusal* refusal);
ortholan_reason ortholan_column_rfc4514_write(const ortholan_column* names, int32_t mode,
    const ortholan_rfc4514_options* options, const ortholan_column_room* room, size_t* done);
ortholan_reason ortholan_column_rfc4514_read(const ortholan_column* texts,
    const ortholan_rfc4514_options* options, const ortholan_column_room* room, size_t* done);
ortholan_reason ortholan_column_match_key(const ortholan_column* names, int32_t rule,
    const ortholan_column_room* room, size_t* done);
ortholan_reason ortholan_column_general_name_to_text(const ortholan_column* names,
    const ortholan_column_room* room, size_t* done);
"""

# <ortholan/ortholan_c.h>
CLASSIC_FUNCTIONS = """
uint32_t ortholan_last_status(void);
const char* ortholan_last_error_message(void);
const char* ortholan_version(void);
void ortholan_free(void* memory);
ortholan_result ortholan_name_from_text_n(const char* text, size_t size, uint32_t options,
    int sort, ortholan_name** name);
ortholan_result ortholan_name_text_error_n(const char* text, size_t size, uint32_t options,
    uint32_t* fault, size_t* position, size_t* length, char** message);
ortholan_result ortholan_name_from_der(const uint8_t* der, size_t size, ortholan_name** name);
ortholan_result ortholan_name_new(ortholan_name** name);
ortholan_result ortholan_name_copy(const ortholan_name* name, ortholan_name** copy);
void ortholan_name_free(ortholan_name* name);
ortholan_result ortholan_name_text(const ortholan_name* name, uint32_t options, char** text,
    size_t* size);
ortholan_result ortholan_name_der(const ortholan_name* name, uint8_t** der, size_t* size);
ortholan_result ortholan_name_count(const ortholan_name* name, size_t* count);
ortholan_result ortholan_name_attributes(const ortholan_name* name,
    ortholan_attribute** attributes, size_t* count);
ortholan_result ortholan_name_get(const ortholan_name* name, const char* type, char** value,
    size_t* size);
ortholan_result ortholan_name_add_n(ortholan_name* name, const char* type, const char* value,
    size_t size, uint32_t options);
ortholan_result ortholan_name_set_n(ortholan_name* name, const char* type, const char* value,
    size_t size, uint32_t options);
ortholan_result ortholan_name_remove(ortholan_name* name, const char* type);
ortholan_result ortholan_name_equal(const ortholan_name* a, const ortholan_name* b, int* equal);
ortholan_result ortholan_general_name_from_der(const uint8_t* der, size_t size,
    ortholan_general_name** name);
void ortholan_general_name_free(ortholan_general_name* name);
ortholan_result ortholan_general_name_kind(const ortholan_general_name* name, uint32_t* kind);
ortholan_result ortholan_general_name_text(const ortholan_general_name* name, char** text,
    size_t* size);
ortholan_result ortholan_general_name_value(const ortholan_general_name* name, uint8_t** value,
    size_t* size);
ortholan_result ortholan_general_name_der(const ortholan_general_name* name, uint8_t** der,
    size_t* size);
ortholan_result ortholan_general_names_from_der(const uint8_t* der, size_t size,
    ortholan_general_names** names);
void ortholan_general_names_free(ortholan_general_names* names);
ortholan_result ortholan_general_names_count(const ortholan_general_names* names, size_t* count);
ortholan_result ortholan_general_names_get(const ortholan_general_names* names, size_t index,
    ortholan_general_name** name);
ortholan_result ortholan_extension_new(const char* oid, int critical, const uint8_t* value,
    size_t size, ortholan_extension** extension);
ortholan_result ortholan_extension_from_der(const uint8_t* der, size_t size,
    ortholan_extension** extension);
void ortholan_extension_free(ortholan_extension* extension);
ortholan_result ortholan_extension_oid(const ortholan_extension* extension, char** oid);
ortholan_result ortholan_extension_critical(const ortholan_extension* extension, int* critical);
ortholan_result ortholan_extension_value(const ortholan_extension* extension, uint8_t** value,
    size_t* size);
ortholan_result ortholan_extension_der(const ortholan_extension* extension, uint8_t** der,
    size_t* size);
ortholan_result ortholan_extensions_new(ortholan_extensions** extensions);
ortholan_result ortholan_extensions_from_der(const uint8_t* der, size_t size,
    ortholan_extensions** extensions);
void ortholan_extensions_free(ortholan_extensions* extensions);
ortholan_result ortholan_extensions_count(const ortholan_extensions* extensions, size_t* count);
ortholan_result ortholan_extensions_get(const ortholan_extensions* extensions, size_t index,
    ortholan_extension** extension);
ortholan_result ortholan_extensions_find(const ortholan_extensions* extensions, const char* oid,
    ortholan_extension** extension);
ortholan_result ortholan_extensions_set(ortholan_extensions* extensions,
    const ortholan_extension* extension);
ortholan_result ortholan_extensions_der(const ortholan_extensions* extensions, uint8_t** der,
    size_t* size);
"""
