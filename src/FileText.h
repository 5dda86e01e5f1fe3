#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Wexa {

// No form, language file or picture is larger; texts take several times their size in memory.
inline constexpr std::size_t kLargestFile = 256 << 20;

// The bytes of a file. Directories may be separated by "/" or "\". Nothing when it cannot be read
// or is larger than that.
std::optional<std::string> ReadFile(const std::wstring& path);

bool IsFileTooLarge(const std::wstring& path);

// The path as the file system wants it.
std::string NativePath(const std::wstring& path);
std::string NativePath(std::string path);
// The way back, for any path: bytes that are not UTF-8 come as U+DC80 to U+DCFF.
std::wstring WidePath(std::string_view native);

}  // namespace Wexa
