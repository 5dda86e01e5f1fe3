#pragma once

#include <rapidxml/rapidxml.hpp>

namespace Wexa {

// The character classes of the parser, right for wide characters: its tables cover the first 256
// characters, and all others are plain text. (Cut to one byte, U+043C would read as "<".)
struct XmlCharacters {
  using Tables = rapidxml::internal::lookup_tables<0>;

  static bool IsWide(wchar_t c) { return static_cast<char32_t>(c) > 0xFF; }
  static unsigned char Look(const unsigned char (&table)[256], wchar_t c) {
    return table[static_cast<unsigned char>(c)];
  }
  static unsigned char Text(const unsigned char (&table)[256], wchar_t c) {
    return IsWide(c) ? 1 : Look(table, c);
  }
  static unsigned char Space(wchar_t c) {
    return IsWide(c) ? 0 : Look(Tables::lookup_whitespace, c);
  }
  static unsigned char NodeName(wchar_t c) { return Text(Tables::lookup_node_name, c); }
  static unsigned char AttributeName(wchar_t c) { return Text(Tables::lookup_attribute_name, c); }
};

}  // namespace Wexa
