#pragma once

// The controls of a dialog in tab order, and what follows the focus among them.

#include <vector>

#include "platform/Types.h"

// The style bits (WS_..., BS_... and their like).
DWORD StyleOf(HWND window);
// Every control that the keyboard could reach by place: in child order, those of visible, enabled
// WS_EX_CONTROLPARENT windows in place of the window itself.
std::vector<HWND> ControlsOf(HWND dialog);
// The siblings from the last WS_GROUP control up to the next one.
std::vector<HWND> GroupOf(HWND control);
// The control with this id, also inside WS_EX_CONTROLPARENT windows; null when there is none.
HWND FindControl(HWND dialog, int id);
bool CanTakeFocus(HWND control);
// Whether Return on this control clicks it.
bool IsPushButton(HWND control);

// Gives the focus as the keyboard does: an edit's text is selected.
void FocusControl(HWND control);
// Makes focus and mnemonics visible.
void ShowKeyboardCues(HWND dialog);

// The dialog whose default button a control competes with; null when there is none.
HWND DialogOf(HWND control);
// The button that Return clicks when no other push button has the focus; null when unknown.
HWND DefaultButtonOf(HWND dialog);
// A push button gained or lost the focus; `other` lost or gained it.
void MoveDefaultLook(HWND button, bool gained, HWND other);
