#include "XmlDocument.h"

#include <utf8.h>

#include <algorithm>
#include <concepts>
#include <functional>
#include <utility>

#include "XmlReferences.h"

namespace Wexa {

// The library's document and parser, which also knows the elements it is in.
template <typename Char>
struct XmlParser : rapidxml::xml_document<Char> {
  using Node = rapidxml::xml_node<Char>;
  using Visit = std::function<void(const Node& root, const Node& parent, const Node& element)>;

  int depth = 0;
  const Node* outer[2] = {};
  // Takes the elements of the third level. Each is read into `passing`, which is cleared for it, so
  // that reading stays within a little memory.
  Visit visit;
  std::unique_ptr<XmlParser> passing;
};

namespace {

constexpr int kDeepestNesting = 500;

// What the parser is asked for. It hands the flags on from function to function: bits that have no
// meaning to it tell its functions here from those of other users, and apart the two halves of its
// recursion.
constexpr int kFlags = rapidxml::parse_validate_closing_tags | 1 << 29;
constexpr int kInElement = rapidxml::parse_validate_closing_tags | 1 << 30;

// An element whose contents are being read; the parser goes down the stack for it.
template <typename Char>
class OpenElement {
 public:
  OpenElement(rapidxml::xml_document<Char>& document, const rapidxml::xml_node<Char>& element,
              Char* place)
      : parser_(static_cast<XmlParser<Char>&>(document)) {
    if (parser_.depth == kDeepestNesting) {
      throw rapidxml::parse_error("elements nested too deep", place);
    }
    if (parser_.depth < 2) parser_.outer[parser_.depth] = &element;
    ++parser_.depth;
  }
  ~OpenElement() { --parser_.depth; }
  OpenElement(const OpenElement&) = delete;
  OpenElement& operator=(const OpenElement&) = delete;

 private:
  XmlParser<Char>& parser_;
};

// The parser's tables cover the first 256 characters; all others belong to every class but that of
// blanks. (Cut to one byte, U+043C would read as "<".)
template <const unsigned char (&kTable)[256], unsigned char kBeyond = 1>
struct CharacterClass {
  static unsigned char test(wchar_t c) {
    return static_cast<char32_t>(c) > 0xFF ? kBeyond : kTable[static_cast<unsigned char>(c)];
  }
};

template <typename Char>
void CheckCode(unsigned long code, Char* place) {
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  if (code == 0 || surrogate || code > 0x10FFFF) {
    throw rapidxml::parse_error("invalid numeric character entity", place);
  }
}

}  // namespace

}  // namespace Wexa

// The parser's templates made right for wide characters, and safe from references to no character
// and from deep nesting.
namespace rapidxml {

using Tables = internal::lookup_tables<0>;
using Wexa::CharacterClass;

template <>
struct xml_document<wchar_t>::whitespace_pred : CharacterClass<Tables::lookup_whitespace, 0> {};
template <>
struct xml_document<wchar_t>::node_name_pred : CharacterClass<Tables::lookup_node_name> {};
template <>
struct xml_document<wchar_t>::attribute_name_pred : CharacterClass<Tables::lookup_attribute_name> {
};
template <>
struct xml_document<wchar_t>::text_pred : CharacterClass<Tables::lookup_text> {};
template <>
struct xml_document<wchar_t>::text_pure_no_ws_pred
    : CharacterClass<Tables::lookup_text_pure_no_ws> {};
template <>
template <>
struct xml_document<wchar_t>::attribute_value_pred<L'\''>
    : CharacterClass<Tables::lookup_attribute_data_1> {};
template <>
template <>
struct xml_document<wchar_t>::attribute_value_pred<L'"'>
    : CharacterClass<Tables::lookup_attribute_data_2> {};
template <>
template <>
struct xml_document<wchar_t>::attribute_value_pure_pred<L'\''>
    : CharacterClass<Tables::lookup_attribute_data_1_pure> {};
template <>
template <>
struct xml_document<wchar_t>::attribute_value_pure_pred<L'"'>
    : CharacterClass<Tables::lookup_attribute_data_2_pure> {};

// A numeric reference is one character, not the bytes of its UTF-8 form.
template <>
template <int Flags>
void xml_document<wchar_t>::insert_coded_character(wchar_t*& text, unsigned long code) {
  Wexa::CheckCode(code, text);
  *text++ = static_cast<wchar_t>(code);
}

template <>
template <int Flags>
void xml_document<char>::insert_coded_character(char*& text, unsigned long code) {
  Wexa::CheckCode(code, text);
  text = utf8::unchecked::append(static_cast<char32_t>(code), text);
}

// Elements are read by parse_element, which calls parse_node_contents, which calls parse_element
// for those within.
template <>
template <>
xml_node<wchar_t>* xml_document<wchar_t>::parse_element<Wexa::kFlags>(wchar_t*& text) {
  return parse_element<Wexa::kInElement>(text);
}

template <>
template <>
void xml_document<wchar_t>::parse_node_contents<Wexa::kInElement>(wchar_t*& text,
                                                                  xml_node<wchar_t>* node) {
  const Wexa::OpenElement open(*this, *node, text);
  parse_node_contents<Wexa::kFlags>(text, node);
}

template <>
template <>
xml_node<char>* xml_document<char>::parse_element<Wexa::kFlags>(char*& text) {
  auto& parser = static_cast<Wexa::XmlParser<char>&>(*this);
  if (!parser.visit || parser.depth != 2) return parse_element<Wexa::kInElement>(text);
  Wexa::XmlParser<char>& passing = *parser.passing;
  passing.depth = parser.depth;
  const auto* element = passing.parse_element<Wexa::kInElement>(text);
  parser.visit(*parser.outer[0], *parser.outer[1], *element);
  passing.clear();
  return nullptr;
}

template <>
template <>
void xml_document<char>::parse_node_contents<Wexa::kInElement>(char*& text, xml_node<char>* node) {
  const Wexa::OpenElement open(*this, *node, text);
  parse_node_contents<Wexa::kFlags>(text, node);
}

}  // namespace rapidxml

namespace Wexa {

namespace {

constexpr std::wstring_view ByteOrderMark(wchar_t) {
  return L"\uFEFF";
}
constexpr std::string_view ByteOrderMark(char) {
  return "\xEF\xBB\xBF";
}

template <typename Char>
std::basic_string<Char> ChildTextOf(const rapidxml::xml_node<Char>& element) {
  std::basic_string<Char> text;
  VisitText(element, [&text](auto part) { text += part; });
  return text;
}

template <typename Char>
std::optional<std::basic_string_view<Char>> ValueOf(
    const rapidxml::xml_attribute<Char>* attribute) {
  if (attribute == nullptr) return std::nullopt;
  return std::basic_string_view<Char>(attribute->value(), attribute->value_size());
}

}  // namespace

template <typename Char>
BasicXmlDocument<Char>::BasicXmlDocument(Text text)
    : text_(std::move(text)), parser_(std::make_unique<XmlParser<Char>>()) {
  Parse();
}

template <typename Char>
BasicXmlDocument<Char>::BasicXmlDocument(Text text,
                                         Visitor visitor) requires std::same_as<Char, char>
    : text_(std::move(text)), parser_(std::make_unique<XmlParser<Char>>()) {
  parser_->visit = std::bind_front(std::move(visitor), std::cref(*this));
  parser_->passing = std::make_unique<XmlParser<Char>>();
  Parse();
}

template <typename Char>
void BasicXmlDocument<Char>::Parse() {
  const auto zero = text_.find(Char());
  if (zero != text_.npos) throw XmlParseError("unexpected null character", zero);
  const auto undefined = FindUndefinedEntity(std::basic_string_view<Char>(text_));
  if (undefined != text_.npos) throw XmlParseError("undefined entity", undefined);
  constexpr auto mark = ByteOrderMark(Char());
  Char* const start = text_.data() + (text_.starts_with(mark) ? mark.size() : 0);
  try {
    parser_->template parse<kFlags>(start);
  } catch (const rapidxml::parse_error& error) {
    throw XmlParseError(error.what(), static_cast<std::size_t>(error.where<Char>() - text_.data()));
  }
}

template <typename Char>
BasicXmlDocument<Char>::~BasicXmlDocument() = default;

template <typename Char>
auto BasicXmlDocument<Char>::First(const Char* name) const -> const Node* {
  for (const Node* node = parser_->first_node(name); node; node = node->next_sibling(name)) {
    if (node->type() == rapidxml::node_element) return node;
  }
  return nullptr;
}

template <typename Char>
std::size_t BasicXmlDocument<Char>::OffsetOf(const Node& element) const {
  return static_cast<std::size_t>(element.name() - text_.data());
}

template class BasicXmlDocument<wchar_t>;
template class BasicXmlDocument<char>;

template <typename Char>
int LineAt(const std::basic_string<Char>& text, std::size_t offset) {
  const auto before = std::basic_string_view<Char>(text).substr(0, offset);
  return static_cast<int>(std::ranges::count(before, static_cast<Char>('\n'))) + 1;
}

template int LineAt(const std::wstring& text, std::size_t offset);
template int LineAt(const std::string& text, std::size_t offset);

std::wstring TextOf(const XmlNode& element) {
  return ChildTextOf(element);
}
std::string TextOf(const Utf8XmlNode& element) {
  return ChildTextOf(element);
}

std::optional<std::wstring_view> AttributeOf(const XmlNode& element, const wchar_t* name) {
  return ValueOf(element.first_attribute(name));
}
std::optional<std::string_view> AttributeOf(const Utf8XmlNode& element, const char* name) {
  return ValueOf(element.first_attribute(name));
}

}  // namespace Wexa
