#pragma once

#include <string>
#include <vector>

#include "preview/Options.h"

namespace preview {

// Sets the language that the options name and loads the files of all its components. What is wrong
// with them, one line each.
std::vector<std::string> LoadLanguage(const Options& options);

}  // namespace preview
