#include "graphics/ThemeParts.h"
#include "platform/SystemColors.h"

namespace Theme {

namespace {

constexpr int kCaptionHeight = 30;
constexpr int kSizingFrame = 4;
constexpr int kFixedFrame = 1;
constexpr int kCloseWidth = 40;
constexpr int kCaptionIndent = 10;

struct CloseColors {
  COLORREF face;
  COLORREF cross;
};

constexpr CloseColors kCloseHovered{RGB(196, 43, 28), RGB(255, 255, 255)};
constexpr CloseColors kClosePressed{RGB(160, 33, 20), RGB(255, 255, 255)};

COLORREF CaptionColor(bool active) {
  return GetSysColor(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION);
}

COLORREF CaptionInk(bool active) {
  return GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT);
}

CloseColors ColorsOfClose(bool active, bool hovered, bool pressed) {
  if (!hovered && !pressed) return {CaptionColor(active), CaptionInk(active)};
  if (GetSystemScheme() == SystemScheme::HighContrast) {
    return {GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT)};
  }
  return pressed ? kClosePressed : kCloseHovered;
}

}  // namespace

int CaptionHeight() {
  return ScaleUnits(kCaptionHeight);
}

int SizingFrameWidth() {
  return ScaleUnits(kSizingFrame);
}

int FixedFrameWidth() {
  return ScaleUnits(kFixedFrame);
}

RECT CloseButtonRect(const RECT& caption) {
  return {caption.right - ScaleUnits(kCloseWidth), caption.top, caption.right, caption.bottom};
}

void DrawCaption(Painter& painter, const RECT& caption, std::wstring_view title, bool active,
                 bool hasCloseButton, FramePart hovered, FramePart pressed) {
  painter.FillRect(caption, CaptionColor(active));
  CRect text = CRect(caption).Shrunk(ScaleUnits(kCaptionIndent), 0);
  if (hasCloseButton) {
    RECT close = CloseButtonRect(caption);
    CloseColors colors =
        ColorsOfClose(active, hovered == FramePart::Close, pressed == FramePart::Close);
    painter.FillRect(close, colors.face);
    painter.Cross(close, colors.cross);
    text.right = close.left;
  }
  constexpr UINT kFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
  painter.Text(title, text, kFormat, GetSystemFont(), CaptionInk(active));
}

void DrawWindowFrame(Painter& painter, const RECT& rect, int thickness, bool active) {
  painter.FrameRect(rect, CaptionColor(active), thickness);
  COLORREF border = GetSysColor(active ? COLOR_ACTIVEBORDER : COLOR_INACTIVEBORDER);
  painter.FrameRect(rect, border, LineWidth());
}

}  // namespace Theme
