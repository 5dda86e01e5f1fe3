#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "preview/Tool.h"

namespace preview {
namespace {

using testing::HasSubstr;

constexpr const char* kForm = R"(<ui version="4.0">
 <widget class="QDialog" name="Form">
  <property name="geometry"><rect><x>0</x><y>0</y><width>400</width><height>100</height></rect></property>
  <layout class="QHBoxLayout">
   <item><widget class="QPushButton" name="button"><property name="text">
    <string>a</string>
   </property></widget></item>
   <item><spacer name="spacer"><property name="orientation"><enum>Qt::Horizontal</enum></property>
    <property name="sizeHint"><size><width>1</width><height>1</height></size></property></spacer></item>
  </layout>
 </widget>
</ui>
)";

std::string TsWith(const std::string& line) {
  return "<TS language=\"pt_BR\"><context><message>\n<location filename=\"form.ui\" line=\"" +
         line +
         "\"/><translation>a text that is much longer</translation></message></context></TS>";
}

class LanguageTest : public testing::Test {
 protected:
  LanguageTest() {
    tool_.Write("form.ui", kForm);
    plain_ = tool_.Run("--dump - form.ui").output;
  }
  Outcome Dump(const std::string& options) { return tool_.Run("--dump - " + options + " form.ui"); }

  Tool tool_;
  std::string plain_;
};

TEST_F(LanguageTest, OpensFormsTranslated) {
  tool_.Write("host/lang/pt-BR/program_pt-BR.ts", TsWith("6"));
  const auto outcome = Dump("--language pt_BR --plain --working-dir host");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_NE(outcome.output, plain_);
}

TEST_F(LanguageTest, TellsWhatIsWrongWithLanguageFiles) {
  EXPECT_THAT(Dump("--language pt_BR --plain").errors, HasSubstr("no pt-BR.ts in "));
  tool_.Write("lang/pt-BR/pt-BR.ts", TsWith("six"));
  const auto outcome = Dump("--language pt_BR --plain");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, plain_);
  EXPECT_THAT(outcome.errors, HasSubstr("lang/pt-BR/pt-BR.ts:2: the line of this location"));
}

TEST_F(LanguageTest, ItsOptionsGoTogether) {
  EXPECT_EQ(Dump("--plain").status, 2);
  EXPECT_EQ(Dump("--working-dir .").status, 2);
  EXPECT_EQ(Dump("--language de --working-dir none").status, 2);
}

}  // namespace
}  // namespace preview
