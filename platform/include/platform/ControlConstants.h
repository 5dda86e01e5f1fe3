#pragma once

// Styles, messages and notifications of the standard controls, with their documented values.

#include "Types.h"

inline constexpr wchar_t WC_BUTTON[] = L"BUTTON";
inline constexpr wchar_t WC_STATIC[] = L"STATIC";
inline constexpr wchar_t WC_EDIT[] = L"EDIT";
inline constexpr wchar_t WC_DIALOG[] = L"#32770";

inline constexpr DWORD BS_PUSHBUTTON = 0x0;
inline constexpr DWORD BS_DEFPUSHBUTTON = 0x1;
inline constexpr DWORD BS_CHECKBOX = 0x2;
inline constexpr DWORD BS_AUTOCHECKBOX = 0x3;
inline constexpr DWORD BS_RADIOBUTTON = 0x4;
inline constexpr DWORD BS_3STATE = 0x5;
inline constexpr DWORD BS_AUTO3STATE = 0x6;
inline constexpr DWORD BS_GROUPBOX = 0x7;
inline constexpr DWORD BS_AUTORADIOBUTTON = 0x9;
inline constexpr DWORD BS_OWNERDRAW = 0xB;
inline constexpr DWORD BS_TYPEMASK = 0xF;
inline constexpr DWORD BS_PUSHLIKE = 0x1000;
inline constexpr UINT BM_GETCHECK = 0x00F0;
inline constexpr UINT BM_SETCHECK = 0x00F1;
inline constexpr UINT BM_GETSTATE = 0x00F2;
inline constexpr UINT BM_SETSTATE = 0x00F3;
inline constexpr UINT BM_SETSTYLE = 0x00F4;
inline constexpr UINT BM_CLICK = 0x00F5;
inline constexpr int BST_UNCHECKED = 0;
inline constexpr int BST_CHECKED = 1;
inline constexpr int BST_INDETERMINATE = 2;
inline constexpr int BST_PUSHED = 4;
inline constexpr int BST_FOCUS = 8;
inline constexpr int BN_CLICKED = 0;
inline constexpr int BN_DOUBLECLICKED = 5;
inline constexpr int BN_SETFOCUS = 6;
inline constexpr int BN_KILLFOCUS = 7;

inline constexpr DWORD SS_LEFT = 0x0;
inline constexpr DWORD SS_CENTER = 0x1;
inline constexpr DWORD SS_RIGHT = 0x2;
inline constexpr DWORD SS_ETCHEDHORZ = 0x10;
inline constexpr DWORD SS_ETCHEDVERT = 0x11;
inline constexpr DWORD SS_TYPEMASK = 0x1F;
inline constexpr DWORD SS_LEFTNOWORDWRAP = 0xC;
inline constexpr DWORD SS_NOPREFIX = 0x80;
inline constexpr DWORD SS_NOTIFY = 0x100;
inline constexpr DWORD SS_CENTERIMAGE = 0x200;  // text centred vertically
inline constexpr DWORD SS_ENDELLIPSIS = 0x4000;  // lines are not wrapped, one too long is cut so
inline constexpr int STN_CLICKED = 0;
inline constexpr int STN_DBLCLK = 1;

inline constexpr DWORD ES_LEFT = 0x0;
inline constexpr DWORD ES_CENTER = 0x1;
inline constexpr DWORD ES_RIGHT = 0x2;
inline constexpr DWORD ES_PASSWORD = 0x20;
inline constexpr DWORD ES_AUTOHSCROLL = 0x80;
inline constexpr DWORD ES_READONLY = 0x800;
inline constexpr UINT EM_GETSEL = 0x00B0;
inline constexpr UINT EM_SETSEL = 0x00B1;
inline constexpr UINT EM_REPLACESEL = 0x00C2;
inline constexpr UINT EM_LIMITTEXT = 0x00C5;
inline constexpr UINT EM_GETLIMITTEXT = 0x00D5;
inline constexpr UINT EM_CANUNDO = 0x00C6;
inline constexpr UINT EM_UNDO = 0x00C7;
inline constexpr UINT EM_SETPASSWORDCHAR = 0x00CC;
inline constexpr UINT EM_GETPASSWORDCHAR = 0x00D2;
inline constexpr UINT EM_SETREADONLY = 0x00CF;
inline constexpr UINT EM_CHARFROMPOS = 0x00D7;
inline constexpr UINT EM_POSFROMCHAR = 0x00D6;
inline constexpr UINT EM_SCROLLCARET = 0x00B7;
inline constexpr UINT EM_SETMARGINS = 0x00D3;
inline constexpr UINT EM_GETMARGINS = 0x00D4;
inline constexpr WPARAM EC_LEFTMARGIN = 0x1;
inline constexpr WPARAM EC_RIGHTMARGIN = 0x2;
inline constexpr UINT EM_SETCUEBANNER = 0x1501;
inline constexpr UINT EM_GETCUEBANNER = 0x1502;
inline constexpr int EN_SETFOCUS = 0x0100;
inline constexpr int EN_KILLFOCUS = 0x0200;
inline constexpr int EN_CHANGE = 0x0300;
inline constexpr int EN_UPDATE = 0x0400;
inline constexpr int EN_MAXTEXT = 0x0501;

inline constexpr DWORD PBS_VERTICAL = 0x04;
inline constexpr DWORD TBS_VERT = 0x2;
inline constexpr DWORD SBS_VERT = 0x1;
inline constexpr DWORD LVS_SORTASCENDING = 0x10;
