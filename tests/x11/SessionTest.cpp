#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "display/x11/X11Display.h"
#include "x11/X11Test.h"

namespace display {
namespace {

// Sets a variable of the environment and puts the old value back; null removes it.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Set(value);
  }
  ~Environment() { Set(old_ ? old_->c_str() : nullptr); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  void Set(const char* value) { value ? setenv(name_, value, 1) : unsetenv(name_); }

  const char* name_;
  std::optional<std::string> old_;
};

class X11SessionTest : public X11Test {};

TEST_F(X11SessionTest, NoServerIsNamedInTheError) {
  const Environment none("DISPLAY", ":4711");
  try {
    OpenX11Display();
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("\":4711\""));
  }
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
}

TEST_F(X11SessionTest, EnvironmentOverridesTheResolution) {
  const Environment dpi("WEXA_DPI", "120");
  EXPECT_EQ(OpenX11Display()->Dpi(), 120);
}

TEST_F(X11SessionTest, NonsenseResolutionIsAnError) {
  const Environment dpi("WEXA_DPI", "much");
  EXPECT_THROW(OpenX11Display()->Dpi(), std::runtime_error);
}

}  // namespace
}  // namespace display
