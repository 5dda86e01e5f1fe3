#include "WexaConfig.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "Configuration.h"
#include "FileText.h"
#include "Utf8.h"
#include "WexaLogger.h"

namespace Wexa {
namespace {

// The configuration is one for the process: each test puts back what it changed.

TEST(WexaConfig, StartsWithItsDefaults) {
  EXPECT_EQ(GetContextMenuRadius(), 10);
  EXPECT_EQ(GetCheckboxRadius() + GetComboboxRadius() + GetEditRadius(), 0);
  EXPECT_EQ(GetDecimalChar(), '.');
  EXPECT_FALSE(GetLayoutRTL());
  EXPECT_TRUE(ExpectsEncryptedLanguageFiles());
  EXPECT_EQ(GetCurrentLanguage(), L"");
  EXPECT_EQ(GetGlobalSkinMode(), SkinMode::Default);
  EXPECT_EQ(GetFontInfo(), GetFontInfo());
  EXPECT_EQ(GetFontInfo()->faceName, L"Tahoma");
  EXPECT_EQ(GetFontInfo()->height, 90);
}

TEST(WexaConfig, WorksInTheDirectoryOfTheHost) {
  const auto program = std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + "/";
  EXPECT_EQ(GetWorkingDirPath(), WidenUtf8(program));
}

TEST(WexaConfig, PathsThatAreNotUtf8KeepTheirBytes) {
  const std::string path = "/\xC3\xA9/\xFF\x80/a\xC3";
  EXPECT_EQ(WidePath(path), L"/\u00E9/\xDCFF\xDC80/a\xDCC3");
  EXPECT_EQ(NativePath(WidePath(path)), path);
}

TEST(WexaConfig, FindsTheDirectoriesOfAComponent) {
  const auto before = GetWorkingDirPath();
  SetWorkingDirPath(L"C:\\App\\");
  EXPECT_EQ(GetUiDirPath(L"dlg\\"), L"C:\\App\\wexaresources\\dlg\\ui\\");
  EXPECT_EQ(GetImageDirPath(L""), L"C:\\App\\wexaresources\\img\\");
  SetWorkingDirPath(before);
}

TEST(WexaConfig, FullPathsAreDirectoriesByThemselves) {
  EXPECT_EQ(GetUiDirPath(L"D:\\forms\\"), L"D:\\forms\\");
  EXPECT_EQ(GetUiDirPath(L"D:/forms/"), L"D:/forms/");
  EXPECT_EQ(GetImageDirPath(L"/usr/share/pictures/"), L"/usr/share/pictures/");
  EXPECT_EQ(GetImageDirPath(L"\\\\server\\share\\"), L"\\\\server\\share\\");
  EXPECT_EQ(GetUiDirPath(L"d:"), GetWorkingDirPath() + L"wexaresources\\d:ui\\");
}

TEST(WexaConfig, RadiiAreKeptApart) {
  struct Radius {
    int (*get)();
    void (*set)(int);
  };
  const Radius radii[] = {{GetCheckboxRadius, SetCheckboxRadius},
                          {GetComboboxRadius, SetComboboxRadius},
                          {GetEditRadius, SetEditRadius},
                          {GetContextMenuRadius, SetContextMenuRadius}};
  const auto read = [&] {
    std::vector<int> values;
    for (const Radius& radius : radii) values.push_back(radius.get());
    return values;
  };
  for (int i = 0; i < 4; ++i) radii[i].set(i + 1);
  EXPECT_THAT(read(), testing::ElementsAre(1, 2, 3, 4));
  for (const Radius& radius : radii) radius.set(radius.set == SetContextMenuRadius ? 10 : 0);
}

TEST(WexaConfig, GlobalSkinsRefuseUnknownModes) {
  EXPECT_TRUE(SetGlobalSkinMode(SkinMode::Dark));
  EXPECT_EQ(GetGlobalSkinMode(), SkinMode::Dark);
  EXPECT_FALSE(SetGlobalSkinMode(SkinMode::Custom));
  EXPECT_EQ(GetGlobalSkinMode(), SkinMode::Dark);
  EXPECT_TRUE(SetGlobalCustomSkin(SkinManager(SkinMode::Default)));
  EXPECT_EQ(GetGlobalSkinMode(), SkinMode::Custom);
  EXPECT_TRUE(WexaConfig::Instance().globalSkin.Slot(2) == 0xFFFFFF) << "locked or not";
  WexaConfig::Instance().globalSkin = SkinManager(SkinMode::Default);
  WexaConfig::Instance().globalSkin.SetSkinMode(SkinMode::Default);
}

TEST(WexaConfig, KeyMapsGoToTheKeyMapSkin) {
  InitSkinColorByMap(SkinMap::Buttons, {{L"White_BG", 0x010203UL}});
  auto& skin = WexaConfig::Instance().keyMapSkin;
  EXPECT_TRUE(skin.IsKeyMapApplied());
  EXPECT_TRUE(skin.Slot(78) == 0x010203);
  EXPECT_TRUE(skin.Slot(115) == 0x010203);
}

TEST(WexaConfig, WritesTheLogAsUtf8) {
  const std::string path = testing::TempDir() + "/log_test";
  std::ofstream(path) << "an older and longer text";
  WexaLogger::GetInstance().LogInfo(L"\u4E3C");
  WriteLogToFile(path);
  const auto log = ReadFile(*WidenUtf8(path));
  ASSERT_TRUE(log.has_value());
  EXPECT_TRUE(log->starts_with("Info: \xE4\xB8\xBC\n"));
  EXPECT_EQ(log->find("older"), std::string::npos);
  WriteLogToFile("/no/such/folder/log");
}

}  // namespace
}  // namespace Wexa
