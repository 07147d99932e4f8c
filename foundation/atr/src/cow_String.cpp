#include "cow_String.h"

cow_String& cow_String::Append(std::string_view tail) {
  if (!tail.empty()) *this = Joined(View(), tail);
  return *this;
}
