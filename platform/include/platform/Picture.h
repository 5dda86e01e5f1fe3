#pragma once

#include <string>

#include "Types.h"

#pragma GCC visibility push(default)  // hosts may use all of this

// What a top-level window shows, its frame included, as a new bitmap that the caller deletes.
// Paints what is due first; a hidden window looks as if it were shown. Null for a window that is
// none.
HBITMAP PictureOfWindow(HWND window);
// Writes a bitmap as a PNG file, whose pixels are opaque. Throws std::runtime_error naming the file
// when it cannot be written, or there is no such bitmap.
void SavePicture(HBITMAP picture, const std::string& path);
// Both in one. Throws std::runtime_error naming the file when it cannot be written, or the window
// is none.
void SaveWindowPicture(HWND window, const std::string& path);

#pragma GCC visibility pop
