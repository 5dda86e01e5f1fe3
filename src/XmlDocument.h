#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <rapidxml/rapidxml.hpp>
#include <string>
#include <string_view>

namespace Wexa {

// A text is not well-formed XML, from the given character on.
class XmlParseError : public rapidxml::parse_error {
 public:
  XmlParseError(const char* what, std::size_t offset)
      : parse_error(what, nullptr), offset_(offset) {}
  std::size_t Offset() const { return offset_; }

 private:
  std::size_t offset_;
};

template <typename Char>
struct XmlParser;

// A parsed XML text with its nodes, whose names and values live in the text. References are
// decoded; comments, processing instructions and white space between elements give no nodes. Any
// Unicode character may stand in names and values. Made for wide texts and for UTF-8, which must be
// well-formed.
template <typename Char>
class BasicXmlDocument {
 public:
  using Node = rapidxml::xml_node<Char>;
  using Text = std::basic_string<Char>;

  // Takes the elements of the third level, with the two that they stand in, of which only what
  // comes before is known.
  using Visitor = std::function<void(const BasicXmlDocument& document, const Node& root,
                                     const Node& parent, const Node& element)>;

  // Throws XmlParseError. A byte-order mark at the start is skipped.
  explicit BasicXmlDocument(Text text);
  // The same, but hands over the elements of the third level and forgets them one by one, so that
  // long texts need little memory. Throws what the visitor throws, too.
  BasicXmlDocument(Text text, Visitor visitor) requires std::same_as<Char, char>;
  ~BasicXmlDocument();
  BasicXmlDocument(const BasicXmlDocument&) = delete;
  BasicXmlDocument& operator=(const BasicXmlDocument&) = delete;

  // The first outermost element of that name, or of any name; null when there is none.
  const Node* First(const Char* name = nullptr) const;
  // Where the name of an element stands in the text.
  std::size_t OffsetOf(const Node& element) const;

 private:
  void Parse();

  Text text_;
  std::unique_ptr<XmlParser<Char>> parser_;
};

using XmlDocument = BasicXmlDocument<wchar_t>;
using XmlNode = XmlDocument::Node;
using Utf8XmlDocument = BasicXmlDocument<char>;
using Utf8XmlNode = Utf8XmlDocument::Node;

// The line of a text that a character stands on, counted from 1. Documents change their text, so
// it takes the text as it was before.
template <typename Char>
int LineAt(const std::basic_string<Char>& text, std::size_t offset);

// Hands over the text directly in an element, which comments and elements may divide.
template <typename Char, typename Use>
void VisitText(const rapidxml::xml_node<Char>& element, Use use) {
  for (const auto* part = element.first_node(); part; part = part->next_sibling()) {
    const bool isText = part->type() == rapidxml::node_data || part->type() == rapidxml::node_cdata;
    if (isText) use(std::basic_string_view<Char>(part->value(), part->value_size()));
  }
}

// All of it.
std::wstring TextOf(const XmlNode& element);
std::string TextOf(const Utf8XmlNode& element);
// Nothing when the element has no such attribute.
std::optional<std::wstring_view> AttributeOf(const XmlNode& element, const wchar_t* name);
std::optional<std::string_view> AttributeOf(const Utf8XmlNode& element, const char* name);

}  // namespace Wexa
