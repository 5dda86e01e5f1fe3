#pragma once

#include <string>
#include <vector>

#include "Size.h"

namespace preview {

class Preview;

// The geometry of a shown dialog as JSON: for each size in turn, or for its own where there is
// none, the client area it got and the rectangle of every named visible widget; then the layout's
// totals. With `hidden`, that of hidden ones too, as it was when they were last laid out.
std::string DumpText(Preview& preview, const std::string& formName,
                     const std::vector<Wexa::Size>& sizes, bool hidden);

}  // namespace preview
