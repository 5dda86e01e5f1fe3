#pragma once

#include "MFC/ranges/RangeWnd.h"
#include "MFC/ranges/ScrollTrack.h"

namespace Wexa {

class SkinManager;

// A scroll bar: a widget's, or one of a container's pair.
class ScrollBarWnd : public RangeWnd {
 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void OnPress(POINT point) override;
  void OnDrag(POINT point) override;
  void OnRelease(POINT point) override;
  void OnDragCancelled() override;
  void OnHover(POINT point) override;
  void OnLeave() override { hovered_ = Part::None; }
  void OnTimer(UINT_PTR id) override;
  int UpSign() const override { return -1; }

 private:
  using Part = ScrollTrack::Part;

  ScrollTrack Track() const;
  CRect RectOf(const CRect& client, int from, int length) const;
  ControlState StateOf(Part part) const;
  void PaintArrow(Painter& painter, const CRect& rect, Part part, const ControlPalette& palette);
  void Step(Part part);
  void StopRepeating();

  Part pressed_ = Part::None;
  Part hovered_ = Part::None;
  int grip_ = 0;  // from the thumb's start to where it is held
  int valueAtPress_ = 0;
  POINT pointer_{};
};

// The colours of scroll bars.
void FillScrollPalette(ControlPalette& palette, const SkinManager& skin);

}  // namespace Wexa
