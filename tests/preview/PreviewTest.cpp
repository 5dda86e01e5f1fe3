#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "preview/Tool.h"

namespace preview {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::SizeIs;

// A column of 10 margin and 5 spacing: a line 30 high, and the rest for a row of 1 to 3 with 4
// between.
constexpr const char* kRowsForm = R"(<ui version="4.0">
 <widget class="QDialog" name="Rows">
  <property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>150</height></rect></property>
  <layout class="QVBoxLayout">
   <property name="leftMargin"><number>10</number></property>
   <property name="topMargin"><number>10</number></property>
   <property name="rightMargin"><number>10</number></property>
   <property name="bottomMargin"><number>10</number></property>
   <property name="spacing"><number>5</number></property>
   <item>
    <widget class="QWidget" name="line">
     <property name="minimumSize"><size><width>0</width><height>30</height></size></property>
     <property name="maximumSize"><size><width>16777215</width><height>30</height></size></property>
    </widget>
   </item>
   <item>
    <widget class="QWidget" name="row">
     <property name="sizePolicy"><sizepolicy hsizetype="Expanding" vsizetype="Expanding"><horstretch>0</horstretch><verstretch>0</verstretch></sizepolicy></property>
     <layout class="QHBoxLayout" stretch="1,3">
      <property name="leftMargin"><number>0</number></property>
      <property name="topMargin"><number>0</number></property>
      <property name="rightMargin"><number>0</number></property>
      <property name="bottomMargin"><number>0</number></property>
      <property name="spacing"><number>4</number></property>
      <item><widget class="QWidget" name="quarter"/></item>
      <item><widget class="QWidget" name="rest"/></item>
     </layout>
    </widget>
   </item>
  </layout>
 </widget>
</ui>
)";

constexpr const char* kPagesForm = R"(<ui version="4.0">
 <widget class="QDialog" name="Pages">
  <property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>150</height></rect></property>
  <widget class="QStackedWidget" name="stack">
   <property name="geometry"><rect><x>10</x><y>20</y><width>100</width><height>80</height></rect></property>
   <widget class="QWidget" name="shown"/>
   <widget class="QWidget" name="hidden"/>
  </widget>
  <widget class="QLabel"/>
 </widget>
</ui>
)";

class PreviewTest : public testing::Test {
 protected:
  PreviewTest() { tool_.Write("rows.ui", kRowsForm); }

  Tool tool_;
};

TEST_F(PreviewTest, DumpsTheFormsOwnSize) {
  const Outcome outcome = tool_.Run("--dump - rows.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json dump = json::parse(outcome.output);
  EXPECT_EQ(dump["form"], "rows");
  ASSERT_THAT(dump["sizes"], SizeIs(1));
  EXPECT_EQ(dump["sizes"][0], json::parse(R"({"request": [200, 150], "client": [200, 150],
      "widgets": {"line": [10, 10, 180, 30], "row": [10, 45, 180, 95],
                  "quarter": [10, 45, 44, 95], "rest": [58, 45, 132, 95]}})"));
}

TEST_F(PreviewTest, DumpsEverySizeInTheOrderGiven) {
  const Outcome outcome = tool_.Run("--dump - --size 300x200 --size 200x150 rows.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json dump = json::parse(outcome.output);
  ASSERT_THAT(dump["sizes"], SizeIs(2));
  EXPECT_EQ(dump["sizes"][0], json::parse(R"({"request": [300, 200], "client": [300, 200],
      "widgets": {"line": [10, 10, 280, 30], "row": [10, 45, 280, 145],
                  "quarter": [10, 45, 69, 145], "rest": [83, 45, 207, 145]}})"));
  EXPECT_EQ(dump["sizes"][1]["widgets"]["rest"], json({58, 45, 132, 95}));
}

TEST_F(PreviewTest, DumpKeepsToTheLimitsItStates) {
  const Outcome outcome = tool_.Run("--dump rows.json --size 1x1 rows.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json dump = json::parse(tool_.Read("rows.json"));
  EXPECT_EQ(dump["sizes"][0]["request"], json({1, 1}));
  EXPECT_EQ(dump["sizes"][0]["client"], dump["layout"]["min"]);
}

TEST_F(PreviewTest, ScaleMultipliesTheDump) {
  const Outcome outcome = tool_.Run("--dump - --scale 2 rows.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json entry = json::parse(outcome.output)["sizes"][0];
  EXPECT_EQ(entry["client"], json({400, 300}));
  EXPECT_EQ(entry["widgets"]["line"], json({20, 20, 360, 60}));
}

TEST_F(PreviewTest, RightToLeftDumpIsMirrored) {
  const Outcome outcome = tool_.Run("--dump - --rtl rows.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json widgets = json::parse(outcome.output)["sizes"][0]["widgets"];
  EXPECT_EQ(widgets["quarter"], json({146, 45, 44, 95}));
  EXPECT_EQ(widgets["rest"], json({10, 45, 132, 95}));
}

TEST_F(PreviewTest, DumpLeavesOutWhatIsHiddenOrNameless) {
  tool_.Write("pages.ui", kPagesForm);

  const Outcome outcome = tool_.Run("--dump - pages.ui");

  ASSERT_EQ(outcome.status, 0) << outcome.errors;
  const json widgets = json::parse(outcome.output)["sizes"][0]["widgets"];
  EXPECT_THAT(widgets, SizeIs(2));
  EXPECT_EQ(widgets["stack"], json({10, 20, 100, 80}));
  EXPECT_TRUE(widgets.contains("shown"));
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
  std::string form = kRowsForm;
  const std::string rest = R"(<item><widget class="QWidget" name="rest"/></item>)";
  const std::string unknown = R"(<item><widget class="Unheard"/></item>)";
  form.replace(form.find(rest), rest.size(), unknown + unknown);
  tool_.Write("unknown.ui", form);

  const Outcome outcome = tool_.Run("--report unknown.ui");

  EXPECT_EQ(outcome.status, 0);
  const json line = json::parse(outcome.output);
  EXPECT_EQ(line["unknown"], json::array({"Unheard"}));
  EXPECT_EQ(line["widgets"], 3);
  for (const char* step : {"read", "parse", "build", "layout", "paint"})
    EXPECT_GT(line["ms"][step], 0) << step;
}

struct Refusal {
  const char* arguments;
  int status;
  const char* says;
};

class PreviewRefuses : public testing::TestWithParam<Refusal> {};

TEST_P(PreviewRefuses, WithOneLine) {
  Tool tool;
  tool.Write("rows.ui", kRowsForm);
  tool.Write("truncated.ui", "<?xml version=\"1.0\"?>\n<ui>\n <widget class=\"QDialog\"");
  tool.Write("other.ui", "<html/>");
  tool.Write("empty/notes.txt", "");

  const Outcome outcome = tool.Run(GetParam().arguments);

  EXPECT_EQ(outcome.status, GetParam().status);
  EXPECT_EQ(outcome.output, "");
  EXPECT_THAT(Lines(outcome.errors), SizeIs(1));
  EXPECT_THAT(outcome.errors, HasSubstr(GetParam().says));
}

INSTANTIATE_TEST_SUITE_P(
    , PreviewRefuses,
    testing::Values(Refusal{"", 2, "FORM"}, Refusal{"--nonsense rows.ui", 2, "--nonsense"},
                    Refusal{"--size 3 rows.ui", 2, "--size"},
                    Refusal{"--size 0x5 rows.ui", 2, "--size"},
                    Refusal{"--scale none rows.ui", 2, "--scale"},
                    Refusal{"--scale nan rows.ui", 2, "--scale"},
                    Refusal{"--skin pink rows.ui", 2, "--skin"},
                    Refusal{"--report --png x.png rows.ui", 2, "--report"},
                    Refusal{"--png x.png rows.ui other.ui", 2, "one form"},
                    Refusal{"missing.ui", 1, "missing.ui: No such file"},
                    Refusal{"truncated.ui", 1, "truncated.ui:3: "},
                    Refusal{"other.ui", 1, "other.ui: No UI node"},
                    Refusal{"empty", 1, "empty: no forms"},
                    Refusal{"--png missing/x.png rows.ui", 1, "missing/x.png"},
                    Refusal{"--dump missing/x.json rows.ui", 1, "missing/x.json"}));

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
}  // namespace preview
