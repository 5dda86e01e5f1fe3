#include "pack/PackedFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "Utf8.h"
#include "Utf8Decoding.h"
#include "translation/EncrypterAccess.h"

namespace pack {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailWithReason(const std::string& what) {
  throw std::runtime_error(what + ": " + std::strerror(errno));
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

std::string ReadBytes(const fs::path& path) {
  const File file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) FailWithReason("cannot be read");
  std::string bytes;
  char part[1 << 16];
  while (const auto count = std::fread(part, 1, sizeof part, file.get())) bytes.append(part, count);
  if (std::ferror(file.get())) FailWithReason("cannot be read");
  return bytes;
}

// A file beside the one to write, which takes its place when it is complete.
class FileAside {
 public:
  explicit FileAside(const fs::path& target) : target_(target), name_(target.string() + ".XXXXXX") {
    const int descriptor = mkstemp(name_.data());
    file_.reset(descriptor < 0 ? nullptr : fdopen(descriptor, "wb"));
    if (!file_) FailWithReason("cannot write " + target_.string());
  }
  ~FileAside() {
    if (!name_.empty()) unlink(name_.c_str());
  }
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  void Write(const std::vector<unsigned char>& bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
    const bool ended = std::fclose(file_.release()) == 0;
    if (!written || !ended) FailWithReason("cannot write " + target_.string());
  }
  void TakePlace(fs::perms permissions) {
    fs::permissions(name_, permissions);
    if (std::rename(name_.c_str(), target_.c_str()) != 0)
      FailWithReason("cannot write " + target_.string());
    name_.clear();
  }

 private:
  const fs::path& target_;
  std::string name_;
  File file_{nullptr, &std::fclose};
};

}  // namespace

void PackFile(const fs::path& source, const fs::path& target) {
  const std::string text = ReadBytes(source);
  if (text.empty()) throw std::runtime_error("empty");
  if (!Wexa::IsUtf8(text)) throw std::runtime_error("not UTF-8");
  if (target.has_parent_path()) fs::create_directories(target.parent_path());
  FileAside file(target);
  file.Write(EncrypterAccess::Pack(text));
  file.TakePlace(fs::status(source).permissions());
}

std::string ReadPackedFile(const fs::path& file) {
  ReadBytes(file);
  const auto path = Wexa::WidenUtf8(file.string());
  if (!path) throw std::runtime_error("the path is not UTF-8");
  const std::string text = Wexa::NarrowUtf8(Encrypter::ReadAndDecryptFile(*path));
  if (text.empty()) throw std::runtime_error("damaged, or no packed file");
  return text;
}

}  // namespace pack
