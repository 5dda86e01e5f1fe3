// What keys, mouse and timers do to an edit.

#include <algorithm>

#include "controls/EditControl.h"
#include "platform/ControlConstants.h"
#include "platform/VirtualKeys.h"

namespace {

constexpr UINT_PTR kBlinkTimer = 1;
constexpr UINT_PTR kScrollTimer = 2;
constexpr UINT kScrollInterval = 50;
constexpr int kBlinkPhases = 20;  // even: it rests visible

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

// -- Keys ----------------------------------------------------------------------------------------

bool EditControl::OnKeyDown(int key) {
  if (IsDown(VK_MENU)) return false;
  const bool control = IsDown(VK_CONTROL);
  const bool shift = IsDown(VK_SHIFT);
  return OnMovementKey(key, control, shift) || OnEraseKey(key, control, shift) ||
         OnCommandKey(key, control, shift);
}

bool EditControl::OnMovementKey(int key, bool control, bool shift) {
  if (key != VK_LEFT && key != VK_RIGHT && key != VK_HOME && key != VK_END) return false;
  MoveCaret(PlaceAfterKey(key, control, shift), shift);
  return true;
}

std::size_t EditControl::PlaceAfterKey(int key, bool control, bool shift) const {
  const std::size_t caret = buffer_.Caret();
  switch (key) {
    case VK_HOME: return 0;
    case VK_END: return buffer_.Length();
    case VK_LEFT:
      if (control) return PlaceOfWord(-1);
      return buffer_.HasSelection() && !shift ? SelectionEdge(-1) : view_.Step(caret, -1);
    default:
      if (control) return PlaceOfWord(+1);
      return buffer_.HasSelection() && !shift ? SelectionEdge(+1) : view_.Step(caret, +1);
  }
}

// In a right-to-left line words follow each other to the left.
std::size_t EditControl::PlaceOfWord(int direction) const {
  if (passwordChar_) return direction < 0 ? 0 : buffer_.Length();
  const bool forward = (direction > 0) != view_.Line().IsRightToLeft();
  return forward ? view_.Line().NextWord(buffer_.Caret())
                 : view_.Line().PreviousWord(buffer_.Caret());
}

// The end of the selection that is seen further to the left or right.
std::size_t EditControl::SelectionEdge(int direction) const {
  const std::size_t start = buffer_.SelectionStart();
  const std::size_t end = buffer_.SelectionEnd();
  const bool startIsLeft = view_.ScreenOrder(start) <= view_.ScreenOrder(end);
  return startIsLeft == (direction < 0) ? start : end;
}

bool EditControl::OnEraseKey(int key, bool control, bool shift) {
  const bool back = key == VK_BACK;
  if ((!back && key != VK_DELETE) || (key == VK_DELETE && shift)) return false;
  if (IsReadOnly()) return true;
  if (buffer_.HasSelection()) {
    buffer_.Replace({});
    ContentChanged();
    return true;
  }
  const TextLine& line = view_.Line();
  const std::size_t caret = buffer_.Caret();
  if (control) {
    EraseTo(passwordChar_ ? (back ? 0 : buffer_.Length())
                          : (back ? line.PreviousWord(caret) : line.NextWord(caret)));
  } else {
    EraseTo(back ? line.PreviousCluster(caret) : line.NextCluster(caret));
  }
  return true;
}

bool EditControl::OnCommandKey(int key, bool control, bool shift) {
  if (key == VK_DELETE && shift)
    Cut();
  else if (key == VK_INSERT && shift)
    Paste();
  else if (key == VK_INSERT && control)
    Copy();
  else if (!control)
    return false;
  else if (key == 'A')
    Select(0, buffer_.Length(), Scroll::No);
  else if (key == 'C')
    Copy();
  else if (key == 'X')
    Cut();
  else if (key == 'V')
    Paste();
  else if (key == 'Z')
    shift ? Redo() : Undo();
  else if (key == 'Y')
    Redo();
  else
    return false;
  return true;
}

void EditControl::OnCharacter(wchar_t character) {
  const bool printable = character >= L' ' && character != L'\x7F';
  if (!printable || IsReadOnly()) return;
  Insert({&character, 1}, EditBuffer::Change::Typing);
}

// -- Mouse ---------------------------------------------------------------------------------------

void EditControl::OnPress(POINT point) {
  SetFocus(Window());
  if (!HasFocus()) return;
  dragging_ = true;
  SetCapture(Window());
  MoveCaret(view_.IndexAtX(point.x), IsDown(VK_SHIFT));
}

void EditControl::OnDoubleClick(POINT point) {
  SetFocus(Window());
  SelectWordAt(view_.IndexAtX(point.x));
}

void EditControl::OnDrag(POINT point) {
  if (!dragging_) return;
  MoveCaret(view_.IndexAtX(point.x), true);
  const CRect& area = view_.Area();
  if (point.x < area.left || point.x >= area.right) {
    SetTimer(Window(), kScrollTimer, kScrollInterval);
  } else {
    KillTimer(Window(), kScrollTimer);
  }
}

void EditControl::OnRelease() {
  if (!dragging_) return;
  StopDragging();
  ReleaseCapture();
}

void EditControl::StopDragging() {
  dragging_ = false;
  KillTimer(Window(), kScrollTimer);
}

// -- Timers and focus ----------------------------------------------------------------------------

bool EditControl::OnTimer(UINT_PTR id) {
  switch (id) {
    case kBlinkTimer: Blink(); return true;
    case kScrollTimer: ScrollDrag(); return true;
    default: return false;
  }
}

void EditControl::ScrollDrag() {
  POINT point{};
  GetCursorPos(&point);
  ScreenToClient(Window(), &point);
  OnDrag(point);
}

void EditControl::RestartBlinking() {
  if (!HasFocus()) return;
  caretShown_ = true;
  phasesLeft_ = kBlinkPhases;
  const UINT interval = GetCaretBlinkTime();
  const bool blinks = interval != 0 && interval != static_cast<UINT>(-1);
  if (blinks) SetTimer(Window(), kBlinkTimer, interval);
}

// Left alone the caret comes to rest, so that an idle program wakes for nothing.
void EditControl::Blink() {
  caretShown_ = !caretShown_;
  if (--phasesLeft_ == 0) KillTimer(Window(), kBlinkTimer);
  const CRect caret = view_.CaretRect(buffer_.Caret());
  InvalidateRect(Window(), &caret, FALSE);
}

void EditControl::OnFocus(bool gained) {
  if (gained) {
    RestartBlinking();
  } else {
    StopDragging();
    KillTimer(Window(), kBlinkTimer);
  }
  Repaint();
  Notify(gained ? EN_SETFOCUS : EN_KILLFOCUS);
}
