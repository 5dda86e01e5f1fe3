#pragma once

namespace Wexa {

// A direction, or a set of directions: the values combine as flags.
enum class Orientation { None = 0, Horizontal = 1, Vertical = 2, Both = 3 };

constexpr Orientation operator|(Orientation a, Orientation b) {
  return static_cast<Orientation>(static_cast<int>(a) | static_cast<int>(b));
}

constexpr Orientation operator&(Orientation a, Orientation b) {
  return static_cast<Orientation>(static_cast<int>(a) & static_cast<int>(b));
}

constexpr Orientation& operator|=(Orientation& a, Orientation b) {
  return a = a | b;
}

// Whether `set` contains all of `directions`.
constexpr bool Contains(Orientation set, Orientation directions) {
  return (set & directions) == directions;
}

}  // namespace Wexa
