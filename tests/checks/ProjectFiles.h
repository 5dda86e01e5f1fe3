#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace checks {

// The project's text files below a folder ("" for all), as paths from its root with "/". Build
// trees, hidden folders and pictures are left out.
std::vector<std::string> FilesBelow(std::string_view folder);
// A file's lines, without their ends.
std::vector<std::string> LinesOf(const std::string& path);
bool IsFile(const std::string& path);
bool IsSource(std::string_view path);

}  // namespace checks
