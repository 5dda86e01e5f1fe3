#include "Utf16.h"

namespace Wexa {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

bool IsSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

}  // namespace

std::u16string ToUtf16(std::wstring_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (wchar_t w : text) {
    auto c = static_cast<char32_t>(w);
    if (c < 0x10000) {
      units.push_back(IsSurrogate(c) ? kReplacement : static_cast<char16_t>(c));
    } else if (c <= 0x10FFFF) {
      units.push_back(static_cast<char16_t>(0xD7C0 + (c >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
    } else {
      units.push_back(kReplacement);
    }
  }
  return units;
}

}  // namespace Wexa
