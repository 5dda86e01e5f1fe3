#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "checks/ProjectFiles.h"

namespace checks {
namespace {

void ExpectNowhere(const std::string& pattern, const std::string& advice) {
  const std::regex forbidden(pattern, std::regex::optimize);
  for (const auto& path : FilesBelow("")) {
    int number = 0;
    for (const auto& line : LinesOf(path)) {
      ++number;
      EXPECT_FALSE(std::regex_search(line, forbidden)) << path << ":" << number << ": " << advice;
    }
  }
}

// Brackets in the patterns keep them from finding themselves.

TEST(Text, LeavesNoMarksOfUnfinishedWork) {
  ExpectNowhere("\\b(TOD[O]|FIXM[E]|XX[X]|HAC[K])\\b", "finish it, or open an issue");
}

TEST(Text, StandsOnItsOwn) {
  ExpectNowhere("\\b([Ss]pe[c](ification)?s?\\b|[P]art [0-9]+\\.[0-9]|[I]ssue #?[0-9])",
                "say the thing itself: readers have this tree and nothing else");
}

TEST(Text, NamesNoFolderOfOneMachine) {
  ExpectNowhere("/(wor[k]|hom[e])/", "paths start at the project's root");
}

TEST(Text, EndsLinesCleanly) {
  ExpectNowhere("[ \\t\\r]$", "white space at the end");
}

}  // namespace
}  // namespace checks
