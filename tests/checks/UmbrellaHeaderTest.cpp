#include <gtest/gtest.h>

#include <set>
#include <string>

#include "checks/IncludeRules.h"
#include "checks/ProjectFiles.h"

namespace checks {
namespace {

TEST(UmbrellaHeader, NamesEveryPublicHeader) {
  const std::string umbrella = "include/Wexa.h";
  std::set<std::string> named = {umbrella};
  for (const auto& include : IncludesOf(umbrella)) named.insert(include.target);
  for (const auto& path : FilesBelow("include")) {
    if (path.starts_with("include/MFC/") || !path.ends_with(".h")) continue;
    EXPECT_TRUE(named.contains(path)) << path;
  }
}

}  // namespace
}  // namespace checks
