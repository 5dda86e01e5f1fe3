#pragma once

#include <functional>
#include <string>
#include <vector>

#include "MFC/containers/TabRow.h"
#include "MFC/drawn/InteractiveWnd.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

// The tabs of a tab view, side by side or, at the left or right of the pages, below each other. Its
// owner may die in a callback.
class TabStrip : public InteractiveWnd {
 public:
  using Edge = Theme::TabEdge;

  std::function<void(int)> onChosen;   // by the user
  std::function<bool(int)> isEnabled;  // whether a page can be chosen

  void SetCaptions(const std::vector<std::wstring>& captions);
  void SetCurrent(int index);
  // Where the strip stands in its view.
  void SetEdge(Edge edge) { edge_ = edge; }
  bool IsUpright() const { return edge_ == Edge::Left || edge_ == Edge::Right; }
  // After a change of the window's size or font.
  void Arrange();
  // The nearest page in that direction that is enabled; -1 without one. Past the end it goes on at
  // the other when `wraps`.
  int NextEnabled(int from, int direction, bool wraps) const;

  // What all captions need, with the strip across: how long it likes to be and how thick it is.
  int Length(HFONT font) const;
  int Thickness(HFONT font) const;

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void OnPress(POINT point) override;
  void OnRelease(POINT) override { StopRepeating(); }
  void OnDragCancelled() override { StopRepeating(); }
  void OnHover(POINT point) override;
  void OnLeave() override { hovered_ = -1; }
  void OnTimer(UINT_PTR id) override;
  bool OnKey(int virtualKey) override;
  bool OnWheel(int delta, bool horizontal) override;
  LRESULT DialogCode(const MSG* message) const override;

 private:
  int LengthOf(HFONT font, const std::wstring& caption) const;
  int Along(POINT point) const { return IsUpright() ? point.y : point.x; }
  CRect RectOf(TabRow::Span span) const;
  CRect WithoutInnerLine(CRect rect) const;
  ControlState StateOf(int index) const;
  void PaintTab(Painter& painter, int index, const ControlPalette& palette);
  ArrowDirection ArrowTo(bool forward) const;
  void PaintArrow(Painter& painter, bool forward, const ControlPalette& palette);
  void Scroll(int tabs);
  void StopRepeating();
  bool Choose(int index);
  int Count() const { return static_cast<int>(captions_.size()); }

  std::vector<std::wstring> captions_;
  TabRow row_;
  Edge edge_ = Edge::Top;
  int current_ = 0;
  int hovered_ = -1;
  int scrolling_ = 0;  // tabs per repeat while an arrow is held
};

}  // namespace Wexa
