#include "dbc_Bytes.h"

#include "nex_Exception.h"

void dbc_RefuseDamage(std::string_view file, std::string_view section, std::size_t offset, std::string_view reason) {
  std::string text(file);
  text.append(": section ").append(section).append(" at offset ").append(std::to_string(offset));
  text.append(": ").append(reason);
  nex_PrimException<cow_String, 2>(cow_String(text)).Throw(__FILE__, __LINE__);
}

std::uint64_t dbc_ByteReader::LongVarint() {
  std::uint64_t value = 0;
  for (int shift = 0; shift < 64; shift += 7) {
    std::uint64_t const byte = Byte();
    if (shift == 63 && byte > 1) {
      break;
    }
    value |= (byte & 0x7f) << shift;
    if (byte < 0x80) {
      return value;
    }
  }
  Refuse("a number is out of range");
}
