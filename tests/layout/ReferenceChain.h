#pragma once

#include <vector>

#include "layout/LayoutChain.h"

namespace Wexa {

// The same distribution once more, slow and rule by rule, to compare with.
void DistributeByTheRules(std::vector<ChainSlot>& slots, int position, int space, int spacing);

}  // namespace Wexa
