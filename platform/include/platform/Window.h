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

// What answers a window's messages. WM_ numbers and their parameters: WindowMessages.h.
using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
// The same in front of it, with the id and the data that SetWindowSubclass was given.
using SUBCLASSPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR id, DWORD_PTR data);

// What a window's procedure hears of a move. The steps are WM_WINDOWPOSCHANGING, WM_NCCALCSIZE,
// WM_WINDOWPOSCHANGED and WM_MOVE. Most children of a dialog need none of them, and a dialog moves
// hundreds at once: a child none of whose procedures asks for the steps gets WM_SIZE alone, when
// its size changes. Showing and hiding is always told in full.
enum class MoveInterest { Steps, SizeOnly };

// A class of windows, for RegisterClassW.
struct WNDCLASSW {
  const wchar_t* lpszClassName;
  WNDPROC lpfnWndProc;
  int cbWndExtra;         // bytes for GetWindowExtra
  const wchar_t* cursor;  // an IDC_ identifier, null for the arrow
  MoveInterest moves = MoveInterest::Steps;
  bool paintsFrame = false;  // the client area is all of the window, whatever its border
};

// A message as the queue holds it, with the time (milliseconds of the display's clock) and the
// pointer's place on the screen when it was put there.
struct MSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;
  POINT pt;
};

// What CreateWindowExW was given; comes with WM_NCCREATE and WM_CREATE.
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

// What SetWindowPos was given; comes with WM_WINDOWPOSCHANGING, to be changed there, and with
// WM_WINDOWPOSCHANGED.
struct WINDOWPOS {
  HWND hwnd;
  HWND hwndInsertAfter;
  int x;
  int y;
  int cx;
  int cy;
  UINT flags;
};

// The limits of a top-level window's size, frame included; comes with WM_GETMINMAXINFO. Only the
// two track sizes count.
struct MINMAXINFO {
  POINT ptReserved;
  POINT ptMaxSize;
  POINT ptMaxPosition;
  POINT ptMinTrackSize;
  POINT ptMaxTrackSize;
};

// The head of every record that comes with WM_NOTIFY: the control, its id, and what it has to tell.
struct NMHDR {
  HWND hwndFrom;
  UINT_PTR idFrom;
  UINT code;
};

// What TrackMouseEvent is asked for: TME_LEAVE and TME_HOVER, for a window, after so many
// milliseconds.
struct TRACKMOUSEEVENT {
  DWORD cbSize;
  DWORD dwFlags;
  HWND hwndTrack;
  DWORD dwHoverTime;
};

// What BeginPaint found: the device context, clipped to what is due, and the box around that.
struct PAINTSTRUCT {
  HDC hdc;
  RECT rcPaint;
};

// The answer of SystemParametersInfoW to SPI_GETHIGHCONTRAST.
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

// Keeps the class for the life of the process. 0 for a null record or name, and for a name that is
// known already, in whatever case it is written.
ATOM RegisterClassW(const WNDCLASSW* description);
// Writes the name, cut to `count` with its final zero; returns its length, 0 for a stale handle.
int GetClassNameW(HWND window, wchar_t* buffer, int count);
// Position and size include the frame; child positions are in the parent's client area. Sends
// WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, then WM_SIZE and WM_MOVE (children created visible are
// painted with the next pass). A WS_CHILD needs a parent; for others `parent` is the owner.
HWND CreateWindowExW(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU idOrMenu, void* param);
// WM_DESTROY travels parents first, WM_NCDESTROY children first; owned windows go with it.
// FALSE for a stale handle.
BOOL DestroyWindow(HWND window);
// FALSE for a null or stale handle.
BOOL IsWindow(HWND window);
// Memory of cbWndExtra bytes, zeroed at creation; null for a stale handle.
void* GetWindowExtra(HWND window);
// A word of the window: GWL_STYLE, GWL_EXSTYLE, GWLP_ID or GWLP_USERDATA; 0 for any other, and for
// a stale handle.
LONG_PTR GetWindowLongPtrW(HWND window, int index);
inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;
// How far the content is scrolled; 0 for a window that does not scroll. Nothing is moved by it.
int GetScrollPos(HWND window, int bar);
void SetScrollPos(HWND window, int bar, int position);
// Changing styles sends WM_STYLECHANGED; a changed frame needs SetWindowPos with SWP_FRAMECHANGED.
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);

// -- Messages ------------------------------------------------------------------------------------

// Calls the window's procedure, subclasses first, and returns its answer; 0 for a stale handle.
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// From any thread; wakes the pump.
// FALSE for a stale handle.
BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// A thread that will post says so before it starts, and that it is done: as often. From any thread.
void ExpectPosts();
void ExpectNoMorePosts();
// Ends the pump: GetMessageW returns FALSE when everything posted before has been taken.
void PostQuitMessage(int exitCode);
// Posted messages first, then input, then paint, then timers. GetMessageW returns FALSE for WM_QUIT
// and, with no timer running and no posts expected on a display where nothing can happen by itself,
// also then.
BOOL GetMessageW(MSG* message);
// Takes the next message if there is one, without waiting. PM_NOREMOVE leaves it in the queue.
BOOL PeekMessageW(MSG* message, UINT flags);
// Makes WM_CHAR (or WM_SYSCHAR) messages of a key press that has text.
BOOL TranslateMessage(const MSG* message);
// Sends the message to its window; a timer's or a paint message is on its way then. Returns the
// answer.
LRESULT DispatchMessageW(const MSG* message);
// What windows do by themselves: frame, caption, sizing, closing, erasing, cursors, text and font.
LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Puts a procedure before the window's own, the last one first. The same procedure and id again
// changes the data. FALSE for a stale handle or a null procedure.
BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data,
                       MoveInterest moves = MoveInterest::Steps);
// FALSE when the window has no such procedure. May be called from within it.
BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
// To be called from a subclass procedure: the next procedure, at last the window's own.
LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// -- Tree ----------------------------------------------------------------------------------------

HWND GetParent(HWND window);  // the parent of a child, the owner of a pop-up
// Moves a child to another parent, or out to the desktop (null). Returns the parent before; null
// when either is stale, or the new parent stands inside the window.
HWND SetParent(HWND window, HWND parent);
// A neighbour in the z-order, the owner or the first child (GW_ words); null where there is none.
HWND GetWindow(HWND window, UINT relation);
// Null for a stale handle, and for any other flag.
HWND GetAncestor(HWND window, UINT flags);  // GA_ROOT: the top-level window
// Whether the window stands inside `parent`, at any depth.
BOOL IsChild(HWND parent, HWND window);
// The direct child with this id; null where there is none.
HWND GetDlgItem(HWND dialog, int id);
// 0 for a stale handle.
int GetDlgCtrlID(HWND window);
// Stands for the screen as a parent. It is no window: no message reaches it.
HWND GetDesktopWindow();
// All top-level windows that exist, topmost first.
std::vector<HWND> GetTopLevelWindows();

// -- Geometry, visibility, text ------------------------------------------------------------------

// The window with its frame, in pixels of the screen. FALSE and untouched for a stale handle.
BOOL GetWindowRect(HWND window, RECT* rect);
// The client area with its top-left corner at 0, 0. FALSE and untouched for a stale handle.
BOOL GetClientRect(HWND window, RECT* rect);
// Between pixels of the screen and those of the window's client area. FALSE for a stale handle.
BOOL ScreenToClient(HWND window, POINT* point);
BOOL ClientToScreen(HWND window, POINT* point);
// From one client area to another; null stands for the screen. Two points are taken as a
// rectangle, which mirrored windows turn over. Returns how far points were moved: x in the low
// word, y in the high one.
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
// The innermost visible and enabled window at a point of the screen; null where there is none.
HWND WindowFromPoint(POINT screen);
// Place and size with the frame, for a child in its parent's client area. FALSE for a stale handle.
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
// Moves, sizes, stacks, shows or hides, as the SWP_ flags leave it open, in one step. `after` is a
// sibling, HWND_TOP or HWND_BOTTOM. FALSE for a stale handle.
BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
// Grows a client area to the window that has it. `menu` has no meaning yet.
BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL menu, DWORD exStyle);
// SW_SHOW, SW_SHOWNA (without activating) or SW_HIDE. Returns whether the window was visible
// before.
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);  // itself and all its ancestors
// A disabled window gets no input. Returns whether it was disabled before; FALSE for a stale
// handle.
BOOL EnableWindow(HWND window, BOOL enable);
// The window's own state: its parent may be disabled. FALSE for a stale handle.
BOOL IsWindowEnabled(HWND window);
// Sends WM_SETTEXT: a caption, a label, or the content of a control. FALSE for a stale handle.
BOOL SetWindowTextW(HWND window, const wchar_t* text);
// Sends WM_GETTEXT; empty for a stale handle.
std::wstring GetWindowTextString(HWND window);
// An SM_ length of the desktop, in pixels of its resolution; 0 for one that is not known.
int GetSystemMetrics(int index);
// LOGPIXELSX or LOGPIXELSY: dots per inch. 0 for anything else.
int GetDeviceCaps(HDC dc, int index);
// SPI_GETHIGHCONTRAST fills a HIGHCONTRAST record; FALSE for any other action.
BOOL SystemParametersInfoW(UINT action, UINT size, void* data, UINT flags);
void CenterWindow(HWND window);  // in its owner, else in the work area

// -- Painting ------------------------------------------------------------------------------------

// An area of the client area, null for all of it, is due to be painted; nothing is painted now.
// FALSE for a stale handle.
BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
// The same for a region.
BOOL InvalidateRgn(HWND window, HRGN region, BOOL erase);
// The same with the frame, with all children, or at once, as the RDW_ flags say.
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
// The box around what is due; FALSE and empty when nothing is.
BOOL GetUpdateRect(HWND window, RECT* rect);
// Paints what is due of this window now. FALSE for a stale handle.
BOOL UpdateWindow(HWND window);
// For handlers of WM_PAINT: a device context clipped to what is due, which counts as painted from
// now on. Null for a stale handle. EndPaint belongs to it.
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
// A device context to paint with outside WM_PAINT; for a null or hidden window one that can only
// measure. Null for a stale handle. ReleaseDC belongs to it.
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
// Everything that is due is painted and shown now. True when something was.
bool PaintNow();

// -- Input ---------------------------------------------------------------------------------------

// Gives the keyboard to the window, or to none; its top-level window is activated. Returns the
// window that had it; null when that was none, or when the window is stale, hidden or disabled.
HWND SetFocus(HWND window);
HWND GetFocus();
// The top-level window that is active; null while another program's is.
HWND GetActiveWindow();
// Returns the one that was; null when the window cannot be activated.
HWND SetActiveWindow(HWND window);
BOOL SetForegroundWindow(HWND window);
// All input of the pointer comes to this window until ReleaseCapture, or until another takes it
// (WM_CAPTURECHANGED). Returns the window that had it.
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
std::int16_t GetKeyState(int virtualKey);  // negative: down; bit 0: toggled
UINT MapVirtualKeyW(
    UINT code,
    UINT mapType);  // 0: key to scan code, 1: scan code to key, 3: likewise with left and right
// In pixels of the screen.
BOOL GetCursorPos(POINT* point);
// Shows a cursor made of a picture; FALSE for a stale or null handle, and where no window of this
// process is under the pointer.
BOOL SetCursorPicture(HCURSOR cursor);
// Shows a system cursor, null for the arrow, until the pointer moves. Returns the one before.
const wchar_t* SetCursor(const wchar_t* cursor);
// WM_MOUSELEAVE when the pointer goes, WM_MOUSEHOVER when it rests: once each for a request. FALSE
// for a null record or a stale handle.
BOOL TrackMouseEvent(TRACKMOUSEEVENT* request);
// WM_TIMER with this id every so many milliseconds, at least 1; the same id again begins anew.
// Timers end with their window. Returns the id, 0 for a stale handle.
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds);
// FALSE when there is no such timer. A message of it that is under way may still come.
BOOL KillTimer(HWND window, UINT_PTR id);
// Milliseconds of the display's clock.
DWORD GetTickCount();
// In milliseconds; from the desktop's settings where there are some.
UINT GetDoubleClickTime();
// Half a period, in milliseconds.
UINT GetCaretBlinkTime();
// The clipboard is served for as long as the process lives.
void SetClipboardText(const std::wstring& text);
// Empty when there is no text, or its owner does not answer.
std::wstring GetClipboardText();

// Whether files may be dropped on the window: they come with WM_DROPFILES. FALSE for a stale
// handle.
BOOL DragAcceptFiles(HWND window, BOOL accept);
// Index 0xFFFFFFFF gives the count of files, else the length of that file's name.
UINT DragQueryFileW(HDROP drop, UINT index, wchar_t* buffer, UINT count);
// Where they were dropped, in the client area.
BOOL DragQueryPoint(HDROP drop, POINT* point);
// Ends the handle.
void DragFinish(HDROP drop);

#pragma GCC visibility pop
