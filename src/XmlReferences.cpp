#include "XmlReferences.h"

#include <algorithm>
#include <array>
#include <string>

namespace Wexa {

namespace {

constexpr std::string_view kNameStart = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_:";
constexpr std::string_view kInName = "0123456789.-";
constexpr std::array<std::string_view, 5> kDefined = {"amp", "lt", "gt", "quot", "apos"};

struct Section {
  std::string_view opening;
  std::string_view closing;
};

// Where "&" is a character like any other.
constexpr Section kSections[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};

template <typename Char>
class References {
 public:
  using View = std::basic_string_view<Char>;

  explicit References(View text) : text_(text) {}

  std::size_t FindUndefined() {
    for (auto at = text_.find(Char('&')); at != View::npos; at = text_.find(Char('&'), at + 1)) {
      if (!NamesUndefined(at + 1)) continue;
      SkipSectionsBefore(at);
      if (next_ <= at) return IsAnyDeclared() ? View::npos : at;
      at = next_ - 1;
    }
    return View::npos;
  }

 private:
  bool NamesUndefined(std::size_t start) const {
    auto end = start;
    while (end < text_.size() && IsInName(text_[end], end > start)) ++end;
    if (end == start || end == text_.size() || text_[end] != Char(';')) return false;
    const auto name = text_.substr(start, end - start);
    return std::ranges::none_of(kDefined,
                                [&](auto defined) { return std::ranges::equal(defined, name); });
  }

  static bool IsInName(Char c, bool isLater) {
    const auto has = [c](std::string_view set) {
      return std::ranges::any_of(set, [c](char other) { return Char(other) == c; });
    };
    return has(kNameStart) || (isLater && has(kInName));
  }

  // Goes on from where it was, so that each part of the text is looked at once.
  void SkipSectionsBefore(std::size_t place) {
    while (next_ <= place) {
      const auto tag = std::min(text_.find(Char('<'), next_), text_.size());
      if (tag > place) return;
      next_ = EndOfSection(tag);
    }
  }

  // The place behind the section that starts at a tag, behind the "<" when none does.
  std::size_t EndOfSection(std::size_t tag) const {
    for (const auto& [opening, closing] : kSections) {
      if (!text_.substr(tag).starts_with(Text(opening))) continue;
      const auto end = text_.find(Text(closing), tag + opening.size());
      return end == View::npos ? text_.size() : end + closing.size();
    }
    return tag + 1;
  }

  bool IsAnyDeclared() const { return text_.find(Text("<!ENTITY")) != View::npos; }

  static std::basic_string<Char> Text(std::string_view ascii) {
    return {ascii.begin(), ascii.end()};
  }

  View text_;
  std::size_t next_ = 0;  // no section starts before
};

}  // namespace

template <typename Char>
std::size_t FindUndefinedEntity(std::basic_string_view<Char> text) {
  return References<Char>(text).FindUndefined();
}

template std::size_t FindUndefinedEntity(std::wstring_view text);
template std::size_t FindUndefinedEntity(std::string_view text);

}  // namespace Wexa
