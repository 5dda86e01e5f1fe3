#include "FileText.h"

#include <utf8.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Utf8.h"

namespace Wexa {

namespace {

// A byte of a path that belongs to no character, as half of a pair that no text has.
constexpr wchar_t kForeignByte = 0xDC00;

bool IsForeign(wchar_t c) {
  return c >= kForeignByte + 0x80 && c <= kForeignByte + 0xFF;
}

}  // namespace

std::string NativePath(std::string path) {
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::string NativePath(const std::wstring& path) {
  std::string native;
  native.reserve(path.size());
  for (const wchar_t c : path) {
    if (IsForeign(c)) {
      native += static_cast<char>(c);
    } else {
      native += NarrowUtf8({&c, 1});
    }
  }
  return NativePath(std::move(native));
}

std::wstring WidePath(std::string_view native) {
  std::wstring path;
  while (!native.empty()) {
    const auto end = utf8::find_invalid(native.begin(), native.end());
    const auto valid = static_cast<std::size_t>(end - native.begin());
    path += *WidenUtf8(native.substr(0, valid));
    native.remove_prefix(valid);
    if (native.empty()) break;
    path += static_cast<wchar_t>(kForeignByte | static_cast<unsigned char>(native.front()));
    native.remove_prefix(1);
  }
  return path;
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
