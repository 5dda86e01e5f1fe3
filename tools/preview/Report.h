#pragma once

#include <string>

#include "preview/Options.h"

namespace preview {

// What opening one form took and gave.
struct Report {
  bool ok = false;
  std::string error;  // names the file; empty when ok
  std::string json;   // one line
};

// Opens, lays out and paints the form, and sizes it as the options say.
Report ReportForm(const Options& options, const std::string& file);

}  // namespace preview
