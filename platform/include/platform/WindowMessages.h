#pragma once

// Window messages, with their documented numbers, parameters and answers. "a, b" are the low and
// the high word of a parameter; an answer that is not mentioned is 0.

#include "Types.h"

inline constexpr UINT WM_NULL = 0x0000;
inline constexpr UINT WM_CREATE = 0x0001;   // lParam: CREATESTRUCTW*; -1 gives the window up
inline constexpr UINT WM_DESTROY = 0x0002;  // children still exist
inline constexpr UINT WM_MOVE = 0x0003;     // lParam: x, y of the client area
// WParam: SIZE_RESTORED; lParam: width, height of the client area.
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006;   // wParam: WA_ word; lParam: the other window
inline constexpr UINT WM_SETFOCUS = 0x0007;   // wParam: the window that had it
inline constexpr UINT WM_KILLFOCUS = 0x0008;  // wParam: the window that gets it
inline constexpr UINT WM_ENABLE = 0x000A;     // wParam: whether it is enabled now
inline constexpr UINT WM_SETREDRAW = 0x000B;  // wParam: 0 stops painting, 1 begins again
inline constexpr UINT WM_SETTEXT = 0x000C;    // lParam: the text
// WParam: room in characters; lParam: the buffer; answers the length.
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;   // answers the length in characters
inline constexpr UINT WM_PAINT = 0x000F;           // BeginPaint gives what is due
inline constexpr UINT WM_CLOSE = 0x0010;           // the close button, or SC_CLOSE
inline constexpr UINT WM_QUIT = 0x0012;            // wParam: the exit code; never dispatched
inline constexpr UINT WM_ERASEBKGND = 0x0014;      // wParam: the device context; non-zero: done
inline constexpr UINT WM_SYSCOLORCHANGE = 0x0015;  // to all windows
inline constexpr UINT WM_SHOWWINDOW = 0x0018;      // wParam: whether it is shown now
inline constexpr UINT WM_CANCELMODE = 0x001F;      // what the pointer has begun ends without effect
// WParam: the window; lParam: hit test, mouse message; TRUE: set.
inline constexpr UINT WM_SETCURSOR = 0x0020;
inline constexpr UINT WM_MOUSEACTIVATE = 0x0021;  // answers a MA_ word
inline constexpr UINT WM_GETMINMAXINFO = 0x0024;  // lParam: MINMAXINFO*, to be changed
// WParam: a control, or whether backwards; lParam: whether a control.
inline constexpr UINT WM_NEXTDLGCTL = 0x0028;
inline constexpr UINT WM_SETFONT = 0x0030;  // wParam: the font; lParam: whether to repaint
inline constexpr UINT WM_GETFONT = 0x0031;  // answers the font, null for the system's
inline constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;  // lParam: WINDOWPOS*, to be changed
inline constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;   // lParam: const WINDOWPOS*
inline constexpr UINT WM_NOTIFY = 0x004E;             // wParam: the control's id; lParam: NMHDR*
// WParam: the window; lParam: x, y on the screen, -1 from the keyboard.
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
inline constexpr UINT WM_STYLECHANGED = 0x007D;  // wParam: GWL_STYLE or GWL_EXSTYLE
inline constexpr UINT WM_NCCREATE = 0x0081;   // lParam: CREATESTRUCTW*; FALSE gives the window up
inline constexpr UINT WM_NCDESTROY = 0x0082;  // the last message; children are gone
// LParam: RECT*, the window's on the way in, the client's on the way out.
inline constexpr UINT WM_NCCALCSIZE = 0x0083;
inline constexpr UINT WM_NCHITTEST = 0x0084;   // lParam: x, y on the screen; answers an HT word
inline constexpr UINT WM_NCPAINT = 0x0085;     // the frame is due
inline constexpr UINT WM_NCACTIVATE = 0x0086;  // wParam: whether the caption is to look active
inline constexpr UINT WM_GETDLGCODE = 0x0087;  // lParam: the MSG*, or null; answers DLGC_ words
inline constexpr UINT WM_NCMOUSEMOVE = 0x00A0;
inline constexpr UINT WM_NCLBUTTONDOWN = 0x00A1;
inline constexpr UINT WM_NCLBUTTONUP = 0x00A2;
inline constexpr UINT WM_NCLBUTTONDBLCLK = 0x00A3;
// WParam: VK_ key; lParam: repeats, scan code << 16, 1 << 30: was down.
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;        // wParam: the character; lParam: as of its key
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;  // with Alt held
inline constexpr UINT WM_SYSKEYUP = 0x0105;
inline constexpr UINT WM_SYSCHAR = 0x0106;
// WParam: the control to get the focus; FALSE: it is set already.
inline constexpr UINT WM_INITDIALOG = 0x0110;
inline constexpr UINT WM_COMMAND = 0x0111;  // wParam: id, notification << 16; lParam: the control
inline constexpr UINT WM_SYSCOMMAND = 0x0112;  // wParam: SC_ word
inline constexpr UINT WM_TIMER = 0x0113;       // wParam: the id
inline constexpr UINT WM_HSCROLL = 0x0114;     // wParam: what the bar tells; lParam: the bar
inline constexpr UINT WM_VSCROLL = 0x0115;
// WParam: UIS_ action, UISF_ cues << 16; up to the top-level window.
inline constexpr UINT WM_CHANGEUISTATE = 0x0127;
inline constexpr UINT WM_UPDATEUISTATE = 0x0128;  // the same, down to all windows
inline constexpr UINT WM_QUERYUISTATE = 0x0129;   // answers the hidden cues
// WParam: MK_ words; lParam: x, y in the client area; so all WM_MOUSE below.
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
inline constexpr UINT WM_MBUTTONDOWN = 0x0207;
inline constexpr UINT WM_MBUTTONUP = 0x0208;
inline constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
// WParam: MK_ words, turn << 16 (120 a notch); lParam: x, y on the screen.
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;
inline constexpr UINT WM_XBUTTONDOWN = 0x020B;  // wParam: MK_ words, button << 16
inline constexpr UINT WM_XBUTTONUP = 0x020C;
inline constexpr UINT WM_MOUSEHWHEEL = 0x020E;     // the same, to the right
inline constexpr UINT WM_CAPTURECHANGED = 0x0215;  // lParam: the window that has the pointer now
inline constexpr UINT WM_MOVING = 0x0216;  // lParam: RECT*, where the window will be on the screen
inline constexpr UINT WM_ENTERSIZEMOVE = 0x0231;  // the user takes the window by its frame
inline constexpr UINT WM_EXITSIZEMOVE = 0x0232;
inline constexpr UINT WM_DROPFILES = 0x0233;   // wParam: HDROP
inline constexpr UINT WM_MOUSEHOVER = 0x02A1;  // asked for by TrackMouseEvent
inline constexpr UINT WM_MOUSELEAVE = 0x02A3;  // likewise
inline constexpr UINT WM_DPICHANGED = 0x02E0;  // wParam: the resolution in both words
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;
inline constexpr UINT WM_CLEAR = 0x0303;  // removes what is selected
inline constexpr UINT WM_UNDO = 0x0304;
inline constexpr UINT WM_USER = 0x0400;      // from here up: of a window's class
inline constexpr UINT WM_APP = 0x8000;       // from here up: of the program
inline constexpr UINT DM_GETDEFID = 0x0400;  // answers id, DC_HASDEFID << 16; 0: none
inline constexpr UINT DM_SETDEFID = 0x0401;  // wParam: the id

// Of this layer: asks a control for its colours (lParam = ControlPalette* filled with the
// system's, to be changed in place); the answer is not used.
inline constexpr UINT WM_GETCONTROLPALETTE = 0x03F0;
// Of this layer: asks a control for its state (lParam = ControlState* to be filled); TRUE when it
// draws itself. What stands before the control may change the answer.
inline constexpr UINT WM_GETCONTROLSTATE = 0x03F1;
