#include "MFC/ranges/SliderWnd.h"

#include <algorithm>
#include <utility>

#include "MFC/BaseImplMFC.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr int kTickLength = 3;
constexpr int kClosestTicks = 3;

}  // namespace

int SliderWnd::Room() const {
  CRect client = GetClientRect();
  return std::max((vertical ? client.Height() : client.Width()) - Theme::SliderThumbLength(), 0);
}

// Along the track, from the end with the lowest value.
int SliderWnd::PlaceOf(POINT point) const {
  return vertical ? GetClientRect().Height() - 1 - point.y : point.x;
}

void SliderWnd::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
  PaintTicks(painter, client, palette);
  Theme::DrawSlider(painter, client, Range().Fraction(), vertical, State(), palette);
}

void SliderWnd::PaintTicks(Painter& painter, const CRect& client,
                           const ControlPalette& palette) const {
  bool fits = tickInterval > 0 && Range().Span() / tickInterval <= Room() / Scale(kClosestTicks);
  if (!fits) return;
  ValueRange at = Range();
  int line = std::max(Scale(1), 1);
  int length = Scale(kTickLength);
  for (std::int64_t value = at.Minimum(); value <= at.Maximum(); value += tickInterval) {
    at.SetValue(value);
    int place = at.PlaceOn(Room()) + Theme::SliderThumbLength() / 2;
    int y = client.bottom - place - line;
    painter.FillRect(vertical ? CRect(client.right - length, y, client.right, y + line)
                              : CRect(place, client.bottom - length, place + line, client.bottom),
                     palette.border);
  }
}

// Beside the thumb a press moves it by a page; on it, the thumb follows the pointer.
void SliderWnd::OnPress(POINT point) {
  int place = PlaceOf(point);
  valueAtPress_ = Range().Value();
  grip_ = place - ThumbPlace();
  dragging_ = grip_ >= 0 && grip_ < Theme::SliderThumbLength();
  if (!dragging_) MovePages(grip_ < 0 ? -1 : 1);
}

void SliderWnd::OnDrag(POINT point) {
  if (dragging_) TrackValue(Range().ValueAt(PlaceOf(point) - grip_, Room()));
}

void SliderWnd::OnDragCancelled() {
  if (std::exchange(dragging_, false)) SetValue(valueAtPress_);
}

}  // namespace Wexa
