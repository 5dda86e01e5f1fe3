#include "platform/Painter.h"

#include <gtest/gtest.h>

#include "TestCanvas.h"

namespace {

// Every pixel: `color` where inside says so, white elsewhere.
void ExpectPixels(const TestCanvas& canvas, COLORREF color,
                  const std::function<bool(int, int)>& inside) {
  canvas.ForEachPixel([&](int x, int y, COLORREF found) {
    EXPECT_EQ(found, inside(x, y) ? color : kWhite) << "at " << x << ", " << y;
  });
}

std::function<bool(int, int)> In(const CRect& rect) {
  return [rect](int x, int y) { return rect.Contains(POINT{x, y}); };
}

}  // namespace

TEST(Painter, FillsAndFramesExactlyTheRectangle) {
  struct Case {
    RECT rect;
    int frame;     // its width; 0 fills
    RECT without;  // the inside that stays white
  };
  const Case cases[] = {{{2, 3, 9, 7}, 0, {}},
                        {{2, 1, 3, 4}, 0, {}},
                        {{1, 1, 11, 11}, 2, {3, 3, 9, 9}},
                        {{1, 1, 4, 7}, 5, {}}};
  for (const Case& each : cases) {
    for (const bool mirrored : {false, true}) {
      TestCanvas canvas(12, 12);
      if (mirrored) canvas.context.mirrorWidth = 12;
      canvas.Paint([&](Painter& p) {
        each.frame ? p.FrameRect(each.rect, kRed, each.frame) : p.FillRect(each.rect, kRed);
      });
      ExpectPixels(canvas, kRed, [&](int x, int y) {
        const int place = mirrored ? 11 - x : x;
        return In(each.rect)(place, y) && !In(each.without)(place, y);
      });
    }
  }
}

TEST(Painter, TransparencyMixesAndInvisibleChangesNothing) {
  TestCanvas canvas(4, 1);
  canvas.Paint([](Painter& p) {
    p.FillRect({0, 0, 1, 1}, 0x80000000u | kBlack);
    p.FillRect({1, 0, 2, 1}, 0xFF000000u | kBlack);
  });
  EXPECT_EQ(canvas.At(0, 0), RGB(128, 128, 128));
  EXPECT_EQ(canvas.At(1, 0), kWhite);
}

TEST(Painter, OriginMovesAndClipLimits) {
  TestCanvas canvas(12, 12);
  canvas.context.origin = {3, 2};
  canvas.context.clip = PixelRegion(RECT{4, 4, 9, 9});
  canvas.context.clip.Subtract(RECT{6, 6, 7, 7});
  canvas.Paint([](Painter& p) { p.FillRect({0, 0, 20, 5}, kRed); });
  ExpectPixels(canvas, kRed, [](int x, int y) {
    return In({4, 4, 9, 7})(x, y) && !In({6, 6, 7, 7})(x, y);
  });
}

TEST(Painter, EveryOperationStaysInsideTheClip) {
  TestCanvas canvas(40, 40);
  CRect allowed(10, 12, 31, 29);
  canvas.context.clip = PixelRegion(allowed);
  CRect all(0, 0, 40, 40);
  canvas.Paint([&](Painter& p) {
    p.FillRoundRect(all, 15, kRed);
    p.FrameRoundRect(all.Shrunk(8, 8), 9, kBlack, 3);
    p.FillEllipse(all, kRed);
    p.FrameEllipse(all.Shrunk(9, 9), kBlack);
    p.FocusRect(all.Shrunk(11, 11), kBlack);
    p.CheckMark(all, kBlack);
    p.Arrow(all, ArrowDirection::Left, kBlack);
    p.Cross(all, kBlack);
    p.Text(L"MWgj MWgj MWgj", all, DT_VCENTER, nullptr, kBlack);
    p.Text(TextLine(nullptr, L"MWgj MWgj", false), 0, 5, kBlack);
  });
  EXPECT_EQ(canvas.Ink(), allowed);
}

TEST(Painter, PushedClipsNestAndEndWithThePainter) {
  TestCanvas canvas(10, 10);
  HDC dc = CreateDeviceContext(canvas.context);
  {
    Painter painter(dc);
    painter.PushClip({0, 0, 5, 10});
    painter.PushClip({3, 0, 10, 10});
    EXPECT_TRUE(painter.IsClippedOut({0, 0, 3, 10}));
    painter.FillRect({0, 0, 10, 1}, kRed);
    painter.PopClip();
    painter.FillRect({0, 1, 10, 2}, kRed);
  }
  Painter(dc).FillRect({0, 2, 10, 3}, kRed);
  DeleteDeviceContext(dc);
  EXPECT_EQ(canvas.Count(kRed), 2 + 5 + 10);
}

TEST(Painter, PopWithoutPushKeepsTheOuterPaintersClip) {
  TestCanvas canvas(10, 10);
  HDC dc = CreateDeviceContext(canvas.context);
  Painter outer(dc);
  outer.PushClip({0, 0, 5, 5});
  Painter(dc).PopClip();
  EXPECT_TRUE(outer.IsClippedOut({6, 6, 8, 8}));
  DeleteDeviceContext(dc);
}

TEST(Painter, MirroredContextSwapsSideArrowsAndKeepsCheckMarks) {
  auto draw = [](bool mirrored, const std::function<void(Painter&)>& paint) {
    TestCanvas canvas(20, 20);
    if (mirrored) canvas.context.mirrorWidth = 20;
    canvas.Paint(paint);
    return canvas.Pixels();
  };
  RECT all{0, 0, 20, 20};
  auto arrow = [&](ArrowDirection direction) {
    return [=](Painter& p) { p.Arrow(all, direction, kBlack); };
  };
  auto check = [&](Painter& p) { p.CheckMark(all, kBlack); };
  EXPECT_EQ(draw(true, arrow(ArrowDirection::Left)), draw(false, arrow(ArrowDirection::Right)));
  EXPECT_EQ(draw(true, arrow(ArrowDirection::Up)), draw(false, arrow(ArrowDirection::Up)));
  EXPECT_EQ(draw(true, check), draw(false, check));
}

TEST(Painter, RoundShapesAreSymmetricAndFillTheirBox) {
  for (int width : {9, 10, 21}) {
    TestCanvas canvas(30, 20);
    CRect box(3, 2, 3 + width, 15);
    canvas.Paint([&](Painter& p) { p.FillRoundRect(box, 5, kBlack); });
    EXPECT_EQ(canvas.Ink(), box);
    EXPECT_EQ(canvas.At(box.left + width / 2, 8), kBlack);
    canvas.ForEachPixel([&](int x, int y, COLORREF color) {
      if (!box.Contains(POINT{x, y})) return;
      EXPECT_NEAR(GetRValue(color), GetRValue(canvas.At(6 + width - 1 - x, 16 - y)), 6);
    });
  }
}

TEST(Painter, RoundFrameKeepsItsInsideClear) {
  TestCanvas canvas(30, 30);
  canvas.Paint([](Painter& p) { p.FrameRoundRect({2, 2, 28, 28}, 6, kBlack, 2); });
  EXPECT_EQ(canvas.At(15, 2), kBlack);
  EXPECT_EQ(canvas.At(15, 3), kBlack);
  EXPECT_EQ(canvas.At(15, 4), kWhite);
  EXPECT_EQ(canvas.At(15, 15), kWhite);
  EXPECT_EQ(canvas.At(2, 2), kWhite);
}

TEST(Painter, NothingIsDrawnForEmptyRectangles) {
  TestCanvas canvas(10, 10);
  RECT inverted{8, 8, 2, 2};
  canvas.Paint([&](Painter& p) {
    p.FillRect(inverted, kRed);
    p.FrameRect(inverted, kRed);
    p.FillRoundRect(inverted, 3, kRed);
    p.FillEllipse(inverted, kRed);
    p.CheckMark(inverted, kRed);
    p.FocusRect(inverted, kRed);
    p.Text(L"text", inverted, 0, nullptr, kRed);
  });
  EXPECT_EQ(canvas.Ink(), CRect());
}

TEST(Painter, ExtremeCoordinatesAreHarmless) {
  TestCanvas canvas(10, 10);
  constexpr LONG kFar = 2147483647;
  canvas.context.mirrorWidth = 10;
  canvas.Paint([](Painter& p) { p.FillRect({-kFar - 1, -kFar - 1, kFar, kFar}, kRed); });
  EXPECT_EQ(canvas.Count(kRed), 100);
}

TEST(Painter, StaleContextDrawsNothing) {
  TestCanvas canvas(10, 10);
  HDC dc = CreateDeviceContext(canvas.context);
  DeleteDeviceContext(dc);
  for (HDC dead : {dc, HDC{nullptr}}) {
    Painter painter(dead);
    painter.PushClip({0, 0, 5, 5});
    painter.FillRect({0, 0, 10, 10}, kRed);
    painter.FillRoundRect({0, 0, 10, 10}, 3, kRed);
    painter.Arrow({0, 0, 10, 10}, ArrowDirection::Up, kRed);
    painter.Text(L"text", {0, 0, 10, 10}, 0, nullptr, kRed);
    painter.PopClip();
    EXPECT_TRUE(painter.IsClippedOut({0, 0, 10, 10}));
  }
  EXPECT_EQ(canvas.Ink(), CRect());
}

TEST(Painter, MayOutliveItsContext) {
  TestCanvas canvas(10, 10);
  HDC dc = CreateDeviceContext(canvas.context);
  Painter painter(dc);
  painter.PushClip({0, 0, 5, 5});
  DeleteDeviceContext(dc);
  painter.FillRect({0, 0, 10, 10}, kRed);
  painter.PopClip();
  EXPECT_EQ(canvas.Ink(), CRect());
}
