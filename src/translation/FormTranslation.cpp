#include "FormTranslation.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "Utf8Decoding.h"

namespace Wexa {

namespace {

constexpr std::string_view kStartTag = "<string";
constexpr std::string_view kEndTag = "</string";
constexpr std::wstring_view kWideStartTag = L"<string";
constexpr std::wstring_view kWideEndTag = L"</string";
constexpr std::wstring_view kElement = L"<string></string>";
constexpr auto kEnd = std::wstring_view::npos;

// The lines of a text, one after the other.
template <typename Char>
class LineReader {
 public:
  using View = std::basic_string_view<Char>;

  explicit LineReader(View text) : text_(text) {}

  bool Next() {
    if (next_ >= text_.size()) return false;
    const auto end = std::min(text_.find(Char('\n'), next_), text_.size());
    line_ = text_.substr(next_, end - next_);
    next_ = end + 1;
    ++number_;
    return true;
  }
  // Goes on to the line that holds the tag, or to the last one.
  void SkipTo(View tag) {
    while (!Has(tag) && Next()) continue;
  }
  bool Has(View tag) const { return line_.find(tag) != View::npos; }
  View Line() const { return line_; }
  unsigned int Number() const { return number_; }

 private:
  View text_;
  std::size_t next_ = 0;
  View line_;
  unsigned int number_ = 0;
};

// The text of a string element up to and with its end tag, as offsets.
struct Span {
  std::size_t start;
  std::size_t end;
};

// The first string element that starts on `line`, a part of `text`.
std::optional<Span> FindString(std::wstring_view text, std::wstring_view line) {
  const auto tag = line.find(kWideStartTag);
  if (tag == kEnd) return std::nullopt;
  const auto name = static_cast<std::size_t>(line.data() - text.data()) + tag + 1;
  const auto nameEnd = text.find_first_of(L" />", name);
  const auto tagEnd = text.find(L'>', name);
  const auto close = text.find(L'<', name);
  const auto end = text.find(L'>', std::min(close, text.size()));
  const bool whole = end != kEnd && tagEnd < close && text.substr(close).starts_with(kWideEndTag);
  const bool isString = text.substr(name, nameEnd - name) == kWideStartTag.substr(1);
  if (!whole || !isString || text[tagEnd - 1] == L'/') return std::nullopt;
  return Span{tagEnd + 1, end + 1};
}

// The translations that count, in the order of their lines.
class Entries {
 public:
  Entries(const FormLines& translations, EmptyTranslations empty)
      : at_(translations.begin()), end_(translations.end()), empty_(empty) {
    PassEmpty();
  }

  bool IsDue(unsigned int line) const { return at_ != end_ && at_->first <= line; }
  bool IsFor(unsigned int line) const { return at_ != end_ && at_->first == line; }
  void DropAll() { at_ = end_; }
  // The translation for the string that ends on `line`. The new element stands on that line, which
  // may have a translation of its own.
  const std::wstring& Take(unsigned int line) {
    const std::wstring& translation = Next();
    return IsFor(line) ? Next() : translation;
  }

 private:
  const std::wstring& Next() {
    const std::wstring& translation = (at_++)->second;
    PassEmpty();
    return translation;
  }
  void PassEmpty() {
    while (empty_ == EmptyTranslations::KeepString && at_ != end_ && at_->second.empty()) ++at_;
  }

  FormLines::const_iterator at_;
  FormLines::const_iterator end_;
  EmptyTranslations empty_;
};

template <typename Char>
std::basic_string<Char> Ascii(std::string_view text) {
  return {text.begin(), text.end()};
}

template <typename Char>
std::size_t CountTranslatable(std::basic_string_view<Char> text) {
  constexpr auto kNone = std::basic_string_view<Char>::npos;
  const auto opening = Ascii<Char>(kStartTag);
  const auto fixed = Ascii<Char>("notr=\"true\"");
  std::size_t count = 0;
  for (auto at = text.find(opening); at != kNone; at = text.find(opening, at + 1)) {
    const auto tag = text.substr(at, text.find(Char('>'), at) - at);
    const bool isString = tag.size() == opening.size() || tag[opening.size()] == Char(' ');
    if (isString && tag.find(fixed) == kNone) ++count;
  }
  return count;
}

template <typename Char>
std::size_t CountUnmatchedIn(std::basic_string_view<Char> text, const FormLines& translations) {
  LineReader<Char> lines(text);
  const auto first = translations.begin();
  while (first != translations.end() && lines.Number() < first->first && lines.Next()) continue;
  const bool matches = first != translations.end() && lines.Number() == first->first &&
                       lines.Has(Ascii<Char>(kStartTag));
  return matches ? 0 : CountTranslatable(text);
}

std::size_t LongestText(std::string_view text, const FormLines& translations) {
  std::size_t length = text.size();
  for (const auto& [line, translation] : translations) length += translation.size();
  return length + translations.size() * kElement.size();
}

}  // namespace

std::wstring TranslateForm(std::string_view text, const FormLines& translations,
                           EmptyTranslations empty) {
  std::wstring joined(LongestText(text, translations), L'\0');
  wchar_t* to = joined.data();
  const auto put = [&to](std::wstring_view part) { to = std::ranges::copy(part, to).out; };
  Entries entries(translations, empty);
  for (LineReader lines(text); lines.Next();) {
    const bool isDue = entries.IsDue(lines.Number());
    if (isDue && entries.IsFor(lines.Number()) && lines.Has(kStartTag)) {
      lines.SkipTo(kEndTag);
      put(L"<string>");
      put(entries.Take(lines.Number()));
      put(L"</string>");
    } else {
      if (isDue) entries.DropAll();
      to = WidenUtf8(lines.Line(), to);
    }
  }
  joined.resize(static_cast<std::size_t>(to - joined.data()));
  return joined;
}

std::wstring TranslateFormInPlace(const std::wstring& text, const FormLines& translations) {
  std::wstring translated;
  translated.reserve(text.size());
  std::size_t copied = 0;
  LineReader lines(std::wstring_view{text});
  for (const auto& [number, translation] : translations) {
    if (translation.empty()) continue;
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

std::size_t CountUnmatched(std::string_view text, const FormLines& translations) {
  return CountUnmatchedIn(text, translations);
}

std::size_t CountUnmatched(std::wstring_view text, const FormLines& translations) {
  return CountUnmatchedIn(text, translations);
}

}  // namespace Wexa
