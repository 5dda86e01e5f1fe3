#include "StringsLoader.h"

#include <cstdlib>
#include <utility>

#include "Utf8.h"
#include "XmlDocument.h"

namespace Wexa {

namespace {

// 0 for a text that is no number.
int ToNumber(std::string_view text) {
  return static_cast<int>(std::strtol(std::string(text).c_str(), nullptr, 10));
}

void ReadFont(const Utf8XmlNode& root, logFont& font) {
  const Utf8XmlNode* outer = root.first_node("Font");
  const Utf8XmlNode* element = outer ? outer->first_node("PreFont") : nullptr;
  if (element == nullptr) return;
  if (const auto face = AttributeOf(*element, "FaceName")) font.faceName = *WidenUtf8(*face);
  if (const auto height = AttributeOf(*element, "Height")) font.height = ToNumber(*height);
  if (const auto charSet = AttributeOf(*element, "Charset")) {
    font.charSet = static_cast<std::uint8_t>(ToNumber(*charSet));
  }
}

}  // namespace

void LoadStringsText(std::string text, const Languages& languages,
                     std::unordered_map<std::wstring, std::wstring>& texts, logFont& font) {
  const Utf8XmlDocument document(std::move(text));
  const Utf8XmlNode* root = document.First();
  const auto language = root ? AttributeOf(*root, "language") : std::nullopt;
  if (!language ||
      (language != NarrowUtf8(languages.current) && language != NarrowUtf8(languages.fallback))) {
    return;
  }
  ReadFont(*root, font);
  const Utf8XmlNode* table = root->first_node("StringTable");
  const Utf8XmlNode* entry = table ? table->first_node("string") : nullptr;
  for (; entry; entry = entry->next_sibling("string")) {
    if (const auto id = AttributeOf(*entry, "id"))
      texts.try_emplace(*WidenUtf8(*id), *WidenUtf8(TextOf(*entry)));
  }
}

}  // namespace Wexa
