#pragma once

// Dialog windows: templates, keys, modal loops.

#include <string_view>

#include "Window.h"

#pragma GCC visibility push(default)  // hosts may use all of this

#pragma pack(push, 2)
struct DLGTEMPLATE {  // 18 bytes
  DWORD style;
  DWORD dwExtendedStyle;
  WORD cdit;
  std::int16_t x;
  std::int16_t y;
  std::int16_t cx;
  std::int16_t cy;
};
#pragma pack(pop)
static_assert(sizeof(DLGTEMPLATE) == 18);

// Makes a window of the dialog class from a template without controls: header, menu, class, title
// as UTF-16. `param` reaches WM_INITDIALOG as lParam; sent after creation. Null when it cannot be
// made.
HWND CreateDialogIndirectParamW(const DLGTEMPLATE* dialogTemplate, HWND owner, WNDPROC procedure,
                                LPARAM param);
// Default processing of dialog windows: default button ids, focus restoring, closing.
LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
// Handles Tab, arrows, Return, Escape and mnemonics for the dialog; TRUE when the message was used.
BOOL IsDialogMessageW(HWND dialog, MSG* message);
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
BOOL CheckRadioButton(HWND dialog, int first, int last, int check);
// The character after the text's mnemonic mark, upper-cased; 0 without one.
wchar_t GetMnemonic(std::wstring_view text);
// Whether the character, in either case, is the text's mnemonic.
bool IsMnemonic(std::wstring_view text, wchar_t character);

#pragma GCC visibility pop
