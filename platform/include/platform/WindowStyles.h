#pragma once

// Styles and other flag words of windows, with their documented values.

#include "Types.h"

inline constexpr DWORD WS_OVERLAPPED = 0x00000000;
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_CAPTION = 0x00C00000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_DLGFRAME = 0x00400000;
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_HSCROLL = 0x00100000;
inline constexpr DWORD WS_SYSMENU = 0x00080000;
inline constexpr DWORD WS_THICKFRAME = 0x00040000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;

inline constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
inline constexpr DWORD WS_EX_TOPMOST = 0x00000008;
inline constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;
inline constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
inline constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
inline constexpr DWORD WS_EX_CONTEXTHELP = 0x00000400;
inline constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
inline constexpr DWORD WS_EX_LAYOUTRTL = 0x00400000;
inline constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;

inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWLP_ID = -12;
inline constexpr int GWLP_USERDATA = -21;

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNA = 8;
inline constexpr int SW_SHOW = 5;

inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_NOREDRAW = 0x0008;
inline constexpr UINT SWP_NOACTIVATE = 0x0010;
inline constexpr UINT SWP_FRAMECHANGED = 0x0020;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;

inline constexpr UINT RDW_INVALIDATE = 0x0001;
inline constexpr UINT RDW_ERASE = 0x0004;
inline constexpr UINT RDW_ALLCHILDREN = 0x0080;
inline constexpr UINT RDW_UPDATENOW = 0x0100;
inline constexpr UINT RDW_FRAME = 0x0400;

inline constexpr UINT GW_HWNDFIRST = 0;
inline constexpr UINT GW_HWNDNEXT = 2;
inline constexpr UINT GW_HWNDPREV = 3;
inline constexpr UINT GW_OWNER = 4;
inline constexpr UINT GW_CHILD = 5;
inline constexpr UINT GA_ROOT = 2;

inline constexpr UINT PM_NOREMOVE = 0;
inline constexpr UINT PM_REMOVE = 1;

inline constexpr UINT SIZE_RESTORED = 0;
inline constexpr UINT WA_INACTIVE = 0;
inline constexpr UINT WA_ACTIVE = 1;
inline constexpr UINT WA_CLICKACTIVE = 2;
inline constexpr int MA_ACTIVATE = 1;
inline constexpr int MA_ACTIVATEANDEAT = 2;
inline constexpr int MA_NOACTIVATE = 3;
inline constexpr int MA_NOACTIVATEANDEAT = 4;
inline constexpr UINT SC_CLOSE = 0xF060;

inline constexpr int HTNOWHERE = 0;
inline constexpr int HTTRANSPARENT = -1;
inline constexpr int HTCLIENT = 1;
inline constexpr int HTCAPTION = 2;
inline constexpr int HTLEFT = 10;
inline constexpr int HTRIGHT = 11;
inline constexpr int HTTOP = 12;
inline constexpr int HTTOPLEFT = 13;
inline constexpr int HTTOPRIGHT = 14;
inline constexpr int HTBOTTOM = 15;
inline constexpr int HTBOTTOMLEFT = 16;
inline constexpr int HTBOTTOMRIGHT = 17;
inline constexpr int HTBORDER = 18;
inline constexpr int HTCLOSE = 20;

inline constexpr WPARAM MK_LBUTTON = 0x0001;
inline constexpr WPARAM MK_RBUTTON = 0x0002;
inline constexpr WPARAM MK_SHIFT = 0x0004;
inline constexpr WPARAM MK_CONTROL = 0x0008;
inline constexpr WPARAM MK_MBUTTON = 0x0010;
inline constexpr WPARAM MK_XBUTTON1 = 0x0020;
inline constexpr WPARAM MK_XBUTTON2 = 0x0040;

inline constexpr DWORD TME_HOVER = 0x1;
inline constexpr DWORD TME_LEAVE = 0x2;

// Keyboard cues: what WM_CHANGEUISTATE and WM_UPDATEUISTATE carry (low word action, high word flags).
inline constexpr int UIS_SET = 1;
inline constexpr int UIS_CLEAR = 2;
inline constexpr int UIS_INITIALIZE = 3;
inline constexpr int UISF_HIDEFOCUS = 0x1;
inline constexpr int UISF_HIDEACCEL = 0x2;

inline constexpr LRESULT DLGC_WANTARROWS = 0x0001;
inline constexpr LRESULT DLGC_WANTTAB = 0x0002;
inline constexpr LRESULT DLGC_WANTALLKEYS = 0x0004;
inline constexpr LRESULT DLGC_HASSETSEL = 0x0008;
inline constexpr LRESULT DLGC_DEFPUSHBUTTON = 0x0010;
inline constexpr LRESULT DLGC_UNDEFPUSHBUTTON = 0x0020;
inline constexpr LRESULT DLGC_RADIOBUTTON = 0x0040;
inline constexpr LRESULT DLGC_WANTCHARS = 0x0080;
inline constexpr LRESULT DLGC_STATIC = 0x0100;
inline constexpr LRESULT DLGC_BUTTON = 0x2000;
inline constexpr int DC_HASDEFID = 0x534B;

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr DWORD DS_MODALFRAME = 0x80;
inline constexpr DWORD DS_SETFONT = 0x40;

inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;
inline constexpr int SM_CYCAPTION = 4;
inline constexpr int SM_CXSIZEFRAME = 32;
inline constexpr int SM_CYSIZEFRAME = 33;
inline constexpr int SM_CXFIXEDFRAME = 7;
inline constexpr int SM_CYFIXEDFRAME = 8;
inline constexpr int SM_CXVSCROLL = 2;
inline constexpr int SM_CXDOUBLECLK = 36;

inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;

inline constexpr UINT SPI_GETHIGHCONTRAST = 0x0042;
inline constexpr DWORD HCF_HIGHCONTRASTON = 0x1;
