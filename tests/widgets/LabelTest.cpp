#include "Label.h"

#include "support/FormTest.h"

namespace Wexa {
namespace {

class LabelTest : public FormTest {
 protected:
  Label& OpenLabel(const std::string& text, int width) {
    Open(FormXml(WidgetXml("QLabel", "label", PropertyXml("text", "string", text)), 300, 100));
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

}  // namespace
}  // namespace Wexa
