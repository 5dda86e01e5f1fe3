#pragma once

// The class STATIC: texts and etched lines.

#include "controls/Control.h"

class StaticControl : public Control {
 public:
  explicit StaticControl(HWND window) : Control(window) {}

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  // The size at which the text fits; with a width of at least 0, the size when wrapped to it.
  static SIZE IdealSize(HWND window, int width);

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
};
