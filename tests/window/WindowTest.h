#pragma once

// The fixture of window tests: a fresh offscreen display and windows that note their messages.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "platform/VirtualKeys.h"
#include "support/Robot.h"

std::ostream& operator<<(std::ostream& out, const RECT& rect);
bool operator==(const RECT& a, const RECT& b);

class WindowTest : public testing::Test {
 protected:
  // Answers a message in a window's place, or leaves it to the default processing.
  using Handler = std::function<std::optional<LRESULT>(HWND, UINT, WPARAM, LPARAM)>;

  static constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_SYSMENU;
  static constexpr DWORD kBare = WS_POPUP;

  WindowTest();
  ~WindowTest() override;

  HWND MakeWindow(DWORD style, CRect place, HWND owner = nullptr, DWORD exStyle = 0);
  HWND MakeChild(HWND parent, CRect place, DWORD style = WS_VISIBLE, int id = 0);
  // Shown and painted, nothing noted.
  HWND ShowWindowAt(CRect place, DWORD style = kBare);

  // Called for each message of all windows.
  Handler handler;
  // Notes the messages of this kind as "name@window" from now on; windows are named with Name.
  void Watch(std::initializer_list<UINT> messages);
  void Name(HWND window, const std::string& name);
  std::vector<std::string> TakeNotes() { return std::exchange(notes_, {}); }

  static display::SurfaceId SurfaceOf(HWND window);
  static std::vector<CRect> TakePresented(HWND window);
  static CRect PlaceOf(HWND window);

  Robot robot_;

 private:
  static LRESULT Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static WindowTest* current_;
  std::string NameOf(HWND window) const;

  std::vector<UINT> watched_;
  std::vector<std::pair<HWND, std::string>> names_;
  std::vector<std::string> notes_;
};
