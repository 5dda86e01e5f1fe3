#pragma once

// The built wexa-preview on a real X server, and a person in front of it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "screen/Program.h"
#include "support/x11/XTestDriver.h"

namespace screen {

inline POINT MiddleOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

class ScreenTest : public testing::Test {
 protected:
  using Picture = std::vector<std::uint32_t>;

  ScreenTest();

  // Starts the program with a form in `client` pixels and waits until its window of this title
  // has the keyboard.
  void Open(const std::string& form, const std::string& title, SIZE client);
  // The same with a host program that does what `host/main.cpp` says; the form has its own size.
  void OpenInHost(const std::string& form, const std::string& title, SIZE client,
                  const std::string& manner = "");
  // Resizes the window from outside, so that its client area gets this size.
  void ResizeClient(SIZE client);

  // The widget's rectangle in the window, as the program's dump for the client size has it.
  RECT At(const std::string& widget) const;
  // The same on the screen.
  RECT OnScreen(const std::string& widget);
  // The tips on the screen.
  std::vector<xcb_window_t> Tips();
  // Presses and releases the first button over a point of the window.
  void ClickAt(POINT point);

  Picture Look(const RECT& area);
  Picture LookAtWindow();
  // The pixels of the text colour, and of the accent that focus and checks show.
  long DarkPixels(const RECT& area);
  long DarkPixelsOf(xcb_window_t window);
  long AccentPixels(const RECT& area);
  bool HasFocusFrame(const std::string& edit);
  // Looks again and again until it is so; false when the window goes or after ten seconds.
  bool Eventually(const std::function<bool()>& isSo);

  support::XTestDriver person_;
  std::unique_ptr<Program> program_;
  xcb_window_t window_ = 0;

 private:
  void Start(const std::vector<std::string>& command, const std::string& title, SIZE client);
  void Measure(SIZE client);

  std::string form_;
  SIZE frame_{};    // what the window is larger than its client area
  POINT origin_{};  // of the client area in the window
  std::map<std::string, RECT> widgets_;
};

}  // namespace screen
