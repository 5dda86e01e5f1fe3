#include "data/TestData.h"
#include "support/tool/Tool.h"

namespace tool {
namespace {

using testing::HasSubstr;

class LanguageTest : public testing::Test {
 protected:
  Outcome Dump(const std::string& options) {
    return tool_.Run("--dump - " + options + " " + testdata::Form("find_plant.ui"));
  }

  Tool tool_{WEXA_PREVIEW};
  const std::string plain_ = Dump("").output;
};

TEST_F(LanguageTest, OpensFormsTranslated) {
  tool_.Write("host/lang/de-DE/program_de-DE.ts", testdata::BytesOf(testdata::TsFile("de")));
  const auto outcome = Dump("--language de_DE --plain --working-dir host");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_NE(outcome.output, plain_);
}

TEST_F(LanguageTest, TellsWhatIsWrongWithLanguageFiles) {
  EXPECT_THAT(Dump("--language pt_BR --plain").errors, HasSubstr("no pt-BR.ts in "));
  tool_.Write("lang/pt-BR/pt-BR.ts",
              "<TS language=\"pt_BR\"><context><message>\n"
              "<location filename=\"find_plant.ui\" line=\"six\"/></message></context></TS>");
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
}  // namespace tool
