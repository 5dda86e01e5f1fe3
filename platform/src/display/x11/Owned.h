#pragma once

// What xcb hands out (replies, events) is freed by its holder.

#include <cstdlib>
#include <memory>

namespace display::x11 {

struct FreeDeleter {
  void operator()(void* memory) const { std::free(memory); }
};

template <typename T>
using Owned = std::unique_ptr<T, FreeDeleter>;

template <typename T>
Owned<T> Own(T* memory) {
  return Owned<T>(memory);
}

}  // namespace display::x11
