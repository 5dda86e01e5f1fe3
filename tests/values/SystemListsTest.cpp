// What the utilities tell of fonts and of versions.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <rapidxml/rapidxml.hpp>

#include "WexaUtils.h"

namespace Wexa {
namespace {

TEST(SystemFonts, EachFamilyIsListedOnceInOrder) {
  std::vector<FontData> fonts;
  fonts.push_back({.faceName = L"Zz"});
  ASSERT_TRUE(WexaUtils::GetSystemFonts(fonts, false));
  EXPECT_TRUE(std::ranges::is_sorted(fonts, {}, &FontData::faceName));
  EXPECT_EQ(fonts.back().faceName, L"Zz") << "what was there before is sorted too";
  const auto isSans = [](const FontData& font) { return font.faceName == L"DejaVu Sans"; };
  ASSERT_EQ(std::ranges::count_if(fonts, isSans), 1);
  const FontData sans = *std::ranges::find_if(fonts, isSans);
  EXPECT_EQ(sans.pointSize, -1.0);
  EXPECT_EQ(sans.bold, -1);
  EXPECT_EQ(sans.italic, -1);
  EXPECT_EQ(sans.underline, -1);
  EXPECT_EQ(sans.specialFont, 0);
}

TEST(SystemFonts, OnlyLettersWhenAskedFor) {
  std::vector<FontData> all;
  std::vector<FontData> letters;
  WexaUtils::GetSystemFonts(all, false);
  WexaUtils::GetSystemFonts(letters, true);
  std::erase_if(all, [](const FontData& font) { return font.specialFont != 0; });
  EXPECT_EQ(all, letters);
}

TEST(SystemFonts, TheSymbolFontsAreListed) {
  EXPECT_EQ(WexaUtils::symbol_fonts.size(), 34u);
  EXPECT_EQ(WexaUtils::symbol_fonts.front(), L"Apple Braille");
  EXPECT_EQ(WexaUtils::symbol_fonts[20], L"Wingdings");
  EXPECT_EQ(WexaUtils::symbol_fonts.back(), L"Candid");
}

TEST(ModuleVersion, IsToldByAModuleThatIsLoaded) {
  const std::string path = WEXA_VERSION_MODULE;
  const std::wstring name(path.begin(), path.end());
  EXPECT_EQ(WexaUtils::GetVersion(name), 0u) << "not loaded";
  void* module = dlopen(path.c_str(), RTLD_NOW);
  ASSERT_TRUE(module) << dlerror();
  EXPECT_EQ(WexaUtils::GetVersion(name), 6u << 16 | 10u);
  EXPECT_EQ(WexaUtils::GetVersion(name.substr(name.rfind(L'/') + 1)), 6u << 16 | 10u);
  dlclose(module);
  EXPECT_EQ(WexaUtils::GetVersion(name), 0u) << "asking did not keep it";
  EXPECT_EQ(WexaUtils::GetVersion(L"libc.so.6"), 0u) << "it does not tell";
}

class VersionInfo : public testing::Test {
 protected:
  ~VersionInfo() override { std::filesystem::remove(path_); }

  bool Read(const std::string& xml) {
    std::ofstream(path_, std::ios::binary) << xml;
    return WexaUtils::GetPluginVersionInfo(path_.wstring(), info_);
  }

  std::filesystem::path path_ = testing::TempDir() + "wexa-version.xml";
  PluginVersionInfo info_;
};

TEST_F(VersionInfo, IsReadFromTheRootsChildren) {
  ASSERT_TRUE(
      Read("<Ostrel><language>Čeština</language><version>1.2</version>"
           "<VerDes><item name='FileDescription' value='Viewer'/><other name='no value'/></VerDes>"
           "<VerLeg><item name='Copyright' value='2020'/></VerLeg></Ostrel>"));
  EXPECT_EQ(info_.language, L"Čeština");
  EXPECT_EQ(info_.version, L"1.2");
  ASSERT_EQ(info_.description.size(), 1u);
  EXPECT_EQ(info_.description[L"FileDescription"], L"Viewer");
  EXPECT_EQ(info_.legal[L"Copyright"], L"2020");
}

TEST_F(VersionInfo, MissingElementsAreEmpty) {
  info_.language = L"left over";
  ASSERT_TRUE(Read("<Ostrel><Version>3</Version></Ostrel>"));
  EXPECT_EQ(info_.version, L"3");
  EXPECT_EQ(info_.language, L"");
  EXPECT_TRUE(info_.legal.empty());
  EXPECT_FALSE(Read("<Other/>"));
  EXPECT_EQ(info_.version, L"");
}

TEST_F(VersionInfo, WhatCannotBeReadThrows) {
  EXPECT_THROW(Read("<Ostrel>"), rapidxml::parse_error);
  try {
    WexaUtils::GetPluginVersionInfo(L"no/such/file.xml", info_);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const rapidxml::parse_error& error) {
    EXPECT_STREQ(error.what(), "error reading stream");
  }
}

}  // namespace
}  // namespace Wexa
