#pragma once

#include "window/WindowObject.h"

namespace core {

// The display's side of a top-level window. A surface is made when it is first needed: many
// pop-ups and tool tips are never shown.
void EnsureSurface(Window& root);
// Also takes hold of its pixels. Null pixels mean that nothing can be painted.
Surface* EnsurePixels(Window& root);
void DestroySurface(Window& root);
// Tells the display about a changed place, style or visibility, when there is a surface.
void PlaceSurface(Window& root);
void ShowSurface(Window& root, bool show);
void UpdateResizing(Window& root);
void UpdateTitle(Window& root);
// Tells the display which windows the owner's being disabled makes modal.
void UpdateModality(const Window& owner);

}  // namespace core
