#include <gmock/gmock.h>

#include "window/WindowTest.h"

using testing::ElementsAre;

namespace {

std::vector<std::string> calls;
int removals = 0;

LRESULT Passing(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                DWORD_PTR data) {
  if (message == WM_USER) calls.push_back(std::to_string(id) + ":" + std::to_string(data));
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT RemovingItself(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                       DWORD_PTR) {
  if (message != WM_USER) return DefSubclassProc(window, message, wParam, lParam);
  calls.push_back("self");
  RemoveWindowSubclass(window, RemovingItself, id);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT RemovingTheNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                        DWORD_PTR next) {
  if (message == WM_USER) RemoveWindowSubclass(window, Passing, next);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CallingTwice(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  DefSubclassProc(window, message, wParam, lParam);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT AddingAnother(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                      DWORD_PTR) {
  if (message == WM_USER)
    for (UINT_PTR id = 100; id < 200; ++id) SetWindowSubclass(window, Passing, id, 0);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT Destroying(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == WM_USER) DestroyWindow(window);
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT LeavingAtTheEnd(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                        DWORD_PTR) {
  if (message == WM_NCDESTROY) removals += RemoveWindowSubclass(window, LeavingAtTheEnd, id);
  return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

class SubclassTest : public WindowTest {
 protected:
  SubclassTest() {
    calls.clear();
    removals = 0;
    Watch({WM_USER, WM_NCDESTROY});
  }
  HWND window_ = MakeWindow(kBare, {0, 0, 10, 10});
};

TEST_F(SubclassTest, TheNewestIsCalledFirstAndMayPassOnTwice) {
  SetWindowSubclass(window_, Passing, 1, 10);
  SetWindowSubclass(window_, Passing, 2, 20);
  SetWindowSubclass(window_, Passing, 1, 11);
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_THAT(std::exchange(calls, {}), ElementsAre("2:20", "1:11"));
  EXPECT_THAT(TakeNotes(), ElementsAre("USER"));
  SetWindowSubclass(window_, CallingTwice, 1, 0);
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_THAT(calls, ElementsAre("2:20", "1:11", "2:20", "1:11"));
}

TEST_F(SubclassTest, OneMayRemoveItselfOrTheNextOnTheWay) {
  SetWindowSubclass(window_, Passing, 1, 0);
  SetWindowSubclass(window_, Passing, 2, 0);
  SetWindowSubclass(window_, RemovingTheNext, 1, 2);
  SetWindowSubclass(window_, RemovingItself, 1, 0);
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_FALSE(RemoveWindowSubclass(window_, Passing, 2));
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_THAT(calls, ElementsAre("self", "1:0", "1:0"));
}

TEST_F(SubclassTest, OnesAddedOnTheWayComeWithTheNextMessage) {
  SetWindowSubclass(window_, AddingAnother, 1, 0);
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_TRUE(calls.empty());
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_EQ(calls.size(), 100U);
}

TEST_F(SubclassTest, WindowDestroyedOnTheWayGetsNoMore) {
  SetWindowSubclass(window_, Passing, 1, 0);
  SetWindowSubclass(window_, Destroying, 1, 0);
  EXPECT_EQ(SendMessageW(window_, WM_USER, 0, 0), 0);
  EXPECT_THAT(calls, ElementsAre());
  EXPECT_FALSE(SetWindowSubclass(window_, Passing, 1, 0));
}

TEST_F(SubclassTest, TheLastMessageReachesEverybody) {
  SetWindowSubclass(window_, LeavingAtTheEnd, 1, 0);
  SetWindowSubclass(window_, LeavingAtTheEnd, 2, 0);
  DestroyWindow(window_);
  EXPECT_EQ(removals, 2);
  EXPECT_THAT(TakeNotes(), ElementsAre("NCDESTROY"));
}

TEST_F(SubclassTest, ExceptionLeavesTheChainWhole) {
  SetWindowSubclass(window_, RemovingItself, 1, 0);
  SetWindowSubclass(window_, Passing, 1, 0);
  handler = [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_USER) throw std::runtime_error("no");
    return std::nullopt;
  };
  EXPECT_THROW(SendMessageW(window_, WM_USER, 0, 0), std::runtime_error);
  handler = nullptr;
  calls.clear();
  SendMessageW(window_, WM_USER, 0, 0);
  EXPECT_THAT(calls, ElementsAre("1:0"));
}
