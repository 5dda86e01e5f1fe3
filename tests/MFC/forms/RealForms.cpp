#include "MFC/forms/RealForms.h"

#include <algorithm>
#include <filesystem>

namespace Wexa {
namespace {

std::vector<std::string> FindForms() {
  std::vector<std::string> paths;
  for (const char* folder : {WEXA_SHARED_DIR "/forms", WEXA_SHARED_DIR "/bench"})
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
      if (entry.path().extension() == ".ui") paths.push_back(entry.path().string());
  std::ranges::sort(paths);
  return paths;
}

}  // namespace

const std::vector<std::string>& RealForms() {
  static const auto paths = FindForms();
  return paths;
}

}  // namespace Wexa
