#pragma once

// A display on a real X server, and a person at its keyboard and mouse.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "display/Display.h"
#include "support/x11/XTestDriver.h"

namespace display {

class X11Test : public testing::Test {
 protected:
  X11Test();

  static constexpr SurfaceId kDialog = 1;
  static constexpr RECT kPlace{100, 80, 400, 280};

  // A shown dialog that has painted itself in one colour and has the focus; nothing else is left
  // to poll.
  xcb_window_t OpenDialog(SurfaceId id = kDialog, const RECT& place = kPlace);
  void Paint(SurfaceId id, std::uint32_t color);

  using Test = std::function<bool(const Input&)>;
  // The next record that passes, those before it being dropped; none after five seconds.
  std::optional<Input> Next(const Test& passes);
  std::optional<Input> Next(Input::Kind kind);
  // All records of what has been done so far.
  std::vector<Input> All();
  std::vector<Input> All(Input::Kind kind);
  // What the keys pressed so far have written.
  std::u32string Typed();

  std::unique_ptr<Display> display_;
  support::XTestDriver person_;

 private:
  SurfaceId nextMarker_ = 1000;
};

}  // namespace display
