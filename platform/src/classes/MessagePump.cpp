#include "classes/MessagePump.h"

#include "platform/Classes.h"
#include "platform/PreTranslation.h"
#include "window/Queue.h"

namespace {

HWND Above(HWND window) {
  const bool isChild = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
  return isChild ? GetParent(window) : nullptr;
}

// Asks the windows and their objects from the message's own up to its top-level one.
bool PreTranslate(MSG& message) {
  for (HWND window = message.hwnd; window; window = Above(window)) {
    const LRESULT answer =
        SendMessageW(window, WM_PRETRANSLATE, 0, reinterpret_cast<LPARAM>(&message));
    if (answer == PRETRANSLATE_USED) return true;
    if (answer == PRETRANSLATE_DISPATCH) return false;
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object && object->PreTranslateMessage(&message)) return true;
  }
  return false;
}

}  // namespace

Pumped PumpOneMessage(int& exitCode) {
  MSG message{};
  if (!GetMessageW(&message)) {
    exitCode = static_cast<int>(message.wParam);
    return message.message == WM_QUIT ? Pumped::Quit : Pumped::NothingLeft;
  }
  if (!PreTranslate(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  core::ThrowPostponed();
  return Pumped::Message;
}

BOOL AfxPumpMessage() {
  int exitCode = 0;
  return PumpOneMessage(exitCode) == Pumped::Message;
}

void AfxPumpPending() {
  MSG message{};
  while (PeekMessageW(&message, PM_NOREMOVE) && message.message != WM_QUIT) {
    if (!AfxPumpMessage()) return;
  }
}
