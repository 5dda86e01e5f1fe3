#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <string>

// A file without a disk, for readers that want a path.
class MemoryFile {
 public:
  MemoryFile(const void* bytes, std::size_t size) : file_(memfd_create("fuzz", 0)) {
    if (write(file_, bytes, size) != static_cast<ssize_t>(size)) std::abort();
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::wstring Path() const { return L"/proc/self/fd/" + std::to_wstring(file_); }

 private:
  int file_;
};
