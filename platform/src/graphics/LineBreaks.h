#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// The ends of the pieces that a line may be broken between, spaces belonging to the piece before
// them; the last is the text's length.
std::vector<std::size_t> LineBreaks(std::wstring_view paragraph);
