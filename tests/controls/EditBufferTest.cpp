#include "controls/EditBuffer.h"

#include <gtest/gtest.h>

#include <random>

using Change = EditBuffer::Change;

namespace {

EditBuffer BufferWith(const std::wstring& text, std::size_t anchor, std::size_t caret) {
  EditBuffer buffer;
  buffer.SetText(text);
  buffer.Select(anchor, caret);
  return buffer;
}

void TypeInto(EditBuffer& buffer, const std::wstring& text) {
  for (const wchar_t c : text) buffer.Replace({&c, 1}, Change::Typing);
}

}  // namespace

TEST(EditBuffer, ReplacesTheSelectionAndPutsTheCaretAfterIt) {
  EditBuffer buffer = BufferWith(L"one two", 7, 4);
  EXPECT_EQ(buffer.SelectedText(), L"two");
  EXPECT_TRUE(buffer.Replace(L"three"));
  EXPECT_EQ(buffer.Text(), L"one three");
  EXPECT_EQ(buffer.Caret(), 9u);
  EXPECT_FALSE(buffer.HasSelection());
}

TEST(EditBuffer, PlacesBeyondTheEndMeanTheEnd) {
  EditBuffer buffer = BufferWith(L"abc", 1, 99);
  EXPECT_EQ(buffer.SelectedText(), L"bc");
  EXPECT_FALSE(buffer.Erase(3, 99));
  EXPECT_TRUE(buffer.Erase(2, 99));
  EXPECT_EQ(buffer.Text(), L"ab");
}

TEST(EditBuffer, NothingForNothingIsNoChange) {
  EditBuffer buffer = BufferWith(L"abc", 1, 1);
  EXPECT_FALSE(buffer.Replace(L""));
  EXPECT_FALSE(buffer.CanUndo());
}

TEST(EditBuffer, TypingIsUndoneAtOnceUntilTheCaretMoves) {
  EditBuffer buffer;
  TypeInto(buffer, L"ab");
  buffer.Select(0, 0);
  TypeInto(buffer, L"cd");
  EXPECT_EQ(buffer.Text(), L"cdab");
  EXPECT_TRUE(buffer.Undo());
  EXPECT_EQ(buffer.Text(), L"ab");
  EXPECT_TRUE(buffer.Undo());
  EXPECT_EQ(buffer.Text(), L"");
  EXPECT_FALSE(buffer.Undo());
}

TEST(EditBuffer, ErasingBackwardsAndForwardsIsUndoneAtOnce) {
  EditBuffer buffer = BufferWith(L"abcdef", 3, 3);
  buffer.Erase(2, 3, Change::Erasing);
  buffer.Erase(1, 2, Change::Erasing);
  buffer.Erase(1, 2, Change::Erasing);
  EXPECT_EQ(buffer.Text(), L"aef");
  EXPECT_TRUE(buffer.Undo());
  EXPECT_EQ(buffer.Text(), L"abcdef");
  EXPECT_EQ(buffer.Caret(), 3u);
}

TEST(EditBuffer, TypingOverASelectionBringsTheSelectionBack) {
  EditBuffer buffer = BufferWith(L"one two", 4, 7);
  TypeInto(buffer, L"xy");
  EXPECT_TRUE(buffer.Undo());
  EXPECT_EQ(buffer.Text(), L"one two");
  EXPECT_EQ(buffer.SelectedText(), L"two");
}

TEST(EditBuffer, RedoEndsWithTheNextChange) {
  EditBuffer buffer;
  buffer.Replace(L"one");
  buffer.Undo();
  EXPECT_TRUE(buffer.CanRedo());
  EXPECT_TRUE(buffer.Redo());
  EXPECT_EQ(buffer.Text(), L"one");
  EXPECT_EQ(buffer.Caret(), 3u);
  buffer.Undo();
  buffer.Replace(L"two");
  EXPECT_FALSE(buffer.CanRedo());
}

TEST(EditBuffer, ANewTextForgetsTheHistory) {
  EditBuffer buffer;
  buffer.Replace(L"one");
  buffer.SetText(L"two");
  EXPECT_FALSE(buffer.CanUndo());
  EXPECT_EQ(buffer.Caret(), 0u);
}

// Whatever was done: all undone gives the first text, all redone the last one.
TEST(EditBuffer, UndoAndRedoAreInverse) {
  std::mt19937 random(7);
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  for (int round = 0; round < 200; ++round) {
    EditBuffer buffer = BufferWith(L"first text", 0, 0);
    for (int step = 0; step < 30; ++step) {
      if (below(3) == 0) buffer.Select(below(12), below(12));
      const auto change = static_cast<Change>(below(3));
      if (below(2)) {
        buffer.Replace(std::wstring(below(3), static_cast<wchar_t>(L'a' + below(26))), change);
      } else {
        buffer.Erase(buffer.Caret(), buffer.Caret() + below(3), change);
      }
    }
    const std::wstring last = buffer.Text();
    while (buffer.Undo()) {
    }
    ASSERT_EQ(buffer.Text(), L"first text");
    while (buffer.Redo()) {
    }
    ASSERT_EQ(buffer.Text(), last);
  }
}
