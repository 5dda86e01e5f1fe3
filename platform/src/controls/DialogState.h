#pragma once

// What a window of the dialog class remembers, in its extra bytes.

#include "platform/Window.h"

struct DialogState {
  WNDPROC procedure = nullptr;
  int defaultId = -1;          // -1: none was set or found
  HWND defaultLook = nullptr;  // the button that looks like the default one
  HWND savedFocus = nullptr;   // the control that gets the focus back on activation
  bool ended = false;          // it is not to be shown any more
  HFONT font = nullptr;
  HFONT ownFont = nullptr;  // made for the template, deleted with the dialog
};

// Null for a stale handle and before WM_NCCREATE. The window must be of the dialog class.
DialogState* StateOfDialog(HWND dialog);

// Lets this button alone look like the default one; null: none does.
void ShowDefaultLook(HWND dialog, HWND button);
