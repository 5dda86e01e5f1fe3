#pragma once

#include <string>
#include <vector>

#pragma GCC visibility push(default)  // hosts may use all of this

// A font family of the system, described by its plainest face.
struct FontFamily {
  std::wstring name;
  int weight;  // as in LOGFONTW
  bool isItalic;
  bool isSymbol;  // its characters are symbols, not letters
};

// Every installed family once, in no particular order.
std::vector<FontFamily> ListFontFamilies();

#pragma GCC visibility pop
