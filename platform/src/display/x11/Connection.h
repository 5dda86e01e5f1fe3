#pragma once

// The line to the server, and what every part of the display asks of it.

#include <xcb/xcb.h>

#include <cstdint>
#include <string>
#include <vector>

#include "Atoms.h"
#include "Owned.h"
#include "PixelFormat.h"

namespace display::x11 {

class Connection {
 public:
  // Throws std::runtime_error naming the display when no server answers, or when it has no
  // true colour of 24 or 30 bits.
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  xcb_connection_t* Get() const { return connection_; }
  const xcb_screen_t& Screen() const { return *screen_; }
  xcb_window_t Root() const { return screen_->root; }
  const PixelFormat& Format() const { return format_; }
  xcb_colormap_t Colormap() const { return colormap_; }
  xcb_atom_t operator[](Atom atom) const { return atoms_[atom]; }
  // A window that is never shown: it owns selections and lends its depth to the drawing context.
  xcb_window_t Helper() const { return helper_; }
  xcb_gcontext_t DrawingContext() const { return context_; }

  // The next event, or none at once.
  Owned<xcb_generic_event_t> NextEvent();
  // Throws std::runtime_error once the server is gone.
  void ThrowIfLost() const;
  // Returns when the server has done everything asked so far.
  void Synchronize();
  // True once an event has shown that the server had come to this request.
  bool HasPassed(unsigned sequence) const;

  // The whole property as bytes; empty when there is none. `type` receives its type.
  std::string ReadProperty(xcb_window_t window, xcb_atom_t property, bool remove = false,
                           xcb_atom_t* type = nullptr);
  // The first number of a property of numbers; 0 when there is none.
  std::uint32_t ReadNumber(xcb_window_t window, xcb_atom_t property);
  // The numbers of such a property.
  std::vector<std::uint32_t> ReadNumbers(xcb_window_t window, xcb_atom_t property);
  // A message to the program that made the window.
  void Tell(xcb_window_t window, Atom message, const std::uint32_t (&data)[5]);
  // A message to the window manager about one of our windows.
  void AskWindowManager(xcb_window_t window, Atom message, const std::uint32_t (&data)[5]);

 private:
  void Open();
  void ChooseFormat();
  void CreateHelper();
  void Send(xcb_window_t receiver, std::uint32_t mask, xcb_window_t window, Atom message,
            const std::uint32_t (&data)[5]);

  std::string name_;
  xcb_connection_t* connection_ = nullptr;
  const xcb_screen_t* screen_ = nullptr;
  PixelFormat format_;
  xcb_colormap_t colormap_ = 0;
  xcb_window_t helper_ = 0;
  xcb_gcontext_t context_ = 0;
  unsigned passed_ = 0;
  Atoms atoms_;
};

}  // namespace display::x11
