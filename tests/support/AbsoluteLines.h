#pragma once

#include <map>
#include <regex>
#include <string>

namespace Wexa {

// A TS file whose lines count from the location before in the same file ("+14"), the file named
// where it changes, as its program would write it with absolute lines.
inline std::string WithAbsoluteLines(const std::string& ts) {
  static const std::regex kLocation(R"re(<location(?: filename="([^"]*)")? line="([+-]\d+)"/>)re");
  std::map<std::string, int> lines;
  std::string file;
  std::string absolute;
  auto copied = ts.begin();
  for (std::sregex_iterator at(ts.begin(), ts.end(), kLocation), end; at != end; ++at) {
    if ((*at)[1].matched) file = (*at)[1];
    const int line = lines[file] += std::stoi((*at)[2]);
    absolute.append(copied, (*at)[0].first);
    absolute += "<location filename=\"" + file + "\" line=\"" + std::to_string(line) + "\"/>";
    copied = (*at)[0].second;
  }
  return absolute.append(copied, ts.end());
}

}  // namespace Wexa
