#pragma once

// The program that manages windows, where one runs: handing it moves, sizes and the focus, and
// the area it leaves for windows.

#include <xcb/xcb.h>

#include <optional>
#include <vector>

#include "platform/Types.h"

namespace display::x11 {

class Connection;

class WindowManager {
 public:
  explicit WindowManager(Connection& connection) : connection_(connection) {}

  bool IsRunning();
  // The primary monitor without panels.
  RECT WorkArea();
  // Gives a shown window the keyboard.
  void Focus(xcb_window_t window);
  // False where no window manager takes moves and sizes over, or `edge` is none.
  bool BeginMoveSize(xcb_window_t window, int edge, POINT pointer);
  // Answers the question whether the program still listens.
  void AnswerPing(const xcb_client_message_event_t& ping);

  void RootPropertyChanged(xcb_atom_t property);
  void ScreenChanged() { workArea_.reset(); }

 private:
  bool Supports(xcb_atom_t feature);
  bool AskRunning();

  Connection& connection_;
  std::optional<bool> running_;
  std::optional<std::vector<xcb_atom_t>> supported_;
  std::optional<RECT> workArea_;
};

}  // namespace display::x11
