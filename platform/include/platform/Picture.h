#pragma once

#include <string>

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

// Writes what a top-level window shows, its frame included, as a PNG file. Paints what is due
// first. Throws std::runtime_error naming the file when it cannot be written, or a window that is
// none.
void SaveWindowPicture(HWND window, const std::string& path);

#pragma GCC visibility pop
