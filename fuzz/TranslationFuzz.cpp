// Any bytes as a form, with translations for all lines that hold strings, or for lines near them.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "Utf8.h"
#include "translation/FormTranslation.h"

namespace {

Wexa::FormLines LinesWithStrings(std::string_view text, unsigned shift) {
  Wexa::FormLines lines;
  unsigned number = 1;
  for (std::size_t at = 0; at < text.size(); ++number) {
    const auto end = std::min(text.find('\n', at), text.size());
    if (text.substr(at, end - at).find("<string") != text.npos) lines[number + shift] = L"t";
    at = end + 1;
  }
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto text = Wexa::WidenUtf8(bytes);
  if (!text) return 0;
  for (unsigned shift : {0u, 1u, 2u}) {
    const auto lines = LinesWithStrings(bytes, shift);
    Wexa::TranslateForm(bytes, lines);
    const auto inPlace = Wexa::TranslateFormInPlace(*text, lines);
    if (std::ranges::count(inPlace, L'\n') != std::ranges::count(*text, L'\n')) std::abort();
  }
  return 0;
}
