#pragma once

// A second program on the same X server that drives the first as a person would, by the server's
// test extension, and looks at the screen.

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Types.h"

namespace support {

class XTestDriver {
 public:
  // Throws std::runtime_error without a server or its test extension.
  XTestDriver();
  ~XTestDriver();
  XTestDriver(const XTestDriver&) = delete;
  XTestDriver& operator=(const XTestDriver&) = delete;

  // Buttons as the server counts them; a wheel's notches are buttons 4 (up) to 7 (right).
  void MovePointer(POINT position);
  void ButtonDown(int button = 1);
  void ButtonUp(int button = 1);
  void Click(int button = 1);
  void ClickAt(POINT position, int button = 1);

  // Keys by symbol (XKB_KEY_Return). Key presses Shift too where the symbol needs it. Throws
  // std::runtime_error when the layout has no such key.
  void KeyDown(std::uint32_t symbol);
  void KeyUp(std::uint32_t symbol);
  void Key(std::uint32_t symbol);
  void Key(std::uint32_t modifier, std::uint32_t symbol);
  void TypeText(const std::u32string& text);
  // By the place on the keyboard, whatever the layout has there.
  void KeyDownCode(int code);
  void KeyUpCode(int code);
  // Takes the n-th of the keyboard's layouts into use.
  void UseLayout(int index);

  // The shown top-level windows, the foremost first.
  std::vector<xcb_window_t> ShownWindows();
  // The shown top-level window of this title, or of any title when it is empty; 0 if none.
  xcb_window_t FindWindow(const std::string& title);
  // Waits for it to be shown; 0 after `timeout` milliseconds.
  xcb_window_t WaitForWindow(const std::string& title, int timeout = 10000);
  // Waits for it to go; false after `timeout` milliseconds.
  bool WaitForClose(xcb_window_t window, int timeout = 10000);
  // In screen pixels.
  RECT Place(xcb_window_t window);
  xcb_window_t FocusedWindow();
  void Resize(xcb_window_t window, SIZE size);
  void Move(xcb_window_t window, POINT corner);
  // Asks as a window manager's close button does.
  void Close(xcb_window_t window);
  // Breaks the connection of the program that made the window.
  void Disconnect(xcb_window_t window);

  // The pixels of a rectangle of the window, 0x00RRGGBB, row by row; empty when it is not shown.
  std::vector<std::uint32_t> Screenshot(xcb_window_t window, const RECT& area);
  std::uint32_t PixelAt(POINT position);

  // A window of this program, not shown.
  xcb_window_t CreateWindow(const RECT& place = {0, 0, 1, 1});
  // A message from program to program.
  using Words = std::array<std::uint32_t, 5>;
  void Send(xcb_window_t window, const std::string& message, const Words& data,
            std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT, std::uint8_t format = 32);
  // The last message of this kind that has come to this program, all events before it being
  // dropped; none if none.
  struct Message {
    xcb_window_t window;
    Words data;
  };
  std::optional<Message> TakeMessage(const std::string& message);
  // Hands out all events that have come.
  void ForEachEvent(const std::function<void(const xcb_generic_event_t&)>& action);
  void SetWords(xcb_window_t window, const std::string& property, xcb_atom_t type,
                const std::vector<std::uint32_t>& words);

  void SetRootProperty(const std::string& name, const std::string& text);
  // Whether a window manager places the window and gives it the focus.
  bool IsManaged(xcb_window_t window);
  std::string Property(xcb_window_t window, const std::string& name);
  // The first number of a property of numbers; 0 if none.
  std::uint32_t Number(xcb_window_t window, const std::string& name);
  xcb_atom_t Atom(const std::string& name);
  xcb_connection_t* Connection() { return connection_; }
  xcb_window_t Root() const { return screen_->root; }
  // Returns when the server has done all that was asked.
  void Sync();

 private:
  struct KeyPlace {
    std::uint8_t code;
    bool shifted;
  };
  struct Attributes {
    bool isShown = false;
    bool isManaged = false;
  };
  KeyPlace FindKey(std::uint32_t symbol);
  void Fake(int type, int detail, POINT position = {});
  Attributes AttributesOf(xcb_window_t window);
  bool WaitUntil(const std::function<bool()>& done, int timeout);

  xcb_connection_t* connection_;
  const xcb_screen_t* screen_;
};

}  // namespace support
