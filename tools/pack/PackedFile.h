#pragma once

#include <filesystem>
#include <string>

namespace pack {

// Packs a file. `target` is either whole or as it was before. Both throw std::runtime_error with
// the reason for a file that cannot be read or written, is empty or no UTF-8 text.
void PackFile(const std::filesystem::path& source, const std::filesystem::path& target);

// The text of a packed file.
std::string ReadPackedFile(const std::filesystem::path& file);

}  // namespace pack
