#include "display/x11/UriList.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

// Another program that lets the user drag something out of it.
class Source {
 public:
  using Words = support::XTestDriver::Words;

  Source(support::XTestDriver& person, xcb_window_t target)
      : person_(person), target_(target), window_(person.CreateWindow()) {
    xcb_set_selection_owner(c_, window_, person.Atom("XdndSelection"), XCB_CURRENT_TIME);
  }

  void Enter(const std::vector<const char*>& types) {
    std::vector<std::uint32_t> atoms;
    for (const char* type : types) atoms.push_back(person_.Atom(type));
    person_.SetWords(window_, "XdndTypeList", XCB_ATOM_ATOM, atoms);
    const bool isLong = atoms.size() > 3;
    atoms.resize(3);
    Send("XdndEnter", {window_, 5u << 24 | std::uint32_t{isLong}, atoms[0], atoms[1], atoms[2]});
  }
  void Move(POINT position) {
    const auto place = static_cast<std::uint32_t>(position.x << 16 | position.y);
    Send("XdndPosition", {window_, 0, place, 0, person_.Atom("XdndActionMove")});
  }
  void Leave() { Send("XdndLeave", {window_}); }
  void Drop() { Send("XdndDrop", {window_, 0, XCB_CURRENT_TIME}); }
  void Send(const char* type, const Words& data, std::uint8_t format = 32) {
    person_.Send(target_, type, data, XCB_EVENT_MASK_NO_EVENT, format);
  }

  // Gives the data to whoever has asked; false when nobody has.
  bool Give(const std::string& bytes) {
    return Answer([&](const Request& request) {
      Write(request, request.target, 8, bytes.size(), bytes.data());
      return request.property;
    });
  }
  bool Refuse() {
    return Answer([](const Request&) { return xcb_atom_t{XCB_ATOM_NONE}; });
  }
  // Gives the first piece when asked, each of the others when the one before has been taken.
  bool BeginPieces() {
    return Answer([&](const Request& request) {
      const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
      xcb_change_window_attributes(c_, request.requestor, XCB_CW_EVENT_MASK, &events);
      Write(request, person_.Atom("INCR"), 32, 1, &events);
      pieces_ = request;
      return request.property;
    });
  }
  void GivePiece(const std::string& bytes) {
    Write(pieces_, pieces_.target, 8, bytes.size(), bytes.data());
    person_.Sync();
  }

  // The data of the last answer of this type; none if none.
  std::optional<Words> Take(const char* type) {
    const auto message = person_.TakeMessage(type);
    return message ? std::optional(message->data) : std::nullopt;
  }
  xcb_window_t Window() const { return window_; }

 private:
  using Request = xcb_selection_request_event_t;

  void Write(const Request& request, xcb_atom_t type, std::uint8_t format, std::size_t count,
             const void* data) {
    xcb_change_property(c_, XCB_PROP_MODE_REPLACE, request.requestor, request.property, type,
                        format, static_cast<std::uint32_t>(count), data);
  }

  bool Answer(const std::function<xcb_atom_t(const Request&)>& give) {
    bool asked = false;
    person_.ForEachEvent([&](const xcb_generic_event_t& event) {
      if ((event.response_type & 0x7F) != XCB_SELECTION_REQUEST) return;
      const auto& request = reinterpret_cast<const Request&>(event);
      asked = true;
      xcb_selection_notify_event_t answer{};
      answer.response_type = XCB_SELECTION_NOTIFY;
      answer.requestor = request.requestor;
      answer.selection = request.selection;
      answer.target = request.target;
      answer.property = give(request);
      xcb_send_event(c_, 0, request.requestor, 0, reinterpret_cast<const char*>(&answer));
    });
    person_.Sync();
    return asked;
  }

  support::XTestDriver& person_;
  xcb_connection_t* c_ = person_.Connection();
  xcb_window_t target_;
  xcb_window_t window_;
  Request pieces_{};
};

class X11DropTest : public X11Test {
 protected:
  // Drags files to a place of the dialog that takes them and lets them go there.
  void DropOnTaker(Source& source) {
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
  Source source_{person_, window_};
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
  EXPECT_EQ(source_.Take("XdndStatus"), (Source::Words{window_, 3, 0, 0, copy}));
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
  EXPECT_EQ(source_.Take("XdndFinished"), (Source::Words{window_, 1, copy}));
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
  EXPECT_EQ(source_.Take("XdndStatus"), (Source::Words{window_, 2}));
  source_.Drop();
  EXPECT_THAT(Dropped(), IsEmpty());
  EXPECT_EQ(source_.Take("XdndFinished"), (Source::Words{window_, 0}));
}

TEST_F(X11DropTest, OnlyFilesAreAskedAbout) {
  source_.Enter({"text/plain", "text/html"});
  source_.Move({150, 120});
  EXPECT_THAT(All(Kind::FilesDragged), IsEmpty());
  EXPECT_EQ(source_.Take("XdndStatus"), (Source::Words{window_, 2}));
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
  EXPECT_EQ(source_.Take("XdndFinished"), (Source::Words{window_, 0}));

  DropOnTaker(source_);
  ASSERT_TRUE(source_.Give(std::string("\0\xFF%%%\r\n://\r\nfile:relative", 24)));
  EXPECT_THAT(Dropped(), IsEmpty());

  Source gone(person_, window_);
  DropOnTaker(gone);
  ASSERT_TRUE(gone.BeginPieces());
  xcb_destroy_window(person_.Connection(), gone.Window());
  EXPECT_THAT(Dropped(), IsEmpty());

  Source next(person_, window_);
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
