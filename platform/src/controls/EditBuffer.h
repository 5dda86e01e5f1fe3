#pragma once

// The text of an edit with its selection and history; knows no window. Positions are code points.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class EditBuffer {
 public:
  // Changes of one running kind, each next to the last, are undone together.
  enum class Change { Single, Typing, Erasing };

  const std::wstring& Text() const { return text_; }
  std::size_t Length() const { return text_.size(); }
  std::size_t Anchor() const { return anchor_; }
  std::size_t Caret() const { return caret_; }
  std::size_t SelectionStart() const { return anchor_ < caret_ ? anchor_ : caret_; }
  std::size_t SelectionEnd() const { return anchor_ < caret_ ? caret_ : anchor_; }
  bool HasSelection() const { return anchor_ != caret_; }
  std::wstring SelectedText() const;

  // A new text, the caret before it and no history.
  void SetText(std::wstring text);
  // Places beyond the end mean the end.
  void Select(std::size_t anchor, std::size_t caret);

  // Puts the text in place of the selection, the caret after it. False when nothing changed.
  bool Replace(std::wstring_view text, Change change = Change::Single);
  // Removes [from, to), the caret in its place. False when nothing changed.
  bool Erase(std::size_t from, std::size_t to, Change change = Change::Single);

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < history_.size(); }
  // The selection is that of before the change, or the caret after it. False: nothing to do.
  bool Undo();
  bool Redo();
  void ForgetHistory();

 private:
  struct Step {
    std::size_t position;
    std::wstring removed;
    std::wstring inserted;
    std::size_t anchorBefore;
    std::size_t caretBefore;
    Change change;
  };

  void Apply(std::size_t from, std::size_t to, std::wstring_view text, Change change);
  void Record(Step step);
  bool Merge(const Step& step);
  static bool MergeTyping(Step& last, const Step& step);
  static bool MergeErasing(Step& last, const Step& step);

  std::wstring text_;
  std::size_t anchor_ = 0;
  std::size_t caret_ = 0;
  std::vector<Step> history_;
  std::size_t done_ = 0;  // steps before it are done, those after it undone
  bool canMerge_ = false;
};
