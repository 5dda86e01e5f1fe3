#include "TsLoader.h"

#include <utf8.h>

#include <algorithm>
#include <charconv>
#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "FormTranslation.h"
#include "Utf8.h"
#include "XmlDocument.h"

namespace Wexa {

namespace {

struct Location {
  int line;
  std::string_view fileName;  // in the document
};

// Makes a text as it stands in XML, again and again in the same memory.
class XmlEscaper {
 public:
  void Clear() { length_ = 0; }

  void Append(std::string_view utf8) {
    constexpr std::size_t kLongestReference = 5;
    characters_.resize(std::max(characters_.size(), length_ + utf8.size() * kLongestReference));
    for (const char *at = utf8.data(), *const end = at + utf8.size(); at < end;) {
      const auto character = utf8::unchecked::next(at);
      switch (character) {
        case '&': Put(L"&amp;"); break;
        case '<': Put(L"&lt;"); break;
        case '>': Put(L"&gt;"); break;
        default: characters_[length_++] = static_cast<wchar_t>(character);
      }
    }
  }

  std::wstring_view Text() const { return {characters_.data(), length_}; }

 private:
  void Put(std::wstring_view reference) {
    length_ += reference.copy(&characters_[length_], reference.size());
  }

  std::vector<wchar_t> characters_;
  std::size_t length_ = 0;
};

bool IsRelative(std::string_view number) {
  return number.starts_with('+') || number.starts_with('-');
}

std::string_view NameOf(const Utf8XmlNode& element) {
  return {element.name(), element.name_size()};
}

bool IsTsFor(const Utf8XmlNode* root, std::string_view language) {
  return root && NameOf(*root) == "TS" && AttributeOf(*root, "language") == language;
}

// Reads the messages of one TS file.
class TsReader {
 public:
  TsReader(std::string_view language, TsReport& report) : language_(language), report_(report) {}

  void Take(const Utf8XmlDocument& document, const Utf8XmlNode& root, const Utf8XmlNode& parent,
            const Utf8XmlNode& element) {
    if (NameOf(element) != "message" || NameOf(parent) != "context") return;
    if (&root != root_) wanted_ = IsTsFor(root_ = &root, language_);
    if (wanted_) ReadMessage(document, element);
  }
  TSTranslationUnit::MessageMap TakeMessages() { return std::move(messages_); }

 private:
  void ReadMessage(const Utf8XmlDocument& document, const Utf8XmlNode& message) {
    ++report_.messages;
    locations_.clear();
    translation_.Clear();
    for (const auto* part = message.first_node(); part; part = part->next_sibling()) {
      if (NameOf(*part) == "location") {
        ReadLocation(document, *part);
      } else if (NameOf(*part) == "translation") {
        translation_.Clear();
        VisitText(*part, [this](std::string_view text) { translation_.Append(text); });
      }
    }
    for (const auto& location : locations_) {
      auto& lines = LinesOf(location.fileName);
      lines.try_emplace(lines.end(), static_cast<unsigned int>(location.line), translation_.Text());
    }
  }

  void ReadLocation(const Utf8XmlDocument& document, const Utf8XmlNode& element) {
    const auto path = AttributeOf(element, "filename");
    const auto line = AttributeOf(element, "line");
    if (!path || !line) return;
    const int number = ReadLine(*line, document.OffsetOf(element));
    locations_.push_back({number, path->substr(path->rfind('/') + 1)});
  }

  int ReadLine(std::string_view number, std::size_t place) {
    int line = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), line);
    if (result.ec == std::errc() && line >= 0) return line;
    if (!report_.relative && IsRelative(number)) report_.relative = place;
    try {
      return std::stoi(std::string(number));
    } catch (const std::logic_error&) {
      report_.bad = place;
      throw;
    }
  }

  // Most locations name the file of the one before, and its lines in order.
  FormLines& LinesOf(std::string_view fileName) {
    if (lines_ == nullptr || fileName != fileName_) {
      lines_ = &messages_[*WidenUtf8(fileName)];
      fileName_ = fileName;
    }
    return *lines_;
  }

  std::string_view language_;
  TsReport& report_;
  const Utf8XmlNode* root_ = nullptr;  // the last one seen
  bool wanted_ = false;                // its messages
  std::vector<Location> locations_;    // of the message being read
  XmlEscaper translation_;             // of that message
  std::string_view fileName_;          // of the lines
  FormLines* lines_ = nullptr;
  TSTranslationUnit::MessageMap messages_;
};

}  // namespace

std::optional<TSTranslationUnit> LoadTsText(std::string text, const std::wstring& language,
                                            TsReport& report) {
  const std::string code = NarrowUtf8(language);
  TsReader reader(code, report);
  const Utf8XmlDocument document(std::move(text), std::bind_front(&TsReader::Take, &reader));
  const auto* root = document.First("TS");
  report.isTs = root != nullptr;
  const auto named = root ? AttributeOf(*root, "language") : std::nullopt;
  if (named) report.language = WidenUtf8(*named);
  if (!IsTsFor(root, code)) return std::nullopt;
  return TSTranslationUnit(reader.TakeMessages());
}

}  // namespace Wexa
