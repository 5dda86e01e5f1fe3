#include "Waker.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <limits>
#include <system_error>

namespace display::x11 {
namespace {

int Timeout(std::optional<std::uint64_t> deadline) {
  if (!deadline) return -1;
  const std::uint64_t now = Waker::Now();
  const std::uint64_t rest = *deadline > now ? *deadline - now : 0;
  return static_cast<int>(std::min<std::uint64_t>(rest, std::numeric_limits<int>::max()));
}

}  // namespace

Waker::Waker() : bell_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (bell_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

Waker::~Waker() {
  close(bell_);
}

std::uint64_t Waker::Now() {
  using namespace std::chrono;
  const auto now = steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(duration_cast<milliseconds>(now).count());
}

void Waker::Sleep(int file, std::optional<std::uint64_t> deadline) {
  pollfd files[] = {{file, POLLIN, 0}, {bell_, POLLIN, 0}};
  if (poll(files, std::size(files), Timeout(deadline)) <= 0) return;
  if (files[1].revents & POLLIN) {
    eventfd_t count;
    eventfd_read(bell_, &count);
  }
}

void Waker::Wake() {
  eventfd_write(bell_, 1);
}

}  // namespace display::x11
