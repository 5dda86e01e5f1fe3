#pragma once

#include "MFC/tips/TipWindow.h"
#include "ScopedConnection.h"

namespace Wexa {

class BaseGUIObject;

// The small window that joins a balloon to its widget.
class BalloonArrow : public TipWindow {
 public:
  // With its tip at the point, upwards or downwards.
  void Point(HWND owner, POINT tip, bool upwards, const ControlPalette& palette,
             COLORREF background);

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;

 private:
  bool upwards_ = true;
  COLORREF background_ = 0;
};

// A tip that points at a widget. One is shown at a time. It goes with a press or a key in its
// dialog or on itself, with its widget, and after some time if it is told to.
class BalloonTip : public TipWindow {
 public:
  ~BalloonTip() override;

  struct Manner {
    bool closesOnInput = true;
    UINT milliseconds = 0;  // 0: it stays
  };

  // False when there is nothing to say or the widget is not to be seen.
  bool Show(BaseGUIObject& widget, const TipContent& content, Manner manner);
  void Close();
  // A key or a button was pressed in a dialog.
  static void OnInput();

 protected:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Place(BaseGUIObject& widget);

  BalloonArrow arrow_;
  Manner manner_;
  ScopedConnection widgetGone_;
};

}  // namespace Wexa
