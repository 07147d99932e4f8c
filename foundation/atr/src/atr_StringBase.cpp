#include "atr_StringBase.h"

#include <algorithm>
#include <limits>
#include <new>
#include <ostream>
#include <stdexcept>

#include "mem_Allocation.h"

namespace {

std::string_view UpToZero(std::string_view text) { return text.substr(0, text.find('\0')); }

}  // namespace

// Both texts end with a zero byte; the second is there only if it is not empty.
std::size_t atr_StringBase::SizeOf(int length, int rawLength) noexcept {
  return sizeof(Block) + static_cast<std::size_t>(length) + 1 +
         (rawLength > 0 ? static_cast<std::size_t>(rawLength) + 1 : 0);
}

char* atr_StringBase::Allocate(std::size_t length, std::size_t rawLength) {
  if (std::max(length, rawLength) > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw std::length_error("text too long");
  }
  Block const head{1, static_cast<int>(length), static_cast<int>(rawLength)};
  Block* const block = ::new (mem_OperatorNewThrow(SizeOf(head.length, head.rawLength))) Block(head);
  char* const text = reinterpret_cast<char*>(block + 1);
  text[length] = '\0';
  counter_ = &block->count;
  text_ = text;
  return text;
}

void atr_StringBase::Free() noexcept {
  Block* const block = BlockOf(counter_);
  mem_OperatorDelete(block, SizeOf(block->length, block->rawLength));
}

atr_StringBase::atr_StringBase(std::string_view text, std::string_view raw) {
  text = UpToZero(text);
  if (text.empty()) return;
  raw = UpToZero(raw);
  if (raw == text) raw = {};
  char* const to = Allocate(text.size(), raw.size());
  text.copy(to, text.size());
  if (!raw.empty()) to[text.size() + 1 + raw.copy(to + text.size() + 1, raw.size())] = '\0';
}

atr_StringBase atr_StringBase::Joined(std::string_view head, std::string_view tail) {
  atr_StringBase result;
  if (head.empty() && tail.empty()) return result;
  char* const to = result.Allocate(head.size() + tail.size(), 0);
  tail.copy(to + head.copy(to, head.size()), tail.size());
  return result;
}

int atr_StringBase::Find(char const* what, int start) const noexcept {
  start = std::max(start, 0);
  if (start > Length()) return -1;
  char const* const found = std::strstr(CStr() + start, what);
  return found == nullptr ? -1 : static_cast<int>(found - CStr());
}

std::ostream& operator<<(std::ostream& out, atr_StringBase const& text) { return out << text.View(); }
