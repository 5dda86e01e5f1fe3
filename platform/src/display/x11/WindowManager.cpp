#include "WindowManager.h"

#include <algorithm>

#include "Connection.h"
#include "Monitors.h"
#include "platform/WindowStyles.h"

namespace display::x11 {
namespace {

constexpr std::uint32_t kApplication = 1;  // who asks, among the kinds a window manager knows

// The window manager's number for an edge or the caption; -1 for anything else.
int DirectionOf(int edge) {
  switch (edge) {
    case HTTOPLEFT: return 0;
    case HTTOP: return 1;
    case HTTOPRIGHT: return 2;
    case HTRIGHT: return 3;
    case HTBOTTOMRIGHT: return 4;
    case HTBOTTOM: return 5;
    case HTBOTTOMLEFT: return 6;
    case HTLEFT: return 7;
    case HTCAPTION: return 8;
    default: return -1;
  }
}

}  // namespace

bool WindowManager::IsRunning() {
  if (!running_) running_ = AskRunning();
  return *running_;
}

// The property outlives a window manager that died; the window it names does not.
bool WindowManager::AskRunning() {
  const xcb_atom_t check = connection_[Atom::NetSupportingWmCheck];
  const xcb_window_t window = connection_.ReadNumber(connection_.Root(), check);
  return window && connection_.ReadNumber(window, check) == window;
}

bool WindowManager::Supports(xcb_atom_t feature) {
  if (!IsRunning()) return false;
  if (!supported_) {
    supported_ = connection_.ReadNumbers(connection_.Root(), connection_[Atom::NetSupported]);
  }
  return std::find(supported_->begin(), supported_->end(), feature) != supported_->end();
}

RECT WindowManager::WorkArea() {
  if (workArea_) return *workArea_;
  workArea_ = PrimaryMonitor(connection_);
  const xcb_window_t root = connection_.Root();
  const auto areas = connection_.ReadNumbers(root, connection_[Atom::NetWorkArea]);
  if (areas.size() < 4) return *workArea_;
  const std::size_t desktop = connection_.ReadNumber(root, connection_[Atom::NetCurrentDesktop]);
  const auto* area = areas.data() + (desktop < areas.size() / 4 ? desktop * 4 : 0);
  const RECT free{static_cast<LONG>(area[0]), static_cast<LONG>(area[1]),
                  static_cast<LONG>(area[0] + area[2]), static_cast<LONG>(area[1] + area[3])};
  const RECT common{std::max(workArea_->left, free.left), std::max(workArea_->top, free.top),
                    std::min(workArea_->right, free.right),
                    std::min(workArea_->bottom, free.bottom)};
  if (common.left < common.right && common.top < common.bottom) workArea_ = common;
  return *workArea_;
}

void WindowManager::Focus(xcb_window_t window) {
  if (IsRunning()) {
    connection_.AskWindowManager(window, Atom::NetActiveWindow,
                                 {kApplication, XCB_CURRENT_TIME, 0, 0, 0});
  } else {
    xcb_set_input_focus(connection_.Get(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
  }
}

bool WindowManager::BeginMoveSize(xcb_window_t window, int edge, POINT pointer) {
  const int direction = DirectionOf(edge);
  if (direction < 0 || !Supports(connection_[Atom::NetWmMoveResize])) return false;
  xcb_ungrab_pointer(connection_.Get(), XCB_CURRENT_TIME);
  connection_.AskWindowManager(
      window, Atom::NetWmMoveResize,
      {static_cast<std::uint32_t>(pointer.x), static_cast<std::uint32_t>(pointer.y),
       static_cast<std::uint32_t>(direction), XCB_BUTTON_INDEX_1, kApplication});
  return true;
}

void WindowManager::AnswerPing(const xcb_client_message_event_t& ping) {
  const auto& data = ping.data.data32;
  connection_.AskWindowManager(connection_.Root(), Atom::WmProtocols,
                               {data[0], data[1], data[2], data[3], data[4]});
}

void WindowManager::RootPropertyChanged(xcb_atom_t property) {
  if (property == connection_[Atom::NetSupportingWmCheck]) running_.reset();
  if (property == connection_[Atom::NetSupported]) supported_.reset();
  if (property == connection_[Atom::NetWorkArea] ||
      property == connection_[Atom::NetCurrentDesktop]) {
    workArea_.reset();
  }
}

}  // namespace display::x11
