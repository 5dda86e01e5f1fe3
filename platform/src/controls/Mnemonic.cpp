#include <locale.h>
#include <wctype.h>

#include "platform/DialogManager.h"

namespace {

// By the rules of Unicode, whatever the program's locale is.
wchar_t UpperCase(wchar_t c) {
  static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  const auto letter = static_cast<wint_t>(c);
  return static_cast<wchar_t>(unicode ? towupper_l(letter, unicode) : towupper(letter));
}

}  // namespace

wchar_t GetMnemonic(std::wstring_view text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    if (text[i + 1] != L'&') return UpperCase(text[i + 1]);
    ++i;
  }
  return 0;
}

bool IsMnemonic(std::wstring_view text, wchar_t character) {
  return character > L' ' && GetMnemonic(text) == UpperCase(character);
}
