#include <atomic>
#include <cstdlib>
#include <thread>

#include "display/x11/X11Display.h"
#include "x11/X11Test.h"

namespace display {
namespace {

// Another program with a clipboard of its own, on a thread of its own.
class OtherProgram {
 public:
  explicit OtherProgram(const std::wstring& text) : display_(OpenX11Display()) {
    display_->SetClipboardText(text);
    display_->WorkArea();
    display_->PointerPosition();
    thread_ = std::thread([this] { Serve(); });
  }
  ~OtherProgram() {
    done_ = true;
    display_->Wake();
    thread_.join();
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

 private:
  void Serve() {
    while (!done_) {
      while (display_->Poll()) {
      }
      display_->Wait(std::nullopt);
    }
  }

  std::unique_ptr<Display> display_;
  std::atomic<bool> done_ = false;
  std::thread thread_;
};

// A program that gives its text in small pieces.
class SlowProgram {
 public:
  explicit SlowProgram(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {
    pieces_.emplace_back();
    window_ = person_.CreateWindow();
    xcb_set_selection_owner(c_, window_, person_.Atom("CLIPBOARD"), XCB_CURRENT_TIME);
    incr_ = person_.Atom("INCR");
    person_.Sync();
    thread_ = std::thread([this] { Serve(); });
  }
  ~SlowProgram() { thread_.join(); }
  SlowProgram(const SlowProgram&) = delete;
  SlowProgram& operator=(const SlowProgram&) = delete;

 private:
  void Serve() {
    while (next_ < pieces_.size()) {
      xcb_generic_event_t* event = xcb_wait_for_event(c_);
      if (!event) return;
      const int type = event->response_type & 0x7F;
      if (type == XCB_SELECTION_REQUEST) Begin(reinterpret_cast<const Request&>(*event));
      if (type == XCB_PROPERTY_NOTIFY) Taken(reinterpret_cast<const Property&>(*event));
      std::free(event);
    }
  }

  using Request = xcb_selection_request_event_t;
  using Property = xcb_property_notify_event_t;

  void Begin(const Request& request) {
    request_ = request;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(c_, request.requestor, XCB_CW_EVENT_MASK, &events);
    const std::uint32_t size = 1;
    xcb_change_property(c_, XCB_PROP_MODE_REPLACE, request.requestor, request.property, incr_, 32,
                        1, &size);
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = request.property;
    xcb_send_event(c_, 0, request.requestor, 0, reinterpret_cast<const char*>(&answer));
    xcb_flush(c_);
  }

  void Taken(const Property& event) {
    if (event.atom != request_.property || event.state != XCB_PROPERTY_DELETE) return;
    const std::string& piece = pieces_[next_++];
    xcb_change_property(c_, XCB_PROP_MODE_REPLACE, request_.requestor, request_.property,
                        request_.target, 8, static_cast<std::uint32_t>(piece.size()), piece.data());
    person_.Sync();
  }

  support::XTestDriver person_;
  xcb_connection_t* c_ = person_.Connection();
  xcb_window_t window_ = 0;
  xcb_atom_t incr_ = 0;
  Request request_{};
  std::vector<std::string> pieces_;
  std::size_t next_ = 0;
  std::thread thread_;
};

class X11ClipboardTest : public X11Test {};

TEST_F(X11ClipboardTest, OwnTextComesBack) {
  display_->SetClipboardText(L"own \u00E4");
  EXPECT_EQ(display_->ClipboardText(), L"own \u00E4");
}

TEST_F(X11ClipboardTest, TextGoesFromProgramToProgram) {
  const OtherProgram other(L"from \u00FCber there \U0001F600\nsecond line");
  EXPECT_EQ(display_->ClipboardText(), L"from \u00FCber there \U0001F600\nsecond line");
}

TEST_F(X11ClipboardTest, LaterOwnerTakesTheClipboard) {
  OpenDialog();
  display_->SetClipboardText(L"mine");
  display_->PointerPosition();
  const OtherProgram other(L"theirs");
  All();
  EXPECT_EQ(display_->ClipboardText(), L"theirs");
}

TEST_F(X11ClipboardTest, LongTextsGoOverWhole) {
  for (const std::size_t length : {0x40000, 0x40001, 0x80000, 900001}) {
    std::wstring text(length, L'a');
    text.back() = L'z';
    const OtherProgram other(text);
    EXPECT_EQ(display_->ClipboardText(), text) << length;
  }
}

// Whoever asked goes before the text has come.
TEST_F(X11ClipboardTest, ReaderThatGoesAwayLeavesTheOwnerAlone) {
  OpenDialog();
  display_->SetClipboardText(std::wstring(900000, L'a'));
  const xcb_window_t reader = person_.CreateWindow();
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(person_.Connection(), reader, XCB_CW_EVENT_MASK, &events);
  xcb_convert_selection(person_.Connection(), reader, person_.Atom("CLIPBOARD"),
                        person_.Atom("UTF8_STRING"), person_.Atom("TEXT_HERE"), XCB_CURRENT_TIME);
  person_.Sync();
  All();
  EXPECT_EQ(person_.Number(reader, "TEXT_HERE"), 900000u);
  xcb_delete_property(person_.Connection(), reader, person_.Atom("TEXT_HERE"));
  person_.Sync();
  All();
  EXPECT_EQ(person_.Property(reader, "TEXT_HERE").size(), 0x40000u);
  xcb_destroy_window(person_.Connection(), reader);
  person_.Sync();
  All();
  EXPECT_EQ(display_->ClipboardText().size(), 900000u);
}

TEST_F(X11ClipboardTest, PiecesAreJoined) {
  const SlowProgram other({"first \xC3", "\xA4 second", " third"});
  EXPECT_EQ(display_->ClipboardText(), L"first \u00E4 second third");
}

TEST_F(X11ClipboardTest, InputThatComesMeanwhileIsKept) {
  OpenDialog();
  const SlowProgram other({"text"});
  person_.Key(XKB_KEY_a);
  EXPECT_EQ(display_->ClipboardText(), L"text");
  EXPECT_EQ(Typed(), U"a");
}

TEST_F(X11ClipboardTest, NoOwnerIsNoText) {
  EXPECT_EQ(display_->ClipboardText(), L"");
}

TEST_F(X11ClipboardTest, AnOwnerThatHangsIsAskedOnce) {
  xcb_connection_t* hung = person_.Connection();
  xcb_set_selection_owner(hung, person_.CreateWindow(), person_.Atom("CLIPBOARD"),
                          XCB_CURRENT_TIME);
  person_.Sync();
  EXPECT_EQ(display_->ClipboardText(), L"");
  int requests = 0;
  while (xcb_generic_event_t* event = xcb_poll_for_event(hung)) {
    if ((event->response_type & 0x7F) == XCB_SELECTION_REQUEST) ++requests;
    std::free(event);
  }
  EXPECT_EQ(requests, 1);
}

}  // namespace
}  // namespace display
