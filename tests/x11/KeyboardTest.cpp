#include <cstdlib>

#include "platform/VirtualKeys.h"
#include "x11/X11Test.h"

namespace display {
namespace {

using Kind = Input::Kind;

constexpr int kFirstCode = 8;  // the server's code of the kernel's key 0

class X11KeyboardTest : public X11Test {
 protected:
  X11KeyboardTest() { OpenDialog(); }
  // The layouts stay with the server: later tests want the first again.
  ~X11KeyboardTest() override {
    if (changed_) SetLayouts("us");
  }

  bool SetLayouts(const std::string& names) {
    changed_ = true;
    return std::system(("setxkbmap -layout " + names).c_str()) == 0;
  }

  Input Press(std::uint32_t symbol) {
    person_.Key(symbol);
    return Next(Kind::KeyDown).value_or(Input{});
  }

 private:
  bool changed_ = false;
};

TEST_F(X11KeyboardTest, LettersWriteAndShiftCapitalizes) {
  person_.TypeText(U"Ab7!");
  EXPECT_EQ(Typed(), U"Ab7!");
}

TEST_F(X11KeyboardTest, KeyTellsItsPlaceAndItsVirtualKey) {
  const Input letter = Press(XKB_KEY_a);
  EXPECT_EQ(letter.virtualKey, 'A');
  EXPECT_EQ(letter.scanCode, 0x1E);
  EXPECT_FALSE(letter.extendedKey);
  const Input arrow = Press(XKB_KEY_Left);
  EXPECT_EQ(arrow.virtualKey, VK_LEFT);
  EXPECT_EQ(arrow.scanCode, 0x4B);
  EXPECT_TRUE(arrow.extendedKey);
  EXPECT_TRUE(arrow.text.empty());
}

TEST_F(X11KeyboardTest, KeysHaveTheirVirtualKeysAndWriteAsTheyDoNatively) {
  const struct {
    std::uint32_t symbol;
    int virtualKey;
    std::u32string text;
  } keys[] = {{XKB_KEY_Return, VK_RETURN, U"\r"},
              {XKB_KEY_Escape, VK_ESCAPE, U"\x1B"},
              {XKB_KEY_BackSpace, VK_BACK, U"\b"},
              {XKB_KEY_Tab, VK_TAB, U"\t"},
              {XKB_KEY_Delete, VK_DELETE, U""},
              {XKB_KEY_space, VK_SPACE, U" "},
              {XKB_KEY_F10, VK_F10, U""},
              {XKB_KEY_period, VK_OEM_PERIOD, U"."},
              {XKB_KEY_slash, VK_OEM_2, U"/"},
              {XKB_KEY_equal, VK_OEM_PLUS, U"="},
              {XKB_KEY_5, '5', U"5"},
              {XKB_KEY_KP_Add, VK_ADD, U"+"},
              {XKB_KEY_Menu, VK_APPS, U""},
              {XKB_KEY_Next, VK_NEXT, U""}};
  for (const auto& [symbol, virtualKey, text] : keys) {
    const Input key = Press(symbol);
    EXPECT_EQ(key.virtualKey, virtualKey) << symbol;
    EXPECT_EQ(key.text, text) << symbol;
  }
}

TEST_F(X11KeyboardTest, ModifiersLeaveTheVirtualKeyAndChangeTheText) {
  const struct {
    std::uint32_t modifier;
    std::uint32_t symbol;
    int virtualKey;
    std::u32string text;
  } strokes[] = {{XKB_KEY_Shift_L, XKB_KEY_1, '1', U"!"},
                 {XKB_KEY_Shift_L, XKB_KEY_Tab, VK_TAB, U"\t"},
                 {XKB_KEY_Control_L, XKB_KEY_c, 'C', U"\x03"},
                 {XKB_KEY_Control_L, XKB_KEY_5, '5', U""},
                 {XKB_KEY_Control_L, XKB_KEY_Return, VK_RETURN, U"\n"}};
  for (const auto& [modifier, symbol, virtualKey, text] : strokes) {
    person_.Key(modifier, symbol);
    const auto keys = All(Kind::KeyDown);
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[1].virtualKey, virtualKey);
    EXPECT_EQ(keys[1].text, text) << virtualKey;
  }
}

TEST_F(X11KeyboardTest, StateIsThatOfTheRecordHandedOut) {
  person_.Key(XKB_KEY_Shift_R, XKB_KEY_Tab);
  ASSERT_EQ(Next(Kind::KeyDown)->virtualKey, VK_SHIFT);
  ASSERT_EQ(Next(Kind::KeyDown)->virtualKey, VK_TAB);
  EXPECT_TRUE(display_->IsKeyDown(VK_SHIFT));
  EXPECT_TRUE(display_->IsKeyDown(VK_RSHIFT));
  EXPECT_FALSE(display_->IsKeyDown(VK_LSHIFT));
  All();
  EXPECT_FALSE(display_->IsKeyDown(VK_SHIFT));
  EXPECT_FALSE(display_->IsKeyDown(VK_TAB));
}

TEST_F(X11KeyboardTest, ModifierHeldBeforeTheClickIsSeenWithoutItsKey) {
  OpenDialog(2, {600, 500, 800, 700});
  display_->ShowSurface(2, false);
  All();
  person_.KeyDown(XKB_KEY_Control_L);
  person_.ClickAt({150, 120});
  ASSERT_TRUE(Next(Kind::ButtonDown));
  EXPECT_TRUE(display_->IsKeyDown(VK_CONTROL));
  person_.KeyUp(XKB_KEY_Control_L);
}

TEST_F(X11KeyboardTest, CapsLockTogglesAndCapitalizes) {
  EXPECT_FALSE(display_->IsKeyToggled(VK_CAPITAL));
  person_.Key(XKB_KEY_Caps_Lock);
  person_.Key(XKB_KEY_q);
  EXPECT_EQ(Typed(), U"Q");
  EXPECT_TRUE(display_->IsKeyToggled(VK_CAPITAL));
  person_.Key(XKB_KEY_Caps_Lock);
  person_.Key(XKB_KEY_q);
  EXPECT_EQ(Typed(), U"q");
  EXPECT_FALSE(display_->IsKeyToggled(VK_CAPITAL));
}

TEST_F(X11KeyboardTest, NumLockMakesDigitsOfTheNumberPad) {
  constexpr int kPad7 = kFirstCode + 71;
  person_.KeyDownCode(kPad7);
  person_.KeyUpCode(kPad7);
  const auto without = Next(Kind::KeyDown);
  ASSERT_TRUE(without);
  EXPECT_EQ(without->virtualKey, VK_HOME);
  EXPECT_EQ(without->scanCode, 0x47);
  EXPECT_FALSE(without->extendedKey);
  person_.Key(XKB_KEY_Num_Lock);
  All();
  person_.KeyDownCode(kPad7);
  person_.KeyUpCode(kPad7);
  const auto with = Next(Kind::KeyDown);
  ASSERT_TRUE(with);
  EXPECT_EQ(with->virtualKey, VK_NUMPAD0 + 7);
  EXPECT_EQ(with->text, U"7");
  person_.Key(XKB_KEY_Num_Lock);
  All();
}

TEST_F(X11KeyboardTest, HeldKeyRepeatsWithoutBeingReleased) {
  person_.KeyDown(XKB_KEY_x);
  const auto first = Next(Kind::KeyDown);
  const auto second = Next(
      [](const Input& input) { return input.kind == Kind::KeyDown || input.kind == Kind::KeyUp; });
  person_.KeyUp(XKB_KEY_x);
  ASSERT_TRUE(first && second);
  EXPECT_FALSE(first->repeated);
  EXPECT_EQ(second->kind, Kind::KeyDown);
  EXPECT_TRUE(second->repeated);
  EXPECT_EQ(second->text, U"x");
}

TEST_F(X11KeyboardTest, HeldKeyDoesNotBeginAgainInAnotherDialog) {
  person_.KeyDown(XKB_KEY_Return);
  ASSERT_TRUE(Next(Kind::KeyDown));
  OpenDialog(2, {600, 500, 800, 700});
  const auto key =
      Next([](const Input& input) { return input.kind == Kind::KeyDown && input.surface == 2; });
  person_.KeyUp(XKB_KEY_Return);
  ASSERT_TRUE(key);
  EXPECT_TRUE(key->repeated);
}

TEST_F(X11KeyboardTest, SecondLayoutWritesItsLettersOnTheSameVirtualKeys) {
  if (!SetLayouts("us,ru")) GTEST_SKIP() << "no setxkbmap";
  person_.UseLayout(1);
  constexpr int kKeyOfF = kFirstCode + 33;
  person_.KeyDownCode(kKeyOfF);
  person_.KeyUpCode(kKeyOfF);
  const auto letter = Next(Kind::KeyDown);
  ASSERT_TRUE(letter);
  EXPECT_EQ(letter->text, U"\u0430");
  EXPECT_EQ(letter->virtualKey, 'F');
  person_.KeyDown(XKB_KEY_Control_L);
  person_.KeyDownCode(kKeyOfF);
  person_.KeyUpCode(kKeyOfF);
  person_.KeyUp(XKB_KEY_Control_L);
  EXPECT_EQ(Typed(), U"\x06");
  person_.UseLayout(0);
  person_.Key(XKB_KEY_f);
  EXPECT_EQ(Typed(), U"f");
}

TEST_F(X11KeyboardTest, DeadKeyJoinsTheNextLetter) {
  if (!SetLayouts("de")) GTEST_SKIP() << "no setxkbmap";
  person_.Key(XKB_KEY_dead_acute);
  person_.Key(XKB_KEY_e);
  const auto keys = All(Kind::KeyDown);
  ASSERT_EQ(keys.size(), 2u);
  EXPECT_EQ(keys[0].text, U"");
  EXPECT_EQ(keys[1].text, U"\u00E9");
  EXPECT_EQ(keys[1].virtualKey, 'E');
}

TEST_F(X11KeyboardTest, ThirdLevelWritesAndIsNoAlt) {
  if (!SetLayouts("de")) GTEST_SKIP() << "no setxkbmap";
  person_.Key(XKB_KEY_ISO_Level3_Shift, XKB_KEY_q);
  const auto keys = All(Kind::KeyDown);
  ASSERT_EQ(keys.size(), 1u);
  EXPECT_EQ(keys[0].text, U"@");
  EXPECT_FALSE(display_->IsKeyDown(VK_MENU));
}

}  // namespace
}  // namespace display
