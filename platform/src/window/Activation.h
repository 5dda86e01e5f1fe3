#pragma once

#include "window/WindowObject.h"

namespace core {

Window* ActiveWindow();
bool CanActivate(const Window& root);
// Makes a top-level window the active one, with the messages due; null: none is. `how` is WA_ACTIVE
// or WA_CLICKACTIVE.
void Activate(Window* root, UINT how);
// A window that appears: it becomes active when that is wanted, and one that was activated while it
// was hidden gets the display's focus.
void EnterShown(Window& root, bool activate);
// A hidden or dying window hands the activation to its owner or the next window.
void LeaveHidden(Window& root);
// The enabled pop-up that stands for a disabled window (its modal dialog), or null.
Window* EnabledPopUp(const Window& root);
void ForgetActivation(const Window& window);

// Reports of the display.
void SurfaceFocused(display::SurfaceId id);
void SurfaceUnfocused(display::SurfaceId id);

}  // namespace core
