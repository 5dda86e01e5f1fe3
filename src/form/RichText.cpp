#include "form/RichText.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <string>
#include <utility>

#include "form/HtmlEntities.h"

namespace Wexa {

namespace {

constexpr int kBoldWeight = 600;
constexpr std::wstring_view kFontWeight = L"font-weight:";
constexpr std::size_t kMostDigits = 8;

// What mark-up takes for space; a space of another kind is a character.
bool IsSpace(wchar_t c) {
  return c == L' ' || (c >= L'\t' && c <= L'\r');
}

bool IsTagName(std::wstring_view tag, std::wstring_view name) {
  return tag.substr(0, name.size()) == name &&
         (tag.size() == name.size() || !std::iswalnum(static_cast<wint_t>(tag[name.size()])));
}

bool IsBoldTag(std::wstring_view tag) {
  if (IsTagName(tag, L"b") || IsTagName(tag, L"strong")) return true;
  const auto weight = tag.find(kFontWeight);
  if (weight == tag.npos) return false;
  const std::wstring number(tag.substr(weight + kFontWeight.size(), kMostDigits));
  return std::wcstol(number.c_str(), nullptr, 10) >= kBoldWeight;
}

// Reads the text tag by tag.
class Reader {
 public:
  explicit Reader(std::wstring_view source) : source_(source) {}

  std::wstring Read() {
    while (at_ < source_.size()) {
      if (source_[at_] == L'<') {
        ReadTag();
      } else {
        ReadCharacter();
      }
    }
    while (!text_.empty() && IsSpace(text_.back())) text_.pop_back();
    return std::move(text_);
  }

  bool IsAllBold() const { return hasText_ && !hasPlainText_; }

 private:
  void ReadTag() {
    std::size_t end = source_.find(L'>', at_);
    if (end == std::wstring_view::npos) end = source_.size();
    std::wstring_view tag = source_.substr(at_ + 1, end - at_ - 1);
    at_ = std::min(end + 1, source_.size());
    if (IsTagName(tag, L"style") || IsTagName(tag, L"head")) return SkipElement(tag);
    if (IsTagName(tag, L"br") || IsTagName(tag, L"br/")) return Break();
    if (IsTagName(tag, L"p") || IsTagName(tag, L"li") || IsTagName(tag, L"div")) BreakUnlessFirst();
    if (tag.substr(0, 1) == L"/") {
      LeaveElement(tag.substr(1));
    } else if (IsBoldTag(tag)) {
      ++boldDepth_;
      boldElement_ = tag.substr(0, tag.find(L' '));
    }
  }

  void LeaveElement(std::wstring_view name) {
    if (boldDepth_ > 0 && name == boldElement_) --boldDepth_;
  }

  // One that is never closed takes all that follows.
  void SkipElement(std::wstring_view tag) {
    if (tag.ends_with(L'/')) return;
    const auto* closing = IsTagName(tag, L"head") ? L"</head>" : L"</style>";
    at_ = std::min(source_.find(closing, at_), source_.size());
  }

  void ReadCharacter() {
    if (const auto entity = HtmlEntityAt(source_.substr(at_))) {
      at_ += entity->length;
      return Append(entity->character);
    }
    const wchar_t character = source_[at_++];
    IsSpace(character) ? AppendSpace() : Append(character);
  }

  void Append(wchar_t character) {
    text_.push_back(character);
    hasText_ = true;
    if (boldDepth_ == 0) hasPlainText_ = true;
  }

  // White space of the file runs together, as in any mark-up.
  void AppendSpace() {
    if (!text_.empty() && !IsSpace(text_.back())) text_.push_back(L' ');
  }

  void Break() {
    if (!text_.empty() && text_.back() == L' ') text_.pop_back();
    text_.push_back(L'\n');
  }

  void BreakUnlessFirst() {
    if (!text_.empty() && text_.back() != L'\n') Break();
  }

  std::wstring_view source_;
  std::size_t at_ = 0;
  std::wstring text_;
  std::wstring_view boldElement_;
  int boldDepth_ = 0;
  bool hasText_ = false;
  bool hasPlainText_ = false;
};

}  // namespace

bool IsRichText(std::wstring_view text) {
  std::size_t open = text.find(L'<');
  if (open == std::wstring_view::npos || open + 1 >= text.size()) return false;
  wchar_t next = text[open + 1];
  bool startsTag = std::iswalpha(static_cast<wint_t>(next)) || next == L'!';
  return startsTag && text.find(L'>', open) != std::wstring_view::npos;
}

std::wstring PlainTextOf(std::wstring_view richText, std::int32_t& bold) {
  Reader reader(richText);
  std::wstring text = reader.Read();
  if (reader.IsAllBold()) bold = 1;
  return text;
}

}  // namespace Wexa
