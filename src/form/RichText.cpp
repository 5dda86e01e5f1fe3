#include "form/RichText.h"

#include <array>
#include <cwctype>
#include <utility>

namespace Wexa {

namespace {

constexpr std::array<std::pair<std::wstring_view, wchar_t>, 9> kEntities{{
    {L"&amp;", L'&'},
    {L"&lt;", L'<'},
    {L"&gt;", L'>'},
    {L"&quot;", L'"'},
    {L"&apos;", L'\''},
    {L"&nbsp;", L'\u00A0'},
    {L"&copy;", L'\u00A9'},
    {L"&ndash;", L'\u2013'},
    {L"&hellip;", L'\u2026'},
}};
constexpr int kBoldWeight = 600;

bool IsTagName(std::wstring_view tag, std::wstring_view name) {
  return tag.substr(0, name.size()) == name &&
         (tag.size() == name.size() || !std::iswalnum(static_cast<wint_t>(tag[name.size()])));
}

bool IsBoldTag(std::wstring_view tag) {
  if (IsTagName(tag, L"b") || IsTagName(tag, L"strong")) return true;
  auto weight = tag.find(L"font-weight:");
  if (weight == std::wstring_view::npos) return false;
  return std::wcstol(tag.data() + weight + 12, nullptr, 10) >= kBoldWeight;
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
    while (!text_.empty() && std::iswspace(static_cast<wint_t>(text_.back()))) text_.pop_back();
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

  void SkipElement(std::wstring_view tag) {
    if (tag.substr(tag.size() - 1) == L"/") return;
    std::size_t end = source_.find(tag == L"head" ? L"</head>" : L"</style>", at_);
    if (end != std::wstring_view::npos) at_ = end;
  }

  void ReadCharacter() {
    for (const auto& [entity, character] : kEntities) {
      if (source_.substr(at_, entity.size()) != entity) continue;
      at_ += entity.size();
      return Append(character);
    }
    Append(source_[at_++]);
  }

  // White space of the file runs together, as in any mark-up.
  void Append(wchar_t character) {
    bool isSpace = character != L'\u00A0' && std::iswspace(static_cast<wint_t>(character));
    if (isSpace && (text_.empty() || std::iswspace(static_cast<wint_t>(text_.back())))) return;
    text_.push_back(isSpace ? L' ' : character);
    if (isSpace) return;
    hasText_ = true;
    if (boldDepth_ == 0) hasPlainText_ = true;
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
