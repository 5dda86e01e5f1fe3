#include "FileAside.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace tools {

namespace fs = std::filesystem;

namespace {

bool IsReplaceable(const fs::path& target) {
  std::error_code error;
  return !fs::exists(target, error) || fs::is_regular_file(target, error);
}

}  // namespace

FileAside::FileAside(fs::path target)
    : target_(std::move(target)), name_(target_.string()), isAside_(IsReplaceable(target_)) {
  if (!isAside_) return;
  name_ += ".XXXXXX";
  const int descriptor = mkstemp(name_.data());
  if (descriptor < 0) Fail();
  close(descriptor);
}

FileAside::~FileAside() {
  if (isAside_) unlink(name_.c_str());
}

void FileAside::Write(const void* bytes, std::size_t count) {
  std::FILE* file = std::fopen(name_.c_str(), "wb");
  if (!file) Fail();
  const bool written = std::fwrite(bytes, 1, count, file) == count;
  const bool ended = std::fclose(file) == 0;
  if (!written || !ended) Fail();
}

void FileAside::TakePlace(fs::perms permissions) {
  if (!isAside_) return;
  std::error_code error;
  fs::permissions(name_, permissions, error);
  if (std::rename(name_.c_str(), target_.c_str()) != 0) Fail();
  isAside_ = false;
}

void FileAside::Fail() const {
  throw std::runtime_error("cannot write " + target_.string() + ": " + std::strerror(errno));
}

}  // namespace tools
