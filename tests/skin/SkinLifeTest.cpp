#include <gtest/gtest.h>

#include <memory>

#include "SkinManager.h"
#include "platform/SystemColors.h"

namespace Wexa {
namespace {

unsigned long Shown(const SkinManager& skin, int slot) {
  return skin.Slot(slot);
}

class SkinLife : public testing::Test {
 protected:
  ~SkinLife() override { SetSystemScheme(SystemScheme::Light); }

  std::unique_ptr<SkinManager> parent_ = std::make_unique<SkinManager>(SkinMode::Default);
  SkinManager skin_{SkinMode::Default};
};

TEST_F(SkinLife, AnOrphanKeepsTheColorsItShows) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  parent_->Slot(2) = 0x010203;
  parent_.reset();
  EXPECT_EQ(Shown(skin_, 2), 0x010203u);
  EXPECT_EQ(&skin_.GetParentSkinManager(), &skin_);
  skin_.LoadSkin(SkinMode::XML, false, false);
  EXPECT_TRUE(skin_.SetSkinMode(SkinMode::Dark));
  EXPECT_EQ(Shown(skin_, 2), 0x333333u);
}

TEST_F(SkinLife, SlotsThatAPaletteLeavesUntouchedLetGoOfADetachedParent) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  skin_.SetSkinMode(SkinMode::Dark);
  parent_->Slot(37) = 0x010203;
  EXPECT_EQ(Shown(skin_, 37), 0xFFFFFFu);
  parent_.reset();
  EXPECT_EQ(Shown(skin_, 37), 0xFFFFFFu);
}

TEST_F(SkinLife, SlotsThatAPaletteLeavesUntouchedMoveToTheNewParent) {
  SkinManager other(SkinMode::Default);
  other.Slot(37) = 0x040506;
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  skin_.InitSkinManager(&other, SkinMode::Dark);
  EXPECT_EQ(Shown(skin_, 37), 0x040506u);
}

TEST_F(SkinLife, AParentThatNeverCountedMayGo) {
  skin_.SetParentSkinManager(parent_.get());
  parent_.reset();
  EXPECT_TRUE(skin_.LoadSkin(SkinMode::Default, false, false));
  EXPECT_EQ(Shown(skin_, 2), 0xFFFFFFu);
}

TEST_F(SkinLife, CopiesOfOrphansAreSafe) {
  skin_.InitSkinManager(parent_.get(), SkinMode::Default);
  parent_->Slot(2) = 0x010203;
  SkinManager copy(skin_);
  SkinManager custom(SkinMode::Default);
  custom.SetCustomSkin(skin_);
  parent_.reset();
  EXPECT_EQ(Shown(copy, 2), 0x010203u);
  EXPECT_EQ(Shown(custom, 2), 0x010203u);
}

TEST_F(SkinLife, FamiliesMayGoInAnyOrder) {
  auto child = std::make_unique<SkinManager>(SkinMode::Default);
  auto grandchild = std::make_unique<SkinManager>(SkinMode::Default);
  child->InitSkinManager(parent_.get(), SkinMode::Default);
  grandchild->InitSkinManager(child.get(), SkinMode::Default);
  skin_.InitSkinManager(child.get(), SkinMode::Default);
  parent_->Slot(2) = 0x010203;
  child.reset();
  EXPECT_EQ(Shown(*grandchild, 2), 0x010203u);
  grandchild.reset();
  parent_.reset();
  EXPECT_EQ(Shown(skin_, 2), 0x010203u);
}

TEST_F(SkinLife, AReloadFollowsTheSystemAndKeepsExplicitColors) {
  skin_.SetSkinMode(SkinMode::Dark);
  skin_.Slot(2) = 0x010203;
  SetSystemScheme(SystemScheme::HighContrast);
  skin_.ReloadPalette();
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::HCMDark);
  EXPECT_EQ(Shown(skin_, 11), GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(Shown(skin_, 2), 0x010203u);
  SetSystemScheme(SystemScheme::Light);
  skin_.ReloadPalette();
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::Dark);
  EXPECT_EQ(Shown(skin_, 11), 0x333333u);
  EXPECT_EQ(Shown(skin_, 2), 0x010203u);
}

TEST_F(SkinLife, ACustomSkinIsNotReloaded) {
  skin_.SetCustomSkin(SkinManager(SkinMode::Dark));
  SetSystemScheme(SystemScheme::HighContrast);
  skin_.ReloadPalette();
  EXPECT_EQ(skin_.GetSkinMode(), SkinMode::Custom);
  EXPECT_EQ(Shown(skin_, 2), 0x333333u);
}

}  // namespace
}  // namespace Wexa
