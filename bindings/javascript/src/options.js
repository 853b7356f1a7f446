// Words of options and their numbers.

/** How closely an encoding is read. */
export const readings = { der: 0, lenient: 1, structure: 2 };

/** The number of a word; anything else is a mistake of the program. */
export function word(numbers, word, option) {
  if (!Object.hasOwn(numbers, word)) {
    throw new TypeError(`${option}: one of ${Object.keys(numbers).join(", ")} is expected`);
  }
  return numbers[word];
}
