#pragma once

// Windows: classes, creation, messages, geometry, focus, timers. Calls on a stale or null handle
// fail with the documented failure value. User-interface thread only, but for PostMessageW.

#include <functional>
#include <string>
#include <vector>

#include "Geometry.h"
#include "Region.h"
#include "Types.h"
#include "WindowMessages.h"
#include "WindowStyles.h"

#pragma GCC visibility push(default)  // hosts may use all of this

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using SUBCLASSPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR id, DWORD_PTR data);

// What a window's procedure hears of a move. The steps are WM_WINDOWPOSCHANGING, WM_NCCALCSIZE,
// WM_WINDOWPOSCHANGED and WM_MOVE. Most children of a dialog need none of them, and a dialog moves
// hundreds at once: a child none of whose procedures asks for the steps gets WM_SIZE alone, when
// its size changes. Showing and hiding is always told in full.
enum class MoveInterest { Steps, SizeOnly };

struct WNDCLASSW {
  const wchar_t* lpszClassName;
  WNDPROC lpfnWndProc;
  int cbWndExtra;         // bytes for GetWindowExtra
  const wchar_t* cursor;  // an IDC_ identifier, null for the arrow
  MoveInterest moves = MoveInterest::Steps;
  bool paintsFrame = false;  // the client area is all of the window, whatever its border
};

struct MSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;
  POINT pt;
};

struct CREATESTRUCTW {
  void* lpCreateParams;
  HMENU hMenu;
  HWND hwndParent;
  int cy;
  int cx;
  int y;
  int x;
  DWORD style;
  const wchar_t* lpszName;
  const wchar_t* lpszClass;
  DWORD dwExStyle;
};

struct WINDOWPOS {
  HWND hwnd;
  HWND hwndInsertAfter;
  int x;
  int y;
  int cx;
  int cy;
  UINT flags;
};

struct MINMAXINFO {
  POINT ptReserved;
  POINT ptMaxSize;
  POINT ptMaxPosition;
  POINT ptMinTrackSize;
  POINT ptMaxTrackSize;
};

struct NMHDR {
  HWND hwndFrom;
  UINT_PTR idFrom;
  UINT code;
};

struct TRACKMOUSEEVENT {
  DWORD cbSize;
  DWORD dwFlags;
  HWND hwndTrack;
  DWORD dwHoverTime;
};

struct PAINTSTRUCT {
  HDC hdc;
  RECT rcPaint;
};

struct HIGHCONTRAST {
  UINT cbSize;
  DWORD dwFlags;
};

// Place in the z-order for SetWindowPos.
inline const HWND HWND_TOP = nullptr;
inline const HWND HWND_BOTTOM = reinterpret_cast<HWND>(1);

// System cursors (null-terminated one-character identifiers).
inline constexpr wchar_t IDC_ARROW[] = {32512, 0};
inline constexpr wchar_t IDC_IBEAM[] = {32513, 0};
inline constexpr wchar_t IDC_WAIT[] = {32514, 0};
inline constexpr wchar_t IDC_CROSS[] = {32515, 0};
inline constexpr wchar_t IDC_UPARROW[] = {32516, 0};
inline constexpr wchar_t IDC_SIZE[] = {32640, 0};
inline constexpr wchar_t IDC_SIZENWSE[] = {32642, 0};
inline constexpr wchar_t IDC_SIZENESW[] = {32643, 0};
inline constexpr wchar_t IDC_SIZEWE[] = {32644, 0};
inline constexpr wchar_t IDC_SIZENS[] = {32645, 0};
inline constexpr wchar_t IDC_SIZEALL[] = {32646, 0};
inline constexpr wchar_t IDC_NO[] = {32648, 0};
inline constexpr wchar_t IDC_HAND[] = {32649, 0};

// -- Classes and creation ------------------------------------------------------------------------

ATOM RegisterClassW(const WNDCLASSW* description);
int GetClassNameW(HWND window, wchar_t* buffer, int count);
// Position and size include the frame; child positions are in the parent's client area. Sends
// WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, then WM_SIZE and WM_MOVE (children created visible are
// painted with the next pass). A WS_CHILD needs a parent; for others `parent` is the owner.
HWND CreateWindowExW(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU idOrMenu, void* param);
// WM_DESTROY travels parents first, WM_NCDESTROY children first; owned windows go with it.
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);
// Memory of cbWndExtra bytes, zeroed at creation; null for a stale handle.
void* GetWindowExtra(HWND window);
LONG_PTR GetWindowLongPtrW(HWND window, int index);
inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;
// How far the content is scrolled; 0 for a window that does not scroll. Nothing is moved by it.
int GetScrollPos(HWND window, int bar);
void SetScrollPos(HWND window, int bar, int position);
// Changing styles sends WM_STYLECHANGED; a changed frame needs SetWindowPos with SWP_FRAMECHANGED.
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);

// -- Messages ------------------------------------------------------------------------------------

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// From any thread; wakes the pump.
BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// A thread that will post says so before it starts, and that it is done: as often. From any thread.
void ExpectPosts();
void ExpectNoMorePosts();
void PostQuitMessage(int exitCode);
// Posted messages first, then input, then paint, then timers. GetMessageW returns FALSE for WM_QUIT
// and, with no timer running and no posts expected on a display where nothing can happen by itself,
// also then.
BOOL GetMessageW(MSG* message);
BOOL PeekMessageW(MSG* message, UINT flags);
// Makes WM_CHAR (or WM_SYSCHAR) messages of a key press that has text.
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageW(const MSG* message);
LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data,
                       MoveInterest moves = MoveInterest::Steps);
BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// -- Tree ----------------------------------------------------------------------------------------

HWND GetParent(HWND window);  // the parent of a child, the owner of a pop-up
HWND SetParent(HWND window, HWND parent);
HWND GetWindow(HWND window, UINT relation);
HWND GetAncestor(HWND window, UINT flags);  // GA_ROOT: the top-level window
BOOL IsChild(HWND parent, HWND window);
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND window);
HWND GetDesktopWindow();
// All top-level windows that exist, topmost first.
std::vector<HWND> GetTopLevelWindows();

// -- Geometry, visibility, text ------------------------------------------------------------------

BOOL GetWindowRect(HWND window, RECT* rect);
BOOL GetClientRect(HWND window, RECT* rect);
BOOL ScreenToClient(HWND window, POINT* point);
BOOL ClientToScreen(HWND window, POINT* point);
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
HWND WindowFromPoint(POINT screen);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL menu, DWORD exStyle);
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);  // itself and all its ancestors
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
BOOL SetWindowTextW(HWND window, const wchar_t* text);
std::wstring GetWindowTextString(HWND window);
int GetSystemMetrics(int index);
int GetDeviceCaps(HDC dc, int index);
BOOL SystemParametersInfoW(UINT action, UINT size, void* data, UINT flags);
void CenterWindow(HWND window);  // in its owner, else in the work area

// -- Painting ------------------------------------------------------------------------------------

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL InvalidateRgn(HWND window, HRGN region, BOOL erase);
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
BOOL GetUpdateRect(HWND window, RECT* rect);
BOOL UpdateWindow(HWND window);
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
// Everything that is due is painted and shown now. True when something was.
bool PaintNow();

// -- Input ---------------------------------------------------------------------------------------

HWND SetFocus(HWND window);
HWND GetFocus();
HWND GetActiveWindow();
HWND SetActiveWindow(HWND window);
BOOL SetForegroundWindow(HWND window);
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
std::int16_t GetKeyState(int virtualKey);  // negative: down; bit 0: toggled
UINT MapVirtualKeyW(
    UINT code,
    UINT mapType);  // 0: key to scan code, 1: scan code to key, 3: likewise with left and right
BOOL GetCursorPos(POINT* point);
// Shows a cursor made of a picture; FALSE for a stale or null handle, and where no window of this
// process is under the pointer.
BOOL SetCursorPicture(HCURSOR cursor);
const wchar_t* SetCursor(const wchar_t* cursor);
BOOL TrackMouseEvent(TRACKMOUSEEVENT* request);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds);
BOOL KillTimer(HWND window, UINT_PTR id);
DWORD GetTickCount();
UINT GetDoubleClickTime();
UINT GetCaretBlinkTime();
void SetClipboardText(const std::wstring& text);
std::wstring GetClipboardText();

BOOL DragAcceptFiles(HWND window, BOOL accept);
// Index 0xFFFFFFFF gives the count of files, else the length of that file's name.
UINT DragQueryFileW(HDROP drop, UINT index, wchar_t* buffer, UINT count);
BOOL DragQueryPoint(HDROP drop, POINT* point);
void DragFinish(HDROP drop);

#pragma GCC visibility pop
