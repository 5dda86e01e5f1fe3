#include <gmock/gmock.h>

#include "platform/Bitmap.h"
#include "platform/Painter.h"
#include "platform/Picture.h"
#include "window/WindowTest.h"

#include <cstdio>
#include <filesystem>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr std::uint32_t kRedPixel = 0xFF0000;
constexpr std::uint32_t kGreenPixel = 0x00FF00;
constexpr std::uint32_t kBluePixel = 0x0000FF;
}  // namespace

// Windows fill themselves with a colour of their own and note what they were asked to paint.
class PaintTest : public WindowTest {
 protected:
  PaintTest() {
    InvalidateRect(window_, nullptr, TRUE);  // in its colour
    handler = [this](HWND w, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
      if (message != WM_PAINT) return std::nullopt;
      Paint(w);
      return 0;
    };
  }

  void Paint(HWND window) {
    PAINTSTRUCT paint{};
    Painter(BeginPaint(window, &paint)).FillRect({0, 0, 2000, 2000}, ColorOf(window));
    painted_.emplace_back(window, paint.rcPaint);
    EndPaint(window, &paint);
  }
  static COLORREF ColorOf(HWND window) {
    return static_cast<COLORREF>(GetWindowLongPtrW(window, GWLP_USERDATA));
  }
  static HWND Colored(HWND window, COLORREF color) {
    SetWindowLongPtrW(window, GWLP_USERDATA, static_cast<LONG_PTR>(color));
    return window;
  }

  // What was painted since the last call, in order.
  std::vector<std::pair<HWND, CRect>> TakePainted() {
    robot_.PumpAll();
    return std::exchange(painted_, {});
  }
  void Settle() {
    TakePainted();
    TakePresented(window_);
  }

  std::vector<std::pair<HWND, CRect>> painted_;
  HWND window_ = Colored(ShowWindowAt({100, 100, 300, 300}), kRed);
};

TEST_F(PaintTest, ParentsPaintBeforeChildrenAndLowerBeforeUpper) {
  const HWND top = MakeChild(window_, {0, 0, 50, 50});
  const HWND bottom = MakeChild(window_, {100, 0, 150, 50});
  const HWND inner = MakeChild(bottom, {5, 5, 10, 10});
  InvalidateRect(window_, nullptr, TRUE);
  std::vector<HWND> order;
  for (const auto& [window, rect] : TakePainted()) order.push_back(window);
  EXPECT_THAT(order, ElementsAre(window_, bottom, inner, top));
}

TEST_F(PaintTest, OnlyWhatIsDamagedIsPaintedAndPresented) {
  MakeChild(window_, {0, 0, 20, 20});
  const HWND child = MakeChild(window_, {50, 50, 100, 100});
  Settle();
  EXPECT_FALSE(PaintNow());
  EXPECT_THAT(TakePainted(), IsEmpty());
  EXPECT_THAT(TakePresented(window_), IsEmpty());
  const RECT damaged{40, 40, 60, 60};
  InvalidateRect(window_, &damaged, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(window_, CRect(damaged)),
                                         std::pair(child, CRect(0, 0, 10, 10))));
  EXPECT_THAT(TakePresented(window_), ElementsAre(CRect(damaged)));
  InvalidateRect(child, nullptr, TRUE);
  InvalidateRect(child, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(child, CRect(0, 0, 50, 50))));
  EXPECT_THAT(TakePresented(window_), ElementsAre(CRect(50, 50, 100, 100)));
}

TEST_F(PaintTest, SiblingsAboveArePaintedAgainWhereTheyOverlap) {
  const HWND above = Colored(MakeChild(window_, {40, 40, 100, 100}), kGreen);
  const HWND below = Colored(MakeChild(window_, {0, 0, 60, 60}), kBlue);
  Settle();
  InvalidateRect(below, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(below, CRect(0, 0, 60, 60)),
                                         std::pair(above, CRect(0, 0, 20, 20))));
  InvalidateRect(above, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(above, CRect(0, 0, 60, 60))));
  EXPECT_EQ(robot_.PixelAt(window_, 50, 50), kGreenPixel);
  EXPECT_EQ(robot_.PixelAt(window_, 30, 30), kBluePixel);
  SetWindowPos(below, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_EQ(robot_.PixelAt(window_, 50, 50), kBluePixel) << "raised";
}

TEST_F(PaintTest, HiddenAndMovedChildrenUncoverTheirParent) {
  const HWND child = Colored(MakeChild(window_, {0, 0, 50, 50}), kGreen);
  EXPECT_EQ(robot_.PixelAt(window_, 10, 10), kGreenPixel);
  MoveWindow(child, 100, 100, 50, 50, TRUE);
  EXPECT_EQ(robot_.PixelAt(window_, 10, 10), kRedPixel);
  EXPECT_EQ(robot_.PixelAt(window_, 110, 110), kGreenPixel);
  ShowWindow(child, SW_HIDE);
  EXPECT_EQ(robot_.PixelAt(window_, 110, 110), kRedPixel);
}

TEST_F(PaintTest, ChildrenAreClippedByTheirParents) {
  const HWND child = Colored(MakeChild(window_, {150, 150, 180, 180}), kGreen);
  Colored(MakeChild(child, {-20, 0, 100, 100}), kBlue);
  EXPECT_EQ(robot_.PixelAt(window_, 149, 160), kRedPixel);
  EXPECT_EQ(robot_.PixelAt(window_, 150, 160), kBluePixel);
  EXPECT_EQ(robot_.PixelAt(window_, 180, 160), kRedPixel);
}

TEST_F(PaintTest, WindowThatClipsItsChildrenLeavesThemAlone) {
  const auto setClipping = [this](bool on) {
    const LONG_PTR style = GetWindowLongPtrW(window_, GWL_STYLE) & ~LONG_PTR{WS_CLIPCHILDREN};
    SetWindowLongPtrW(window_, GWL_STYLE, on ? style | WS_CLIPCHILDREN : style);
  };
  const HWND child =
      Colored(MakeChild(window_, {50, 50, 100, 100}, WS_VISIBLE | WS_CLIPCHILDREN), kGreen);
  const HWND inner = Colored(MakeChild(child, {10, 10, 20, 20}), kBlue);
  const std::pair own(window_, CRect(0, 0, 200, 200)), below(child, CRect(0, 0, 50, 50)),
      inmost(inner, CRect(0, 0, 10, 10));
  Settle();
  setClipping(true);
  InvalidateRect(window_, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(own));
  EXPECT_EQ(robot_.PixelAt(window_, 55, 55), kGreenPixel);
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  EXPECT_THAT(TakePainted(), ElementsAre(own, below, inmost));
  setClipping(false);
  Settle();
  InvalidateRect(window_, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(own, below, inmost)) << "painted over";
  EXPECT_EQ(robot_.PixelAt(child, 15, 15), kBluePixel);
}

TEST_F(PaintTest, UpdateWindowPaintsAtOnceAndOnlyBelow) {
  const HWND one = MakeChild(window_, {0, 0, 50, 50});
  const HWND two = MakeChild(window_, {100, 0, 150, 50});
  Settle();
  InvalidateRect(one, nullptr, TRUE);
  InvalidateRect(two, nullptr, TRUE);
  UpdateWindow(one);
  EXPECT_THAT(std::exchange(painted_, {}), ElementsAre(std::pair(one, CRect(0, 0, 50, 50))));
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(two, CRect(0, 0, 50, 50))));
}

TEST_F(PaintTest, UnhandledPaintCountsAsDoneButNotWhenSentByHand) {
  handler = nullptr;
  InvalidateRect(window_, nullptr, TRUE);
  SendMessageW(window_, WM_PAINT, 0, 1);
  EXPECT_TRUE(GetUpdateRect(window_, nullptr));
  Watch({WM_PAINT});
  robot_.PumpAll();
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("PAINT"));
  EXPECT_FALSE(GetUpdateRect(window_, nullptr));
}

TEST_F(PaintTest, InvalidatedWhilePaintingIsPaintedAgain) {
  int count = 0;
  handler = [&](HWND w, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message != WM_PAINT) return std::nullopt;
    Paint(w);
    if (++count == 1) InvalidateRect(w, nullptr, FALSE);
    return 0;
  };
  InvalidateRect(window_, nullptr, TRUE);
  PaintNow();
  PaintNow();
  PaintNow();
  EXPECT_EQ(count, 2);
}

TEST_F(PaintTest, EraseIsAskedForOnlyWhenWanted) {
  Settle();
  Watch({WM_ERASEBKGND});
  InvalidateRect(window_, nullptr, FALSE);
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), IsEmpty());
  InvalidateRect(window_, nullptr, TRUE);
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("ERASE"));
}

TEST_F(PaintTest, HiddenWindowsAreNotPainted) {
  const HWND hidden = MakeWindow(kBare, {0, 0, 10, 10});
  Settle();
  InvalidateRect(hidden, nullptr, TRUE);
  UpdateWindow(hidden);
  EXPECT_FALSE(PaintNow());
  ShowWindow(hidden, SW_SHOW);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(hidden, CRect(0, 0, 10, 10))));
}

TEST_F(PaintTest, ChildShownAgainAfterBeingInvalidIsPainted) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  Settle();
  InvalidateRect(child, nullptr, TRUE);
  ShowWindow(child, SW_HIDE);
  Settle();
  ShowWindow(child, SW_SHOW);
  EXPECT_THAT(TakePainted(), testing::Contains(std::pair(child, CRect(0, 0, 50, 50))));
}

TEST_F(PaintTest, RedrawTurnedOffPaintsNothing) {
  const HWND child = MakeChild(window_, {0, 0, 50, 50});
  Settle();
  InvalidateRect(child, nullptr, TRUE);
  SendMessageW(child, WM_SETREDRAW, FALSE, 0);
  InvalidateRect(child, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), IsEmpty());
  SendMessageW(child, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(child, nullptr, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(child, CRect(0, 0, 50, 50))));
}

TEST_F(PaintTest, ExceptionWhilePaintingLosesNoOtherWindow) {
  const HWND one = MakeChild(window_, {0, 0, 50, 50});
  const HWND two = MakeChild(window_, {100, 0, 150, 50});
  Settle();
  bool thrown = false;
  handler = [&](HWND w, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message != WM_PAINT) return std::nullopt;
    if (!std::exchange(thrown, true)) throw std::runtime_error("no");
    Paint(w);
    return 0;
  };
  InvalidateRect(one, nullptr, TRUE);
  InvalidateRect(two, nullptr, TRUE);
  EXPECT_THROW(robot_.PumpAll(), std::runtime_error);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(one, CRect(0, 0, 50, 50))));
}

TEST_F(PaintTest, RegionsAreInvalidatedExactly) {
  Settle();
  const CRgn region(CreateRectRgn(0, 0, 10, 10));
  const CRgn other(CreateRectRgn(50, 50, 60, 60));
  CombineRgn(region.GetSafeHandle(), region.GetSafeHandle(), other.GetSafeHandle(), RGN_OR);
  InvalidateRgn(window_, region.GetSafeHandle(), TRUE);
  TakePainted();
  EXPECT_THAT(TakePresented(window_), ElementsAre(CRect(0, 0, 10, 10), CRect(50, 50, 60, 60)));
}

TEST_F(PaintTest, MirroredWindowPaintsTheMirroredRectangle) {
  const HWND window = Colored(MakeWindow(kBare, {0, 0, 200, 100}, nullptr, WS_EX_LAYOUTRTL), kBlue);
  ShowWindow(window, SW_SHOW);
  TakePainted();
  TakePresented(window);
  const RECT leading{0, 0, 30, 10};
  InvalidateRect(window, &leading, TRUE);
  EXPECT_THAT(TakePainted(), ElementsAre(std::pair(window, CRect(leading))));
  EXPECT_THAT(TakePresented(window), ElementsAre(CRect(170, 0, 200, 10)));
}

TEST_F(PaintTest, ExposedPixelsArePresentedWithoutPainting) {
  Settle();
  robot_.Screen().Report({.kind = display::Input::Kind::Exposed,
                          .surface = SurfaceOf(window_),
                          .area = {5, 5, 25, 25}});
  EXPECT_THAT(TakePainted(), IsEmpty());
  EXPECT_THAT(TakePresented(window_), ElementsAre(CRect(5, 5, 25, 25)));
}

TEST_F(PaintTest, PictureOfAHiddenWindowShowsItWhole) {
  const HWND hidden = Colored(MakeWindow(kDialog, {0, 0, 100, 80}), kGreen);
  const auto path = std::filesystem::path(testing::TempDir()) / "hidden-window.png";
  SaveWindowPicture(hidden, path.string());
  EXPECT_GT(std::filesystem::file_size(path), 100U);
  std::filesystem::remove(path);
  const UniqueBitmap picture(PictureOfWindow(hidden));
  const auto pixels = BitmapPixels(picture.get());
  ASSERT_EQ(pixels.size(), 100U * 80U);
  EXPECT_EQ(pixels[60 * 100 + 50], 0xFF000000 | kGreenPixel);
  EXPECT_FALSE(IsWindowVisible(hidden));
  EXPECT_EQ(robot_.PixelAt(hidden, 5, 5), kGreenPixel);
}

TEST_F(PaintTest, PictureNeedsATopLevelWindow) {
  const HWND child = MakeChild(window_, {0, 0, 10, 10});
  EXPECT_EQ(PictureOfWindow(child), nullptr);
  EXPECT_THROW(SaveWindowPicture(child, "x.png"), std::runtime_error);
  EXPECT_THROW(SaveWindowPicture(nullptr, "x.png"), std::runtime_error);
  EXPECT_THROW(SavePicture(nullptr, "x.png"), std::runtime_error);
}

TEST_F(PaintTest, OnlyContextsThatWereDrawnIntoArePresented) {
  Settle();
  ReleaseDC(window_, GetDC(window_));
  EXPECT_FALSE(PaintNow());
  const HDC dc = GetDC(window_);
  Painter(dc).FillRect({0, 0, 5, 5}, kBlue);
  ReleaseDC(window_, dc);
  EXPECT_TRUE(PaintNow());
  EXPECT_THAT(TakePresented(window_), ElementsAre(CRect(0, 0, 200, 200)));
}

TEST_F(PaintTest, BorderOfAChildIsOneUnit) {
  const HWND child = Colored(MakeChild(window_, {10, 10, 60, 60}, WS_VISIBLE | WS_BORDER), kGreen);
  CRect client;
  GetClientRect(child, &client);
  EXPECT_EQ(client, CRect(0, 0, 48, 48));
  EXPECT_EQ(robot_.PixelAt(window_, 9, 30), kRedPixel);
  EXPECT_EQ(robot_.PixelAt(window_, 10, 30), 0x646464U);
  EXPECT_EQ(robot_.PixelAt(window_, 11, 30), kGreenPixel);
}
