#pragma once

#include "Dialog.h"
#include "Size.h"
#include "WexaUtils.h"

namespace Wexa {

class Rescaling;

// What a dialog does when the screen has another resolution than the one it was made for.
class DialogResolution {
 public:
  explicit DialogResolution(Dialog::impl& dialog) : dialog_(dialog) {}

  // Takes all sizes in pixels to the screen's resolution of now, and arranges the window if there
  // is one. Handlers of resizes may destroy the dialog.
  void Follow();
  // The client area has its first size: one that its user has not changed since goes back to what
  // the form states.
  void RememberArranged();

 private:
  void Arrange(const Rescaling& rescale, Size client);

  Dialog::impl& dialog_;
  double scaleFactor_ = WexaUtils::GetScaleFactor();  // of all sizes in pixels
  Size sizeAsArranged_;  // of the client area, before its user changed it
};

}  // namespace Wexa
