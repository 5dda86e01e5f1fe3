#pragma once

#include <optional>
#include <string>

namespace Wexa {

// The bytes of a file. Directories may be separated by "/" or "\". Nothing when it cannot be read.
std::optional<std::string> ReadFile(const std::wstring& path);

// The path as the file system wants it.
std::string NativePath(const std::wstring& path);
std::string NativePath(std::string path);

}  // namespace Wexa
