#pragma once

#include <map>
#include <string>
#include <string_view>

namespace Wexa {

// The value of an attribute of the form name="value"; empty without it.
inline std::string AttributeIn(std::string_view element, std::string_view name) {
  const std::string start = " " + std::string(name) + "=\"";
  const auto at = element.find(start);
  if (at == element.npos) return {};
  const auto value = element.substr(at + start.size());
  return std::string(value.substr(0, value.find('"')));
}

// A TS file whose lines count from the location before in the same file ("+14"), the file named
// where it changes, as its program would write it with absolute lines.
inline std::string WithAbsoluteLines(const std::string& ts) {
  constexpr std::string_view kEnd = "/>";
  std::map<std::string, int> lines;
  std::string file;
  std::string absolute;
  std::size_t copied = 0;
  for (auto at = ts.find("<location "); at != ts.npos; at = ts.find("<location ", copied)) {
    const auto end = ts.find(kEnd, at) + kEnd.size();
    const auto element = std::string_view(ts).substr(at, end - at);
    if (const auto named = AttributeIn(element, "filename"); !named.empty()) file = named;
    const int line = lines[file] += std::stoi(AttributeIn(element, "line"));
    absolute.append(ts, copied, at - copied);
    absolute += "<location filename=\"" + file + "\" line=\"" + std::to_string(line) + "\"/>";
    copied = end;
  }
  return absolute.append(ts, copied);
}

}  // namespace Wexa
