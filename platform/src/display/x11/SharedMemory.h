#pragma once

// Memory that this process writes and the server reads.

#include <xcb/shm.h>

#include <cstddef>
#include <memory>

namespace display::x11 {

class Connection;

class SharedMemory {
 public:
  // Null when the server cannot share memory with this process, as over a network.
  static std::unique_ptr<SharedMemory> Create(Connection& connection, std::size_t size);
  ~SharedMemory();
  SharedMemory(const SharedMemory&) = delete;
  SharedMemory& operator=(const SharedMemory&) = delete;

  void* Data() const { return data_; }
  std::size_t Size() const { return size_; }
  xcb_shm_seg_t Segment() const { return segment_; }

 private:
  SharedMemory(Connection& connection, void* data, std::size_t size);
  bool Attach(int id);

  Connection& connection_;
  void* data_;
  std::size_t size_;
  xcb_shm_seg_t segment_ = 0;
};

}  // namespace display::x11
