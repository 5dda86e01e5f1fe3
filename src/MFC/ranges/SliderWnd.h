#pragma once

#include "MFC/ranges/RangeWnd.h"

namespace Wexa {

// The window of a slider.
class SliderWnd : public RangeWnd {
 public:
  int tickInterval = 0;  // 0 for none

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void OnPress(POINT point) override;
  void OnDrag(POINT point) override;
  void OnRelease(POINT) override { dragging_ = false; }
  void OnDragCancelled() override;
  int UpSign() const override { return 1; }

 private:
  int Room() const;
  // From the end with the lowest value to the thumb's near edge.
  int ThumbPlace() const { return Range().PlaceOn(Room()); }
  int PlaceOf(POINT point) const;
  void PaintTicks(Painter& painter, const CRect& client, const ControlPalette& palette) const;

  bool dragging_ = false;
  int grip_ = 0;
  int valueAtPress_ = 0;
};

}  // namespace Wexa
