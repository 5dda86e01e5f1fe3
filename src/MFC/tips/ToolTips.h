#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "MFC/tips/TipWindow.h"

namespace Wexa {

class BaseGUIObject;

// The window that shows a dialog's tool tips: after the pointer rested for a while, until it goes,
// presses, or some time has passed.
class ToolTipWindow : public TipWindow {
 public:
  void ShowLater(BaseGUIObject& widget, const TipContent& content);
  void Cancel();

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowAtPointer();
};

// The tool tips of a dialog's widgets.
class ToolTips {
 public:
  // One tip for each widget and id; without an area it is the whole widget's. An empty text removes
  // the tip.
  void Set(const std::shared_ptr<BaseGUIObject>& widget, const TipContent& content, int id,
           const CRect* area);
  // What the pointer or the keyboard did in one of the dialog's windows.
  void OnInput(HWND window, UINT message);

 private:
  struct Entry {
    std::weak_ptr<BaseGUIObject> widget;
    TipContent content;
    int id;
    std::optional<CRect> area;
  };

  void OnMove(HWND window);
  void Leave();
  const Entry* EntryUnder(HWND window, POINT screen) const;

  std::vector<Entry> entries_;
  ToolTipWindow window_;
  HWND hoveredIn_ = nullptr;  // the window that reported the pointer over a tip's area
  std::weak_ptr<BaseGUIObject> hovered_;
  int hoveredId_ = 0;
};

}  // namespace Wexa
