#include "Atoms.h"

#include <string_view>

#include "Owned.h"

namespace display::x11 {
namespace {

constexpr std::string_view kNames[] = {"CLIPBOARD",
                                       "INCR",
                                       "MANAGER",
                                       "_MOTIF_WM_HINTS",
                                       "_NET_ACTIVE_WINDOW",
                                       "_NET_CURRENT_DESKTOP",
                                       "_NET_SUPPORTED",
                                       "_NET_SUPPORTING_WM_CHECK",
                                       "_NET_WM_MOVERESIZE",
                                       "_NET_WM_NAME",
                                       "_NET_WM_PID",
                                       "_NET_WM_PING",
                                       "_NET_WM_STATE",
                                       "_NET_WM_STATE_MODAL",
                                       "_NET_WM_WINDOW_TYPE",
                                       "_NET_WM_WINDOW_TYPE_DIALOG",
                                       "_NET_WM_WINDOW_TYPE_NORMAL",
                                       "_NET_WM_WINDOW_TYPE_POPUP_MENU",
                                       "_NET_WM_WINDOW_TYPE_TOOLTIP",
                                       "_NET_WORKAREA",
                                       "TARGETS",
                                       "text/uri-list",
                                       "TIMESTAMP",
                                       "UTF8_STRING",
                                       "WEXA_DROP",
                                       "WEXA_SELECTION",
                                       "WM_CLIENT_LEADER",
                                       "WM_DELETE_WINDOW",
                                       "WM_PROTOCOLS",
                                       "XdndActionCopy",
                                       "XdndAware",
                                       "XdndDrop",
                                       "XdndEnter",
                                       "XdndFinished",
                                       "XdndLeave",
                                       "XdndPosition",
                                       "XdndSelection",
                                       "XdndStatus",
                                       "XdndTypeList",
                                       "_XSETTINGS_S0",
                                       "_XSETTINGS_SETTINGS"};
static_assert(std::size(kNames) == static_cast<std::size_t>(Atom::Count));

}  // namespace

void Atoms::Request(xcb_connection_t* connection) {
  for (std::size_t i = 0; i < kCount; ++i) {
    requests_[i] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(kNames[i].size()),
                                   kNames[i].data());
  }
}

void Atoms::Collect(xcb_connection_t* connection) {
  for (std::size_t i = 0; i < kCount; ++i) {
    const auto reply = Own(xcb_intern_atom_reply(connection, requests_[i], nullptr));
    atoms_[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  }
}

}  // namespace display::x11
