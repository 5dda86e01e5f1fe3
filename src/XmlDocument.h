#pragma once

#include <memory>
#include <optional>
#include <rapidxml/rapidxml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace Wexa {

using XmlNode = rapidxml::xml_node<wchar_t>;

// A text is not well-formed XML, from the given line on (counted from 1).
class XmlParseError : public rapidxml::parse_error {
 public:
  XmlParseError(const char* what, int line) : parse_error(what, nullptr), line_(line) {}
  int Line() const { return line_; }

 private:
  int line_;
};

// Where the lines of a text end. The parser overwrites line ends, so their places are noted before.
class LineTable {
 public:
  explicit LineTable(std::wstring_view text);
  // Counted from 1.
  int LineOf(std::size_t offset) const;

 private:
  std::vector<std::size_t> ends_;
};

// A parsed XML text with its nodes, whose names and values live in the text. References are
// decoded; comments, processing instructions and white space between elements give no nodes. Any
// Unicode character may stand in names and values.
class XmlDocument {
 public:
  // Throws XmlParseError. A byte-order mark at the start is skipped.
  explicit XmlDocument(std::wstring text);
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  // The first outermost element of that name, or of any name; null when there is none.
  const XmlNode* First(const wchar_t* name = nullptr) const;
  // The line on which an element starts, counted from 1.
  int LineOf(const XmlNode& element) const;

 private:
  std::wstring text_;
  LineTable lines_;
  std::unique_ptr<rapidxml::xml_document<wchar_t>> document_;
};

// All text directly in an element.
std::wstring TextOf(const XmlNode& element);
// Nothing when the element has no such attribute.
std::optional<std::wstring_view> AttributeOf(const XmlNode& element, const wchar_t* name);

}  // namespace Wexa
