#include <atomic>
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

TEST_F(X11ClipboardTest, LongTextGoesOverWhole) {
  const std::wstring text(300000, L'\u20AC');
  const OtherProgram other(text);
  EXPECT_EQ(display_->ClipboardText(), text);
}

TEST_F(X11ClipboardTest, NoOwnerIsNoText) {
  EXPECT_EQ(display_->ClipboardText(), L"");
}

}  // namespace
}  // namespace display
