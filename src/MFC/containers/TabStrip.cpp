#include "MFC/containers/TabStrip.h"

#include <algorithm>

#include "MFC/BaseImplMFC.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr UINT_PTR kRepeatTimer = 0xF003;
constexpr UINT kRepeatMilliseconds = 250;
constexpr UINT kCaptionFormat = DT_SINGLELINE;
constexpr int kThickestUpright = 240;

int LineWidth() {
  return std::max(Scale(1), 1);
}

int HeightFor(HFONT font) {
  return GetFontMetrics(font).height + 2 * Theme::TabPadding().cy;
}
int WidthFor(HFONT font, const std::wstring& caption) {
  return GetTextExtent(font, caption, INT32_MAX, kCaptionFormat).cx + 2 * Theme::TabPadding().cx;
}

}  // namespace

int TabStrip::LengthOf(HFONT font, const std::wstring& caption) const {
  return IsUpright() ? HeightFor(font) : WidthFor(font, caption);
}

int TabStrip::Length(HFONT font) const {
  int length = 0;
  for (const std::wstring& caption : captions_) length += LengthOf(font, caption);
  return length;
}

int TabStrip::Thickness(HFONT font) const {
  if (!IsUpright()) return HeightFor(font);
  int width = 0;
  for (const std::wstring& caption : captions_) width = std::max(width, WidthFor(font, caption));
  return std::min(width + LineWidth(), Scale(kThickestUpright));
}

void TabStrip::SetCaptions(const std::vector<std::wstring>& captions) {
  captions_ = captions;
  if (!IsGone()) Arrange();
}

void TabStrip::SetCurrent(int index) {
  current_ = index;
  row_.BringIntoView(index);
  if (!IsGone()) Invalidate();
}

void TabStrip::Arrange() {
  std::vector<int> lengths;
  for (const std::wstring& caption : captions_) lengths.push_back(LengthOf(Font(), caption));
  row_.SetTabs(std::move(lengths));
  const CRect client = GetClientRect();
  row_.SetRoom(IsUpright() ? client.Height() : client.Width(), 2 * Theme::ArrowButtonWidth());
  row_.BringIntoView(current_);
  Invalidate();
}

int TabStrip::NextEnabled(int from, int direction, bool wraps) const {
  for (int step = 1; step <= Count(); ++step) {
    int index = from + step * direction;
    if (!wraps && (index < 0 || index >= Count())) return -1;
    index = ((index % Count()) + Count()) % Count();
    if (isEnabled(index)) return index;
  }
  return -1;
}

// -- Painting -----------------------------------------------------------------

CRect TabStrip::RectOf(TabRow::Span span) const {
  const CRect client = GetClientRect();
  return IsUpright() ? CRect(0, span.from, client.Width(), span.to)
                     : CRect(span.from, 0, span.to, client.Height());
}

// The frame of the pages begins at the strip's inner edge; only the current tab is open to it.
CRect TabStrip::WithoutInnerLine(CRect rect) const {
  switch (edge_) {
    case Edge::Top: rect.bottom -= LineWidth(); break;
    case Edge::Bottom: rect.top += LineWidth(); break;
    case Edge::Left: rect.right -= LineWidth(); break;
    case Edge::Right: rect.left += LineWidth(); break;
  }
  return rect;
}

ControlState TabStrip::StateOf(int index) const {
  ControlState state = State();
  state.enabled = state.enabled && isEnabled(index);
  state.hovered = state.hovered && hovered_ == index;
  return state;
}

void TabStrip::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.border);
  painter.FillRect(WithoutInnerLine(client), palette.background);
  for (int i = row_.First(); i < Count(); ++i)
    if (i != current_) PaintTab(painter, i, palette);
  PaintTab(painter, current_, palette);
  if (!row_.Scrolls()) return;
  PaintArrow(painter, false, palette);
  PaintArrow(painter, true, palette);
}

void TabStrip::PaintTab(Painter& painter, int index, const ControlPalette& palette) {
  TabRow::Span span = row_.TabSpan(index);
  if (span.IsEmpty()) return;
  painter.PushClip(RectOf(span));
  // A caption at the end may be shortened, but not squeezed.
  if (IsUpright()) span.to = span.from + HeightFor(Font());
  const bool isCurrent = index == current_;
  const CRect tab = isCurrent ? RectOf(span) : WithoutInnerLine(RectOf(span));
  const std::wstring& caption = captions_[static_cast<std::size_t>(index)];
  Theme::DrawTab(painter, tab, caption, Font(), isCurrent, edge_, StateOf(index), palette);
  painter.PopClip();
}

ArrowDirection TabStrip::ArrowTo(bool forward) const {
  if (IsUpright()) return forward ? ArrowDirection::Down : ArrowDirection::Up;
  return forward ? ArrowDirection::Right : ArrowDirection::Left;
}

void TabStrip::PaintArrow(Painter& painter, bool forward, const ControlPalette& palette) {
  const CRect arrow = WithoutInnerLine(RectOf(forward ? row_.ForwardArrow() : row_.BackArrow()));
  ControlState state = State();
  state.enabled = state.enabled && (forward ? row_.CanScrollForward() : row_.CanScrollBack());
  painter.FillRect(arrow, palette.background);
  const CRect glyph =
      IsUpright() ? arrow.Shrunk(arrow.Width() / 4, 0) : arrow.Shrunk(0, arrow.Height() / 4);
  painter.Arrow(glyph, ArrowTo(forward), state.enabled ? palette.text : palette.disabledText);
}

// -- Mouse --------------------------------------------------------------------

void TabStrip::OnPress(POINT point) {
  const int place = Along(point);
  if (row_.BackArrow().Contains(place)) return Scroll(-1);
  if (row_.ForwardArrow().Contains(place)) return Scroll(1);
  Choose(row_.TabAt(place));
}

void TabStrip::Scroll(int tabs) {
  scrolling_ = tabs;
  row_.Scroll(tabs);
  SetTimer(kRepeatTimer, kRepeatMilliseconds);
  Invalidate();
}

void TabStrip::OnTimer(UINT_PTR id) {
  if (id == kRepeatTimer && scrolling_ != 0) Scroll(scrolling_);
}

void TabStrip::StopRepeating() {
  scrolling_ = 0;
  KillTimer(kRepeatTimer);
}

void TabStrip::OnHover(POINT point) {
  const int tab = row_.TabAt(Along(point));
  if (tab == hovered_) return;
  hovered_ = tab;
  Invalidate();
}

bool TabStrip::OnWheel(int delta, bool horizontal) {
  if (!row_.Scrolls() || delta == 0) return false;
  row_.Scroll((delta > 0) == horizontal ? 1 : -1);
  Invalidate();
  return true;
}

// -- Keyboard -----------------------------------------------------------------

bool TabStrip::OnKey(int virtualKey) {
  switch (Mirrored(virtualKey)) {
    case VK_LEFT:
    case VK_UP: return Choose(NextEnabled(current_, -1, false));
    case VK_RIGHT:
    case VK_DOWN: return Choose(NextEnabled(current_, 1, false));
    case VK_HOME: return Choose(NextEnabled(-1, 1, false));
    case VK_END: return Choose(NextEnabled(Count(), -1, false));
    default: return false;
  }
}

LRESULT TabStrip::DialogCode(const MSG*) const {
  return DLGC_WANTARROWS;
}

bool TabStrip::Choose(int index) {
  if (index < 0 || index == current_ || !isEnabled(index)) return index >= 0;
  const auto chosen = onChosen;
  chosen(index);
  return true;
}

}  // namespace Wexa
