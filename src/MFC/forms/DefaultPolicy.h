#pragma once

#include <string_view>

#include "SizePolicy.h"

namespace Wexa {

// The policy that a form class has in the designing tool when its form states none. Bars, lines,
// sliders, splitters and button boxes change their axes when they are vertical.
SizePolicy DefaultPolicyOf(std::wstring_view className, bool isVertical);

}  // namespace Wexa
