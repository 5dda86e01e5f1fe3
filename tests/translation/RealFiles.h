#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace Wexa {

struct RealFile {
  std::string path;
  std::string bytes;

  std::string Name() const { return std::filesystem::path(path).filename().string(); }
};

inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The files of published applications with this extension, in a folder of theirs or in all.
inline std::vector<RealFile> RealFiles(const std::string& extension,
                                       const std::string& folder = "") {
  std::vector<RealFile> files;
  const std::string root = WEXA_SHARED_DIR "/forms/" + folder;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string path = entry.path().string();
    if (path.ends_with(extension)) files.push_back({path, BytesOf(path)});
  }
  std::ranges::sort(files, {}, &RealFile::path);
  return files;
}

}  // namespace Wexa
