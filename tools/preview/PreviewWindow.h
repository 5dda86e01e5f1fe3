#pragma once

#include <map>
#include <optional>
#include <string>

#include "Size.h"

namespace preview {

// Connects to the screen; the library measures its scale from then on. Throws std::runtime_error.
void OpenDisplay();
// Whether the process draws into memory, where nobody could work in a window.
bool IsOffscreen();

// Shows the form and returns when it was closed: by its frame, by Escape, or by one of its buttons
// OK, Yes, Close, Cancel, No and Abort. Throws like Preview.
void ShowInWindow(const std::string& file, std::optional<Wexa::Size> client,
                  const std::map<std::string, int>& pages);

}  // namespace preview
