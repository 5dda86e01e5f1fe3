#include "MFC/TabStrip.h"

#include "MFC/BaseImplMFC.h"
#include "platform/Painter.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr UINT_PTR kRepeatTimer = 0xF003;
constexpr UINT kRepeatMilliseconds = 250;
constexpr UINT kCaptionFormat = DT_SINGLELINE;

int LineWidth() {
  return std::max(Scale(1), 1);
}

}  // namespace

int TabStrip::HeightFor(HFONT font) {
  return GetFontMetrics(font).height + 2 * Theme::TabPadding().cy;
}
int TabStrip::WidthFor(HFONT font, const std::wstring& caption) {
  return GetTextExtent(font, caption, INT32_MAX, kCaptionFormat).cx + 2 * Theme::TabPadding().cx;
}
int TabStrip::ArrowsWidth() {
  return 2 * Theme::ArrowButtonWidth();
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
  std::vector<int> widths;
  for (const std::wstring& caption : captions_) widths.push_back(WidthFor(Font(), caption));
  row_.SetTabs(std::move(widths));
  row_.SetRoom(GetClientRect().Width(), ArrowsWidth());
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
  return {span.from, 0, span.to, GetClientRect().Height()};
}

ControlState TabStrip::StateOf(int index) const {
  ControlState state = State();
  state.enabled = state.enabled && isEnabled(index);
  state.hovered = state.hovered && hovered_ == index;
  // A caption shows its mnemonic where the keyboard is used, focused or not.
  state.focused = state.focusCue;
  state.focusCue = (SendMessage(WM_QUERYUISTATE) & UISF_HIDEACCEL) == 0;
  return state;
}

// The frame of the page begins at the strip's lower edge; the current tab is open to it.
void TabStrip::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
  painter.FillRect(CRect(client.left, client.bottom - LineWidth(), client.right, client.bottom),
                   palette.border);
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
  CRect tab = RectOf(span);
  if (index != current_) tab.bottom -= LineWidth();
  const std::wstring& caption = captions_[static_cast<std::size_t>(index)];
  Theme::DrawTab(painter, tab, caption, Font(), index == current_, StateOf(index), palette);
}

void TabStrip::PaintArrow(Painter& painter, bool forward, const ControlPalette& palette) {
  CRect arrow = RectOf(forward ? row_.ForwardArrow() : row_.BackArrow());
  arrow.bottom -= LineWidth();
  ControlState state = State();
  state.enabled = state.enabled && (forward ? row_.CanScrollForward() : row_.CanScrollBack());
  painter.FillRect(arrow, palette.background);
  painter.Arrow(arrow.Shrunk(0, arrow.Height() / 4),
                forward ? ArrowDirection::Right : ArrowDirection::Left,
                state.enabled ? palette.text : palette.disabledText);
}

// -- Mouse --------------------------------------------------------------------

void TabStrip::OnPress(POINT point) {
  if (row_.BackArrow().Contains(point.x)) return Scroll(-1);
  if (row_.ForwardArrow().Contains(point.x)) return Scroll(1);
  Choose(row_.TabAt(point.x));
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
  int tab = row_.TabAt(point.x);
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
