#include <algorithm>
#include <utility>

#include "controls/ControlsTest.h"

namespace {

// Notes its messages and may be told what to do with one.
class Recorder : public CWnd {
 public:
  std::vector<UINT> messages;
  std::function<void(UINT)> onMessage;
  BOOL answerToChild = FALSE;

  BOOL Make(CWnd* parent, int id, const wchar_t* className = WC_BUTTON) {
    return CreateEx(0, className, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), parent,
                    static_cast<UINT>(id));
  }
  bool Got(UINT message) const {
    return std::find(messages.begin(), messages.end(), message) != messages.end();
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    messages.push_back(message);
    const HWND window = m_hWnd;
    if (onMessage) onMessage(message);
    return FromHandlePermanent(window) == this ? CWnd::WindowProc(message, wParam, lParam) : 0;
  }
  BOOL OnChildNotify(UINT, WPARAM wParam, LPARAM, LRESULT*) override {
    return HIWORD(wParam) == BN_CLICKED && answerToChild;
  }
};

}  // namespace

class WindowObjectTest : public ControlsTest {};

TEST_F(WindowObjectTest, GetsMessagesFromTheFirstToTheLast) {
  Recorder window;
  ASSERT_TRUE(window.Make(&dialog_, 10));
  EXPECT_EQ(window.messages.front(), WM_NCCREATE);
  EXPECT_TRUE(window.Got(WM_CREATE));
  window.DestroyWindow();
  EXPECT_EQ(window.messages.back(), WM_NCDESTROY);
  EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST_F(WindowObjectTest, WindowsMadeDuringItsCreationAreNotItsOwn) {
  Recorder outer;
  Recorder inner;
  outer.onMessage = [&](UINT message) {
    if (message == WM_CREATE) inner.Make(&outer, 11);
  };
  ASSERT_TRUE(outer.Make(&dialog_, 10));
  ASSERT_TRUE(inner.m_hWnd);
  EXPECT_NE(inner.m_hWnd, outer.m_hWnd);
  EXPECT_EQ(GetParent(inner.m_hWnd), outer.m_hWnd);
}

TEST_F(WindowObjectTest, AnUnknownClassMakesNoWindowAndClaimsNoOther) {
  Recorder failed;
  EXPECT_FALSE(failed.Make(&dialog_, 10, L"unknown"));
  EXPECT_EQ(failed.m_hWnd, nullptr);
  const HWND other = AddRow(WC_BUTTON, 0, 11);
  EXPECT_EQ(CWnd::FromHandlePermanent(other), nullptr);
}

TEST_F(WindowObjectTest, DestructionOfTheObjectDestroysItsOwnWindowOnly) {
  const HWND foreign = AddRow(WC_BUTTON, 0, 10);
  HWND own = nullptr;
  {
    Recorder creator;
    creator.Make(&dialog_, 11);
    own = creator.m_hWnd;
    Recorder guest;
    ASSERT_TRUE(guest.Attach(foreign));
  }
  EXPECT_FALSE(IsWindow(own));
  EXPECT_TRUE(IsWindow(foreign));
}

TEST_F(WindowObjectTest, TemporaryObjectsLiveUntilTheirWindowEndsOrGetsAPermanentOne) {
  const HWND window = AddRow(WC_BUTTON, 0, 10);
  CWnd* temporary = CWnd::FromHandle(window);
  ASSERT_NE(temporary, nullptr);
  EXPECT_EQ(CWnd::FromHandle(window), temporary);
  EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
  Recorder object;
  ASSERT_TRUE(object.Attach(window));
  EXPECT_EQ(CWnd::FromHandle(window), &object);
  EXPECT_EQ(object.Detach(), window);
  EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
  CWnd::FromHandle(window);
  DestroyWindow(window);
  EXPECT_EQ(CWnd::FromHandle(window), nullptr);
}

TEST_F(WindowObjectTest, MayBeDeletedInItsOwnHandler) {
  auto* object = new Recorder;
  ASSERT_TRUE(object->Make(&dialog_, 10));
  const HWND window = object->m_hWnd;
  object->onMessage = [&](UINT message) {
    if (message == WM_APP) delete std::exchange(object, nullptr);
  };
  SendMessageW(window, WM_APP, 0, 0);
  EXPECT_EQ(object, nullptr);
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(WindowObjectTest, AControlIsAskedBeforeItsParent) {
  Recorder button;
  ASSERT_TRUE(button.Make(&dialog_, 10));
  button.answerToChild = TRUE;
  button.SendMessage(BM_CLICK);
  EXPECT_TRUE(dialog_.TakeClicks().empty());
  button.answerToChild = FALSE;
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(dialog_.TakeClicks(), std::vector{10});
}

TEST_F(WindowObjectTest, MessagesArePreTranslatedFromTheInnermostOutwards) {
  struct Filter : Recorder {
    std::vector<int>* order = nullptr;
    int name = 0;
    BOOL consume = FALSE;
    BOOL PreTranslateMessage(MSG* message) override {
      if (message->message != WM_APP) return FALSE;
      order->push_back(name);
      return consume;
    }
  };
  std::vector<int> order;
  Filter outer;
  Filter inner;
  outer.Make(&dialog_, 10);
  inner.Make(&outer, 11);
  outer.order = inner.order = &order;
  outer.name = 1;
  inner.name = 2;
  inner.PostMessage(WM_APP);
  AfxPumpPending();
  EXPECT_EQ(order, (std::vector{2, 1}));
  EXPECT_TRUE(inner.Got(WM_APP));
  inner.messages.clear();
  inner.consume = TRUE;
  inner.PostMessage(WM_APP);
  AfxPumpPending();
  EXPECT_EQ(order, (std::vector{2, 1, 2}));
  EXPECT_FALSE(inner.Got(WM_APP));
}

TEST_F(WindowObjectTest, CallsWithoutAWindowFailQuietly) {
  CWnd none;
  none.SetWindowText(L"x");
  none.MoveWindow(CRect(0, 0, 1, 1));
  EXPECT_EQ(none.GetWindowText(), L"");
  EXPECT_TRUE(none.GetClientRect().IsEmpty());
  EXPECT_FALSE(none.DestroyWindow());
  EXPECT_EQ(none.GetParent(), nullptr);
  EXPECT_FALSE(none.PostMessage(WM_APP));
}
