#include "preview/Preview.h"

#include <stdexcept>

#include "StackedDialog.h"
#include "TabView.h"
#include "Utf8.h"
#include "platform/Classes.h"
#include "platform/Picture.h"
#include "preview/FormFiles.h"

namespace preview {

namespace {

template <typename Container>
void TurnTo(Container& pages, const std::string& name, int index) {
  pages.SetCurrentIndex(index);
  if (pages.GetCurrentIndex() != index)
    throw std::runtime_error(name + " has no page " + std::to_string(index));
}

void ShowPage(Wexa::Dialog& dialog, const std::string& name, int index) {
  const auto wide = Wexa::WidenUtf8(name);
  const auto widget = wide ? dialog.GetElementByName(*wide) : nullptr;
  if (auto* tabs = dynamic_cast<Wexa::TabView*>(widget.get())) return TurnTo(*tabs, name, index);
  if (auto* stack = dynamic_cast<Wexa::StackedDialog*>(widget.get()))
    return TurnTo(*stack, name, index);
  throw std::runtime_error("no tab widget or stack named " + name);
}

}  // namespace

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

void ShowPages(Wexa::Dialog& dialog, const Pages& pages) {
  for (const auto& [name, index] : pages) ShowPage(dialog, name, index);
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
