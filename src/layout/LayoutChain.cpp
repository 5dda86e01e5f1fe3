#include "layout/LayoutChain.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

using Wide = std::int64_t;

// Fractions of a pixel are carried from slot to slot in fixed point.
constexpr int kFractionBits = 8;
constexpr Wide kOne = 1 << kFractionBits;

// To the nearest integer, halves upwards.
constexpr Wide Rounded(Wide fixed) {
  return (fixed + kOne / 2) >> kFractionBits;
}

// Beyond these bounds a share is meaningless; within them it does not overflow.
Wide BoundedStretch(const ChainSlot& slot) {
  constexpr Wide kLargest = 1 << 20;
  return std::clamp<Wide>(slot.stretch, -kLargest, kLargest);
}

Wide BoundedSpace(Wide space) {
  constexpr Wide kLargest = Wide{1} << 33;
  return std::clamp(space, -kLargest, kLargest);
}

class Distribution {
 public:
  Distribution(std::span<ChainSlot> slots, int space, int spacing)
      : slots_(slots), space_(space), spacing_(spacing), open_(static_cast<Wide>(slots.size())) {
    Sum();
  }

  void Run(int position) {
    if (space_ < minimum_ + sumSpacing_) {
      CutMinimums();
    } else if (space_ < hint_ + sumSpacing_) {
      CutHints();
    } else {
      ShareExtra();
    }
    Place(position);
  }

 private:
  Wide SpacingAfter(const ChainSlot& slot) const { return spacing_ >= 0 ? spacing_ : slot.spacing; }

  void Sum() {
    const ChainSlot* previous = nullptr;  // the last slot that is not empty
    for (ChainSlot& slot : slots_) {
      slot.done = false;
      hint_ += slot.SmartHint();
      minimum_ += slot.minimumSize;
      sumStretch_ += BoundedStretch(slot);
      expansiveCount_ += slot.expansive ? 1 : 0;
      allEmptyNonstretch_ =
          allEmptyNonstretch_ && slot.empty && !slot.expansive && slot.stretch <= 0;
      if (slot.empty) continue;
      if (previous) {
        sumSpacing_ += SpacingAfter(*previous);
        ++spacerCount_;
      }
      previous = &slot;
    }
  }

  void Settle(ChainSlot& slot, Wide size) {
    slot.size = Saturated(size);
    slot.done = true;
    spaceLeft_ -= size;
    sumStretch_ -= BoundedStretch(slot);
    expansiveCount_ -= slot.expansive ? 1 : 0;
    --open_;
  }

  // -- Not even the minimums fit ------------------------------------------------------------------

  void CutMinimums() {
    ScaleSpacing();
    const auto [cap, remainder, items] = FindCap(space_ - sumSpacing_);
    Wide rest = 0;
    for (ChainSlot& slot : slots_) {
      rest += remainder;
      const bool takesOne = rest >= items;
      if (takesOne) rest -= items;
      slot.size = Saturated(std::min<Wide>(slot.minimumSize, takesOne ? cap - 1 : cap));
      slot.done = true;
    }
  }

  void ScaleSpacing() {
    if (spacing_ < 0) return;
    const Wide needed = minimum_ + sumSpacing_;
    spacing_ = needed != 0 ? std::max<Wide>(spacing_ * space_ / needed, 0) : 0;
    sumSpacing_ = spacing_ * spacerCount_;
  }

  struct Cap {
    Wide size;
    Wide remainder;  // pixels to take off in addition, spread over `items`
    Wide items;
  };

  // The common size down to which the largest minimums are cut.
  Cap FindCap(Wide spaceLeft) const {
    std::vector<int> minimums;
    minimums.reserve(slots_.size());
    for (const ChainSlot& slot : slots_) minimums.push_back(slot.minimumSize);
    std::sort(minimums.begin(), minimums.end());

    const auto count = static_cast<Wide>(minimums.size());
    Wide index = 0;
    Wide current = 0;
    Wide sum = 0;
    Wide used = 0;
    while (index < count && used < spaceLeft) {
      current = minimums[static_cast<std::size_t>(index)];
      used = sum + current * (count - index);
      sum += current;
      ++index;
    }
    const Wide items = count - (index - 1);
    const Wide deficit = used - spaceLeft;
    return {current - deficit / items, deficit % items, items};
  }

  // -- The minimums fit, the hints do not ---------------------------------------------------------

  void CutHints() {
    overdraft_ = hint_ - (space_ - sumSpacing_);
    for (ChainSlot& slot : slots_) {
      if (slot.minimumSize >= slot.SmartHint()) Settle(slot, slot.SmartHint());
    }
    while (CutEqually()) {
    }
  }

  // Takes the same from every open slot. A slot that would fall below its minimum is settled there;
  // then true, and the others have to be cut again.
  bool CutEqually() {
    Wide fixed = 0;
    for (ChainSlot& slot : slots_) {
      if (slot.done) continue;
      fixed += overdraft_ * kOne / open_;
      const Wide take = Rounded(fixed);
      fixed -= take * kOne;
      slot.size = Saturated(slot.SmartHint() - take);
      if (slot.size >= slot.minimumSize) continue;
      overdraft_ -= Wide{slot.SmartHint()} - slot.minimumSize;
      Settle(slot, slot.minimumSize);
      return true;
    }
    return false;
  }

  // -- The hints fit ------------------------------------------------------------------------------

  void ShareExtra() {
    spaceLeft_ = space_ - sumSpacing_;
    for (ChainSlot& slot : slots_) {
      if (HasNoShare(slot)) Settle(slot, slot.SmartHint());
    }
    Wide balance = 0;
    do {
      balance = ShareOnce();
    } while (open_ > 0 && balance != 0);
    if (open_ == 0) extra_ = spaceLeft_;
  }

  bool HasNoShare(const ChainSlot& slot) const {
    if (slot.maximumSize <= slot.SmartHint()) return true;
    return !allEmptyNonstretch_ && slot.empty && !slot.expansive && slot.stretch == 0;
  }

  // Gives every open slot its share, then settles those that the more pressing limit holds.
  // Returns how far the limits are out of balance.
  Wide ShareOnce() {
    Wide surplus = 0;
    Wide deficit = 0;
    Wide fixed = 0;
    for (ChainSlot& slot : slots_) {
      if (slot.done) continue;
      fixed += Share(slot);
      const Wide size = Rounded(fixed);
      fixed -= size * kOne;
      slot.size = Saturated(size);
      if (slot.size < slot.SmartHint()) {
        deficit += Wide{slot.SmartHint()} - slot.size;
      } else if (slot.size > slot.maximumSize) {
        surplus += Wide{slot.size} - slot.maximumSize;
      }
    }
    if (deficit > 0 && surplus <= deficit) SettleTooSmall();
    if (surplus > 0 && surplus >= deficit) SettleTooLarge();
    return surplus - deficit;
  }

  Wide Share(const ChainSlot& slot) const {
    const Wide fixed = BoundedSpace(spaceLeft_) * kOne;
    if (sumStretch_ > 0) return fixed * BoundedStretch(slot) / sumStretch_;
    if (expansiveCount_ > 0) return slot.expansive ? fixed / expansiveCount_ : 0;
    return fixed / open_;
  }

  void SettleTooSmall() {
    for (ChainSlot& slot : slots_) {
      if (!slot.done && slot.size < slot.SmartHint()) Settle(slot, slot.SmartHint());
    }
  }

  void SettleTooLarge() {
    for (ChainSlot& slot : slots_) {
      if (!slot.done && slot.size > slot.maximumSize) Settle(slot, slot.maximumSize);
    }
  }

  // Space that nobody can use widens the gaps and both ends.
  void Place(int position) {
    const Wide extra = extra_ / (spacerCount_ + 2);
    Wide next = position + extra;
    for (ChainSlot& slot : slots_) {
      slot.position = Saturated(next);
      next += slot.size;
      if (!slot.empty) next += SpacingAfter(slot) + extra;
    }
  }

  std::span<ChainSlot> slots_;
  Wide space_;
  Wide spacing_;
  Wide open_;  // slots not settled yet
  Wide hint_ = 0;
  Wide minimum_ = 0;
  Wide sumStretch_ = 0;
  Wide expansiveCount_ = 0;
  Wide sumSpacing_ = 0;
  Wide spacerCount_ = 0;
  bool allEmptyNonstretch_ = true;
  Wide spaceLeft_ = 0;
  Wide overdraft_ = 0;
  Wide extra_ = 0;
};

}  // namespace

void Distribute(std::span<ChainSlot> slots, int position, int space, int spacing) {
  if (!slots.empty()) Distribution(slots, space, spacing).Run(position);
}

void CrossMaximum::Merge(int itemMaximum, bool itemExpansive, bool itemEmpty) {
  if (expansive) {
    if (itemExpansive) maximum = std::max(maximum, itemMaximum);
  } else if (itemExpansive || (empty && (!itemEmpty || maximum == 0))) {
    maximum = itemMaximum;
  } else if (empty == itemEmpty) {
    maximum = std::min(maximum, itemMaximum);
  }
  expansive = expansive || itemExpansive;
  empty = empty && itemEmpty;
}

}  // namespace Wexa
