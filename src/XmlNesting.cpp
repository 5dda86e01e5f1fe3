#include "XmlNesting.h"

#include "XmlCharacters.h"

namespace Wexa {

namespace {

constexpr auto kEnd = std::wstring_view::npos;

// Walks through the tags of a text. It reads them exactly as the parser does, so that no text can
// make the two see different tags; where the parser would give up, Next ends.
class TagReader {
 public:
  explicit TagReader(std::wstring_view text) : text_(text) {}

  // Reads up to and with the next tag: +1 for one that opens an element, -1 for one that closes an
  // element, 0 for other markup. False at the end.
  bool Next(int& change) {
    at_ = text_.find(L'<', at_);
    if (at_ == kEnd) return false;
    const auto markup = text_.substr(at_, 10);
    change = markup.starts_with(L"</") ? -1 : 0;
    if (change == -1) return at_ += 2, true;
    if (markup.starts_with(L"<?")) return SkipBehind(L"?>", 2);
    if (markup.starts_with(L"<!")) return SkipDeclaration(markup);
    return ReadStartTag(change);
  }

  std::size_t Position() const { return at_; }

 private:
  bool SkipDeclaration(std::wstring_view markup) {
    if (markup.starts_with(L"<!--")) return SkipBehind(L"-->", 4);
    if (markup.starts_with(L"<![CDATA[")) return SkipBehind(L"]]>", 9);
    if (markup.starts_with(L"<!DOCTYPE") && markup.size() == 10 &&
        XmlCharacters::Space(markup[9])) {
      return SkipDocumentType();
    }
    return SkipBehind(L">", 2);
  }

  bool SkipBehind(std::wstring_view mark, std::size_t offset) {
    const auto found = text_.find(mark, at_ + offset);
    if (found == kEnd) return false;
    at_ = found + mark.size();
    return true;
  }

  // A document type may have a part in brackets that contains tags.
  bool SkipDocumentType() {
    int brackets = 0;
    for (at_ += 10; at_ < text_.size(); ++at_) {
      const wchar_t c = text_[at_];
      if (c == L'[') ++brackets;
      if (c == L']' && brackets > 0) --brackets;
      if (c == L'>' && brackets == 0) return ++at_, true;
    }
    return false;
  }

  bool ReadStartTag(int& change) {
    ++at_;
    SkipWhile(XmlCharacters::NodeName);
    SkipWhile(XmlCharacters::Space);
    while (XmlCharacters::AttributeName(Current())) {
      if (!SkipAttribute()) return false;
    }
    change = Current() == L'>' ? 1 : 0;
    return Current() == L'>' || Current() == L'/';
  }

  bool SkipAttribute() {
    SkipWhile(XmlCharacters::AttributeName);
    SkipWhile(XmlCharacters::Space);
    if (Current() != L'=') return false;
    ++at_;
    SkipWhile(XmlCharacters::Space);
    const wchar_t quote = Current();
    if (quote != L'"' && quote != L'\'') return false;
    at_ = text_.find(quote, at_ + 1);
    if (at_ == kEnd) return false;
    ++at_;
    SkipWhile(XmlCharacters::Space);
    return true;
  }

  template <typename Predicate>
  void SkipWhile(Predicate predicate) {
    while (predicate(Current())) ++at_;
  }

  // 0, which is in no class, at the end.
  wchar_t Current() const { return at_ < text_.size() ? text_[at_] : L'\0'; }

  std::wstring_view text_;
  std::size_t at_ = 0;
};

}  // namespace

std::optional<std::size_t> FindNestingBeyond(std::wstring_view text, int limit) {
  TagReader reader(text);
  int depth = 0;
  for (int change = 0; reader.Next(change);) {
    depth += change;
    if (depth > limit) return reader.Position();
    if (depth < 0) break;
  }
  return std::nullopt;
}

}  // namespace Wexa
