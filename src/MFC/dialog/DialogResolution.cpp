// What a dialog does when the screen has another resolution than the one it was made for.

#include <utility>

#include "MFC/DialogImplMFC.h"
#include "layout/Rescaling.h"
#include "platform/Window.h"

namespace Wexa {

void Dialog::impl::OnResolutionChanged() {
  FollowResolution();
  if (GetHandle()) pages_.TellResolution();
}

void Dialog::impl::FollowResolution() {
  const double now = WexaUtils::GetScaleFactor();
  const Rescaling rescale(std::exchange(scaleFactor_, now), now);
  if (rescale.IsNone()) return;
  clientSize = rescale(clientSize);
  if (!GetHandle()) return Rescale(rescale);
  const Size client = GetClientRect().GetSize();
  Rescale(rescale);
  ArrangeRescaled(rescale, client == sizeAsArranged_ ? clientSize : rescale(client));
}

// Handlers of resizes may destroy the dialog.
void Dialog::impl::ArrangeRescaled(const Rescaling& rescale, Size client) {
  PlaceUnplaced(rescale);
  if (GetHandle() && !Links().layout) ResizeClient(client.Width(), client.Height());
  if (GetHandle()) Arrange(client);
  if (!GetHandle()) return;
  sizeAsArranged_ = GetClientRect().GetSize();
  Window().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// What no layout places keeps its place on the dialog, in units.
void Dialog::impl::PlaceUnplaced(const Rescaling& rescale) {
  for (std::size_t i = 0; i < elements_.size(); ++i) {
    const auto held = elements_[i].widget->GetBaseImpl();
    auto& widget = static_cast<BaseImplMFC&>(*held);
    if (widget.Links().layoutItem || !widget.GetHandle()) continue;
    CRect place = widget.GetWindowRect().PlatformRect();
    widget.GetCWnd()->GetParent()->ScreenToClient(&place);
    const Rect scaled = rescale(Rect(place));
    widget.MoveWindow(scaled.Left(), scaled.Top(), scaled.Width(), scaled.Height(), true);
    if (!GetHandle()) return;
  }
}

}  // namespace Wexa
