#include "SkinManager.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/SystemColors.h"
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

class SkinTest : public testing::Test {
 protected:
  ~SkinTest() override { SetSystemScheme(SystemScheme::Light); }

  std::unique_ptr<SkinManager> parent_ = std::make_unique<SkinManager>(SkinMode::Default);
  CountingOwner owner_;
  SkinManager skin_{&owner_, SkinMode::Default};
};

// -- Chains

TEST_F(SkinTest, UnsetSlotsFollowTheParent) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  parent_->Slot(0) = 0x010101;
  EXPECT_EQ(Resolved(skin_, 0), 0x010101u);
  EXPECT_TRUE(skin_.Slot(0).IsChanged());
  EXPECT_TRUE(skin_.Slot(0) == 0) << "comparisons see the slot's own default";
  parent_->Slot(0) = 0x020202;
  EXPECT_EQ(Resolved(skin_, 0), 0x020202u);
  skin_.Slot(0) = 0x030303;
  EXPECT_EQ(Resolved(skin_, 0), 0x030303u);
}

TEST_F(SkinTest, XmlCopiesTheParentAndStaysLinked) {
  parent_->Slot(56) = 0x010101;
  ASSERT_TRUE(skin_.InitSkinManager(parent_.get(), SkinMode::XML));
  EXPECT_TRUE(skin_.Slot(56) == 0x010101);
  parent_->Slot(56) = 0x020202;
  EXPECT_EQ(Resolved(skin_, 56), 0x020202u);
  skin_.LoadXMLSkin(true);
  parent_->Slot(56) = 0x030303;
  EXPECT_EQ(Resolved(skin_, 56), 0x020202u);
}

TEST_F(SkinTest, ANewParentCountsFromTheNextLoadOn) {
  parent_->Slot(2) = 0x010101;
  skin_.SetParentSkinManager(parent_.get());
  EXPECT_EQ(Resolved(skin_, 2), 0xFFFFFFu);
  skin_.LoadDefaultSkin(false);
  EXPECT_EQ(Resolved(skin_, 2), 0x010101u);
}

TEST_F(SkinTest, AfterDetachingNothingFollowsTheParent) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  parent_->Slot(2) = 0x010101;
  parent_->Slot(37) = 0x010203;
  EXPECT_TRUE(skin_.SetSkinMode(SkinMode::Dark));
  EXPECT_EQ(&skin_.GetParentSkinManager(), &skin_);
  EXPECT_EQ(Resolved(skin_, 2), 0x333333u);
  parent_->Slot(37) = 0x040506;
  EXPECT_EQ(Resolved(skin_, 37), 0x010203u) << "what the palette leaves shows what it showed";
}

TEST_F(SkinTest, SlotsThatAPaletteLeavesUntouchedMoveToTheNewParent) {
  SkinManager other(SkinMode::Default);
  other.Slot(37) = 0x040506;
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  skin_.InitSkinManager(&other, SkinMode::Dark);
  EXPECT_EQ(Resolved(skin_, 37), 0x040506u);
}

TEST_F(SkinTest, ItsOwnParentIsInitialisedOnce) {
  EXPECT_TRUE(skin_.InitSkinManager(&skin_, SkinMode::Dark));
  EXPECT_EQ(Resolved(skin_, 2), 0x333333u);
  EXPECT_TRUE(skin_.InitSkinManager(&skin_, SkinMode::Default));
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::Dark);
  skin_.ResetInitilization();
  skin_.InitSkinManager(&skin_, SkinMode::Default);
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::Default);
}

TEST_F(SkinTest, RingsOfParentsEnd) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  parent_->InitSkinManager(&skin_, SkinMode::Default);
  EXPECT_EQ(Resolved(skin_, 2), 0xFFFFFFu);
  EXPECT_FALSE(skin_.Slot(2).IsChanged());
}

TEST_F(SkinTest, FamiliesMayGoInAnyOrder) {
  auto child = std::make_unique<SkinManager>(SkinMode::Default);
  auto grandchild = std::make_unique<SkinManager>(SkinMode::Default);
  child->InitSkinManager(parent_.get(), SkinMode::Default);
  grandchild->InitSkinManager(child.get(), SkinMode::Default);
  skin_.InitSkinManager(child.get(), SkinMode::Default);
  parent_->Slot(2) = 0x010203;
  child.reset();
  EXPECT_EQ(Resolved(*grandchild, 2), 0x010203u);
  grandchild.reset();
  parent_.reset();
  EXPECT_EQ(Resolved(skin_, 2), 0x010203u) << "an orphan keeps the colours it shows";
  EXPECT_EQ(&skin_.GetParentSkinManager(), &skin_);
}

TEST_F(SkinTest, AReloadFollowsTheSystemAndKeepsExplicitColors) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Dark);
  parent_->SetSkinMode(SkinMode::Dark);
  parent_->Slot(3) = 0x040506;
  skin_.Slot(2) = 0x010203;
  for (const SystemScheme scheme : {SystemScheme::HighContrast, SystemScheme::Light}) {
    SetSystemScheme(scheme);
    const bool contrast = scheme == SystemScheme::HighContrast;
    parent_->ReloadPalette();
    skin_.ReloadPalette();
    EXPECT_EQ(skin_.GetSkinMode(), contrast ? SkinMode::HCMDark : SkinMode::Dark);
    EXPECT_EQ(Resolved(skin_, 11), contrast ? GetSysColor(COLOR_BTNFACE) : 0x333333u);
    EXPECT_EQ(Resolved(skin_, 2), 0x010203u);
    EXPECT_EQ(Resolved(skin_, 3), 0x040506u);
  }
  parent_->Slot(3) = 0x070809;
  EXPECT_EQ(Resolved(skin_, 3), 0x070809u) << "the parent's colour is not its own";
}

// -- Locks

TEST_F(SkinTest, LockedSlotsTakeNumbersAndWholeSkinsOnly) {
  skin_.LoadSkin(SkinMode::Custom, true, false);  // counts for the next palette
  skin_.LoadDefaultSkin(false);
  skin_.Slot(2) = SkinManagerColor(0x010101);
  EXPECT_EQ(Resolved(skin_, 2), 0xFFFFFFu);
  skin_.Slot(2) = 0x020202;
  EXPECT_EQ(Resolved(skin_, 2), 0x020202u);
  skin_.SetCustomSkin(SkinManager(SkinMode::Dark));
  EXPECT_EQ(Resolved(skin_, 2), 0x333333u);
}

// -- Notification

TEST_F(SkinTest, ExplicitChangesTellTheOwner) {
  skin_.Slot(2) = 1;
  skin_.Slot(2) = SkinManagerColor(2);
  skin_.Slot(2) + SkinManagerColor(1);
  skin_.Slot(2) - SkinManagerColor(1);
  skin_.Slot(2) & 0xFFFFUL;
  skin_.Slot(69) = 1;
  EXPECT_EQ(owner_.changes, 6);
  EXPECT_TRUE(skin_.GetColorChangeFlag());
  skin_.UpdateCustomColors();
  skin_.UpdateCustomColors();
  EXPECT_EQ(owner_.refreshes, 1);
  skin_.SetSkinMode(SkinMode::Dark);
  skin_.Slot(2) = SkinManagerColor();
  EXPECT_EQ(owner_.changes, 6) << "palettes and unset colours tell nobody";
  EXPECT_FALSE(skin_.GetColorChangeFlag());
  EXPECT_FALSE(skin_.Slot(2).IsChanged());
}

// -- Copies

TEST_F(SkinTest, ACopySpeaksForItself) {
  SkinManager copy(skin_);
  copy.Slot(2) = 1;
  EXPECT_EQ(owner_.changes, 0);
  EXPECT_FALSE(skin_.GetColorChangeFlag());
  EXPECT_TRUE(copy.GetColorChangeFlag());
  EXPECT_EQ(copy.GetPtr(), &copy);
}

TEST_F(SkinTest, CopiesShowAllOfASkinThatFollowsAnother) {
  auto source = std::make_unique<SkinManager>(SkinMode::Dark);
  source->InitSkinManager(parent_.get(), SkinMode::Dark);
  source->Slot(3) = 0x030303;
  SkinManager copy(*source);
  skin_.SetCustomSkin(*source);
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::Custom);
  EXPECT_EQ(owner_.changes, 1);
  source.reset();
  parent_->Slot(2) = 0x010101;
  for (const SkinManager* each : {&copy, &skin_}) {
    EXPECT_EQ(Resolved(*each, 2), 0x010101u);
    EXPECT_EQ(Resolved(*each, 3), 0x030303u);
  }
  parent_.reset();
  EXPECT_EQ(Resolved(copy, 2), 0x010101u);
  EXPECT_EQ(Resolved(skin_, 2), 0x010101u);
  SetSystemScheme(SystemScheme::HighContrast);
  skin_.ReloadPalette();
  EXPECT_EQ(Resolved(skin_, 2), 0x010101u) << "no palette is loaded over a custom skin";
}

TEST_F(SkinTest, ASkinThatFollowsThisOneMakesNoRing) {
  SkinManager child(SkinMode::Default);
  child.InitSkinManager(&skin_, SkinMode::Dark);
  skin_.Slot(2) = 0x010101;
  child.Slot(3) = 0x020202;
  skin_.SetCustomSkin(child);
  EXPECT_EQ(&skin_.GetParentSkinManager(), &skin_);
  EXPECT_EQ(Resolved(skin_, 2), 0x010101u);
  EXPECT_EQ(Resolved(skin_, 3), 0x020202u);
}

TEST_F(SkinTest, NumbersOutsideAreRefused) {
  EXPECT_THROW(skin_.Slot(-1), std::out_of_range);
  EXPECT_THROW(skin_.Slot(122), std::out_of_range);
}

}  // namespace
}  // namespace Wexa
