#include "window/Cursor.h"

#include "window/CursorPicture.h"
#include "window/Dispatch.h"
#include "window/Session.h"
#include "window/WindowClass.h"

namespace core {
namespace {

using display::CursorShape;

CursorState& State() {
  return CurrentSession().cursor;
}

CursorShape ShapeOf(const wchar_t* cursor) {
  struct Shape {
    const wchar_t* name;
    CursorShape shape;
  };
  constexpr Shape kShapes[] = {
      {IDC_ARROW, CursorShape::Arrow},       {IDC_IBEAM, CursorShape::IBeam},
      {IDC_WAIT, CursorShape::Wait},         {IDC_CROSS, CursorShape::Cross},
      {IDC_UPARROW, CursorShape::UpArrow},   {IDC_SIZE, CursorShape::SizeAll},
      {IDC_SIZENWSE, CursorShape::SizeNwse}, {IDC_SIZENESW, CursorShape::SizeNesw},
      {IDC_SIZEWE, CursorShape::SizeWe},     {IDC_SIZENS, CursorShape::SizeNs},
      {IDC_SIZEALL, CursorShape::SizeAll},   {IDC_NO, CursorShape::No},
      {IDC_HAND, CursorShape::Hand}};
  for (const Shape& s : kShapes)
    if (s.name[0] == cursor[0]) return s.shape;
  return CursorShape::Arrow;
}

// 0 without a window under the pointer that is on the screen.
display::SurfaceId SurfaceUnderPointer() {
  const Window* root = Find(State().root);
  return root ? root->top->surfaceId : 0;
}

const wchar_t* FrameCursor(int part) {
  switch (part) {
    case HTLEFT:
    case HTRIGHT: return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM: return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT: return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT: return IDC_SIZENESW;
    default: return IDC_ARROW;
  }
}

}  // namespace

void AskForCursor(const Hit& hit, UINT mouseMessage) {
  const HWND root = Root(*hit.window).handle;
  if (State().root != root) State() = {nullptr, nullptr, root};
  Send(*hit.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.window->handle),
       MAKELPARAM(hit.part, static_cast<int>(mouseMessage)));
}

LRESULT ChooseCursor(Window& window, WPARAM under, LPARAM hitAndMessage) {
  Hold hold(&window);
  if (window.parent && Send(*window.parent, WM_SETCURSOR, under, hitAndMessage)) return TRUE;
  if (!hold.Alive() || reinterpret_cast<HWND>(under) != window.handle) return FALSE;
  const int part = GET_X_LPARAM(hitAndMessage);
  SetCursor(part == HTCLIENT ? window.windowClass->cursor : FrameCursor(part));
  return TRUE;
}

}  // namespace core

const wchar_t* SetCursor(const wchar_t* cursor) {
  core::CursorState& state = core::State();
  const wchar_t* before = state.shown;
  const wchar_t* wanted = cursor ? cursor : IDC_ARROW;
  const display::SurfaceId surface = core::SurfaceUnderPointer();
  const bool isShown = wanted == before && !state.picture;
  if (isShown || surface == 0) return before ? before : IDC_ARROW;
  display::Current().SetCursor(surface, core::ShapeOf(wanted));
  state.shown = wanted;
  state.picture = nullptr;
  return before ? before : IDC_ARROW;
}

BOOL SetCursorPicture(HCURSOR cursor) {
  core::CursorState& state = core::State();
  const display::SurfaceId surface = core::SurfaceUnderPointer();
  if (GetIconSize(cursor).cx == 0 || surface == 0) return FALSE;
  if (state.picture == cursor) return TRUE;
  display::Current().SetCursorPicture(surface, core::PictureOf(cursor));
  state.picture = cursor;
  return TRUE;
}
