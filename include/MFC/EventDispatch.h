#pragma once

#include "platform/Window.h"

namespace Wexa {

class BaseGUIObject;

inline constexpr UINT_PTR kWindowProcedureId = 1;
// Asks a top-level widget to lay out again.
inline constexpr UINT kUpdateLayoutsMessage = WM_APP + 2;
// Second parameter of the paint message that follows every painting, up the parents.
inline constexpr LPARAM kPostPaint = 1;

// The subclass procedure of every widget's native window; data = the widget. It turns native
// messages into event records, offers them to the widget's event procedure, and lets the default
// processing run when that did not handle them.
LRESULT WexaWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR data);

// From now on, or no longer, the widget gets the window's messages and the calls posted to it.
void AttachWindowProcedure(BaseGUIObject& widget, HWND window);
void DetachWindowProcedure(BaseGUIObject& widget, HWND window);

}  // namespace Wexa
