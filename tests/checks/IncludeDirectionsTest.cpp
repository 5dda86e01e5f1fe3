#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

#include "checks/IncludeRules.h"
#include "checks/ProjectFiles.h"

namespace checks {
namespace {

constexpr std::string_view kHouse[] = {"platform", "include", "src"};

std::string StemOf(const std::string& path) {
  const auto start = path.rfind('/') + 1;
  return path.substr(start, path.rfind('.') - start);
}

std::unordered_set<std::string> HeaderStems() {
  std::unordered_set<std::string> stems;
  for (const auto folder : kHouse) {
    for (const auto& path : FilesBelow(folder)) {
      if (path.ends_with(".h")) stems.insert(StemOf(path));
    }
  }
  return stems;
}

std::optional<std::string> Broken(const std::string& from, const std::string& target) {
  return BrokenRule({from, 1, target, false});
}

std::optional<std::string> BrokenByLibrary(const std::string& from, const std::string& target) {
  return BrokenRule({from, 1, target, true});
}

TEST(IncludeDirections, PointDownwards) {
  int seen = 0;
  for (const auto folder : kHouse) {
    for (const auto& path : FilesBelow(folder)) {
      if (!IsSource(path)) continue;
      for (const auto& include : IncludesOf(path)) {
        ++seen;
        const auto rule = BrokenRule(include);
        EXPECT_FALSE(rule) << path << ":" << include.line << ": " << include.target << ": "
                           << *rule;
      }
    }
  }
  EXPECT_GT(seen, 100);
}

TEST(IncludeDirections, SourcesStartWithTheirOwnHeader) {
  const auto headers = HeaderStems();
  for (const auto folder : kHouse) {
    for (const auto& path : FilesBelow(folder)) {
      if (!path.ends_with(".cpp") || !headers.contains(StemOf(path))) continue;
      const auto includes = IncludesOf(path);
      ASSERT_FALSE(includes.empty()) << path;
      EXPECT_EQ(StemOf(includes.front().target), StemOf(path)) << path;
    }
  }
}

TEST(IncludeDirections, LayerKnowsNothingAboveIt) {
  EXPECT_TRUE(Broken("platform/src/window/Queue.cpp", "include/Event.h"));
  EXPECT_TRUE(Broken("platform/src/classes/Wnd.cpp", "src/layout/Box.h"));
  EXPECT_TRUE(Broken("platform/src/display/Display.h", "platform/include/platform/Window.h"));
  EXPECT_FALSE(Broken("platform/src/window/Queue.cpp", "platform/src/display/Display.h"));
}

TEST(IncludeDirections, OnlyTheFactoryNamesDisplays) {
  const std::string offscreen = "platform/src/display/offscreen/OffscreenDisplay.h";
  EXPECT_TRUE(Broken("platform/src/window/Queue.cpp", offscreen));
  EXPECT_TRUE(Broken("platform/src/display/x11/X11Display.cpp", offscreen));
  EXPECT_FALSE(Broken("platform/src/display/DisplayFactory.cpp", offscreen));
  EXPECT_FALSE(Broken("platform/src/display/offscreen/OffscreenDisplay.cpp", offscreen));
}

TEST(IncludeDirections, EnginesKnowNoWindow) {
  EXPECT_TRUE(Broken("src/layout/Box.cpp", "platform/include/platform/Classes.h"));
  EXPECT_TRUE(Broken("src/layout/Box.cpp", "include/MFC/BaseImplMFC.h"));
  EXPECT_TRUE(Broken("include/Dialog.h", "platform/include/platform/Window.h"));
  EXPECT_TRUE(Broken("include/Dialog.h", "src/form/Form.h"));
  EXPECT_FALSE(Broken("src/BaseGUIObject.cpp", "include/MFC/BaseImpl.h"));
  EXPECT_FALSE(Broken("include/Point.h", "platform/include/platform/Types.h"));
}

TEST(IncludeDirections, LibraryReachesTheLayerByItsHeaders) {
  EXPECT_TRUE(Broken("src/MFC/DialogImplMFC.cpp", "platform/src/graphics/Surface.h"));
  EXPECT_FALSE(Broken("src/MFC/DialogImplMFC.cpp", "platform/include/platform/Classes.h"));
}

TEST(IncludeDirections, LibrariesStayInTheirFolder) {
  EXPECT_TRUE(BrokenByLibrary("platform/src/window/Queue.cpp", "xcb/xcb.h"));
  EXPECT_TRUE(BrokenByLibrary("src/MFC/Button.cpp", "pango/pangocairo.h"));
  EXPECT_FALSE(BrokenByLibrary("platform/src/display/x11/X11Display.cpp", "xcb/shm.h"));
  EXPECT_FALSE(BrokenByLibrary("platform/src/graphics/Surface.h", "cairo.h"));
}

}  // namespace
}  // namespace checks
