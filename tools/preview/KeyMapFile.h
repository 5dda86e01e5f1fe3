#pragma once

#include <map>
#include <string>

#include "SkinManagerColor.h"

namespace preview {

// Colours by key from a file of lines "Key = #RRGGBB"; empty lines and those that start with ";"
// are passed over. Throws std::runtime_error that names the file and the line.
std::map<std::wstring, Wexa::SkinManagerColor> ReadKeyMap(const std::string& file);

}  // namespace preview
