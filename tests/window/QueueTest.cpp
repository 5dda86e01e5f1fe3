// Order of the queue, posting, timers, keys, settings.

#include <gmock/gmock.h>

#include <functional>
#include <thread>

#include "platform/SystemColors.h"
#include "window/WindowTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class QueueTest : public WindowTest {
 protected:
  static std::optional<UINT> TakeOne() {
    MSG message{};
    if (!PeekMessageW(&message, PM_REMOVE)) return std::nullopt;
    DispatchMessageW(&message);
    return message.message;
  }
  HWND window_ = ShowWindowAt({0, 0, 100, 100});
};

TEST_F(QueueTest, PostedThenInputThenPaintThenTimers) {
  robot_.MoveTo({5, 5});
  SetTimer(window_, 1, 10);
  robot_.Screen().AdvanceTime(20);
  InvalidateRect(window_, nullptr, TRUE);
  Robot::Screen().PressButton(display::MouseButton::Left);
  PostMessageW(window_, WM_USER, 0, 0);
  Watch({WM_USER, WM_LBUTTONDOWN, WM_PAINT, WM_TIMER});
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("USER", "LDOWN", "PAINT", "TIMER"));
}

TEST_F(QueueTest, PeekedMessageStays) {
  MSG message{};
  PostMessageW(window_, WM_USER, 7, 8);
  PostMessageW(window_, WM_USER, 9, 9);
  EXPECT_TRUE(PeekMessageW(&message, PM_NOREMOVE));
  EXPECT_TRUE(PeekMessageW(&message, PM_NOREMOVE));
  EXPECT_EQ(message.wParam, 7U);
  EXPECT_TRUE(GetMessageW(&message));
  EXPECT_EQ(message.wParam, 7U);
  EXPECT_TRUE(GetMessageW(&message));
  EXPECT_EQ(message.wParam, 9U);
}

TEST_F(QueueTest, MessagesOfTheDeadAreDropped) {
  const HWND dying = MakeWindow(kBare, {0, 0, 10, 10});
  PostMessageW(dying, WM_USER, 0, 0);
  SetTimer(dying, 1, 1);
  DestroyWindow(dying);
  robot_.Screen().AdvanceTime(10);
  MSG message{};
  EXPECT_FALSE(PeekMessageW(&message, PM_REMOVE));
}

TEST_F(QueueTest, QuitComesAfterWhatWasPosted) {
  PostQuitMessage(3);
  PostMessageW(window_, WM_USER, 0, 0);
  MSG message{};
  EXPECT_TRUE(GetMessageW(&message));
  EXPECT_FALSE(GetMessageW(&message));
  EXPECT_EQ(message.message, WM_QUIT);
  EXPECT_EQ(message.wParam, 3U);
}

TEST_F(QueueTest, WaitingEndsWhereNothingCanHappen) {
  MSG message{};
  EXPECT_FALSE(GetMessageW(&message));
}

TEST_F(QueueTest, WaitingJumpsToTheNextTimer) {
  const DWORD start = GetTickCount();
  SetTimer(window_, 2, 500);
  SetTimer(window_, 3, 200);
  MSG message{};
  EXPECT_TRUE(GetMessageW(&message));
  EXPECT_EQ(message.wParam, 3U);
  EXPECT_EQ(GetTickCount() - start, 200U);
}

TEST_F(QueueTest, TimersRepeatUntilKilledAndStartAnewWhenSetAgain) {
  SetTimer(window_, 1, 100);
  Watch({WM_TIMER});
  robot_.AdvanceTime(360);
  EXPECT_EQ(TakeNotes().size(), 3U);
  SetTimer(window_, 1, 100);
  robot_.AdvanceTime(60);
  EXPECT_THAT(TakeNotes(), IsEmpty());
  EXPECT_TRUE(KillTimer(window_, 1));
  EXPECT_FALSE(KillTimer(window_, 1));
  robot_.AdvanceTime(350);
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(QueueTest, PostedFromManyThreadsAllArrive) {
  constexpr int kThreads = 8, kEach = 1000;
  std::vector<int> next(kThreads, 0);
  handler = [&](HWND, UINT message, WPARAM thread, LPARAM value) -> std::optional<LRESULT> {
    if (message == WM_USER) {
      EXPECT_EQ(next[thread], value);
      ++next[thread];
    }
    return std::nullopt;
  };
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([&, t] {
      for (int i = 0; i < kEach; ++i) PostMessageW(window_, WM_USER, static_cast<WPARAM>(t), i);
    });
  for (int i = 0; i < 100; ++i) robot_.PumpAll();
  for (std::thread& thread : threads) thread.join();
  robot_.PumpAll();
  EXPECT_THAT(next, testing::Each(kEach));
}

TEST_F(QueueTest, ExceptionReachesWhoeverPumps) {
  handler = [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_USER) throw std::runtime_error("no");
    return std::nullopt;
  };
  PostMessageW(window_, WM_USER, 0, 0);
  PostMessageW(window_, WM_USER + 1, 0, 0);
  EXPECT_THROW(robot_.PumpAll(), std::runtime_error);
  EXPECT_EQ(TakeOne(), WM_USER + 1);
}

// -- Keys ----------------------------------------------------------------------------------------

class KeyTest : public WindowTest {
 protected:
  KeyTest() {
    handler = [this](HWND, UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
      if (message >= WM_KEYDOWN && message <= WM_SYSCHAR) {
        words_.push_back(wParam);
        data_.push_back(static_cast<std::uint32_t>(lParam));
        shift_.push_back(GetKeyState(VK_SHIFT) < 0);
      }
      return std::nullopt;
    };
    Watch({WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN, WM_SYSCHAR});
  }
  std::vector<WPARAM> words_;
  std::vector<std::uint32_t> data_;
  std::vector<bool> shift_;
  HWND window_ = ShowWindowAt({0, 0, 100, 100});
};

TEST_F(KeyTest, KeysGiveMessagesWithTheirData) {
  const auto pressLeftTwice = [] {
    Robot::Screen().PressKey(VK_LEFT);
    Robot::Screen().PressKey(VK_LEFT, {}, true);
    Robot::PumpAll();
  };
  struct Case {
    std::function<void()> use;
    std::vector<std::string> messages;
    std::vector<WPARAM> words;
    std::vector<std::uint32_t> data;
  } cases[] = {
      {[&] { robot_.Key('A'); },
       {"KEYDOWN", "CHAR", "KEYUP"},
       {'A', 'a', 'A'},
       {0x001E0001U, 0x001E0001U, 0xC01E0001U}},
      {pressLeftTwice, {"KEYDOWN", "KEYDOWN"}, {VK_LEFT, VK_LEFT}, {0x014B0001U, 0x414B0001U}},
      {[&] { robot_.AltKey(L'x'); },
       {"SYSKEYDOWN", "SYSKEYDOWN", "SYSCHAR"},
       {VK_MENU, 'X', 'x', 'X', VK_MENU},
       {0x20380001U, 0x202D0001U, 0x202D0001U, 0xE02D0001U, 0xC0380001U}},
  };
  for (const Case& c : cases) {
    c.use();
    EXPECT_EQ(TakeNotes(), c.messages);
    EXPECT_EQ(std::exchange(words_, {}), c.words);
    EXPECT_EQ(std::exchange(data_, {}), c.data);
  }
}

TEST_F(KeyTest, StateIsThatOfTheMessageBeingHandled) {
  Robot::Screen().PressKey('A', U"a");
  Robot::Screen().PressKey(VK_SHIFT);
  Robot::Screen().ReleaseKey(VK_SHIFT);
  robot_.PumpAll();
  EXPECT_THAT(shift_, ElementsAre(false, false, true, false));
}

TEST_F(KeyTest, AModifierIsHeldWhileASideIsUntilTheFocusGoes) {
  robot_.KeyDown(VK_LSHIFT);
  robot_.KeyDown(VK_RSHIFT);
  robot_.KeyUp(VK_LSHIFT);
  EXPECT_LT(GetKeyState(VK_SHIFT), 0);
  EXPECT_EQ(words_[0], static_cast<WPARAM>(VK_SHIFT));
  robot_.KeyUp(VK_RSHIFT);
  EXPECT_GE(GetKeyState(VK_SHIFT), 0);
  robot_.KeyDown(VK_CONTROL);
  robot_.Screen().LoseFocus();
  robot_.PumpAll();
  EXPECT_GE(GetKeyState(VK_CONTROL), 0);
}

TEST_F(KeyTest, TypedTextArrivesWithAllItsCharacters) {
  robot_.Type(L"aB\u00e9\U0001F600");
  std::wstring text;
  const auto notes = TakeNotes();
  for (std::size_t i = 0; i < notes.size(); ++i)
    if (notes[i] == "CHAR") text += static_cast<wchar_t>(words_[i]);
  EXPECT_EQ(text, L"aB\u00e9\U0001F600");
}

TEST_F(KeyTest, KeysMapToScanCodesAndBack) {
  for (const int key : {int{'Q'}, int{'0'}, VK_RETURN, VK_SPACE, VK_F1, VK_F10, VK_TAB, VK_LEFT})
    EXPECT_EQ(MapVirtualKeyW(MapVirtualKeyW(static_cast<UINT>(key), 0), 1), static_cast<UINT>(key));
  EXPECT_EQ(MapVirtualKeyW(0x36, 1), static_cast<UINT>(VK_SHIFT));
  EXPECT_EQ(MapVirtualKeyW(0x36, 3), static_cast<UINT>(VK_RSHIFT));
  EXPECT_EQ(MapVirtualKeyW(0x7F, 1), 0U);
}

TEST_F(KeyTest, AltF4Closes) {
  const HWND dialog = ShowWindowAt({0, 0, 100, 100}, kDialog);
  robot_.KeyDown(VK_MENU);
  robot_.KeyDown(VK_F4);
  EXPECT_FALSE(IsWindow(dialog));
}

TEST_F(KeyTest, CuesShowOnceTheKeyboardIsUsed) {
  const HWND child = MakeChild(window_, {0, 0, 10, 10});
  EXPECT_EQ(SendMessageW(child, WM_QUERYUISTATE, 0, 0), UISF_HIDEFOCUS | UISF_HIDEACCEL);
  SendMessageW(child, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  EXPECT_EQ(SendMessageW(window_, WM_QUERYUISTATE, 0, 0), UISF_HIDEACCEL);
  robot_.Key(VK_MENU);
  EXPECT_EQ(SendMessageW(child, WM_QUERYUISTATE, 0, 0), 0);
  EXPECT_EQ(SendMessageW(MakeChild(child, {0, 0, 1, 1}), WM_QUERYUISTATE, 0, 0), 0);
}

// -- Settings ------------------------------------------------------------------------------------

class SettingsTest : public WindowTest {
 protected:
  ~SettingsTest() override {
    SetSystemScheme(SystemScheme::Light);
    robot_.PumpAll();
  }
};

TEST_F(SettingsTest, NewColoursAreToldAndPainted) {
  ShowWindowAt({0, 0, 100, 100});
  Watch({WM_SYSCOLORCHANGE, WM_PAINT});
  SetSystemScheme(SystemScheme::HighContrast);
  robot_.PumpAll();
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("SYSCOLORCHANGE", "PAINT"));
  HIGHCONTRAST contrast{sizeof(contrast), 0};
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
  EXPECT_EQ(contrast.dwFlags, HCF_HIGHCONTRASTON);
}

TEST_F(SettingsTest, DesktopsColoursCountUntilTheProgramChooses) {
  SetSystemScheme(std::nullopt);
  ShowWindowAt({0, 0, 100, 100});
  Watch({WM_SYSCOLORCHANGE, WM_PAINT});
  robot_.Screen().ChangeScheme(SystemScheme::HighContrast);
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), ElementsAre("SYSCOLORCHANGE", "PAINT"));
  EXPECT_EQ(GetSystemScheme(), SystemScheme::HighContrast);
  SetSystemScheme(SystemScheme::Dark);
  robot_.PumpAll();
  TakeNotes();
  robot_.Screen().ChangeScheme(SystemScheme::Light);
  robot_.PumpAll();
  EXPECT_THAT(TakeNotes(), IsEmpty());
  EXPECT_EQ(GetSystemScheme(), SystemScheme::Dark);
}

TEST_F(SettingsTest, NewResolutionIsToldWithASuggestion) {
  const HWND window = ShowWindowAt({10, 20, 110, 120}, kDialog);
  CRect suggested;
  WPARAM resolution = 0;
  handler = [&](HWND, UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
    if (message != WM_DPICHANGED) return std::nullopt;
    resolution = wParam;
    suggested = *reinterpret_cast<RECT*>(lParam);
    return 0;
  };
  robot_.Screen().ChangeResolution(144);
  robot_.PumpAll();
  EXPECT_EQ(HIWORD(resolution), 144);
  EXPECT_EQ(suggested, CRect(10, 20, 160, 170));
  const HDC dc = GetDC(window);
  EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 144);
  ReleaseDC(window, dc);
}

TEST_F(SettingsTest, ClipboardKeepsText) {
  SetClipboardText(L"caf\u00e9");
  EXPECT_EQ(GetClipboardText(), L"caf\u00e9");
}
