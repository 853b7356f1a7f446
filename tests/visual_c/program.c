/* The C functions as a program of Visual C++ calls them: text to DER and back. */
#include <ortholan/strict.h>

int puts(const char* text);

static int digit(unsigned value) { return value < 10 ? '0' + (int)value : 'A' + (int)value - 10; }

int main(void) {
  static const char kText[] = "CN=Alpha,O=Org";
  const ortholan_text text = {kText, sizeof kText - 1};
  uint8_t der[64];
  char shown[2 * sizeof der + 1];
  size_t size = 0;
  size_t i;
  ortholan_octets octets;
  ortholan_name_view name;
  if (ortholan_rfc4514_read(text, NULL, der, sizeof der, &size, NULL) != 0) return 1;
  for (i = 0; i < size; ++i) {
    shown[2 * i] = (char)digit(der[i] >> 4);
    shown[2 * i + 1] = (char)digit(der[i] & 15);
  }
  shown[2 * size] = '\0';
  puts(shown);
  octets.data = der;
  octets.size = size;
  if (ortholan_name_view_read(octets, ORTHOLAN_READ_DER, &name, NULL) != 0) return 1;
  if (ortholan_rfc4514_write(&name, NULL, shown, sizeof shown - 1, &size, NULL) != 0) return 1;
  shown[size] = '\0';
  puts(shown);
  return 0;
}
