#include <gtest/gtest.h>

#include <algorithm>

#include "TestCanvas.h"
#include "platform/Font.h"

namespace {

constexpr const wchar_t* kMixed = L"ab אבג cd";

TextLine Line(std::wstring_view text, bool rightToLeft = false) {
  return TextLine(nullptr, text, rightToLeft);
}

}  // namespace

TEST(TextLine, EmptyLineHasOneCaretPlace) {
  TextLine line = Line(L"");
  EXPECT_EQ(line.Width(), 0);
  EXPECT_EQ(line.XOfIndex(0), 0);
  EXPECT_EQ(line.XOfIndex(7), 0);
  EXPECT_EQ(line.IndexOfX(50), 0u);
  EXPECT_EQ(line.MoveVisually(0, 1), 0u);
  EXPECT_EQ(line.MoveVisually(0, -1), 0u);
  EXPECT_EQ(line.NextCluster(0), 0u);
  EXPECT_EQ(line.PreviousWord(0), 0u);
  EXPECT_TRUE(line.Ranges(0, 5).empty());
}

TEST(TextLine, CaretsAdvanceWithTheText) {
  TextLine line = Line(L"Hello wide World");
  EXPECT_EQ(line.XOfIndex(0), 0);
  EXPECT_EQ(line.XOfIndex(16), line.Width());
  EXPECT_NEAR(line.Width(), GetTextExtent(nullptr, L"Hello wide World").cx, 1);
  for (std::size_t i = 0; i < 16; ++i) EXPECT_LT(line.XOfIndex(i), line.XOfIndex(i + 1));
}

TEST(TextLine, NearestCaretIsFound) {
  TextLine line = Line(L"mmmm");
  int width = line.XOfIndex(1);
  EXPECT_EQ(line.IndexOfX(-20), 0u);
  EXPECT_EQ(line.IndexOfX(width / 2 - 2), 0u);
  EXPECT_EQ(line.IndexOfX(width / 2 + 2), 1u);
  EXPECT_EQ(line.IndexOfX(10000), 4u);
  for (std::size_t i = 0; i <= 4; ++i) EXPECT_EQ(line.IndexOfX(line.XOfIndex(i)), i);
}

TEST(TextLine, RightToLeftTextStartsAtTheRight) {
  TextLine line = Line(L"אבג", true);
  EXPECT_EQ(line.XOfIndex(0), line.Width());
  EXPECT_EQ(line.XOfIndex(3), 0);
  EXPECT_EQ(line.MoveVisually(0, -1), 1u);
  EXPECT_EQ(line.MoveVisually(1, 1), 0u);
  EXPECT_EQ(line.MoveVisually(0, 1), 0u);
}

TEST(TextLine, VisualMovementVisitsEveryPlaceOnce) {
  TextLine line = Line(kMixed);
  std::vector<std::size_t> places{0};
  while (line.MoveVisually(places.back(), 1) != places.back() && places.size() < 20) {
    places.push_back(line.MoveVisually(places.back(), 1));
  }
  EXPECT_EQ(places.back(), 9u);
  EXPECT_GE(places.size(), 9u);
  EXPECT_LE(places.size(), 11u);
}

TEST(TextLine, SelectionOfMixedTextMayHaveSeveralRanges) {
  TextLine line = Line(kMixed);
  int covered = 0;
  for (auto [left, right] : line.Ranges(0, 9)) covered += right - left;
  EXPECT_EQ(covered, line.Width());
  auto ranges = line.Ranges(1, 5);
  ASSERT_EQ(ranges.size(), 2u);
  for (auto [left, right] : ranges) EXPECT_LT(left, right);
  EXPECT_TRUE(line.Ranges(4, 4).empty());
  EXPECT_TRUE(line.Ranges(50, 90).empty());
}

TEST(TextLine, MixedTextStandsAsUnicodeSays) {
  const auto order = [](std::wstring_view text, bool rightToLeft) {
    const TextLine line = Line(text, rightToLeft);
    std::vector<std::pair<int, std::size_t>> places;
    for (std::size_t i = 0; i < text.size(); ++i)
      places.emplace_back(line.Ranges(i, i + 1).at(0).first, i);
    std::ranges::sort(places);
    std::string indexes;
    for (const auto& [left, index] : places) indexes += std::to_string(index);
    return indexes;
  };
  EXPECT_EQ(order(kMixed, false), "012543678");
  EXPECT_EQ(order(kMixed, true), "786543201");
  EXPECT_EQ(order(L"אב 12", true), "34210");
  EXPECT_EQ(order(L"אב (x)", true), "543210") << "brackets go with what is around them";
}

TEST(TextLine, CombiningMarksBelongToTheirBase) {
  TextLine line = Line(L"ae\u0301\u0323b");
  EXPECT_EQ(line.NextCluster(1), 4u);
  EXPECT_EQ(line.PreviousCluster(4), 1u);
  EXPECT_EQ(line.MoveVisually(1, 1), 4u);
  EXPECT_EQ(line.MoveVisually(4, -1), 1u);
  for (int x = 0; x <= line.Width(); ++x) {
    std::size_t index = line.IndexOfX(x);
    EXPECT_TRUE(index != 2 && index != 3) << x;
  }
}

TEST(TextLine, WordsAreFoundInBothDirections) {
  TextLine line = Line(L"one  two, three");
  EXPECT_EQ(line.NextWord(0), 5u);
  EXPECT_EQ(line.NextWord(5), 10u);
  EXPECT_EQ(line.NextWord(10), 15u);
  EXPECT_EQ(line.PreviousWord(15), 10u);
  EXPECT_EQ(line.PreviousWord(10), 5u);
  EXPECT_EQ(line.PreviousWord(5), 0u);
  EXPECT_EQ(line.PreviousWord(0), 0u);
}

TEST(TextLine, IndicesCountCodePointsBeyondTheBasicPlane) {
  TextLine line = Line(L"a\U0001F600b");
  EXPECT_EQ(line.NextCluster(1), 2u);
  EXPECT_EQ(line.XOfIndex(3), line.Width());
  EXPECT_EQ(line.IndexOfX(line.Width()), 3u);
}

TEST(TextLine, IndicesOutOfRangeMeanTheEnd) {
  TextLine line = Line(L"abc");
  EXPECT_EQ(line.XOfIndex(99), line.Width());
  EXPECT_EQ(line.NextCluster(99), 3u);
  EXPECT_EQ(line.PreviousCluster(99), 3u);
  EXPECT_EQ(line.NextWord(static_cast<std::size_t>(-1)), 3u);
  EXPECT_EQ(line.MoveVisually(99, 1), 3u);
}

TEST(TextLine, DrawsWhereItsCaretsAreAlsoMirrored) {
  const TextLine line = Line(L"HH");
  const LONG bottom = 10 + GetFontMetrics(nullptr).height;
  for (const bool mirrored : {false, true}) {
    TestCanvas canvas(100, 40);
    if (mirrored) canvas.context.mirrorWidth = 100;
    canvas.Paint([&](Painter& p) { p.Text(line, 30, 10, kBlack); });
    const int left = mirrored ? 70 - line.Width() : 30;
    EXPECT_TRUE(CRect(left, 10, left + line.Width(), bottom).Contains(canvas.Ink()));
    EXPECT_FALSE(canvas.Ink().IsEmpty());
  }
}
