#include "MFC/ranges/ScrollBarWnd.h"

#include "MFC/base/WidgetColors.h"
#include "platform/Painter.h"

namespace Wexa {

namespace {

constexpr UINT_PTR kRepeatTimer = 0xF001;
constexpr UINT kFirstRepeat = 400;
constexpr UINT kNextRepeat = 50;

}  // namespace

void FillScrollPalette(ControlPalette& palette, const SkinManager& skin) {
  FillCommonPalette(palette, skin);
  palette.background = SlotColor(skin, Slot::kScrollFace);
  palette.text = SlotColor(skin, Slot::kScrollArrow);
  palette.border = SlotColor(skin, Slot::kScrollThumb);
  palette.hoverBorder = SlotColor(skin, Slot::kScrollHoverThumb);
  palette.accent = SlotColor(skin, Slot::kScrollPressedThumb);
  const COLORREF faint = SlotColor(skin, Slot::kSeparator);
  // High contrast draws lines like thumbs.
  if (faint != palette.border) palette.disabledText = faint;
  palette.disabledBorder = palette.disabledText;
}

// -- Geometry -----------------------------------------------------------------

ScrollTrack ScrollBarWnd::Track() const {
  CRect client = GetClientRect();
  int length = vertical ? client.Height() : client.Width();
  return {Range(), length, Theme::ScrollBarWidth(), Theme::ShortestScrollThumb()};
}

CRect ScrollBarWnd::RectOf(const CRect& client, int from, int length) const {
  return vertical ? CRect(client.left, from, client.right, from + length)
                  : CRect(from, client.top, from + length, client.bottom);
}

// -- Painting -----------------------------------------------------------------

ControlState ScrollBarWnd::StateOf(Part part) const {
  ControlState state = State();
  state.enabled = state.enabled && Range().Span() > 0;
  state.hovered = state.enabled && state.hovered && hovered_ == part;
  state.pressed = state.enabled && IsHeld() && pressed_ == part;
  return state;
}

void ScrollBarWnd::PaintArrow(Painter& painter, const CRect& rect, Part part,
                              const ControlPalette& palette) {
  bool back = part == Part::LineBack;
  ArrowDirection direction = vertical ? (back ? ArrowDirection::Up : ArrowDirection::Down)
                                      : (back ? ArrowDirection::Left : ArrowDirection::Right);
  Theme::DrawScrollArrow(painter, rect, direction, StateOf(part), palette);
}

void ScrollBarWnd::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
  ScrollTrack track = Track();
  int length = vertical ? client.Height() : client.Width();
  int arrow = track.ArrowLength();
  PaintArrow(painter, RectOf(client, 0, arrow), Part::LineBack, palette);
  PaintArrow(painter, RectOf(client, length - arrow, arrow), Part::LineForward, palette);
  if (track.ThumbLength() > 0)
    Theme::DrawScrollThumb(painter, RectOf(client, track.ThumbStart(), track.ThumbLength()),
                           vertical, StateOf(Part::Thumb), palette);
  if (State().focusCue) painter.FocusRect(client, palette.text);
}

// -- Mouse --------------------------------------------------------------------

void ScrollBarWnd::OnPress(POINT point) {
  ScrollTrack track = Track();
  pointer_ = point;
  pressed_ = track.PartAt(Along(point));
  grip_ = Along(point) - track.ThumbStart();
  valueAtPress_ = Range().Value();
  if (pressed_ == Part::Thumb || pressed_ == Part::None) return;
  SetTimer(kRepeatTimer, kFirstRepeat);
  Step(pressed_);
}

void ScrollBarWnd::Step(Part part) {
  switch (part) {
    case Part::LineBack: return MoveLines(-1);
    case Part::LineForward: return MoveLines(1);
    case Part::PageBack: return MovePages(-1);
    case Part::PageForward: return MovePages(1);
    default: return;
  }
}

void ScrollBarWnd::OnDrag(POINT point) {
  pointer_ = point;
  if (pressed_ == Part::Thumb) TrackValue(Track().ValueAt(Along(point) - grip_));
}

// A page press ends where the thumb has come under the pointer.
void ScrollBarWnd::OnTimer(UINT_PTR id) {
  if (id != kRepeatTimer) return;
  SetTimer(kRepeatTimer, kNextRepeat);
  if (Track().PartAt(Along(pointer_)) == pressed_) Step(pressed_);
}

void ScrollBarWnd::OnRelease(POINT) {
  StopRepeating();
}

// A drag that is interrupted puts the thumb back.
void ScrollBarWnd::OnDragCancelled() {
  bool dragged = pressed_ == Part::Thumb;
  StopRepeating();
  if (dragged) SetValue(valueAtPress_);
}

void ScrollBarWnd::StopRepeating() {
  pressed_ = Part::None;
  KillTimer(kRepeatTimer);
  Invalidate();
}

void ScrollBarWnd::OnHover(POINT point) {
  Part part = Track().PartAt(Along(point));
  if (part == hovered_) return;
  hovered_ = part;
  Invalidate();
}

}  // namespace Wexa
