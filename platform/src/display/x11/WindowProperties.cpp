#include "WindowProperties.h"

#include <glib.h>
#include <unistd.h>
#include <xcb/xcb_icccm.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <string_view>

#include "Connection.h"
#include "Text.h"
#include "graphics/Utf8.h"

namespace display::x11 {
namespace {

template <std::size_t N>
void WriteWords(Connection& connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                const std::uint32_t (&words)[N]) {
  xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, window, property, type, 32, N,
                      words);
}

Atom TypeOf(SurfaceKind kind, bool owned) {
  switch (kind) {
    case SurfaceKind::PopUp: return Atom::NetWmWindowTypePopupMenu;
    case SurfaceKind::ToolTip: return Atom::NetWmWindowTypeTooltip;
    case SurfaceKind::Dialog: break;
  }
  return owned ? Atom::NetWmWindowTypeDialog : Atom::NetWmWindowTypeNormal;
}

// Windows draw their own frame.
void WriteNoDecorations(Connection& connection, xcb_window_t window) {
  constexpr std::uint32_t kDecorationsGiven = 2;
  const xcb_atom_t hints = connection[Atom::MotifWmHints];
  WriteWords(connection, window, hints, hints, {kDecorationsGiven, 0, 0, 0, 0});
}

// Whether a place takes files is answered when they are held over it.
void WriteDropTarget(Connection& connection, xcb_window_t window) {
  constexpr std::uint32_t kVersion = 5;
  WriteWords(connection, window, connection[Atom::XdndAware], XCB_ATOM_ATOM, {kVersion});
}

// Desktops list the windows of a program together, under its name.
void WriteProgram(Connection& connection, xcb_window_t window) {
  xcb_connection_t* c = connection.Get();
  const std::string name = program_invocation_short_name;
  const std::string instanceAndClass = name + '\0' + name + '\0';
  xcb_icccm_set_wm_class(c, window, static_cast<std::uint32_t>(instanceAndClass.size()),
                         instanceAndClass.data());
  const std::string_view machine = g_get_host_name();
  xcb_icccm_set_wm_client_machine(c, window, XCB_ATOM_STRING, 8,
                                  static_cast<std::uint32_t>(machine.size()), machine.data());
  WriteWords(connection, window, connection[Atom::NetWmPid], XCB_ATOM_CARDINAL,
             {static_cast<std::uint32_t>(getpid())});
  WriteWords(connection, window, connection[Atom::WmClientLeader], XCB_ATOM_WINDOW,
             {connection.Helper()});
}

void WriteHints(Connection& connection, xcb_window_t window) {
  xcb_icccm_wm_hints_t hints{};
  xcb_icccm_wm_hints_set_input(&hints, 1);
  xcb_icccm_wm_hints_set_window_group(&hints, connection.Helper());
  xcb_icccm_set_wm_hints(connection.Get(), window, &hints);
}

}  // namespace

void WriteLeader(Connection& connection) {
  WriteProgram(connection, connection.Helper());
}

void WriteIdentity(Connection& connection, xcb_window_t window, SurfaceKind kind,
                   xcb_window_t owner) {
  xcb_connection_t* c = connection.Get();
  WriteProgram(connection, window);
  WriteWords(connection, window, connection[Atom::NetWmWindowType], XCB_ATOM_ATOM,
             {connection[TypeOf(kind, owner != 0)]});
  if (owner) xcb_icccm_set_wm_transient_for(c, window, owner);
  if (kind != SurfaceKind::Dialog) return;
  xcb_atom_t protocols[] = {connection[Atom::WmDeleteWindow], connection[Atom::NetWmPing]};
  xcb_icccm_set_wm_protocols(c, window, connection[Atom::WmProtocols], std::size(protocols),
                             protocols);
  WriteNoDecorations(connection, window);
  WriteHints(connection, window);
  WriteDropTarget(connection, window);
}

// Window managers and their lists show no more than the start of a long one.
void WriteTitle(Connection& connection, xcb_window_t window, const std::wstring& whole) {
  constexpr std::size_t kMostCharacters = 4096;
  const std::wstring title = whole.substr(0, kMostCharacters);
  const std::string plain = ToLatin1(title);
  xcb_icccm_set_wm_name(connection.Get(), window, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(plain.size()), plain.data());
  const std::string full = ToUtf8(title);
  xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, window, connection[Atom::NetWmName],
                      connection[Atom::Utf8String], 8, static_cast<std::uint32_t>(full.size()),
                      full.data());
}

void WriteSizeHints(Connection& connection, xcb_window_t window, const RECT& place, SIZE minimum,
                    SIZE maximum) {
  constexpr LONG kAny = std::numeric_limits<std::int16_t>::max();
  xcb_size_hints_t hints{};
  xcb_icccm_size_hints_set_position(&hints, 0, place.left, place.top);
  xcb_icccm_size_hints_set_size(&hints, 0, place.right - place.left, place.bottom - place.top);
  xcb_icccm_size_hints_set_win_gravity(&hints, XCB_GRAVITY_STATIC);
  xcb_icccm_size_hints_set_min_size(&hints, std::max(minimum.cx, 1), std::max(minimum.cy, 1));
  if (maximum.cx > 0 || maximum.cy > 0) {
    xcb_icccm_size_hints_set_max_size(&hints, maximum.cx > 0 ? maximum.cx : kAny,
                                      maximum.cy > 0 ? maximum.cy : kAny);
  }
  xcb_icccm_set_wm_normal_hints(connection.Get(), window, &hints);
}

// A window manager reads the state when a window appears, and wants to be asked afterwards.
void WriteModal(Connection& connection, xcb_window_t window, bool shown, bool modal) {
  const xcb_atom_t state = connection[Atom::NetWmStateModal];
  if (shown) {
    constexpr std::uint32_t kApplication = 1;
    connection.AskWindowManager(window, Atom::NetWmState, {modal, state, 0, kApplication, 0});
  } else if (modal) {
    WriteWords(connection, window, connection[Atom::NetWmState], XCB_ATOM_ATOM, {state});
  } else {
    xcb_delete_property(connection.Get(), window, connection[Atom::NetWmState]);
  }
}

}  // namespace display::x11
