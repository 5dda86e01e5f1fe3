#include <cwctype>

#include "platform/DialogManager.h"

wchar_t GetMnemonic(std::wstring_view text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    if (text[i + 1] != L'&') return static_cast<wchar_t>(std::towupper(text[i + 1]));
    ++i;
  }
  return 0;
}
