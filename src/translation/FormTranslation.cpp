#include "FormTranslation.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace Wexa {

namespace {

constexpr std::wstring_view kStartTag = L"<string";
constexpr std::wstring_view kEndTag = L"</string";
constexpr auto kEnd = std::wstring_view::npos;

// The lines of a text, one after the other.
class LineReader {
 public:
  explicit LineReader(std::wstring_view text) : text_(text) {}

  bool Next() {
    if (next_ >= text_.size()) return false;
    const auto end = std::min(text_.find(L'\n', next_), text_.size());
    line_ = text_.substr(next_, end - next_);
    next_ = end + 1;
    ++number_;
    return true;
  }
  // Goes on to the line on which a string element ends, or to the last one.
  void SkipString() {
    while (!Has(kEndTag) && Next()) continue;
  }
  bool Has(std::wstring_view tag) const { return line_.find(tag) != kEnd; }
  std::wstring_view Line() const { return line_; }
  unsigned int Number() const { return number_; }

 private:
  std::wstring_view text_;
  std::size_t next_ = 0;
  std::wstring_view line_;
  unsigned int number_ = 0;
};

// The text of a string element up to and with its end tag, as offsets.
struct Span {
  std::size_t start;
  std::size_t end;
};

// The first string element that starts on `line`, a part of `text`.
std::optional<Span> FindString(std::wstring_view text, std::wstring_view line) {
  const auto tag = line.find(kStartTag);
  if (tag == kEnd) return std::nullopt;
  const auto name = static_cast<std::size_t>(line.data() - text.data()) + tag + 1;
  const auto nameEnd = text.find_first_of(L" />", name);
  const auto tagEnd = text.find(L'>', name);
  const auto close = text.find(L'<', name);
  const auto end = text.find(L'>', std::min(close, text.size()));
  const bool whole = end != kEnd && tagEnd < close && text.substr(close).starts_with(kEndTag);
  const bool isString = text.substr(name, nameEnd - name) == kStartTag.substr(1);
  if (!whole || !isString || text[tagEnd - 1] == L'/') return std::nullopt;
  return Span{tagEnd + 1, end + 1};
}

using Entry = FormLines::const_iterator;

// The translation for the string that ends on `line`. The new element stands on that line, which
// may have a translation of its own.
const std::wstring& TakeTranslation(Entry& entry, Entry end, unsigned int line) {
  const std::wstring& translation = (entry++)->second;
  return entry != end && entry->first == line ? (entry++)->second : translation;
}

}  // namespace

std::wstring TranslateForm(const std::wstring& text, const FormLines& translations) {
  std::wstring joined;
  joined.reserve(text.size());
  auto entry = translations.begin();
  const auto end = translations.end();
  for (LineReader lines(text); lines.Next();) {
    const bool due = entry != end && entry->first <= lines.Number();
    if (due && entry->first == lines.Number() && lines.Has(kStartTag)) {
      lines.SkipString();
      const auto& translation = TakeTranslation(entry, end, lines.Number());
      joined.append(L"<string>").append(translation).append(L"</string>");
    } else {
      if (due) entry = end;
      joined += lines.Line();
    }
  }
  return joined;
}

std::wstring TranslateFormInPlace(const std::wstring& text, const FormLines& translations) {
  std::wstring translated;
  translated.reserve(text.size());
  std::size_t copied = 0;
  LineReader lines(text);
  for (const auto& [number, translation] : translations) {
    while (lines.Number() < number && lines.Next()) continue;
    const auto string = lines.Number() == number ? FindString(text, lines.Line()) : std::nullopt;
    if (!string || string->start < copied) break;
    translated.append(text, copied, string->start - copied).append(translation);
    translated.append(L"</string>");
    const auto old = std::wstring_view(text).substr(string->start, string->end - string->start);
    const auto lineEnds = std::ranges::count(old, L'\n');
    translated.append(static_cast<std::size_t>(lineEnds), L'\n');
    copied = string->end;
  }
  return translated.append(text, copied);
}

}  // namespace Wexa
