#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace pack {

// Tells on a terminal how far long work is; short work shows nothing.
class Progress {
 public:
  explicit Progress(std::size_t total);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Start(const std::string& file);
  // Makes room for a line of its own.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  std::size_t total_;
  std::size_t started_ = 0;
  bool shown_ = false;
  bool terminal_;
  Clock::time_point next_;
};

}  // namespace pack
