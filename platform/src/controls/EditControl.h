#pragma once

// The class EDIT: a field for one line of text.

#include "controls/Control.h"
#include "controls/EditBuffer.h"
#include "controls/EditView.h"

class EditControl : public Control {
 public:
  explicit EditControl(HWND window);

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  // The height at which a line of the window's font fits, frame included.
  static int IdealHeight(HWND window);

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void OnFontChanged() override;

 private:
  enum class Scroll { No, ToCaret };

  // Each answers whether the message was its own; `result` is then the message's.
  bool HandleText(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  bool HandleEditMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  bool HandleMode(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  bool HandleClipboard(UINT message, LRESULT& result);
  bool HandleInput(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  bool HandleWindow(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

  // Text.
  bool IsReadOnly() const;
  std::wstring DisplayText() const;
  void TakeFirstText(const CREATESTRUCTW& creation);
  void SetContent(const wchar_t* text);
  // Puts as much of the text as the limit allows in place of the selection.
  void Insert(std::wstring_view text, EditBuffer::Change change);
  void EraseTo(std::size_t place);
  // After every change of the text: shows it and tells the parent.
  void ContentChanged();
  void Undo();
  void Redo();

  // Selection and clipboard.
  void Select(std::size_t anchor, std::size_t caret, Scroll scroll);
  void MoveCaret(std::size_t place, bool extend);
  void SelectWordAt(std::size_t index);
  void SelectFromMessage(LPARAM from, LPARAM to);
  LRESULT ReportSelection(DWORD* from, DWORD* to) const;
  bool Copy() const;
  void Cut();
  void Paste();

  // Modes.
  void SetReadOnly(bool readOnly);
  void SetMargins(WPARAM which, LPARAM margins);
  void SetCue(const wchar_t* text, bool withFocus);

  // Keys, mouse and timers: see EditInput.cpp.
  bool OnKeyDown(int key);
  bool OnMovementKey(int key, bool control, bool shift);
  bool OnEraseKey(int key, bool control, bool shift);
  bool OnCommandKey(int key, bool control, bool shift);
  void OnCharacter(wchar_t character);
  std::size_t PlaceAfterKey(int key, bool control, bool shift) const;
  std::size_t PlaceOfWord(int direction) const;
  std::size_t SelectionEdge(int direction) const;
  void OnPress(POINT point);
  void OnDoubleClick(POINT point);
  void OnDrag(POINT point);
  void OnRelease();
  void StopDragging();
  void ScrollDrag();
  bool OnTimer(UINT_PTR id);
  void OnFocus(bool gained);

  // Look.
  // Brings the view up to date with text, style and size, or with the size alone.
  void UpdateView(Scroll scroll);
  void FitView(Scroll scroll);
  void RestartBlinking();
  void Blink();
  EditView::Marks Marks() const;
  void PaintCue(Painter& painter, const ControlPalette& palette) const;

  EditBuffer buffer_;
  EditView view_;
  std::wstring cue_;
  bool cueWithFocus_ = false;
  wchar_t passwordChar_ = 0;
  std::size_t limit_;
  int leftMargin_ = 0;
  int rightMargin_ = 0;
  bool dragging_ = false;
  bool caretShown_ = false;  // in this phase of blinking
  int phasesLeft_ = 0;
};
