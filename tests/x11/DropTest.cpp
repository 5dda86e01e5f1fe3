#include "display/x11/UriList.h"
#include "support/x11/DragSource.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;
using support::DragSource;
using testing::ElementsAre;
using testing::IsEmpty;
using Words = DragSource::Words;

class X11DropTest : public X11Test {
 protected:
  // Drags files to a place of the dialog that takes them and lets them go there.
  void DropOnTaker(DragSource& source) {
    source.Enter({"text/plain", "text/uri-list"});
    source.Move({150, 120});
    EXPECT_EQ(All(Kind::FilesDragged).size(), 1u);
    display_->AnswerDrag(kDialog, true);
    source.Drop();
    All();
  }

  // What has come of it at last.
  std::vector<std::wstring> Dropped() {
    std::vector<std::wstring> files;
    for (Input& input : All(Kind::FilesDropped)) {
      EXPECT_EQ(input.surface, kDialog);
      EXPECT_EQ(input.position.x, 150);
      EXPECT_EQ(input.position.y, 120);
      files.insert(files.end(), input.files.begin(), input.files.end());
    }
    return files;
  }

  xcb_window_t window_ = OpenDialog();
  DragSource source_{person_, window_};
};

TEST_F(X11DropTest, FilesArriveWhereTheyAreTaken) {
  EXPECT_EQ(person_.Property(window_, "XdndAware"), std::string("\5\0\0\0", 4));
  source_.Enter({"text/plain", "text/uri-list"});
  source_.Move({150, 120});
  const auto asked = All(Kind::FilesDragged);
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0].surface, kDialog);
  EXPECT_EQ(asked[0].position.x, 150);
  EXPECT_EQ(asked[0].position.y, 120);
  display_->AnswerDrag(kDialog, true);
  const xcb_atom_t copy = person_.Atom("XdndActionCopy");
  EXPECT_EQ(source_.Take("XdndStatus"), (Words{window_, 3, 0, 0, copy}));
  source_.Drop();
  All();
  EXPECT_FALSE(source_.Take("XdndFinished"));
  source_.Drop();
  EXPECT_THAT(Dropped(), IsEmpty());
}

TEST_F(X11DropTest, SourceLearnsWhenTheFilesAreHere) {
  DropOnTaker(source_);
  ASSERT_TRUE(source_.Give("# two files\r\nfile:///a%20b\r\nfile://localhost/%C3%A4\r\n"));
  EXPECT_THAT(Dropped(), ElementsAre(L"/a b", L"/\u00E4"));
  const xcb_atom_t copy = person_.Atom("XdndActionCopy");
  EXPECT_EQ(source_.Take("XdndFinished"), (Words{window_, 1, copy}));
  display_->AnswerDrag(kDialog, true);
  EXPECT_FALSE(source_.Take("XdndStatus"));
}

TEST_F(X11DropTest, LongListComesInPieces) {
  DropOnTaker(source_);
  ASSERT_TRUE(source_.BeginPieces());
  std::vector<std::wstring> expected;
  std::string list;
  for (int i = 0; i < 3; ++i) {
    EXPECT_THAT(Dropped(), IsEmpty());
    list = "file:///piece" + std::to_string(i) + "\r\n";
    expected.push_back(L"/piece" + std::to_wstring(i));
    source_.GivePiece(list);
  }
  EXPECT_THAT(Dropped(), IsEmpty());
  source_.GivePiece("");
  EXPECT_EQ(Dropped(), expected);
}

TEST_F(X11DropTest, PlaceThatTakesNoneIsToldAndGetsNone) {
  source_.Enter({"text/uri-list"});
  source_.Move({150, 120});
  All();
  display_->AnswerDrag(kDialog, false);
  EXPECT_EQ(source_.Take("XdndStatus"), (Words{window_, 2}));
  source_.Drop();
  EXPECT_THAT(Dropped(), IsEmpty());
  EXPECT_EQ(source_.Take("XdndFinished"), (Words{window_, 0}));
}

TEST_F(X11DropTest, OnlyFilesAreAskedAbout) {
  source_.Enter({"text/plain", "text/html"});
  source_.Move({150, 120});
  EXPECT_THAT(All(Kind::FilesDragged), IsEmpty());
  EXPECT_EQ(source_.Take("XdndStatus"), (Words{window_, 2}));
  source_.Leave();
  source_.Enter({"text/plain", "text/html", "image/png", "text/uri-list"});
  source_.Move({150, 120});
  EXPECT_EQ(All(Kind::FilesDragged).size(), 1u);
}

TEST_F(X11DropTest, DragThatLeftDropsNothing) {
  source_.Enter({"text/uri-list"});
  source_.Move({150, 120});
  All();
  display_->AnswerDrag(kDialog, true);
  source_.Leave();
  source_.Drop();
  All();
  EXPECT_FALSE(source_.Give("file:///a"));
}

// Whatever a source does wrong, the next drag is as good as the first.
TEST_F(X11DropTest, BadSourcesDoNoHarm) {
  source_.Move({150, 120});
  source_.Drop();
  source_.Send("XdndEnter", {0xDEAD, ~0u, 0xBEEF, 0xBEEF, 0xBEEF});
  source_.Send("XdndPosition", {0xDEAD, 0, ~0u});
  source_.Send("XdndDrop", {0xDEAD});
  source_.Send("XdndEnter", {source_.Window(), 5u << 24 | 1}, 8);
  EXPECT_THAT(All(Kind::FilesDragged), IsEmpty());

  DropOnTaker(source_);
  ASSERT_TRUE(source_.Refuse());
  EXPECT_THAT(Dropped(), IsEmpty());
  EXPECT_EQ(source_.Take("XdndFinished"), (Words{window_, 0}));

  DropOnTaker(source_);
  ASSERT_TRUE(source_.Give(std::string("\0\xFF%%%\r\n://\r\nfile:relative", 24)));
  EXPECT_THAT(Dropped(), IsEmpty());

  DragSource gone(person_, window_);
  DropOnTaker(gone);
  ASSERT_TRUE(gone.BeginPieces());
  xcb_destroy_window(person_.Connection(), gone.Window());
  EXPECT_THAT(Dropped(), IsEmpty());

  DragSource next(person_, window_);
  DropOnTaker(next);
  ASSERT_TRUE(next.Give("file:///last"));
  EXPECT_THAT(Dropped(), ElementsAre(L"/last"));
}

TEST_F(X11DropTest, WindowThatClosesMeanwhileGetsNothing) {
  DropOnTaker(source_);
  display_->DestroySurface(kDialog);
  All();
  source_.Give("file:///a");
  EXPECT_THAT(Dropped(), IsEmpty());
}

TEST(UriListTest, OnlyFilesOfThisMachineCount) {
  const struct {
    const char* list;
    std::vector<std::wstring> files;
  } cases[] = {
      {"", {}},
      {"# file:///comment\r\n", {}},
      {"file:///a\nfile:///b\r\n\r\nfile:///c", {L"/a", L"/b", L"/c"}},
      {"file:/short", {L"/short"}},
      {"file://elsewhere.example/a\r\nfile:///b", {L"/b"}},
      {"http://localhost/a", {}},
      {"file:///100%25%20%E2%82%AC", {L"/100% \u20AC"}},
      {"file:///cut%4\r\nfile:///none%zz\r\nfile:///zero%00\r\nfile:///slash%2F", {}},
      {"file:///latin%E4", {}},
  };
  for (const auto& [list, files] : cases) EXPECT_EQ(x11::FilesOf(list), files) << list;
}

}  // namespace
}  // namespace display
