#pragma once

#include <string>
#include <vector>

namespace Wexa {

// What building a dialog from its form took, and what it could not make.
struct BuildStatistics {
  int widgets = 0;
  std::vector<std::wstring> unknownClasses;  // each once
  double readMilliseconds = 0;
  double parseMilliseconds = 0;
  double buildMilliseconds = 0;
};

}  // namespace Wexa
