#include "display/x11/SettingsData.h"
#include "display/x11/X11Display.h"
#include "support/x11/SettingsManager.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;
using support::DesktopSettings;
using support::SettingsBytes;
using support::SettingsManager;

class X11SettingsTest : public X11Test {};

TEST_F(X11SettingsTest, ThemeOfTheDesktopChoosesTheColours) {
  const std::pair<const char*, SystemScheme> themes[] = {
      {"Plain", SystemScheme::Light},
      {"", SystemScheme::Light},
      {"Contrast", SystemScheme::Light},
      {"HighContrast", SystemScheme::HighContrast},
      {"some high-CONTRAST dark", SystemScheme::HighContrast},
      {"ContrastHighInverse", SystemScheme::HighContrast},
      {"Plain-Dark", SystemScheme::Dark},
      {"plain-dark-blue", SystemScheme::Dark},
      {"Plain-Darker", SystemScheme::Light},
  };
  for (const auto& [theme, scheme] : themes) {
    const SettingsManager manager(person_, DesktopSettings(theme, 250));
    EXPECT_EQ(OpenX11Display()->Scheme(), scheme) << theme;
  }
}

TEST_F(X11SettingsTest, ChangesAreReportedOnce) {
  EXPECT_EQ(display_->Scheme(), SystemScheme::Light);
  EXPECT_EQ(display_->DoubleClickTime(), 500u);
  std::optional<SettingsManager> manager(std::in_place, person_,
                                         DesktopSettings("HighContrast", 250, true));
  EXPECT_EQ(All(Kind::ColorsChanged).size(), 1u);
  EXPECT_EQ(display_->Scheme(), SystemScheme::HighContrast);
  EXPECT_EQ(display_->DoubleClickTime(), 250u);
  manager->Set(DesktopSettings("HighContrast", 300));
  EXPECT_TRUE(All(Kind::ColorsChanged).empty());
  EXPECT_EQ(display_->DoubleClickTime(), 300u);
  manager->Set(DesktopSettings("Plain", 300));
  EXPECT_EQ(All(Kind::ColorsChanged).size(), 1u);
  manager.emplace(person_, DesktopSettings("HighContrast", 300));
  EXPECT_EQ(All(Kind::ColorsChanged).size(), 1u);
}

TEST_F(X11SettingsTest, LeavingManagerAndRubbishChangeNothing) {
  std::optional<SettingsManager> manager(std::in_place, person_,
                                         DesktopSettings("HighContrast", 250));
  EXPECT_EQ(display_->Scheme(), SystemScheme::HighContrast);
  manager->Set(DesktopSettings("Plain", 250).substr(0, 40));
  EXPECT_TRUE(All(Kind::ColorsChanged).empty());
  manager.reset();
  EXPECT_TRUE(All(Kind::ColorsChanged).empty());
  EXPECT_EQ(display_->Scheme(), SystemScheme::HighContrast);
}

TEST(SettingsDataTest, BytesInBothOrdersAreRead) {
  for (const bool bigEndian : {false, true}) {
    const auto settings = x11::ReadSettings(DesktopSettings("Theme", 400, bigEndian));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->numbers.at("Net/DoubleClickTime"), 400);
    EXPECT_EQ(settings->texts.at("Net/ThemeName"), "Theme");
    EXPECT_EQ(settings->texts.size() + settings->numbers.size(), 2u);
  }
}

TEST(SettingsDataTest, MalformedBytesAreNoSettings) {
  const std::string good = DesktopSettings("Theme", 400);
  for (std::size_t length = 0; length < good.size(); ++length) {
    EXPECT_FALSE(x11::ReadSettings(good.substr(0, length))) << length;
  }
  EXPECT_FALSE(x11::ReadSettings(SettingsBytes().Number(~0u, 4).Get()));
  EXPECT_FALSE(
      x11::ReadSettings(SettingsBytes().Number(1, 4).Begin(9, "Unknown").Number(0, 4).Get()));
  EXPECT_FALSE(
      x11::ReadSettings(SettingsBytes().Number(1, 4).Begin(1, "Huge").Number(~0u, 4).Get()));
  EXPECT_FALSE(x11::ReadSettings("\2" + good.substr(1)));
}

}  // namespace
}  // namespace display
