#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Wexa {

struct RealForm {
  std::string path;
  std::string bytes;
  std::wstring text;
};

// The forms of published applications.
const std::vector<RealForm>& RealForms();

}  // namespace Wexa
