#include "window/Position.h"

#include <algorithm>

#include "window/Activation.h"
#include "window/Coordinates.h"
#include "window/Dispatch.h"
#include "window/Frame.h"
#include "window/TopLevelSurface.h"
#include "window/Updates.h"
#include "window/WindowClass.h"
#include "window/ZOrder.h"

namespace core {
namespace {

constexpr UINT kNothing = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER;
constexpr UINT kChanges = SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW;

void FillKept(const Window& window, WINDOWPOS& request) {
  request.hwnd = window.handle;
  if (request.flags & SWP_NOMOVE) {
    request.x = window.rect.left;
    request.y = window.rect.top;
  }
  if (request.flags & SWP_NOSIZE) {
    request.cx = window.rect.Width();
    request.cy = window.rect.Height();
  }
  request.cx = std::max(request.cx, 0);
  request.cy = std::max(request.cy, 0);
}

// Whether nobody asks for the steps of the window's moves.
bool MovesQuietly(const Window& window) {
  const auto isQuiet = [](const auto& heard) { return heard.moves == MoveInterest::SizeOnly; };
  return window.parent && isQuiet(*window.windowClass) &&
         std::ranges::all_of(window.subclasses, isQuiet);
}

// Marks what is asked for and already so.
void MarkUnchanged(Window& window, WINDOWPOS& request) {
  const CRect& rect = window.rect;
  if (request.x == rect.left && request.y == rect.top) request.flags |= SWP_NOMOVE;
  if (request.cx == rect.Width() && request.cy == rect.Height()) request.flags |= SWP_NOSIZE;
  if (!(request.flags & SWP_NOZORDER) && StandsAfter(window, request.hwndInsertAfter))
    request.flags |= SWP_NOZORDER;
  if (window.IsVisible()) request.flags &= ~SWP_SHOWWINDOW;
  if (!window.IsVisible()) request.flags &= ~SWP_HIDEWINDOW;
}

bool ChangesNothing(UINT flags) {
  return (flags & kNothing) == kNothing && !(flags & kChanges);
}

void SetVisibleStyle(Window& window, UINT flags) {
  if (flags & SWP_SHOWWINDOW) window.style |= WS_VISIBLE;
  if (flags & SWP_HIDEWINDOW) window.style &= ~WS_VISIBLE;
}

// Whether the pixels inside the window are no longer right.
bool NeedsPaint(const Window& window, UINT flags) {
  const bool moved = !(flags & SWP_NOMOVE) && window.parent;
  const bool raised = !(flags & SWP_NOZORDER) && window.parent;
  return moved || raised || !(flags & SWP_NOSIZE) || (flags & kChanges);
}

void UpdateSurface(Window& window, UINT flags) {
  if (!window.top) return;
  PlaceSurface(window);
  if (flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) ShowSurface(window, window.IsVisible());
  if (!(flags & SWP_NOZORDER) && window.IsVisible() && TopLevels().front() == &window)
    display::Current().RaiseSurface(window.top->surfaceId);
}

// Makes the change; adds to the flags what it left alone of the client area.
void Apply(Window& window, WINDOWPOS& request) {
  const bool repaint = !(request.flags & SWP_NOREDRAW) && NeedsPaint(window, request.flags);
  const CRect client = window.client.Moved(window.rect.left, window.rect.top);
  if (repaint && window.IsVisible()) InvalidateBehind(window);
  if (!(request.flags & SWP_NOZORDER)) PlaceAfter(window, request.hwndInsertAfter);
  window.allDue = false;
  window.rect = {request.x, request.y, request.x + request.cx, request.y + request.cy};
  SetVisibleStyle(window, request.flags);
  if (window.parent) window.parent->overlapsKnown = false;
  if (!(request.flags & SWP_NOSIZE) || (request.flags & SWP_FRAMECHANGED)) UpdateClientArea(window);
  const CRect now = window.client.Moved(window.rect.left, window.rect.top);
  if (now.TopLeft().x == client.left && now.TopLeft().y == client.top)
    request.flags |= kNoClientMove;
  if (now.Width() == client.Width() && now.Height() == client.Height())
    request.flags |= kNoClientSize;
  if (repaint) InvalidateAll(window);
  UpdateSurface(window, request.flags);
}

}  // namespace

void UpdateClientArea(Window& window) {
  RECT rect = window.rect;
  if (MovesQuietly(window)) {
    TakeFrameOff(window, rect);
  } else {
    Send(window, WM_NCCALCSIZE, FALSE, AsParam(&rect));
  }
  const CRect client = CRect(rect).Moved(-window.rect.left, -window.rect.top);
  window.client = {client.left, client.top, std::max(client.left, client.right),
                   std::max(client.top, client.bottom)};
}

bool Reposition(Window& window, WINDOWPOS request) {
  Hold hold(&window);
  const bool quiet = MovesQuietly(window);
  FillKept(window, request);
  if (!quiet) {
    Send(window, WM_WINDOWPOSCHANGING, 0, AsParam(&request));
    if (!hold.Alive()) return false;
    FillKept(window, request);
  }
  MarkUnchanged(window, request);
  if (ChangesNothing(request.flags)) return false;
  Apply(window, request);
  if (!hold.Alive()) return true;
  if (quiet && !(request.flags & kChanges)) {
    if (!(request.flags & kNoClientSize)) SendSize(window);
    return true;
  }
  Send(window, WM_WINDOWPOSCHANGED, 0, AsParam(&request));
  if (!hold.Alive() || !window.top) return true;
  if (request.flags & SWP_HIDEWINDOW) LeaveHidden(window);
  if (request.flags & SWP_SHOWWINDOW) EnterShown(window, !(request.flags & SWP_NOACTIVATE));
  return true;
}

void Raise(Window& window) {
  Reposition(window,
             {window.handle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE});
}

void SendSize(Window& window) {
  Send(window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(window.client.Width(), window.client.Height()));
}

void SendMove(Window& window) {
  const CRect client = window.client.Moved(window.rect.left, window.rect.top);
  Send(window, WM_MOVE, 0, MAKELPARAM(client.left, client.top));
}

}  // namespace core

BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
  core::Window* w = core::Find(window);
  if (!w) return FALSE;
  core::Reposition(*w, {window, after, x, y, width, height, flags});
  return TRUE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
  const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW);
  return SetWindowPos(window, nullptr, x, y, width, height, flags);
}

void CenterWindow(HWND window) {
  const core::Window* w = core::Find(window);
  if (!w) return;
  const core::Window* frame = w->parent ? w->parent : core::Find(w->owner);
  CRect area = display::Current().WorkArea();
  if (w->parent)
    area = {0, 0, frame->client.Width(), frame->client.Height()};
  else if (frame && frame->IsVisible())
    area = core::ScreenRect(*frame);
  const int x = area.left + (area.Width() - w->rect.Width()) / 2;
  const int y = area.top + (area.Height() - w->rect.Height()) / 2;
  SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
