#pragma once

// The lists of addresses in which programs hand files to one another.

#include <string>
#include <vector>

namespace display::x11 {

// The paths of this machine's files in a list of type text/uri-list, in its order. Passed over are
// comments, other addresses, other machines' files, and paths that are no UTF-8.
std::vector<std::wstring> FilesOf(const std::string& uriList);

}  // namespace display::x11
