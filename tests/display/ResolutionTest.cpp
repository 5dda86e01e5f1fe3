#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Font.h"

// Run alone, with WEXA_DPI=144: nothing but the question has opened the display.
TEST(ResolutionTest, TheFirstQuestionOpensTheDisplay) {
  const char* dpi = std::getenv("WEXA_DPI");
  EXPECT_EQ(GetScreenDpi(), dpi ? std::atoi(dpi) : 96);
}
