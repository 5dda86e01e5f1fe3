#pragma once

// Sleeping until a file can be read, a time comes, or another thread calls.

#include <cstdint>
#include <optional>

namespace display::x11 {

class Waker {
 public:
  // Throws std::system_error when the process is out of files.
  Waker();
  ~Waker();
  Waker(const Waker&) = delete;
  Waker& operator=(const Waker&) = delete;

  // Milliseconds of a monotonic clock.
  static std::uint64_t Now();
  // Returns when `file` can be read, at `deadline`, or after Wake.
  void Sleep(int file, std::optional<std::uint64_t> deadline);
  // Ends a Sleep, or the next one; may be called from any thread.
  void Wake();

 private:
  int bell_;
};

}  // namespace display::x11
