#pragma once

#include <vector>

#include "platform/Types.h"

namespace Wexa {

class BaseImpl;

// Windows from elsewhere that a dialog shows as pages: each fills its client area.
class EmbeddedPages {
 public:
  explicit EmbeddedPages(BaseImpl& dialog) : dialog_(dialog) {}

  // False for a window that is gone or that holds the dialog, and while the dialog has no window.
  bool Embed(HWND window, bool show);
  // After the dialog's size has changed.
  void Fit();
  // After the resolution has changed: only top-level windows hear of it by themselves.
  void TellResolution();

 private:
  BaseImpl& dialog_;
  std::vector<HWND> pages_;
};

}  // namespace Wexa
