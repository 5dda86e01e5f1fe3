#include "FileText.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Utf8.h"

namespace Wexa {

std::string NativePath(std::string path) {
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::string NativePath(const std::wstring& path) {
  return NativePath(NarrowUtf8(path));
}

bool IsFileTooLarge(const std::wstring& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(NativePath(path), error);
  return !error && size > kLargestFile;
}

std::optional<std::string> ReadFile(const std::wstring& path) {
  const std::string native = NativePath(path);
  std::error_code error;
  const auto size = std::filesystem::file_size(native, error);
  if (error || size > kLargestFile) return std::nullopt;
  std::ifstream file(native, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes(size, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return file.bad() ? std::nullopt : std::optional(std::move(bytes));
}

}  // namespace Wexa
