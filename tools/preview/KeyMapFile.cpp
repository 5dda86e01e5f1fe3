#include "preview/KeyMapFile.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "platform/Types.h"

namespace preview {
namespace {

struct Entry {
  std::wstring key;
  unsigned long color = 0;
};

bool IsPassedOver(const std::string& line) {
  const auto first = line.find_first_not_of(" \t\r");
  return first == std::string::npos || line[first] == ';';
}

bool Parse(const std::string& line, Entry& entry) {
  char key[64];
  char digits[7];
  int used = 0;
  const int found =
      std::sscanf(line.c_str(), " %63[A-Za-z_] = #%6[0-9a-fA-F] %n", key, digits, &used);
  const std::string hex = found == 2 ? digits : "";
  if (hex.size() != 6 || static_cast<std::size_t>(used) != line.size()) return false;
  const unsigned long word = std::stoul(hex, nullptr, 16);
  entry.key.assign(key, key + std::char_traits<char>::length(key));
  entry.color = RGB(static_cast<int>(word >> 16), static_cast<int>(word >> 8 & 0xFF),
                    static_cast<int>(word & 0xFF));
  return true;
}

}  // namespace

std::map<std::wstring, Wexa::SkinManagerColor> ReadKeyMap(const std::string& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error("Cannot read " + file);
  std::map<std::wstring, Wexa::SkinManagerColor> colors;
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    Entry entry;
    if (IsPassedOver(line)) continue;
    if (!Parse(line, entry))
      throw std::runtime_error(file + ":" + std::to_string(number) + ": no 'Key = #RRGGBB'");
    colors[entry.key] = entry.color;
  }
  if (in.bad()) throw std::runtime_error("Cannot read " + file);  // a folder, for one
  return colors;
}

}  // namespace preview
