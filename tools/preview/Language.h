#pragma once

#include <string>
#include <vector>

#include "preview/Options.h"

namespace preview {

// Sets the language that the options name and loads the files of all its components. What is
// missing, in one line; empty when nothing is.
std::string LoadLanguage(const Options& options);
// What is wrong with the files, and with the forms translated so far, one line each.
std::vector<std::string> LanguageWarnings();

}  // namespace preview
