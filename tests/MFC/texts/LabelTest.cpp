#include "Label.h"

#include <filesystem>
#include <fstream>

#include "WexaConfig.h"
#include "support/FormTest.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

class LabelTest : public FormTest {
 protected:
  Label& OpenLabel(const std::string& text, int width) {
    Open(FormXml(WidgetXml("QLabel", "label", TextXml(text)), 300, 100));
    auto& label = Find<Label>(L"label");
    label.MoveWindow(0, 0, width, 40, true);
    Robot::PumpAll();
    return label;
  }
  std::vector<std::uint32_t> Picture() {
    HWND window = Find<Label>(L"label").GetPlatformHandle();
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < 40; ++y)
      for (int x = 0; x < 60; ++x) pixels.push_back(Robot::PixelAt(window, x, y));
    return pixels;
  }
};

TEST_F(LabelTest, ALineThatDoesNotFitEndsInAnEllipsis) {
  OpenLabel("WWWWWWWWWWWWWWWWWW", 60);
  auto cut = Picture();
  OpenLabel("WWWWWWWWWWWWWWWWWWiiii", 60);
  EXPECT_EQ(Picture(), cut) << "what is cut off does not show";
  OpenLabel("WWW", 60);
  EXPECT_NE(Picture(), cut);
}

TEST_F(LabelTest, CentredTextsAreCutNotWrapped) {
  Label& label = OpenLabel("several words that do not fit", 60);
  label.SetAlignment(Label::Alignment::Center);
  Robot::PumpAll();
  HWND window = label.GetPlatformHandle();
  EXPECT_FALSE(Robot::HasInk(window, {0, 0, 60, 10}));
  label.SetWordWrap(true);
  Robot::PumpAll();
  EXPECT_TRUE(Robot::HasInk(window, {0, 0, 60, 10})) << "several lines";
}

// -- Pictures

constexpr std::uint32_t kLabelGreen = 0x12C834;

class LabelPictureTest : public FormTest {
 protected:
  LabelPictureTest() { SetWorkingDirPath(host_.wstring() + L"/"); }
  ~LabelPictureTest() override {
    SetWorkingDirPath(before_);
    std::filesystem::remove_all(host_);
  }

  void WritePicture(const std::string& name, int width, int height) const {
    const auto file = host_ / "wexaresources/img" / name;
    std::filesystem::create_directories(file.parent_path());
    const auto bytes = pictures::BmpFile(width, height, pictures::Always(kLabelGreen));
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }
  static std::string PictureLabel(const std::string& name, const std::string& file,
                                  const std::string& more = "") {
    return WidgetItem("QLabel", name,
                      TextXml("instead") + PropertyXml("pixmap", "pixmap", file) + more);
  }
  CRect Shown(const wchar_t* label, std::uint32_t color = kLabelGreen) {
    return Robot::BoundsOf(Find<Label>(label).GetPlatformHandle(), color);
  }

 private:
  std::filesystem::path host_ =
      std::filesystem::temp_directory_path() / ("wexa-host-" + std::to_string(getpid()));
  std::wstring before_ = GetWorkingDirPath();
};

TEST_F(LabelPictureTest, FormsNamePicturesOfTheHost) {
  WritePicture("icons/deep.bmp", 12, 8);
  WritePicture("flat.bmp", 10, 6);
  Open(ColumnForm(PictureLabel("deep", ":/icons/deep.bmp") +
                  PictureLabel("flat", "../art/flat.bmp") + PictureLabel("absent", ":/none.bmp")));
  const int height = Find<Label>(L"deep").GetClientRect().Height();
  EXPECT_EQ(Shown(L"deep"), CRect(0, (height - 8) / 2, 12, (height - 8) / 2 + 8));
  EXPECT_EQ(Shown(L"flat").Width(), 10);
  HWND absent = Find<Label>(L"absent").GetPlatformHandle();
  EXPECT_TRUE(Robot::HasInk(absent, {0, 0, 60, height})) << "its text";
}

TEST_F(LabelPictureTest, ScaledContentsFillTheLabelAndAlignmentsPlaceThePicture) {
  WritePicture("a.bmp", 12, 8);
  Open(ColumnForm(PictureLabel("filled", ":/a.bmp", BoolXml("scaledContents")) +
                  PictureLabel("corner", ":/a.bmp",
                               PropertyXml("alignment", "set", "Qt::AlignRight|Qt::AlignTop"))));
  EXPECT_EQ(Find<Label>(L"filled").IdealSize(), Size(12, 8));
  const Size filled = Find<Label>(L"filled").GetClientRect().GetSize();
  EXPECT_EQ(Shown(L"filled"), CRect(0, 0, filled.Width(), filled.Height()));
  const int width = Find<Label>(L"corner").GetClientRect().Width();
  EXPECT_EQ(Shown(L"corner"), CRect(width - 12, 0, width, 8));
}

TEST_F(LabelPictureTest, IsGreyWhileDisabledAndStaysWhenAnotherCannotBeRead) {
  WritePicture("a.bmp", 12, 8);
  Open(ColumnForm(PictureLabel("label", ":/a.bmp")));
  auto& label = Find<Label>(L"label");
  label.Enable(false, false);
  Robot::PumpAll();
  EXPECT_TRUE(Shown(L"label").IsEmpty());
  label.Enable(true, false);
  EXPECT_FALSE(label.LoadPicture(L"no such file.bmp", WexaUtils::KeepSize, 0));
  Robot::PumpAll();
  EXPECT_EQ(Shown(L"label").Width(), 12);
}

}  // namespace
}  // namespace Wexa
