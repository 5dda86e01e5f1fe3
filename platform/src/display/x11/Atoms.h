#pragma once

// The names of the server's properties and messages that this display uses.

#include <xcb/xcb.h>

#include <array>
#include <cstddef>

namespace display::x11 {

enum class Atom {
  Clipboard,
  Incr,
  Manager,
  MotifWmHints,
  NetActiveWindow,
  NetCurrentDesktop,
  NetSupported,
  NetSupportingWmCheck,
  NetWmMoveResize,
  NetWmName,
  NetWmPid,
  NetWmPing,
  NetWmState,
  NetWmStateModal,
  NetWmWindowType,
  NetWmWindowTypeDialog,
  NetWmWindowTypeNormal,
  NetWmWindowTypePopupMenu,
  NetWmWindowTypeTooltip,
  NetWorkArea,
  Targets,
  TextUriList,
  Timestamp,
  Utf8String,
  WexaDrop,
  WexaSelection,
  WmClientLeader,
  WmDeleteWindow,
  WmProtocols,
  XdndActionCopy,
  XdndAware,
  XdndDrop,
  XdndEnter,
  XdndFinished,
  XdndLeave,
  XdndPosition,
  XdndSelection,
  XdndStatus,
  XdndTypeList,
  XSettingsFirstScreen,
  XSettingsSettings,
  Count
};

// All atoms are asked for at once, so that together they cost one round trip.
class Atoms {
 public:
  void Request(xcb_connection_t* connection);
  void Collect(xcb_connection_t* connection);
  xcb_atom_t operator[](Atom atom) const { return atoms_[static_cast<std::size_t>(atom)]; }

 private:
  static constexpr std::size_t kCount = static_cast<std::size_t>(Atom::Count);
  std::array<xcb_intern_atom_cookie_t, kCount> requests_{};
  std::array<xcb_atom_t, kCount> atoms_{};
};

}  // namespace display::x11
