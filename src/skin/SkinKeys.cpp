#include <algorithm>
#include <string_view>

#include "SkinManager.h"
#include "SlotTable.h"

namespace Wexa {

namespace {

wchar_t UpperCase(wchar_t c) {
  return c >= L'a' && c <= L'z' ? c - L'a' + L'A' : c;
}

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, {}, UpperCase, UpperCase);
}

}  // namespace

void SkinManager::AssignColor(SkinMap map, const std::wstring& key, SkinManagerColor color) {
  const auto name = std::ranges::find_if(
      kColorKeyNames, [&](const wchar_t* known) { return EqualIgnoringCase(known, key); });
  const auto wanted = static_cast<ColorKey>(name - kColorKeyNames.begin());
  const unsigned long resolved = color;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    const SlotRow& row = kSlotTable[n];
    if ((map == SkinMap::Buttons ? row.buttonKey : row.inputKey) == wanted) slots_[n] = resolved;
  }
}

void SkinManager::InitSkinColorByMap(SkinMap map,
                                     const std::map<std::wstring, SkinManagerColor>& colors) {
  for (const auto& [key, color] : colors) AssignColor(map, key, color);
  keyMapApplied_ = true;
}

}  // namespace Wexa
