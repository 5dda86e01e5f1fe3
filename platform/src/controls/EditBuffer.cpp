#include "controls/EditBuffer.h"

#include <algorithm>
#include <utility>

std::wstring EditBuffer::SelectedText() const {
  return text_.substr(SelectionStart(), SelectionEnd() - SelectionStart());
}

void EditBuffer::SetText(std::wstring text) {
  text_ = std::move(text);
  anchor_ = caret_ = 0;
  ForgetHistory();
}

void EditBuffer::Select(std::size_t anchor, std::size_t caret) {
  anchor = std::min(anchor, Length());
  caret = std::min(caret, Length());
  if (anchor == anchor_ && caret == caret_) return;
  anchor_ = anchor;
  caret_ = caret;
  canMerge_ = false;
}

bool EditBuffer::Replace(std::wstring_view text, Change change) {
  if (text.empty() && !HasSelection()) return false;
  Apply(SelectionStart(), SelectionEnd(), text, change);
  return true;
}

bool EditBuffer::Erase(std::size_t from, std::size_t to, Change change) {
  to = std::min(to, Length());
  if (from >= to) return false;
  Apply(from, to, {}, change);
  return true;
}

void EditBuffer::Apply(std::size_t from, std::size_t to, std::wstring_view text, Change change) {
  Step step{from, text_.substr(from, to - from), std::wstring(text), anchor_, caret_, change};
  text_.replace(from, to - from, text);
  anchor_ = caret_ = from + text.size();
  Record(std::move(step));
}

void EditBuffer::Record(Step step) {
  history_.resize(done_);
  if (!Merge(step)) history_.push_back(std::move(step));
  done_ = history_.size();
  canMerge_ = true;
}

// Lets a step that continues the last one become part of it.
bool EditBuffer::Merge(const Step& step) {
  if (!canMerge_ || history_.empty() || step.change != history_.back().change) return false;
  switch (step.change) {
    case Change::Typing: return MergeTyping(history_.back(), step);
    case Change::Erasing: return MergeErasing(history_.back(), step);
    case Change::Single: break;
  }
  return false;
}

bool EditBuffer::MergeTyping(Step& last, const Step& step) {
  if (!step.removed.empty() || step.position != last.position + last.inserted.size()) return false;
  last.inserted += step.inserted;
  return true;
}

bool EditBuffer::MergeErasing(Step& last, const Step& step) {
  if (!last.inserted.empty() || !step.inserted.empty()) return false;
  if (step.position == last.position) {
    last.removed += step.removed;
    return true;
  }
  if (step.position + step.removed.size() != last.position) return false;
  last.removed.insert(0, step.removed);
  last.position = step.position;
  return true;
}

bool EditBuffer::Undo() {
  if (!CanUndo()) return false;
  const Step& step = history_[--done_];
  text_.replace(step.position, step.inserted.size(), step.removed);
  anchor_ = step.anchorBefore;
  caret_ = step.caretBefore;
  canMerge_ = false;
  return true;
}

bool EditBuffer::Redo() {
  if (!CanRedo()) return false;
  const Step& step = history_[done_++];
  text_.replace(step.position, step.removed.size(), step.inserted);
  anchor_ = caret_ = step.position + step.inserted.size();
  canMerge_ = false;
  return true;
}

void EditBuffer::ForgetHistory() {
  history_.clear();
  done_ = 0;
  canMerge_ = false;
}
