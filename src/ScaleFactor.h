#pragma once

namespace Wexa {

// Has WexaUtils::GetScaleFactor measure again: for programs that open displays of several
// resolutions one after the other.
void ResetScaleFactor();

}  // namespace Wexa
