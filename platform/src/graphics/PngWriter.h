#pragma once

#include <string>

class Surface;

// Writes the pixels as a PNG file. Throws std::runtime_error naming the file.
void WritePng(const Surface& surface, const std::string& path);
