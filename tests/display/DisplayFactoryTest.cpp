#include <stdexcept>

#include "display/offscreen/OffscreenDisplay.h"
#include "graphics/Environment.h"
#include "platform/Font.h"
#include "support/Environment.h"

using support::Environment;
using testing::HasSubstr;

class DisplayFactoryTest : public testing::Test {
 protected:
  DisplayFactoryTest() { display::SetCurrent(nullptr); }
  ~DisplayFactoryTest() override { display::SetCurrent(nullptr); }
};

TEST_F(DisplayFactoryTest, ResolutionComesFromTheEnvironment) {
  const Environment dpi("WEXA_DPI", "144");
  EXPECT_EQ(display::Current().Dpi(), 144);
  EXPECT_EQ(GetScreenDpi(), 144);
  EXPECT_EQ(display::Current().WorkArea().right, 2880);
}

// Only where nothing names a server is the screen in memory; a user whose server fails hears of it.
TEST_F(DisplayFactoryTest, ChoosesByTheEnvironment) {
  struct Case {
    const char* wish;
    const char* server;
    std::string complaint;  // none: the screen in memory opens
  };
  const Case cases[] = {{nullptr, nullptr, ""},     {nullptr, "", ""},
                        {"offscreen", ":7654", ""}, {nullptr, ":7654", ":7654"},
                        {"x11", ":7654", ":7654"},  {"x11", nullptr, "no X server"},
                        {"paper", nullptr, "paper"}};
  for (const Case& each : cases) {
    const Environment wish("WEXA_DISPLAY", each.wish);
    const Environment server("DISPLAY", each.server);
    display::SetCurrent(nullptr);
    std::string complaint;
    try {
      EXPECT_NE(dynamic_cast<display::OffscreenDisplay*>(&display::Current()), nullptr);
    } catch (const std::runtime_error& error) {
      complaint = error.what();
    }
    EXPECT_EQ(complaint.empty(), each.complaint.empty());
    EXPECT_THAT(complaint, HasSubstr(each.complaint));
  }
}

TEST(EnvironmentTest, RefusedValuesAreNamedOnce) {
  const char* refused[] = {"47", "961", "0", "-96", "96x", " 96", "99999999999"};
  for (const char* value : refused) {
    const Environment dpi("WEXA_DPI", value);
    testing::internal::CaptureStderr();
    EXPECT_EQ(DpiOfEnvironment(), std::nullopt);
    EXPECT_EQ(DpiOfEnvironment(), std::nullopt);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "WEXA_DPI is \"" + std::string(value) +
                  "\": not a number from 48 to 960, so it counts for nothing\n");
  }
  const Environment contrast("WEXA_HIGH_CONTRAST", "yes");
  testing::internal::CaptureStderr();
  EXPECT_EQ(SchemeOfEnvironment(), std::nullopt);
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("WEXA_HIGH_CONTRAST is \"yes\""));
}

TEST(EnvironmentTest, TakesWhatItCanFollow) {
  const std::pair<const char*, std::optional<int>> resolutions[] = {
      {nullptr, {}}, {"", {}}, {"48", 48}, {"960", 960}};
  for (const auto& [value, dpi] : resolutions) {
    const Environment variable("WEXA_DPI", value);
    EXPECT_EQ(DpiOfEnvironment(), dpi);
  }
  const std::pair<const char*, std::optional<SystemScheme>> schemes[] = {
      {nullptr, {}}, {"1", SystemScheme::HighContrast}, {"0", SystemScheme::Light}};
  for (const auto& [value, scheme] : schemes) {
    const Environment variable("WEXA_HIGH_CONTRAST", value);
    EXPECT_EQ(SchemeOfEnvironment(), scheme);
  }
}
