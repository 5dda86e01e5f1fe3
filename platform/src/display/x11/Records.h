#pragma once

// What happened and has not been handed out yet, in order.

#include <cstdint>
#include <deque>
#include <optional>

#include "display/Display.h"

namespace display::x11 {

struct Record {
  Input input;
  // The modifiers and buttons held just before, where the server tells.
  std::optional<std::uint16_t> held;
};

class Records {
 public:
  // A new position or size takes the place of the one before it, when nothing came in between; that
  // of the pointer only while the same is held.
  void Push(Record record);
  std::optional<Record> Pop();
  bool IsEmpty() const { return records_.empty(); }
  // Moves and sizes of a surface that are out of date now.
  void DropPlaces(SurfaceId id);
  void DropAll(SurfaceId id);

 private:
  std::deque<Record> records_;
};

}  // namespace display::x11
