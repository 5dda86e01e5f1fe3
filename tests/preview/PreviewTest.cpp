#include <nlohmann/json.hpp>
#include <tuple>

#include "support/FormXml.h"
#include "support/tool/Tool.h"

namespace tool {
namespace {

using namespace Wexa;
using nlohmann::json;
using testing::HasSubstr;
using testing::SizeIs;

std::string Margins(int margin) {
  std::string properties;
  for (const char* side : {"leftMargin", "topMargin", "rightMargin", "bottomMargin"})
    properties += NumberXml(side, margin);
  return properties;
}

// A column of 10 margin and 5 spacing: a line 30 high, and the rest for a row of 1 to 3 with 4
// between.
const std::string kRowsForm = ColumnForm(
    Margins(10) + NumberXml("spacing", 5) +
        WidgetItem("QWidget", "line",
                   SizeXml("minimumSize", 0, 30) + SizeXml("maximumSize", 16777215, 30)) +
        WidgetItem(
            "QWidget", "row",
            "<property name=\"sizePolicy\"><sizepolicy hsizetype=\"Expanding\" "
            "vsizetype=\"Expanding\"/></property>" +
                LayoutXml("QHBoxLayout",
                          Margins(0) + NumberXml("spacing", 4) + WidgetItem("QWidget", "quarter") +
                              WidgetItem("QWidget", "rest"),
                          "stretch=\"1,3\"")),
    200, 150);

class PreviewTest : public testing::Test {
 protected:
  PreviewTest() { tool_.Write("rows.ui", kRowsForm); }
  json Dump(const std::string& arguments) {
    const Outcome outcome = tool_.Run("--dump - " + arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return json::parse(outcome.output, nullptr, false);
  }

  Tool tool_{WEXA_PREVIEW};
};

TEST_F(PreviewTest, DumpsTheFormsOwnSizeOrThoseGiven) {
  const json own = Dump("rows.ui");
  EXPECT_EQ(own["form"], "rows");
  EXPECT_EQ(own["sizes"], json::parse(R"([{"request": [200, 150], "client": [200, 150],
      "widgets": {"line": [10, 10, 180, 30], "row": [10, 45, 180, 95],
                  "quarter": [10, 45, 44, 95], "rest": [58, 45, 132, 95]}}])"));
  const json given = Dump("--size 300x200 --size 1x1 rows.ui");
  ASSERT_THAT(given["sizes"], SizeIs(2));
  EXPECT_EQ(given["sizes"][0], json::parse(R"({"request": [300, 200], "client": [300, 200],
      "widgets": {"line": [10, 10, 280, 30], "row": [10, 45, 280, 145],
                  "quarter": [10, 45, 69, 145], "rest": [83, 45, 207, 145]}})"));
  EXPECT_EQ(given["sizes"][1]["request"], json({1, 1}));
  EXPECT_EQ(given["sizes"][1]["client"], given["layout"]["min"]);
}

TEST_F(PreviewTest, DumpsScaledAndMirrored) {
  const json twice = Dump("--scale 2 rows.ui")["sizes"][0];
  EXPECT_EQ(twice["client"], json({400, 300}));
  EXPECT_EQ(twice["widgets"]["line"], json({20, 20, 360, 60}));
  const json mirrored = Dump("--rtl rows.ui")["sizes"][0]["widgets"];
  EXPECT_EQ(mirrored["quarter"], json({146, 45, 44, 95}));
  EXPECT_EQ(mirrored["rest"], json({10, 45, 132, 95}));
}

TEST_F(PreviewTest, DumpLeavesOutWhatIsHiddenOrNameless) {
  const std::string pages = WidgetXml("QWidget", "shown") + WidgetXml("QWidget", "hidden");
  tool_.Write("pages.ui",
              FormXml(WidgetXml("QStackedWidget", "stack", GeometryXml(10, 20, 100, 80) + pages) +
                          "<widget class=\"QLabel\"/>",
                      200, 150));
  const json widgets = Dump("pages.ui")["sizes"][0]["widgets"];
  EXPECT_THAT(widgets, SizeIs(2));
  EXPECT_EQ(widgets["stack"], json({10, 20, 100, 80}));
  EXPECT_TRUE(widgets.contains("shown"));
  const json turned = Dump("--page stack=1 pages.ui")["sizes"][0]["widgets"];
  EXPECT_TRUE(turned.contains("hidden") && !turned.contains("shown"));
  EXPECT_THAT(Dump("--hidden pages.ui")["sizes"][0]["widgets"], SizeIs(3));
  EXPECT_THAT(tool_.Run("--dump - --page stack=2 pages.ui").errors, HasSubstr("no page 2"));
  EXPECT_THAT(tool_.Run("--dump - --page other=0 pages.ui").errors, HasSubstr("named other"));
  EXPECT_EQ(tool_.Run("--dump - --page stack pages.ui").status, 2);
}

TEST_F(PreviewTest, WhatCannotBeWrittenIsAnError) {
  EXPECT_EQ(tool_.Run("--report rows.ui >/dev/full; exit $?; true").status, 1);
  EXPECT_EQ(tool_.Run("--dump - rows.ui >/dev/full; exit $?; true").status, 1);
  EXPECT_EQ(tool_.Run("--png /dev/full rows.ui").status, 1);
}

TEST_F(PreviewTest, PictureHasTheSizeOfTheWindow) {
  ASSERT_EQ(tool_.Run("--png small.png --size 300x200 rows.ui").status, 0);
  ASSERT_EQ(tool_.Run("--png large.png --size 300x200 --size 400x350 rows.ui").status, 0);

  const auto [smallWidth, smallHeight] = SizeOfPng(tool_.Read("small.png"));
  const auto [largeWidth, largeHeight] = SizeOfPng(tool_.Read("large.png"));
  EXPECT_GE(smallWidth, 300);
  EXPECT_GT(smallHeight, 200);  // there is a caption
  EXPECT_EQ(largeWidth - smallWidth, 100);
  EXPECT_EQ(largeHeight - smallHeight, 150);
}

TEST_F(PreviewTest, SkinsChangeThePicture) {
  for (const char* skin : {"light", "dark", "contrast"})
    ASSERT_EQ(tool_.Run(std::string("rows.ui --skin ") + skin + " --png " + skin).status, 0);

  EXPECT_NE(tool_.Read("light"), tool_.Read("dark"));
  EXPECT_NE(tool_.Read("dark"), tool_.Read("contrast"));
}

TEST_F(PreviewTest, OffscreenAPictureTakesTheWindowsPlace) {
  const Outcome outcome = tool_.Run("rows.ui");

  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.output, HasSubstr("offscreen"));
  EXPECT_THAT(outcome.output, HasSubstr("rows.png"));
  EXPECT_GT(SizeOfPng(tool_.Read("rows.png")).first, 0);
}

TEST_F(PreviewTest, ReportGoesOnAfterABrokenForm) {
  tool_.Write("forms/a.ui", "<ui>\n<widget>\n</wid");
  tool_.Write("forms/deep/b.ui", kRowsForm);
  tool_.Write("forms/notes.txt", "no form");

  const Outcome outcome = tool_.Run("--report forms");

  EXPECT_EQ(outcome.status, 1);
  const auto lines = Lines(outcome.output);
  ASSERT_THAT(lines, SizeIs(2));
  const json broken = json::parse(lines[0]);
  EXPECT_EQ(broken["file"], "forms/a.ui");
  EXPECT_EQ(broken["ok"], false);
  EXPECT_THAT(broken["error"].get<std::string>(), HasSubstr("forms/a.ui:3: "));
  const json good = json::parse(lines[1]);
  EXPECT_EQ(good["file"], "forms/deep/b.ui");
  EXPECT_EQ(good["ok"], true);
  EXPECT_EQ(good["widgets"], 4);
  EXPECT_THAT(Lines(outcome.errors), SizeIs(1));
}

TEST_F(PreviewTest, ReportTimesEachStepAndNamesUnknownClassesOnce) {
  const std::string unknown = WidgetItem("Unheard", "");
  tool_.Write("unknown.ui", ColumnForm(unknown + unknown + PushButton("known")));
  const Outcome outcome = tool_.Run("--report unknown.ui");

  EXPECT_EQ(outcome.status, 0);
  const json line = json::parse(outcome.output);
  EXPECT_EQ(line["unknown"], json::array({"Unheard"}));
  EXPECT_EQ(line["widgets"], 1);
  for (const char* step : {"read", "parse", "build", "layout", "paint"})
    EXPECT_GT(line["ms"][step], 0) << step;
}

TEST_F(PreviewTest, RefusesWithOneLine) {
  tool_.Write("truncated.ui", "<?xml version=\"1.0\"?>\n<ui>\n <widget class=\"QDialog\"");
  tool_.Write("other.ui", "<html/>");
  tool_.Write("empty/notes.txt", "");
  const std::tuple<const char*, int, const char*> kCases[] = {
      {"", 2, "FORM"},
      {"--nonsense rows.ui", 2, "--nonsense"},
      {"--size 3 rows.ui", 2, "--size"},
      {"--size 0x5 rows.ui", 2, "--size"},
      {"--scale none rows.ui", 2, "--scale"},
      {"--scale nan rows.ui", 2, "--scale"},
      {"--skin pink rows.ui", 2, "--skin"},
      {"--report --png x.png rows.ui", 2, "--report"},
      {"--png x.png rows.ui other.ui", 2, "one form"},
      {"missing.ui", 1, "missing.ui: No such file"},
      {"truncated.ui", 1, "truncated.ui:3: "},
      {"other.ui", 1, "other.ui: No UI node"},
      {"empty", 1, "empty: no forms"},
      {"--png missing/x.png rows.ui", 1, "missing/x.png"},
      {"--dump missing/x.json rows.ui", 1, "missing/x.json"}};
  for (const auto& [arguments, status, says] : kCases) {
    const Outcome outcome = tool_.Run(arguments);
    EXPECT_EQ(outcome.status, status) << arguments;
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(Lines(outcome.errors), SizeIs(1));
    EXPECT_THAT(outcome.errors, HasSubstr(says));
  }
}

TEST_F(PreviewTest, WithoutAnyFontItSaysSo) {
  tool_.Write("rows.ui", kRowsForm);
  tool_.Write("fonts.conf", "<fontconfig/>");
  const Outcome outcome = tool_.Run("--dump - rows.ui", "FONTCONFIG_FILE=$PWD/fonts.conf");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.errors, HasSubstr("no font can be loaded"));
}

TEST_F(PreviewTest, AKeyMapColorsThePicture) {
  tool_.Write("keys.txt", "; colours\n\nActive_BG = #123456\nprimary_text=#FFFFFF\n");
  EXPECT_EQ(tool_.Run("--png plain.png rows.ui").status, 0);
  EXPECT_EQ(tool_.Run("--png colored.png --keymap keys.txt rows.ui").status, 0);
  EXPECT_EQ(SizeOfPng(tool_.Read("plain.png")), SizeOfPng(tool_.Read("colored.png")));
  EXPECT_NE(tool_.Read("plain.png"), tool_.Read("colored.png"));
}

TEST_F(PreviewTest, ABrokenKeyMapIsRefusedWithItsLine) {
  for (const char* line : {"Active_BG", "Active_BG = 123456", "Active_BG = #12345", "= #123456",
                           "Active_BG = #123456 or so"}) {
    tool_.Write("keys.txt", std::string("Active_BG = #123456\n") + line + "\n");
    const Outcome outcome = tool_.Run("--png x.png --keymap keys.txt rows.ui");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("keys.txt:2: "));
  }
  EXPECT_THAT(tool_.Run("--keymap none.txt rows.ui").errors, HasSubstr("Cannot read none.txt"));
  EXPECT_THAT(tool_.Run("--keymap . rows.ui").errors, HasSubstr("Cannot read ."));
}

TEST_F(PreviewTest, HelpAndVersionSucceed) {
  const Outcome help = tool_.Run("--help");
  EXPECT_EQ(help.status, 0);
  EXPECT_THAT(help.output, HasSubstr("--report"));
  const Outcome version = tool_.Run("--version");
  EXPECT_EQ(version.status, 0);
  EXPECT_THAT(version.output, HasSubstr("wexa-preview "));
}

}  // namespace
}  // namespace tool
