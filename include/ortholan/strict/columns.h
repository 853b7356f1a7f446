// Whole columns at once, an answer an item: for databases, data frames and other languages, in
// place of a million calls.
//
//   const uint8_t data[] = {0x30, 0x00, 0x30};              // two names, the second is cut short
//   const int64_t offsets[] = {0, 2, 3};
//   const ortholan_column names = {data, sizeof data, offsets, 2};
//   uint8_t text[256];
//   int64_t ends[3];
//   ortholan_reason reasons[2];
//   const ortholan_column_room room = {text, sizeof text, ends, reasons};
//   size_t done;
//   ortholan_column_rfc4514_write(&names, ORTHOLAN_READ_DER, NULL, &room, &done);
//
// Items lie one behind the other, as in the large binary and string arrays of Apache Arrow. One
// that is bad stops nothing: nothing comes out of it, and its reason says why; the function for a
// single item tells the place.
#ifndef ORTHOLAN_STRICT_COLUMNS_H_
#define ORTHOLAN_STRICT_COLUMNS_H_

#include <ortholan/strict/names.h>

#ifdef __cplusplus
extern "C" {
#endif

// Items that somebody else owns: number i is the octets from offsets[i] to offsets[i + 1].
typedef struct ortholan_column {
  const uint8_t* data;
  size_t size;             // octets of data
  const int64_t* offsets;  // count + 1, none below the one before
  size_t count;
} ortholan_column;

// The caller's room for what comes out, in the same form.
typedef struct ortholan_column_room {
  uint8_t* data;
  size_t size;               // octets of data
  int64_t* offsets;          // count + 1; the first becomes 0
  ortholan_reason* reasons;  // count; ORTHOLAN_REASON_NONE, or why the item was refused
} ortholan_column_room;

// What holds for these functions: `*done` is how many items were answered. It is less than their
// number where the next one finds no room: go on with a column that begins there. They refuse
// ARGUMENT, also for offsets that do not rise or that pass the data, and MEMORY.

// ortholan_name_view_read and ortholan_rfc4514_write for each: names in DER become text.
//   mode  an ORTHOLAN_READ_ word
ORTHOLAN_EXPORT ortholan_reason ortholan_column_rfc4514_write(
    const ortholan_column* names, int32_t mode, const ortholan_rfc4514_options* options,
    const ortholan_column_room* room, size_t* done);
// ortholan_rfc4514_read for each: texts become names in DER.
ORTHOLAN_EXPORT ortholan_reason
ortholan_column_rfc4514_read(const ortholan_column* texts, const ortholan_rfc4514_options* options,
                             const ortholan_column_room* room, size_t* done);
// ortholan_match_key for each.
//   rule  an ORTHOLAN_MATCH_ word, ORTHOLAN_MATCH_ANY_ORDER added or not
ORTHOLAN_EXPORT ortholan_reason ortholan_column_match_key(const ortholan_column* names,
                                                          int32_t rule,
                                                          const ortholan_column_room* room,
                                                          size_t* done);
// ortholan_general_name_to_text for each.
ORTHOLAN_EXPORT ortholan_reason ortholan_column_general_name_to_text(
    const ortholan_column* names, const ortholan_column_room* room, size_t* done);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_COLUMNS_H_
