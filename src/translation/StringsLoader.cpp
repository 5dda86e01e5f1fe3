#include "StringsLoader.h"

#include <cwchar>
#include <utility>

#include "XmlDocument.h"

namespace Wexa {

namespace {

// 0 for a text that is no number.
int ToNumber(std::wstring_view text) {
  return static_cast<int>(std::wcstol(std::wstring(text).c_str(), nullptr, 10));
}

void ReadFont(const XmlNode& root, logFont& font) {
  const XmlNode* outer = root.first_node(L"Font");
  const XmlNode* element = outer ? outer->first_node(L"PreFont") : nullptr;
  if (element == nullptr) return;
  if (const auto face = AttributeOf(*element, L"FaceName")) font.faceName = *face;
  if (const auto height = AttributeOf(*element, L"Height")) font.height = ToNumber(*height);
  if (const auto charSet = AttributeOf(*element, L"Charset")) {
    font.charSet = static_cast<std::uint8_t>(ToNumber(*charSet));
  }
}

}  // namespace

void LoadStringsText(std::wstring text, const Languages& languages,
                     std::unordered_map<std::wstring, std::wstring>& texts, logFont& font) {
  const XmlDocument document(std::move(text));
  const XmlNode* root = document.First();
  const auto language = root ? AttributeOf(*root, L"language") : std::nullopt;
  if (!language || (language != languages.current && language != languages.fallback)) return;
  ReadFont(*root, font);
  const XmlNode* table = root->first_node(L"StringTable");
  const XmlNode* entry = table ? table->first_node(L"string") : nullptr;
  for (; entry; entry = entry->next_sibling(L"string")) {
    if (const auto id = AttributeOf(*entry, L"id"))
      texts.try_emplace(std::wstring(*id), TextOf(*entry));
  }
}

}  // namespace Wexa
