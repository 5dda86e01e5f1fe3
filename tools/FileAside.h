#pragma once

#include <filesystem>
#include <string>

namespace tools {

// A file beside the one to write, which takes its place when it is complete. A target that is no
// file, such as a device, is written itself. All throw std::runtime_error "cannot write FILE: why".
class FileAside {
 public:
  explicit FileAside(std::filesystem::path target);
  // Leaves the target as it was unless TakePlace was called.
  ~FileAside();
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  // Where to write to.
  const std::string& Name() const { return name_; }
  void Write(const void* bytes, std::size_t count);
  void TakePlace(std::filesystem::perms permissions);

 private:
  [[noreturn]] void Fail() const;

  std::filesystem::path target_;
  std::string name_;
  bool isAside_;
};

}  // namespace tools
