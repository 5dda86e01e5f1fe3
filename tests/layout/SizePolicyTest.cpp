#include "SizePolicy.h"

#include <gtest/gtest.h>

#include <cstring>

namespace Wexa {
namespace {

std::uint32_t WordOf(const SizePolicy& policy) {
  std::uint32_t word = 0;
  static_assert(sizeof word == sizeof policy);
  std::memcpy(&word, &policy, sizeof word);
  return word;
}

TEST(SizePolicyTest, IsOneWordWithPublicLayout) {
  SizePolicy policy(SizePolicy::Expanding, SizePolicy::Ignored);
  policy.SetHorizontalStretch(3);
  policy.SetVerticalStretch(4);
  policy.SetHeightForWidth(true);
  EXPECT_EQ(WordOf(policy), 0x20D70403u);
  policy.SetHeightForWidth(false);
  EXPECT_EQ(WordOf(policy), 0x00D70403u);
  EXPECT_EQ(WordOf(SizePolicy()), 0u);
}

TEST(SizePolicyTest, ValuesStayWithinTheirBits) {
  SizePolicy policy(static_cast<SizePolicy::Policy>(0xF7), SizePolicy::Fixed);
  policy.SetHorizontalStretch(300);
  policy.SetVerticalStretch(-5);
  EXPECT_EQ(WordOf(policy), 0x000700FFu);
  EXPECT_EQ(policy.GetHorizontalStretch(), 255);
  EXPECT_EQ(policy.GetVerticalPolicy(), SizePolicy::Fixed);
}

TEST(SizePolicyTest, ExpandsWhereThePolicySaysSo) {
  using P = SizePolicy;
  EXPECT_EQ(P(P::Expanding, P::Fixed).ExpandingDirections(), Orientation::Horizontal);
  EXPECT_EQ(P(P::MinimumExpanding, P::MinimumExpanding).ExpandingDirections(), Orientation::Both);
  EXPECT_EQ(P(P::Ignored, P::Minimum).ExpandingDirections(), Orientation::None);
}

}  // namespace
}  // namespace Wexa
