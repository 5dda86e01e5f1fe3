#include <stdexcept>
#include <thread>

#include "display/x11/X11Display.h"
#include "support/Environment.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using support::Environment;

class X11SessionTest : public X11Test {};

// What is wrong with the display of that name.
std::string Opening(const char* name) {
  const Environment display("DISPLAY", name);
  try {
    OpenX11Display();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return {};
}

TEST_F(X11SessionTest, NoServerAndNoScreenAreNamedInTheError) {
  EXPECT_THAT(Opening(":4711"), testing::HasSubstr("no X server answers at display \":4711\""));
  const std::string noScreen = std::string(std::getenv("DISPLAY")) + ".7";
  EXPECT_THAT(Opening(noScreen.c_str()), testing::HasSubstr("no screen"));
}

// On a server of 16 bits.
TEST(DISABLED_ShallowScreen, IsRefusedByName) {
  EXPECT_THAT(Opening(std::getenv("DISPLAY")), testing::HasSubstr("no true colour"));
}

TEST_F(X11SessionTest, LosingTheServerThrows) {
  person_.Disconnect(OpenDialog());
  EXPECT_THROW(Next(Input::Kind::PointerMoved), std::runtime_error);
  EXPECT_THROW(display_->Wait(std::nullopt), std::runtime_error);
  display_->DestroySurface(kDialog);
}

TEST_F(X11SessionTest, WakeFromAnotherThreadEndsTheWait) {
  std::thread other([this] { display_->Wake(); });
  EXPECT_TRUE(display_->Wait(std::nullopt));
  other.join();
}

TEST_F(X11SessionTest, WaitEndsAtItsDeadline) {
  const std::uint64_t deadline = display_->Now() + 5;
  while (display_->Now() < deadline) display_->Wait(deadline);
  EXPECT_FALSE(display_->Poll());
}

TEST_F(X11SessionTest, ResolutionComesFromTheResourceDatabase) {
  const Environment free("WEXA_DPI", nullptr);
  EXPECT_EQ(display_->Dpi(), 96);
  person_.SetRootProperty("RESOURCE_MANAGER", "Xft.dpi:\t144\nXft.antialias:\t1\n");
  const auto changed = Next(Input::Kind::ResolutionChanged);
  ASSERT_TRUE(changed);
  EXPECT_EQ(changed->dpi, 144);
  EXPECT_EQ(display_->Dpi(), 144);
  EXPECT_EQ(OpenX11Display()->Dpi(), 144);
  person_.SetRootProperty("RESOURCE_MANAGER", "");
  EXPECT_EQ(Next(Input::Kind::ResolutionChanged)->dpi, 96);
  const Environment wished("WEXA_DPI", "120");
  EXPECT_EQ(OpenX11Display()->Dpi(), 120);
}

}  // namespace
}  // namespace display
