#include "layout/LayoutChain.h"

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

ChainSlot Slot(int hint, int minimum, int maximum, int stretch = 0) {
  ChainSlot slot;
  slot.sizeHint = hint;
  slot.minimumSize = minimum;
  slot.maximumSize = maximum;
  slot.stretch = stretch;
  slot.spacing = 6;
  slot.empty = false;
  return slot;
}

constexpr int kUnbounded = 524287;

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

using testing::ElementsAre;

// -- Worked by hand -------------------------------------------------------------------------------

TEST(LayoutChainTest, ExtraSpaceGoesToAllAlike) {
  Slots slots(3, Slot(50, 10, kUnbounded));
  Distribute(slots, 0, 300);
  EXPECT_THAT(Sizes(slots), ElementsAre(96, 96, 96));
  EXPECT_THAT(Positions(slots), ElementsAre(0, 102, 204));
}

TEST(LayoutChainTest, StretchSharesFromTheMinimumUp) {
  Slots slots{Slot(50, 10, kUnbounded, 1), Slot(50, 10, kUnbounded, 2),
              Slot(50, 10, kUnbounded, 1)};
  Distribute(slots, 0, 300);
  EXPECT_THAT(Sizes(slots), ElementsAre(72, 144, 72));
}

TEST(LayoutChainTest, ShortfallIsTakenEqually) {
  Slots slots(3, Slot(50, 10, kUnbounded));
  Distribute(slots, 0, 90);
  EXPECT_THAT(Sizes(slots), ElementsAre(26, 26, 26));
}

TEST(LayoutChainTest, SlotsStopShrinkingAtTheirMinimum) {
  Slots slots{Slot(50, 45, kUnbounded), Slot(50, 10, kUnbounded), Slot(50, 10, kUnbounded)};
  Distribute(slots, 0, 112);
  EXPECT_THAT(Sizes(slots), ElementsAre(45, 27, 28));
}

TEST(LayoutChainTest, LargestMinimumsAreCutFirst) {
  Slots slots{Slot(50, 10, kUnbounded), Slot(50, 20, kUnbounded), Slot(50, 30, kUnbounded)};
  Distribute(slots, 0, 20);
  EXPECT_THAT(Sizes(slots), ElementsAre(3, 3, 2));
  EXPECT_THAT(Positions(slots), ElementsAre(0, 9, 18));
}

TEST(LayoutChainTest, UniformSpacingShrinksWithTheMinimums) {
  Slots slots(3, Slot(50, 20, kUnbounded));
  Distribute(slots, 0, 40, 10);  // 80 are needed: the gaps halve
  EXPECT_THAT(Sizes(slots), ElementsAre(10, 10, 10));
  EXPECT_THAT(Positions(slots), ElementsAre(0, 15, 30));
}

TEST(LayoutChainTest, MaximumGivesItsSurplusBack) {
  Slots slots{Slot(20, 10, 40), Slot(20, 10, kUnbounded), Slot(20, 10, kUnbounded)};
  Distribute(slots, 0, 312);
  EXPECT_THAT(Sizes(slots), ElementsAre(40, 130, 130));
}

TEST(LayoutChainTest, SpaceThatNobodyCanUseWidensGapsAndEnds) {
  Slots slots(2, Slot(20, 20, 20));
  Distribute(slots, 100, 76);
  EXPECT_THAT(Sizes(slots), ElementsAre(20, 20));
  EXPECT_THAT(Positions(slots), ElementsAre(110, 146));
}

TEST(LayoutChainTest, ExpansiveSlotsTakeAllExtraSpace) {
  Slots slots(3, Slot(20, 10, kUnbounded));
  slots[1].expansive = true;
  Distribute(slots, 0, 200);
  EXPECT_THAT(Sizes(slots), ElementsAre(20, 148, 20));
}

TEST(LayoutChainTest, RoundingIsCarriedFromSlotToSlot) {
  Slots slots(3, Slot(10, 10, kUnbounded));
  for (ChainSlot& slot : slots) slot.spacing = 0;
  Distribute(slots, 0, 100);
  EXPECT_THAT(Sizes(slots), ElementsAre(33, 34, 33));
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

// Where nothing but the shares decides, every edge lies within a pixel of the exact fraction.
TEST(LayoutChainTest, EdgesAreWithinAPixelOfTheExactShare) {
  RandomChain random(7);
  for (int round = 0; round < 2000; ++round) {
    Slots slots;
    double stretches = 0;
    for (int i = random.Number(1, 40); i > 0; --i) {
      slots.push_back(Slot(0, 0, kUnbounded, random.Number(1, 255)));
      slots.back().spacing = 0;
      stretches += slots.back().stretch;
    }
    const int space = random.Number(0, 4000);
    Distribute(slots, 0, space);
    double before = 0;
    for (const ChainSlot& slot : slots) {
      EXPECT_NEAR(slot.position, space * before / stretches, 1) << testing::PrintToString(slots);
      before += slot.stretch;
    }
    EXPECT_EQ(slots.back().position + slots.back().size, space);
  }
}

// -- Merging across -------------------------------------------------------------------------------

TEST(CrossMaximumTest, FirstItemReplacesTheStartOthersLowerIt) {
  CrossMaximum cross{100, false, true};
  cross.Merge(200, false, false);
  EXPECT_EQ(cross.maximum, 200);
  cross.Merge(80, false, false);
  EXPECT_EQ(cross.maximum, 80);
  cross.Merge(90, false, false);
  EXPECT_EQ(cross.maximum, 80);
}

TEST(CrossMaximumTest, ExpansiveItemsWinAndOnlyTheyRaise) {
  CrossMaximum cross{80, false, false};
  cross.Merge(300, true, false);
  EXPECT_EQ(cross.maximum, 300);
  cross.Merge(900, false, false);
  EXPECT_EQ(cross.maximum, 300);
  cross.Merge(400, true, false);
  EXPECT_EQ(cross.maximum, 400);
}

TEST(CrossMaximumTest, EmptyItemsGiveWayToOthers) {
  CrossMaximum cross{0, false, true};
  cross.Merge(70, false, true);
  EXPECT_EQ(cross.maximum, 70);
  cross.Merge(50, false, true);
  EXPECT_EQ(cross.maximum, 50);
  cross.Merge(400, false, false);
  EXPECT_EQ(cross.maximum, 400);
  cross.Merge(5, false, true);
  EXPECT_EQ(cross.maximum, 400);
}

}  // namespace
}  // namespace Wexa
