#include "pack/Progress.h"

#include <unistd.h>

#include <cstdio>

namespace pack {
namespace {

using std::chrono_literals::operator""ms;

constexpr auto kShortWork = 500ms;
constexpr auto kBetweenUpdates = 100ms;

}  // namespace

Progress::Progress(std::size_t total)
    : total_(total), terminal_(isatty(STDERR_FILENO) == 1), next_(Clock::now() + kShortWork) {}

Progress::~Progress() {
  Clear();
}

void Progress::Start(const std::string& file) {
  ++started_;
  if (!terminal_ || Clock::now() < next_) return;
  next_ = Clock::now() + kBetweenUpdates;
  shown_ = true;
  std::fprintf(stderr, "\r\033[K%zu of %zu: %s", started_, total_, file.c_str());
}

void Progress::Clear() {
  if (shown_) std::fputs("\r\033[K", stderr);
  shown_ = false;
}

}  // namespace pack
