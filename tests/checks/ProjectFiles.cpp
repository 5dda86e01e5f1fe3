#include "checks/ProjectFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

namespace checks {

namespace {

namespace fs = std::filesystem;

const fs::path& Root() {
  static const fs::path root = WEXA_SOURCE_DIR;
  return root;
}

bool IsSkipped(const fs::path& path) {
  const std::string name = path.filename().string();
  return name.starts_with(".") || (name.starts_with("build") && fs::is_directory(path));
}

bool IsText(const fs::path& path) {
  static constexpr std::array<std::string_view, 9> kEndings = {
      ".h", ".cpp", ".md", ".txt", ".cmake", ".sh", ".ui", ".json", ".in"};
  return std::ranges::find(kEndings, path.extension().string()) != kEndings.end();
}

}  // namespace

std::vector<std::string> FilesBelow(std::string_view folder) {
  std::vector<std::string> files;
  auto entry = fs::recursive_directory_iterator(Root() / folder);
  for (const auto end = fs::end(entry); entry != end; ++entry) {
    if (IsSkipped(entry->path())) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file() && IsText(entry->path())) {
      files.push_back(entry->path().lexically_relative(Root()).generic_string());
    }
  }
  std::ranges::sort(files);
  return files;
}

std::vector<std::string> LinesOf(const std::string& path) {
  std::ifstream file(Root() / path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

bool IsFile(const std::string& path) {
  return fs::is_regular_file(Root() / path);
}

bool IsSource(std::string_view path) {
  return path.ends_with(".h") || path.ends_with(".cpp");
}

}  // namespace checks
