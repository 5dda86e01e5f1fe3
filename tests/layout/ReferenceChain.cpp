#include "layout/ReferenceChain.h"

#include <algorithm>
#include <numeric>

namespace Wexa {

namespace {

// An exact fraction; the denominator is positive.
struct Fraction {
  long long over = 0;
  long long under = 1;

  Fraction operator+(const Fraction& other) const {
    return Reduced(over * other.under + other.over * under, under * other.under);
  }
  Fraction operator-(long long whole) const { return {over - whole * under, under}; }
  long long Floor() const { return over >= 0 ? over / under : -((-over + under - 1) / under); }
  // Halves go upwards.
  long long Nearest() const { return (*this + Fraction{1, 2}).Floor(); }
  // Whole 256ths, cut toward zero.
  Fraction CutTo256ths() const { return Reduced(over * 256 / under, 256); }

  static Fraction Reduced(long long over, long long under) {
    const long long common = std::gcd(over, under);
    return common == 0 ? Fraction{0, 1} : Fraction{over / common, under / common};
  }
};

using Slots = std::vector<ChainSlot>;
using Open = std::vector<ChainSlot*>;

long long GapAfter(const ChainSlot& slot, long long uniform) {
  return uniform >= 0 ? uniform : slot.spacing;
}

// The gaps that count: after each slot that is not empty, but for the last of these.
std::vector<long long> Gaps(const Slots& slots, long long uniform) {
  std::vector<long long> gaps;
  for (const ChainSlot& slot : slots) {
    if (!slot.empty) gaps.push_back(GapAfter(slot, uniform));
  }
  if (!gaps.empty()) gaps.pop_back();
  return gaps;
}

long long Sum(const std::vector<long long>& values) {
  return std::accumulate(values.begin(), values.end(), 0LL);
}

template <typename Value>
long long SumOver(const Slots& slots, Value value) {
  long long sum = 0;
  for (const ChainSlot& slot : slots) sum += value(slot);
  return sum;
}

void CutMinimums(Slots& slots, long long room) {
  std::vector<long long> sizes;
  for (const ChainSlot& slot : slots) sizes.push_back(slot.minimumSize);
  std::sort(sizes.begin(), sizes.end());
  const auto count = static_cast<long long>(sizes.size());
  // If the i smallest keep their size and all others get as much as the i-th, how much is used?
  long long last = -1;
  long long used = 0;
  while (last + 1 < count && used < room) {
    ++last;
    const auto end = sizes.begin() + last;
    used = std::accumulate(sizes.begin(), end, 0LL) + *end * (count - last);
  }
  const long long sharing = count - last;
  const long long excess = used - room;
  const long long cap = (last >= 0 ? sizes[static_cast<std::size_t>(last)] : 0) - excess / sharing;
  long long rest = 0;
  for (ChainSlot& slot : slots) {
    rest += excess % sharing;
    long long limit = cap;
    if (rest >= sharing) {
      rest -= sharing;
      limit -= 1;
    }
    slot.size = static_cast<int>(std::min<long long>(slot.minimumSize, limit));
  }
}

void CutHints(Slots& slots, long long room) {
  Open open;
  long long missing = SumOver(slots, [](const auto& s) { return s.SmartHint(); }) - room;
  for (ChainSlot& slot : slots) {
    slot.size = slot.SmartHint();
    if (slot.minimumSize < slot.SmartHint()) open.push_back(&slot);
  }
  for (bool again = true; again;) {
    again = false;
    Fraction carried;
    for (auto it = open.begin(); it != open.end(); ++it) {
      ChainSlot& slot = **it;
      carried = carried + Fraction{missing, static_cast<long long>(open.size())}.CutTo256ths();
      const long long take = carried.Nearest();
      carried = carried - take;
      slot.size = static_cast<int>(slot.SmartHint() - take);
      if (slot.size >= slot.minimumSize) continue;
      slot.size = slot.minimumSize;
      missing -= slot.SmartHint() - slot.minimumSize;
      open.erase(it);
      again = true;
      break;
    }
  }
}

Fraction ShareOf(const ChainSlot& slot, const Open& open, long long room) {
  long long stretches = 0;
  long long expansive = 0;
  for (const ChainSlot* other : open) {
    stretches += other->stretch;
    expansive += other->expansive ? 1 : 0;
  }
  if (stretches > 0) return {room * slot.stretch, stretches};
  if (expansive > 0) return {slot.expansive ? room : 0, expansive};
  return {room, static_cast<long long>(open.size())};
}

bool IsTooSmall(const ChainSlot& slot) {
  return slot.size < slot.SmartHint();
}
bool IsTooLarge(const ChainSlot& slot) {
  return !IsTooSmall(slot) && slot.size > slot.maximumSize;
}

template <typename Condition>
void Close(Open& open, long long& room, Condition condition, int (*size)(const ChainSlot&)) {
  Open left;
  for (ChainSlot* slot : open) {
    if (!condition(*slot)) {
      left.push_back(slot);
      continue;
    }
    slot->size = size(*slot);
    room -= slot->size;
  }
  open = left;
}

int HintOf(const ChainSlot& slot) {
  return slot.SmartHint();
}
int MaximumOf(const ChainSlot& slot) {
  return slot.maximumSize;
}

// Returns what is left over.
long long ShareExtra(Slots& slots, long long room) {
  const bool onlyEmpty = std::all_of(slots.begin(), slots.end(), [](const auto& s) {
    return s.empty && !s.expansive && s.stretch <= 0;
  });
  Open open;
  for (ChainSlot& slot : slots) open.push_back(&slot);
  auto hasNoShare = [onlyEmpty](const ChainSlot& s) {
    return s.maximumSize <= s.SmartHint() ||
           (s.empty && !s.expansive && s.stretch == 0 && !onlyEmpty);
  };
  Close(open, room, hasNoShare, HintOf);
  while (!open.empty()) {
    Fraction carried;
    long long deficit = 0;
    long long surplus = 0;
    for (ChainSlot* slot : open) {
      carried = carried + ShareOf(*slot, open, room).CutTo256ths();
      slot->size = static_cast<int>(carried.Nearest());
      carried = carried - slot->size;
      if (IsTooSmall(*slot)) deficit += slot->SmartHint() - slot->size;
      if (IsTooLarge(*slot)) surplus += slot->size - slot->maximumSize;
    }
    if (deficit > 0 && surplus <= deficit) Close(open, room, IsTooSmall, HintOf);
    if (surplus > 0 && surplus >= deficit) Close(open, room, IsTooLarge, MaximumOf);
    if (surplus == deficit) break;
  }
  return open.empty() ? room : 0;
}

}  // namespace

void DistributeByTheRules(Slots& slots, int position, int space, int spacing) {
  if (slots.empty()) return;
  long long uniform = spacing;
  std::vector<long long> gaps = Gaps(slots, uniform);
  const long long minimum = SumOver(slots, [](const auto& s) { return s.minimumSize; });
  const long long hint = SumOver(slots, [](const auto& s) { return s.SmartHint(); });
  long long extra = 0;
  if (space < minimum + Sum(gaps)) {
    if (uniform >= 0) {
      const long long needed = minimum + Sum(gaps);
      uniform = needed == 0 ? 0 : std::max(uniform * space / needed, 0LL);
      gaps = Gaps(slots, uniform);
    }
    CutMinimums(slots, space - Sum(gaps));
  } else if (space < hint + Sum(gaps)) {
    CutHints(slots, space - Sum(gaps));
  } else {
    extra = ShareExtra(slots, space - Sum(gaps));
  }
  extra /= static_cast<long long>(gaps.size()) + 2;
  long long next = position + extra;
  for (ChainSlot& slot : slots) {
    slot.position = static_cast<int>(next);
    next += slot.size;
    if (!slot.empty) next += GapAfter(slot, uniform) + extra;
  }
}

}  // namespace Wexa
