#include "MFC/dialog/DialogResolution.h"

#include <utility>

#include "MFC/DialogImplMFC.h"
#include "layout/Rescaling.h"
#include "platform/Window.h"

namespace Wexa {

void DialogResolution::Follow() {
  const double now = WexaUtils::GetScaleFactor();
  const Rescaling rescale(std::exchange(scaleFactor_, now), now);
  if (rescale.IsNone()) return;
  dialog_.SetClientSize(rescale(dialog_.ClientSize()));
  if (!dialog_.GetHandle()) return dialog_.Rescale(rescale);
  const Size client = dialog_.GetClientRect().GetSize();
  dialog_.Rescale(rescale);
  Arrange(rescale, client == sizeAsArranged_ ? dialog_.ClientSize() : rescale(client));
}

void DialogResolution::RememberArranged() {
  if (dialog_.GetHandle()) sizeAsArranged_ = dialog_.GetClientRect().GetSize();
}

void DialogResolution::Arrange(const Rescaling& rescale, Size client) {
  dialog_.Elements().RescaleFreeOnes(*dialog_.GetCWnd(), rescale);
  if (dialog_.GetHandle() && !dialog_.Links().layout)
    dialog_.ResizeClient(client.Width(), client.Height());
  if (dialog_.GetHandle()) dialog_.Life().Arrange(client);
  if (!dialog_.GetHandle()) return;
  RememberArranged();
  dialog_.GetCWnd()->RedrawWindow(nullptr, nullptr,
                                  RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace Wexa
