#include <filesystem>
#include <fstream>

#include "Button.h"
#include "MFC/base/WidgetColors.h"
#include "RadioButton.h"
#include "platform/Bitmap.h"
#include "platform/Classes.h"
#include "platform/Theme.h"
#include "support/FormTest.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

using pictures::Always;
using pictures::Bytes;

constexpr std::uint32_t kGreen = 0x12C834;
constexpr std::uint32_t kViolet = 0x9010D0;

class ButtonPictureTest : public FormTest {
 protected:
  Button& OpenButton(const std::string& text) {
    Open(ColumnForm(WidgetItem("QPushButton", "button", TextXml(text))));
    return Find<Button>(L"button");
  }

  static void Load(Button& button, const Bytes& bytes,
                   WexaUtils::ScalePicture scale = WexaUtils::KeepSize) {
    button.LoadPicture(bytes.data(), static_cast<int>(bytes.size()), WexaUtils::BMP, scale, 0,
                       true);
    Robot::PumpAll();
  }

  static CRect BoundsOf(BaseGUIObject& widget, std::uint32_t color) {
    return Robot::BoundsOf(widget.GetPlatformHandle(), color);
  }

  // 0x00RRGGBB, as pixels are read.
  static std::uint32_t DisabledColor(Button& button) {
    return SwapRedAndBlue(
        static_cast<int>(SlotColor(button.GetSkinManager(), Slot::kButtonDisabledText)));
  }
};

TEST_F(ButtonPictureTest, APictureStandsBeforeTheText) {
  Button& button = OpenButton("OK");
  Load(button, pictures::BmpFile(12, 10, Always(kGreen)));
  const CRect picture = BoundsOf(button, kGreen);
  EXPECT_EQ(picture.Width(), 12);
  EXPECT_EQ(picture.Height(), 10);
  const Size size = button.GetClientRect().GetSize();
  EXPECT_NEAR(picture.top, size.Height() - picture.bottom, 1) << "centred";
  EXPECT_LT(picture.right, size.Width() / 2);
  EXPECT_TRUE(Robot::HasInk(button.GetPlatformHandle(),
                            RECT{picture.right + 1, 4, size.Width() - 4, size.Height() - 4}));
}

TEST_F(ButtonPictureTest, IconOnlyShowsThePictureInTheMiddle) {
  Button& button = OpenButton("A long caption");
  const int withText = button.IdealSize().Width();
  button.SetStyle(Button::ButtonStyle::IconOnly);
  Load(button, pictures::BmpFile(12, 10, Always(kGreen)));
  const CRect picture = BoundsOf(button, kGreen);
  const Size size = button.GetClientRect().GetSize();
  EXPECT_NEAR(picture.left, size.Width() - picture.right, 1);
  EXPECT_FALSE(Robot::HasInk(button.GetPlatformHandle(),
                             RECT{picture.right, 4, size.Width() - 4, size.Height() - 4}));
  EXPECT_LT(button.IdealSize().Width(), withText);
}

TEST_F(ButtonPictureTest, AWidePictureMakesTheButtonAskForMore) {
  Button& button = OpenButton("OK");
  const Size before = button.IdealSize();
  Load(button, pictures::BmpFile(100, 60, Always(kGreen)));
  EXPECT_GT(button.IdealSize().Width(), 100);
  EXPECT_GT(button.IdealSize().Height(), before.Height());
  EXPECT_GE(button.GetClientRect().GetSize().Height(), 60) << "its layout follows";
}

TEST_F(ButtonPictureTest, ADisabledButtonShowsItsOwnPicture) {
  Button& button = OpenButton("OK");
  Load(button, pictures::BmpFile(12, 10, Always(kGreen)));
  button.Enable(false, false);
  Robot::PumpAll();
  EXPECT_EQ(BoundsOf(button, kGreen).Width(), 12) << "the normal one until there is another";
  const Bytes disabled = pictures::BmpFile(12, 10, Always(kViolet));
  button.LoadPictureDisabled(disabled.data(), static_cast<int>(disabled.size()), WexaUtils::BMP,
                             WexaUtils::KeepSize, 0, true);
  Robot::PumpAll();
  EXPECT_EQ(BoundsOf(button, kViolet).Width(), 12);
  EXPECT_TRUE(BoundsOf(button, kGreen).IsEmpty());
  button.Enable(true, false);
  Robot::PumpAll();
  EXPECT_EQ(BoundsOf(button, kGreen).Width(), 12);
}

TEST_F(ButtonPictureTest, AGeneratedPictureHasTheColorOfDisabledText) {
  Button& button = OpenButton("");
  button.GeneratePictureDisabled(true);
  Load(button, pictures::BmpFile(12, 10, Always(kGreen)));
  button.Enable(false, false);
  button.GeneratePictureDisabled(false);
  Robot::PumpAll();
  EXPECT_TRUE(BoundsOf(button, kGreen).IsEmpty());
  EXPECT_EQ(BoundsOf(button, DisabledColor(button)).Width(), 12);
}

TEST_F(ButtonPictureTest, WhatIsNoPictureChangesNothing) {
  Button& button = OpenButton("OK");
  Load(button, pictures::BmpFile(12, 10, Always(kGreen)));
  Load(button, Bytes(50, 7));
  button.LoadPicture(nullptr, 5, WexaUtils::PNG, WexaUtils::FillTarget, 16, true);
  button.LoadPicture(L"no such file.png", WexaUtils::KeepSize, 16, true);
  Robot::PumpAll();
  EXPECT_EQ(BoundsOf(button, kGreen).Width(), 12);
}

TEST_F(ButtonPictureTest, AFilesExtensionTellsItsType) {
  const std::filesystem::path path = testing::TempDir() + "wexa.picture.ICO";
  const Bytes file = pictures::IconFile({pictures::IconImageBytes(16, 16, 24, Always(kGreen)),
                                         pictures::IconImageBytes(8, 8, 24, Always(kViolet))});
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  Button& button = OpenButton("OK");
  button.LoadPicture(path.wstring(), WexaUtils::KeepSize, 8, true);
  Robot::PumpAll();
  EXPECT_EQ(BoundsOf(button, kViolet).Width(), 8);
  std::filesystem::remove(path);
}

TEST_F(ButtonPictureTest, AFillingPictureLeavesTheFrameAndTheSize) {
  Button& button = OpenButton("");
  const Size size = button.GetClientRect().GetSize();
  const int padding = Theme::PushButtonPadding().cy;
  Load(button, pictures::BmpFile(5, 5, Always(kGreen)), WexaUtils::FillTarget);
  EXPECT_EQ(button.GetClientRect().GetSize().Height(), size.Height());
  const CRect whole(0, 0, size.Width(), size.Height());
  EXPECT_TRUE(BoundsOf(button, kGreen) == whole.Shrunk(padding, padding));
}

TEST_F(ButtonPictureTest, APictureMayComeBeforeTheWindow) {
  Button button;
  const Bytes bytes = pictures::BmpFile(12, 10, Always(kGreen));
  Load(button, bytes);
  button.GeneratePictureDisabled(true);
  EXPECT_GE(button.IdealSize().Height(), 10);
}

TEST_F(ButtonPictureTest, ARadioButtonShowsMarkPictureAndText) {
  Open(
      ColumnForm(WidgetItem("QRadioButton", "radio",
                            TextXml("Choice") + "<attribute name=\"buttonGroup\"><string>g</string>"
                                                "</attribute>")));
  auto& radio = Find<RadioButton>(L"radio");
  const int before = radio.IdealSize().Width();
  const Bytes bytes = pictures::BmpFile(12, 10, Always(kGreen));
  radio.LoadPicture(bytes.data(), static_cast<int>(bytes.size()), WexaUtils::BMP,
                    WexaUtils::KeepSize, 0);
  Robot::PumpAll();
  EXPECT_GT(radio.IdealSize().Width(), before + 12);
  const CRect picture = BoundsOf(radio, kGreen);
  EXPECT_EQ(picture.Width(), 12);
  EXPECT_GE(picture.left, Theme::CheckSize());
  HWND window = radio.GetPlatformHandle();
  const Size size = radio.GetClientRect().GetSize();
  EXPECT_TRUE(Robot::HasInk(window, RECT{picture.right + 1, 0, size.Width(), size.Height()}));
  const RECT mark{0, 0, Theme::CheckSize(), size.Height()};
  const std::uint32_t background = Robot::PixelAt(window, 0, 0);
  const int unchecked = Robot::InkIn(window, mark, background);
  EXPECT_GT(unchecked, 0);
  robot_.ClickCentreOf(window);
  Robot::PumpAll();
  EXPECT_TRUE(radio.Checked());
}

// -- Sizes

class ScaleBitmapTest : public FormTest {
 protected:
  // The size of a 20 x 10 picture in a target of 70 x 30.
  static CSize Scaled(int mode, CWnd* window = nullptr) {
    UniqueBitmap bitmap(CreateBitmap(20, 10, 32));
    HBITMAP scaled = WexaUtils::ScaleBitmap(
        bitmap.get(), static_cast<WexaUtils::ScalePicture>(mode), RECT{5, 5, 75, 35}, window);
    BITMAP size{};
    GetBitmapDescription(scaled, &size);
    if (scaled != bitmap.get()) DeleteBitmap(scaled);
    return {size.bmWidth, size.bmHeight};
  }
  static void ExpectSize(CSize size, int width, int height) {
    EXPECT_EQ(size.cx, width);
    EXPECT_EQ(size.cy, height);
  }
};

TEST_F(ScaleBitmapTest, EachModeHasItsSize) {
  ExpectSize(Scaled(WexaUtils::ScaleByFactor), 20, 10);
  ExpectSize(Scaled(WexaUtils::KeepSize), 20, 10);
  ExpectSize(Scaled(WexaUtils::FitWidth), 70, 35);
  ExpectSize(Scaled(WexaUtils::FitHeight), 60, 30);
  ExpectSize(Scaled(WexaUtils::FillTarget), 70, 30);
  ExpectSize(Scaled(99), 20, 10);
}

TEST_F(ScaleBitmapTest, ComboBoxesKeepTheirHeights) {
  static const WNDCLASSW kClass{L"ComboBoxEx32", DefWindowProcW, 0, nullptr};
  RegisterClassW(&kClass);
  CWnd box;
  ASSERT_TRUE(box.CreateEx(0, kClass.lpszClassName, L"", WS_POPUP, RECT{0, 0, 9, 9}, nullptr, 0));
  ExpectSize(Scaled(WexaUtils::FitWidth, &box), 70, 10);
  ExpectSize(Scaled(WexaUtils::FitHeight, &box), 60, 10);
  ExpectSize(Scaled(WexaUtils::FillTarget, &box), 70, 10);
}

TEST_F(ScaleBitmapTest, ABitmapThatFitsStaysTheSame) {
  UniqueBitmap bitmap(CreateBitmap(20, 10, 32));
  EXPECT_EQ(
      WexaUtils::ScaleBitmap(bitmap.get(), WexaUtils::FillTarget, RECT{0, 0, 20, 10}, nullptr),
      bitmap.get());
}

TEST_F(ScaleBitmapTest, NothingComesOfNothing) {
  EXPECT_EQ(WexaUtils::ScaleBitmap(nullptr, WexaUtils::KeepSize, RECT{}, nullptr), nullptr);
  UniqueBitmap bitmap(CreateBitmap(20, 10, 32));
  const RECT targets[] = {{},
                          {9, 9, 0, 0},
                          {0, 0, 1 << 30, 1 << 30},
                          {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                          {INT_MAX, INT_MAX, INT_MIN, INT_MIN}};
  for (const auto mode : {WexaUtils::FillTarget, WexaUtils::FitWidth, WexaUtils::FitHeight})
    for (const RECT& target : targets)
      EXPECT_EQ(WexaUtils::ScaleBitmap(bitmap.get(), mode, target, nullptr), nullptr);
}

}  // namespace
}  // namespace Wexa
