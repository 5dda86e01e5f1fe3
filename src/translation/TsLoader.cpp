#include "TsLoader.h"

#include <utility>
#include <vector>

#include "XmlDocument.h"

namespace Wexa {

namespace {

struct Location {
  int line;
  std::wstring fileName;
};

void Replace(std::wstring& text, wchar_t character, const wchar_t* reference) {
  for (auto at = text.find(character); at != std::wstring::npos;
       at = text.find(character, at + 1)) {
    text.replace(at, 1, reference);
  }
}

std::wstring EscapeForXml(std::wstring text) {
  Replace(text, L'&', L"&amp;");
  Replace(text, L'<', L"&lt;");
  Replace(text, L'>', L"&gt;");
  return text;
}

std::optional<Location> ReadLocation(const XmlNode& element) {
  const auto path = AttributeOf(element, L"filename");
  const auto line = AttributeOf(element, L"line");
  if (!path || !line) return std::nullopt;
  const auto name = path->substr(path->rfind(L'/') + 1);
  return Location{std::stoi(std::wstring(*line)), std::wstring(name)};
}

void AddMessage(const XmlNode& message, TSTranslationUnit& unit) {
  std::vector<Location> locations;
  std::wstring translation;
  for (const XmlNode* part = message.first_node(); part; part = part->next_sibling()) {
    const std::wstring_view name(part->name(), part->name_size());
    if (name == L"location") {
      if (auto location = ReadLocation(*part)) locations.push_back(std::move(*location));
    } else if (name == L"translation") {
      translation = TextOf(*part);
    }
  }
  const std::wstring escaped = EscapeForXml(std::move(translation));
  for (auto& location : locations) {
    unit.AddMessageFromTS(std::move(location.fileName), location.line, escaped);
  }
}

}  // namespace

std::optional<TSTranslationUnit> LoadTsText(std::wstring text, const std::wstring& language) {
  const XmlDocument document(std::move(text));
  const XmlNode* root = document.First(L"TS");
  if (root == nullptr || AttributeOf(*root, L"language") != language) return std::nullopt;
  TSTranslationUnit unit;
  for (auto* context = root->first_node(L"context"); context;
       context = context->next_sibling(L"context")) {
    for (auto* message = context->first_node(L"message"); message;
         message = message->next_sibling(L"message")) {
      AddMessage(*message, unit);
    }
  }
  return unit;
}

}  // namespace Wexa
