#include "pack/PackedFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <vector>

#include "FileAside.h"
#include "FileText.h"
#include "Utf8Decoding.h"
#include "translation/EncrypterAccess.h"

namespace pack {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailWithReason(const std::string& what) {
  throw std::runtime_error(what + ": " + std::strerror(errno));
}

using Bytes = std::vector<unsigned char>;
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Pipes and devices have no end, so that only files are read.
std::size_t SizeOf(const fs::path& path) {
  std::error_code error;
  const auto kind = fs::status(path, error).type();
  if (kind != fs::file_type::regular && kind != fs::file_type::not_found && !error)
    throw std::runtime_error("no file");
  const auto size = fs::file_size(path, error);
  if (error) throw std::runtime_error("cannot be read: " + error.message());
  if (size > Wexa::kLargestFile) throw std::runtime_error("too large: programs read 256 MB");
  return size;
}

// In as much memory as the packed file takes.
Bytes ReadBytes(const fs::path& path) {
  const std::size_t size = SizeOf(path);
  Bytes bytes;
  bytes.reserve(size + sizeof(EncrypterAccess::Digest));
  const File file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) FailWithReason("cannot be read");
  bytes.resize(size);
  bytes.resize(std::fread(bytes.data(), 1, size, file.get()));
  if (std::ferror(file.get())) FailWithReason("cannot be read");
  return bytes;
}

bool IsUtf8(const Bytes& bytes) {
  return Wexa::IsUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

}  // namespace

void PackFile(const fs::path& source, const fs::path& target) {
  Bytes bytes = ReadBytes(source);
  if (bytes.empty()) throw std::runtime_error("empty");
  if (!IsUtf8(bytes)) throw std::runtime_error("not UTF-8");
  if (target.has_parent_path()) fs::create_directories(target.parent_path());
  tools::FileAside file(target);
  EncrypterAccess::PackInPlace(bytes);
  file.Write(bytes.data(), bytes.size());
  file.TakePlace(fs::status(source).permissions());
}

std::string ReadPackedFile(const fs::path& file) {
  const Bytes bytes = ReadBytes(file);
  std::string text = EncrypterAccess::Unpack({bytes.begin(), bytes.end()});
  if (text.empty() || !Wexa::IsUtf8(text)) throw std::runtime_error("damaged, or no packed file");
  return text;
}

}  // namespace pack
