#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace checks {

// One #include line. Paths run from the project's root.
struct Include {
  std::string from;
  int line = 0;
  std::string
      target;  // the included file's path, or the name in angle brackets of a library's header
  bool isLibrary = false;
};

// All includes of a file that name a file of the project or a library's header.
std::vector<Include> IncludesOf(const std::string& path);

// The rule that an include breaks, as a sentence; none when it may stand.
std::optional<std::string> BrokenRule(const Include& include);

}  // namespace checks
