#include "preview/Preview.h"

#include <stdexcept>

#include "platform/Classes.h"
#include "platform/Picture.h"
#include "preview/FormFiles.h"

namespace preview {

void UseKeyMap(Wexa::Dialog& dialog) {
  dialog.SetSkinMode(Wexa::SkinMode::XML, false);  // refused when there is no map
}

Preview::Preview(const std::string& file)
    : dialog_(LibraryPath(file), nullptr, 0, WexaUtils::GetScaleFactor()) {
  UseKeyMap(dialog_);
}

void Preview::Show() {
  dialog_.DoModeless(true);
}

void Preview::Paint() {
  PaintNow();
}

void Preview::Resize(Wexa::Size client) {
  Impl().ResizeClient(client.Width(), client.Height());
  Settle();
}

void Preview::Settle() {
  constexpr int kMostMessages = 200000;
  MSG message{};
  for (int i = 0; PeekMessageW(&message, PM_NOREMOVE) && message.message != WM_QUIT; ++i) {
    if (i == kMostMessages) throw std::runtime_error("The dialog does not come to rest.");
    if (!AfxPumpMessage()) return;
  }
}

void Preview::SavePicture(const std::string& png) {
  SaveWindowPicture(dialog_.GetHandle(), png);
}

CRect Preview::ClientOnScreen() {
  CRect client = dialog_.GetWndPtr()->GetClientRect();
  POINT corners[] = {client.TopLeft(), {client.right, client.bottom}};
  MapWindowPoints(dialog_.GetHandle(), nullptr, corners, 2);
  return {corners[0], corners[1]};
}

}  // namespace preview
