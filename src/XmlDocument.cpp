#include "XmlDocument.h"

#include <algorithm>

#include "XmlCharacters.h"
#include "XmlNesting.h"

// The parser's templates made right for wide characters. They are used in this file only, so the
// parser's own versions are never in play.
namespace rapidxml {

using Wexa::XmlCharacters;
using Tables = XmlCharacters::Tables;

template <>
struct xml_document<wchar_t>::whitespace_pred {
  static unsigned char test(wchar_t c) { return XmlCharacters::Space(c); }
};

template <>
struct xml_document<wchar_t>::node_name_pred {
  static unsigned char test(wchar_t c) { return XmlCharacters::NodeName(c); }
};

template <>
struct xml_document<wchar_t>::attribute_name_pred {
  static unsigned char test(wchar_t c) { return XmlCharacters::AttributeName(c); }
};

template <>
struct xml_document<wchar_t>::text_pred {
  static unsigned char test(wchar_t c) { return XmlCharacters::Text(Tables::lookup_text, c); }
};

template <>
struct xml_document<wchar_t>::text_pure_no_ws_pred {
  static unsigned char test(wchar_t c) {
    return XmlCharacters::Text(Tables::lookup_text_pure_no_ws, c);
  }
};

template <>
template <wchar_t Quote>
struct xml_document<wchar_t>::attribute_value_pred {
  static unsigned char test(wchar_t c) {
    return XmlCharacters::Text(
        Quote == L'\'' ? Tables::lookup_attribute_data_1 : Tables::lookup_attribute_data_2, c);
  }
};

template <>
template <wchar_t Quote>
struct xml_document<wchar_t>::attribute_value_pure_pred {
  static unsigned char test(wchar_t c) {
    return XmlCharacters::Text(Quote == L'\'' ? Tables::lookup_attribute_data_1_pure
                                              : Tables::lookup_attribute_data_2_pure,
                               c);
  }
};

// A numeric reference is one character, not the bytes of its UTF-8 form.
template <>
template <int Flags>
void xml_document<wchar_t>::insert_coded_character(wchar_t*& text, unsigned long code) {
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  if (code == 0 || surrogate || code > 0x10FFFF) {
    throw parse_error("invalid numeric character entity", text);
  }
  *text++ = static_cast<wchar_t>(code);
}

}  // namespace rapidxml

namespace Wexa {

namespace {

constexpr int kDeepestNesting = 500;
constexpr wchar_t kByteOrderMark = 0xFEFF;

void CheckBeforeParsing(const std::wstring& text, const LineTable& lines) {
  const auto zero = text.find(L'\0');
  if (zero != std::wstring::npos)
    throw XmlParseError("unexpected null character", lines.LineOf(zero));
  if (const auto place = FindNestingBeyond(text, kDeepestNesting)) {
    throw XmlParseError("elements nested too deep", lines.LineOf(*place));
  }
}

}  // namespace

LineTable::LineTable(std::wstring_view text) {
  for (auto at = text.find(L'\n'); at != text.npos; at = text.find(L'\n', at + 1)) {
    ends_.push_back(at);
  }
}

int LineTable::LineOf(std::size_t offset) const {
  const auto end = std::lower_bound(ends_.begin(), ends_.end(), offset);
  return static_cast<int>(end - ends_.begin()) + 1;
}

XmlDocument::XmlDocument(std::wstring text)
    : text_(std::move(text)),
      lines_(text_),
      document_(std::make_unique<rapidxml::xml_document<wchar_t>>()) {
  CheckBeforeParsing(text_, lines_);
  wchar_t* start = text_.data() + (text_.starts_with(kByteOrderMark) ? 1 : 0);
  try {
    document_->parse<rapidxml::parse_validate_closing_tags>(start);
  } catch (const rapidxml::parse_error& error) {
    const auto offset = static_cast<std::size_t>(error.where<wchar_t>() - text_.data());
    throw XmlParseError(error.what(), lines_.LineOf(offset));
  }
}

XmlDocument::~XmlDocument() = default;

const XmlNode* XmlDocument::First(const wchar_t* name) const {
  for (const XmlNode* node = document_->first_node(name); node; node = node->next_sibling(name)) {
    if (node->type() == rapidxml::node_element) return node;
  }
  return nullptr;
}

int XmlDocument::LineOf(const XmlNode& element) const {
  return lines_.LineOf(static_cast<std::size_t>(element.name() - text_.data()));
}

std::wstring TextOf(const XmlNode& element) {
  std::wstring text;
  for (const XmlNode* part = element.first_node(); part; part = part->next_sibling()) {
    const bool isText = part->type() == rapidxml::node_data || part->type() == rapidxml::node_cdata;
    if (isText) text.append(part->value(), part->value_size());
  }
  return text;
}

std::optional<std::wstring_view> AttributeOf(const XmlNode& element, const wchar_t* name) {
  const auto* attribute = element.first_attribute(name);
  if (attribute == nullptr) return std::nullopt;
  return std::wstring_view(attribute->value(), attribute->value_size());
}

}  // namespace Wexa
