#include "window/Frame.h"

#include <utility>

#include "platform/SystemColors.h"
#include "window/Coordinates.h"
#include "window/Dispatch.h"
#include "window/PaintContext.h"
#include "window/Updates.h"
#include "window/WindowClass.h"

namespace core {
namespace {

int BorderWidth(DWORD style, DWORD exStyle) {
  if (style & WS_CHILD) return style & WS_BORDER ? ScaleUnits(1) : 0;
  if (style & WS_THICKFRAME) return Theme::SizingFrameWidth();
  if ((style & WS_DLGFRAME) || (exStyle & WS_EX_DLGMODALFRAME)) return Theme::FixedFrameWidth();
  return style & WS_BORDER ? ScaleUnits(1) : 0;
}

bool HasCaption(DWORD style) {
  return !(style & WS_CHILD) && (style & WS_CAPTION) == WS_CAPTION;
}

// From the window's corner, in its own direction of reading.
CRect CaptionRect(const Window& window) {
  const int border = BorderWidth(window.style, window.exStyle);
  return {border, border, window.rect.Width() - border, border + Theme::CaptionHeight()};
}

CPoint FromCorner(const Window& window, POINT screen) {
  const CRect place = ScreenRect(window);
  const int x = window.IsMirrored() ? place.right - 1 - screen.x : screen.x - place.left;
  return {x, screen.y - place.top};
}

// Borders are grabbed by their corners too: rows of left, middle, right.
int SizingPart(const Window& window, CPoint p) {
  constexpr int kParts[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                {HTLEFT, HTNOWHERE, HTRIGHT},
                                {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
  const int border = Theme::SizingFrameWidth();
  const CRect bounds = window.Bounds();
  if (bounds.Shrunk(border, border).Contains(p)) return HTNOWHERE;
  const int corner = border + ScaleUnits(8);
  const int column = p.x < corner ? 0 : p.x >= bounds.right - corner ? 2 : 1;
  const int row = p.y < corner ? 0 : p.y >= bounds.bottom - corner ? 2 : 1;
  return kParts[row][column];
}

// In a right-to-left window the hit parts name the sides on the screen.
int OnScreenSide(int part, bool mirrored) {
  if (!mirrored) return part;
  switch (part) {
    case HTLEFT: return HTRIGHT;
    case HTRIGHT: return HTLEFT;
    case HTTOPLEFT: return HTTOPRIGHT;
    case HTTOPRIGHT: return HTTOPLEFT;
    case HTBOTTOMLEFT: return HTBOTTOMRIGHT;
    case HTBOTTOMRIGHT: return HTBOTTOMLEFT;
    default: return part;
  }
}

int CaptionPart(const Window& window, CPoint p) {
  const CRect caption = CaptionRect(window);
  if (!HasCaption(window.style) || !caption.Contains(p)) return HTBORDER;
  const CRect close = Theme::CloseButtonRect(caption);
  return window.Is(WS_SYSMENU) && close.Contains(p) ? HTCLOSE : HTCAPTION;
}

void DrawTopLevelFrame(Painter& painter, const Window& window) {
  const int border = BorderWidth(window.style, window.exStyle);
  if (border > 0) Theme::DrawWindowFrame(painter, window.Bounds(), border, window.top->active);
  if (HasCaption(window.style))
    Theme::DrawCaption(painter, CaptionRect(window), window.text, window.top->active,
                       window.Is(WS_SYSMENU), window.top->hovered, window.top->pressed);
}

void DrawChildBorder(Painter& painter, const Window& window) {
  const int border = BorderWidth(window.style, window.exStyle);
  if (border > 0) painter.FrameRect(window.Bounds(), GetSysColor(COLOR_WINDOWFRAME), border);
}

}  // namespace

RECT FrameInsets(DWORD style, DWORD exStyle) {
  const int border = BorderWidth(style, exStyle);
  const int caption = HasCaption(style) ? Theme::CaptionHeight() : 0;
  return {border, border + caption, border, border};
}

void TakeFrameOff(const Window& window, RECT& rect) {
  if (window.windowClass->paintsFrame) return;
  const RECT frame = FrameInsets(window.style, window.exStyle);
  rect.left += frame.left;
  rect.top += frame.top;
  rect.right -= frame.right;
  rect.bottom -= frame.bottom;
}

int FramePartAt(const Window& window, POINT screen) {
  if (!ScreenRect(window).Contains(screen)) return HTNOWHERE;
  if (ClientOnScreen(window).Contains(screen)) return HTCLIENT;
  if (!window.top) return HTBORDER;
  const CPoint p = FromCorner(window, screen);
  const int sizing = window.Is(WS_THICKFRAME) ? SizingPart(window, p) : HTNOWHERE;
  return sizing != HTNOWHERE ? OnScreenSide(sizing, window.IsMirrored()) : CaptionPart(window, p);
}

void PaintFrame(Window& window) {
  const HDC dc = FrameContext(window);
  {
    Painter painter(dc);
    if (window.top)
      DrawTopLevelFrame(painter, window);
    else
      DrawChildBorder(painter, window);
  }
  Finish(dc);
}

void SetHoveredPart(Window& root, FramePart part) {
  if (std::exchange(root.top->hovered, part) != part) InvalidateCaption(root);
}

void SetPressedPart(Window& root, FramePart part) {
  if (std::exchange(root.top->pressed, part) != part) InvalidateCaption(root);
}

SizeLimits LimitsOf(Window& window) {
  constexpr LONG kLargest = 32767;
  const RECT frame = FrameInsets(window.style, window.exStyle);
  const int caption = window.Is(WS_CAPTION) ? 2 * Theme::CaptionHeight() : 0;
  const CRect work = display::Current().WorkArea();
  MINMAXINFO info{};
  info.ptMaxSize = {work.Width(), work.Height()};
  info.ptMaxPosition = work.TopLeft();
  info.ptMinTrackSize = {frame.left + frame.right + caption, frame.top + frame.bottom};
  info.ptMaxTrackSize = {kLargest, kLargest};
  Send(window, WM_GETMINMAXINFO, 0, AsParam(&info));
  return {{info.ptMinTrackSize.x, info.ptMinTrackSize.y},
          {info.ptMaxTrackSize.x, info.ptMaxTrackSize.y}};
}

void InvalidateCaption(Window& root) {
  CRect caption = CaptionRect(root);
  Invalidate(root, PixelRegion(caption), {.erase = false});
}

}  // namespace core

BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL, DWORD exStyle) {
  if (!rect) return FALSE;
  const RECT frame = core::FrameInsets(style, exStyle);
  rect->left -= frame.left;
  rect->top -= frame.top;
  rect->right += frame.right;
  rect->bottom += frame.bottom;
  return TRUE;
}
