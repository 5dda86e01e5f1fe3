#include "preview/Preview.h"

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
  AfxPumpPending();
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
