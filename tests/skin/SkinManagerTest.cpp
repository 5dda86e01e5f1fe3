#include "SkinManager.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/engine/StubImpl.h"

namespace Wexa {
namespace {

unsigned long Resolved(const SkinManager& skin, int slot) {
  return skin.Slot(slot);
}

class CountingOwner : public StubImpl {
 public:
  int changes = 0;
  int refreshes = 0;

  void OnSkinColorsChanged() override { ++changes; }
  void RefreshSkinColors() override { ++refreshes; }
};

class SkinChain : public testing::Test {
 protected:
  SkinManager parent{SkinMode::Default};
  SkinManager skin{SkinMode::Default};
};

TEST_F(SkinChain, UnsetSlotsFollowTheParent) {
  skin.InitSkinManager(&parent, SkinMode::Default);
  parent.Slot(2) = 0x010101;
  EXPECT_EQ(Resolved(skin, 2), 0x010101u);
  EXPECT_TRUE(skin.Slot(2).IsChanged());
  parent.Slot(2) = 0x020202;
  EXPECT_EQ(Resolved(skin, 2), 0x020202u);
  skin.Slot(2) = 0x030303;
  EXPECT_EQ(Resolved(skin, 2), 0x030303u);
}

TEST_F(SkinChain, ComparisonsSeeTheSlotsOwnDefault) {
  skin.InitSkinManager(&parent, SkinMode::Default);
  parent.Slot(0) = 0x010101;
  EXPECT_TRUE(skin.Slot(0) == 0);
}

TEST_F(SkinChain, SetSkinModeDetaches) {
  skin.InitSkinManager(&parent, SkinMode::Default);
  parent.Slot(2) = 0x010101;
  EXPECT_TRUE(skin.SetSkinMode(SkinMode::Dark));
  EXPECT_EQ(Resolved(skin, 2), 0x333333u);
  EXPECT_EQ(&skin.GetParentSkinManager(), &skin);
}

TEST_F(SkinChain, XmlCopiesTheParentAndStaysLinked) {
  parent.Slot(56) = 0x010101;
  ASSERT_TRUE(skin.InitSkinManager(&parent, SkinMode::XML));
  EXPECT_TRUE(skin.Slot(56) == 0x010101);
  parent.Slot(56) = 0x020202;
  EXPECT_EQ(Resolved(skin, 56), 0x020202u);
  skin.LoadXMLSkin(true);
  parent.Slot(56) = 0x030303;
  EXPECT_EQ(Resolved(skin, 56), 0x020202u);
}

TEST_F(SkinChain, ANewParentCountsFromTheNextLoadOn) {
  parent.Slot(2) = 0x010101;
  skin.SetParentSkinManager(&parent);
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
  skin.LoadDefaultSkin(false);
  EXPECT_EQ(Resolved(skin, 2), 0x010101u);
}

TEST_F(SkinChain, ItsOwnParentIsInitialisedOnce) {
  EXPECT_TRUE(skin.InitSkinManager(&skin, SkinMode::Dark));
  EXPECT_EQ(Resolved(skin, 2), 0x333333u);
  EXPECT_TRUE(skin.InitSkinManager(&skin, SkinMode::Default));
  EXPECT_EQ(skin.GetSkinMode(), SkinMode::Dark);
  skin.ResetInitilization();
  skin.InitSkinManager(&skin, SkinMode::Default);
  EXPECT_EQ(skin.GetSkinMode(), SkinMode::Default);
}

TEST_F(SkinChain, RingsOfParentsEnd) {
  skin.InitSkinManager(&parent, SkinMode::Default);
  parent.InitSkinManager(&skin, SkinMode::Default);
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
  EXPECT_FALSE(skin.Slot(2).IsChanged());
  skin.SetParentSkinManager(&skin);
  skin.LoadDarkSkin(false);
  EXPECT_EQ(Resolved(skin, 2), 0x333333u);
}

// -- Locks
// -------------------------------------------------------------------------------------------

TEST(SkinLocks, LockedSlotsTakeNumbersOnly) {
  SkinManager skin(SkinMode::Default);
  skin.LoadSkin(SkinMode::Default, true, false);
  skin.Slot(2) = SkinManagerColor(0x010101);
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
  skin.Slot(2) = 0x020202;
  EXPECT_EQ(Resolved(skin, 2), 0x020202u);
}

TEST(SkinLocks, AFailedLoadSetsTheLocksOfTheNextPalette) {
  SkinManager skin(SkinMode::Default);
  skin.LoadSkin(SkinMode::Custom, true, false);
  skin.LoadDefaultSkin(false);
  skin.Slot(2) = SkinManagerColor(0x010101);
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
}

// -- Notification
// ------------------------------------------------------------------------------------

TEST(SkinChanges, EveryExplicitChangeTellsTheOwner) {
  CountingOwner owner;
  SkinManager skin(&owner, SkinMode::Default);
  skin.Slot(2) = 1;
  skin.Slot(2) = SkinManagerColor(2);
  skin.Slot(2) + SkinManagerColor(1);
  skin.Slot(2) - SkinManagerColor(1);
  skin.Slot(2) & 0xFFFFUL;
  skin.Slot(69) = 1;
  EXPECT_EQ(owner.changes, 6);
  EXPECT_TRUE(skin.GetColorChangeFlag());
}

TEST(SkinChanges, LoadingAndUnsetColorsTellNobody) {
  CountingOwner owner;
  SkinManager skin(&owner, SkinMode::Default);
  skin.SetSkinMode(SkinMode::Dark);
  skin.Slot(2) = SkinManagerColor();
  skin.SetColorChangeFlag(false);
  EXPECT_EQ(owner.changes, 0);
  EXPECT_FALSE(skin.GetColorChangeFlag());
  EXPECT_FALSE(skin.Slot(2).IsChanged());
}

TEST(SkinChanges, TheOwnerRefreshesOnceBeforePainting) {
  CountingOwner owner;
  SkinManager skin(&owner, SkinMode::Default);
  skin.Slot(2) = 1;
  skin.Slot(3) = 1;
  skin.UpdateCustomColors();
  skin.UpdateCustomColors();
  EXPECT_EQ(owner.refreshes, 1);
}

// -- Copies
// ------------------------------------------------------------------------------------------

TEST(SkinCopies, ACopySpeaksForItself) {
  CountingOwner owner;
  SkinManager skin(&owner, SkinMode::Default);
  SkinManager copy(skin);
  copy.Slot(2) = 1;
  EXPECT_EQ(owner.changes, 0);
  EXPECT_FALSE(skin.GetColorChangeFlag());
  EXPECT_TRUE(copy.GetColorChangeFlag());
  EXPECT_EQ(copy.GetPtr(), &copy);
}

TEST(SkinCopies, ACopyOutlivesItsSource) {
  auto source = std::make_unique<SkinManager>(SkinMode::Dark);
  source->Slot(2) = 0x010101;
  SkinManager copy(*source);
  CountingOwner owner;
  SkinManager custom(&owner, SkinMode::Default);
  custom.SetCustomSkin(*source);
  source.reset();
  owner.changes = 0;
  copy.Slot(3) = 1;
  copy.AssignColor(SkinMap::Buttons, L"Accent_color", 2UL);
  custom.Slot(3) = 1;
  EXPECT_EQ(Resolved(copy, 2), 0x010101u);
  EXPECT_EQ(Resolved(custom, 2), 0x010101u);
  EXPECT_EQ(custom.GetSkinMode(), SkinMode::Custom);
  EXPECT_EQ(owner.changes, 1);
}

TEST(SkinCopies, TakingOverSetColorsTellsTheOwner) {
  CountingOwner owner;
  SkinManager skin(&owner, SkinMode::Default);
  SkinManager source(SkinMode::Dark);
  source.Slot(2) = 1;
  source.SetColorChangeFlag(false);
  skin.SetCustomSkin(source);
  EXPECT_GT(owner.changes, 0);
  EXPECT_TRUE(skin.GetColorChangeFlag());
}

TEST(SkinCopies, ACustomSkinLetsGoOfTheFormerParent) {
  auto parent = std::make_unique<SkinManager>(SkinMode::Dark);
  SkinManager skin(SkinMode::Default);
  skin.InitSkinManager(parent.get(), SkinMode::Default);
  skin.SetCustomSkin(SkinManager(SkinMode::Default));
  parent.reset();
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
}

TEST(SkinCopies, ACustomSkinLeavesLockedSlots) {
  SkinManager skin(SkinMode::Default);
  skin.LoadSkin(SkinMode::Default, true, false);
  skin.SetCustomSkin(SkinManager(SkinMode::Dark));
  EXPECT_EQ(Resolved(skin, 2), 0xFFFFFFu);
  EXPECT_EQ(skin.GetSkinMode(), SkinMode::Custom);
}

TEST(SkinCopies, AChildAsCustomSkinMakesNoRing) {
  SkinManager parent(SkinMode::Default);
  SkinManager child(SkinMode::Default);
  child.InitSkinManager(&parent, SkinMode::Dark);
  parent.SetCustomSkin(child);
  EXPECT_EQ(&parent.GetParentSkinManager(), &parent);
  EXPECT_EQ(Resolved(parent, 2), 0x333333u);
}

TEST(SkinSlots, NumbersOutsideAreRefused) {
  SkinManager skin(SkinMode::Default);
  EXPECT_THROW(skin.Slot(-1), std::out_of_range);
  EXPECT_THROW(skin.Slot(122), std::out_of_range);
}

TEST(SkinSlots, ASkinIsSmall) {
  EXPECT_LE(sizeof(SkinManager), 3 * 1024u);
}

}  // namespace
}  // namespace Wexa
