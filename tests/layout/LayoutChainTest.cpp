#include "layout/LayoutChain.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <ostream>
#include <random>

#include "layout/ReferenceChain.h"

namespace Wexa {

std::ostream& operator<<(std::ostream& out, const ChainSlot& slot) {
  return out << "\n  {stretch " << slot.stretch << " hint " << slot.sizeHint << " min "
             << slot.minimumSize << " max " << slot.maximumSize << " gap " << slot.spacing
             << (slot.expansive ? " expansive" : "") << (slot.empty ? " empty" : "") << " -> "
             << slot.position << "+" << slot.size << "}";
}

namespace {

using Slots = std::vector<ChainSlot>;

constexpr int kUnbounded = 524287;

ChainSlot Slot(int hint, int minimum, int maximum = kUnbounded, int stretch = 0) {
  ChainSlot slot;
  slot.sizeHint = hint;
  slot.minimumSize = minimum;
  slot.maximumSize = maximum;
  slot.stretch = stretch;
  slot.spacing = 6;
  slot.empty = false;
  return slot;
}

std::vector<int> Sizes(const Slots& slots) {
  std::vector<int> sizes;
  for (const ChainSlot& slot : slots) sizes.push_back(slot.size);
  return sizes;
}

std::vector<int> Positions(const Slots& slots) {
  std::vector<int> positions;
  for (const ChainSlot& slot : slots) positions.push_back(slot.position);
  return positions;
}

// -- Worked by hand -------------------------------------------------------------------------------

struct Example {
  Slots slots;
  int space;
  std::vector<int> sizes;
  std::vector<int> positions;
  int spacing = -1;
};

TEST(LayoutChainTest, Examples) {
  const ChainSlot plain = Slot(50, 10);
  const ChainSlot fixed = Slot(20, 20, 20);
  ChainSlot expansive = plain;
  expansive.expansive = true;
  const Example examples[] = {
      // Extra space goes to all alike, by stretch from the minimum up, or to the expansive.
      {{plain, plain, plain}, 300, {96, 96, 96}, {0, 102, 204}},
      {{Slot(50, 10, kUnbounded, 1), Slot(50, 10, kUnbounded, 2)}, 156, {50, 100}, {0, 56}},
      {{plain, expansive}, 206, {50, 150}, {0, 56}},
      // A hint below its minimum counts. Maximums give back; what nobody can use lies in the gaps.
      {{Slot(0, 40), expansive}, 146, {0, 140}, {0, 6}},
      {{Slot(20, 10, 40), plain, plain}, 312, {40, 130, 130}, {0, 46, 182}},
      {{fixed, fixed}, 76, {20, 20}, {10, 46}},
      // A shortfall is taken equally, down to the minimums; then the largest minimums are cut
      // first.
      {{plain, plain, plain}, 90, {26, 26, 26}, {0, 32, 64}},
      {{Slot(50, 45), plain, plain}, 112, {45, 27, 28}, {0, 51, 84}},
      {{plain, Slot(50, 20), Slot(50, 30)}, 20, {3, 3, 2}, {0, 9, 18}},
      // Uniform gaps shrink with the minimums.
      {{fixed, fixed, fixed}, 40, {10, 10, 10}, {0, 15, 30}, 10},
  };
  for (const Example& e : examples) {
    Slots slots = e.slots;
    Distribute(slots, 0, e.space, e.spacing);
    EXPECT_EQ(Sizes(slots), e.sizes) << testing::PrintToString(slots);
    EXPECT_EQ(Positions(slots), e.positions) << testing::PrintToString(slots);
  }
}

TEST(LayoutChainTest, NoSlotsAreNoProblem) {
  Distribute({}, 0, 100);
  Distribute({}, 0, -100, 6);
}

TEST(LayoutChainTest, HugeValuesStayDefined) {
  Slots slots{Slot(INT_MAX, INT_MAX, INT_MAX, INT_MAX), Slot(INT_MAX, INT_MIN, INT_MAX),
              Slot(INT_MIN, INT_MIN, INT_MIN, INT_MIN), Slot(5, 5, INT_MAX, INT_MAX)};
  for (int space : {INT_MIN, -1, 0, 1, 1000, INT_MAX}) {
    Distribute(slots, INT_MAX, space);
    Distribute(slots, INT_MIN, space, INT_MAX);
  }
}

// -- Against the model ----------------------------------------------------------------------------

class RandomChain {
 public:
  explicit RandomChain(unsigned seed) : random_(seed) {}

  int Number(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  bool Chance(int percent) { return Number(1, 100) <= percent; }

  Slots Make() {
    Slots slots;
    const int count = Number(1, 9);
    const bool stretched = Chance(40);
    for (int i = 0; i < count; ++i) slots.push_back(MakeSlot(stretched));
    return slots;
  }

 private:
  ChainSlot MakeSlot(bool stretched) {
    const int minimum = Number(0, 60);
    const int hint = Chance(80) ? minimum + Number(0, 60) : Number(0, 60);
    const int maximum = Chance(50) ? kUnbounded : std::max(hint, minimum) + Number(-10, 90);
    ChainSlot slot = Slot(hint, minimum, maximum);
    if (stretched && Chance(60)) slot.stretch = Number(1, 7);
    slot.spacing = Number(0, 12);
    slot.expansive = Chance(25);
    slot.empty = Chance(20);
    return slot;
  }

  std::mt19937 random_;
};

bool SameResult(const ChainSlot& a, const ChainSlot& b) {
  return a.position == b.position && a.size == b.size;
}

TEST(LayoutChainTest, AgreesWithTheModelOnRandomChains) {
  RandomChain random(20240229);
  for (int round = 0; round < 20000; ++round) {
    Slots slots = random.Make();
    Slots model = slots;
    const int space = random.Number(-20, 900);
    const int position = random.Number(-50, 50);
    const int spacing = random.Chance(30) ? random.Number(0, 15) : -1;
    Distribute(slots, position, space, spacing);
    DistributeByTheRules(model, position, space, spacing);
    ASSERT_TRUE(std::equal(slots.begin(), slots.end(), model.begin(), SameResult))
        << "round " << round << ", space " << space << ", spacing " << spacing << ", got "
        << testing::PrintToString(slots) << ", model " << testing::PrintToString(model);
  }
}

// -- Merging across -------------------------------------------------------------------------------

struct Merge {
  int maximum;
  bool expansive;
  bool empty;
  int result;
};

TEST(CrossMaximumTest, MergesItemAfterItem) {
  const struct {
    CrossMaximum start;
    std::vector<Merge> merges;
  } cases[] = {
      {{100, false, true},
       {{200, false, false, 200}, {80, false, false, 80}, {90, false, false, 80}}},
      {{80, false, false},
       {{300, true, false, 300}, {900, false, false, 300}, {400, true, false, 400}}},
      {{0, false, true},
       {{70, false, true, 70},
        {50, false, true, 50},
        {400, false, false, 400},
        {5, false, true, 400}}},
  };
  for (auto [cross, merges] : cases) {
    for (const Merge& merge : merges) {
      cross.Merge(merge.maximum, merge.expansive, merge.empty);
      EXPECT_EQ(cross.maximum, merge.result);
    }
  }
}

}  // namespace
}  // namespace Wexa
