#include "TsLoader.h"

#include <stdexcept>
#include <utility>
#include <vector>

#include "XmlDocument.h"

namespace Wexa {

namespace {

struct Location {
  int line;
  std::wstring_view fileName;  // in the document
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

bool IsRelative(std::wstring_view number) {
  return number.starts_with(L'+') || number.starts_with(L'-');
}

// Reads the messages of one TS file into a unit.
class TsReader {
 public:
  TsReader(const XmlDocument& document, TsLines& lines) : document_(document), lines_(lines) {}

  TSTranslationUnit Read(const XmlNode& root) {
    for (auto* context = root.first_node(L"context"); context;
         context = context->next_sibling(L"context")) {
      for (auto* message = context->first_node(L"message"); message;
           message = message->next_sibling(L"message")) {
        ReadMessage(*message);
      }
    }
    return std::move(unit_);
  }

 private:
  void ReadMessage(const XmlNode& message) {
    locations_.clear();
    std::wstring translation;
    for (const XmlNode* part = message.first_node(); part; part = part->next_sibling()) {
      const std::wstring_view name(part->name(), part->name_size());
      if (name == L"location") {
        ReadLocation(*part);
      } else if (name == L"translation") {
        translation = TextOf(*part);
      }
    }
    std::wstring escaped = EscapeForXml(std::move(translation));
    for (const auto& location : locations_) {
      const bool last = &location == &locations_.back();
      unit_.AddMessageFromTS(std::wstring(location.fileName), location.line,
                             last ? std::move(escaped) : escaped);
    }
  }

  void ReadLocation(const XmlNode& element) {
    const auto path = AttributeOf(element, L"filename");
    const auto line = AttributeOf(element, L"line");
    if (!path || !line) return;
    locations_.push_back({ReadLine(element, *line), path->substr(path->rfind(L'/') + 1)});
  }

  int ReadLine(const XmlNode& element, std::wstring_view number) {
    if (lines_.relative == 0 && IsRelative(number)) lines_.relative = document_.LineOf(element);
    try {
      return std::stoi(number_.assign(number));
    } catch (const std::logic_error&) {
      lines_.bad = document_.LineOf(element);
      throw;
    }
  }

  const XmlDocument& document_;
  TsLines& lines_;
  std::vector<Location> locations_;  // of the message being read
  std::wstring number_;              // kept for its memory
  TSTranslationUnit unit_;
};

}  // namespace

std::optional<TSTranslationUnit> LoadTsText(std::wstring text, const std::wstring& language,
                                            TsLines& lines) {
  const XmlDocument document(std::move(text));
  const XmlNode* root = document.First(L"TS");
  if (root == nullptr || AttributeOf(*root, L"language") != language) return std::nullopt;
  return TsReader(document, lines).Read(*root);
}

}  // namespace Wexa
