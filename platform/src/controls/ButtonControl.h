#pragma once

// The class BUTTON: push buttons, check boxes, radio buttons and group boxes.

#include "controls/Control.h"

class ButtonControl : public Control {
 public:
  explicit ButtonControl(HWND window) : Control(window) {}

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  void AddState(ControlState& state) const override;

 private:
  LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleFocus(UINT message, WPARAM wParam, LPARAM lParam);

  DWORD Type() const;
  bool IsPushType() const;
  LRESULT DialogCode() const;

  void OnPress(POINT point, bool secondClick);
  void OnDrag(POINT point);
  void OnRelease(POINT point);
  void OnKeyDown(WPARAM key, LPARAM flags);
  void OnKeyUp(WPARAM key);
  void CancelPress();
  void Click();
  void ClickByProgram();

  void SetPushed(bool pushed);
  void SetCheck(int check);
  void SetTypeStyle(DWORD type, bool redraw);
  void UncheckGroup() const;
  LRESULT StateBits() const;

  void PaintPush(Painter& painter, const CRect& client, const ControlPalette& palette) const;
  void PaintMarked(Painter& painter, const CRect& client, const ControlPalette& palette) const;
  void PaintGroup(Painter& painter, const CRect& client, const ControlPalette& palette) const;

  int check_ = 0;
  bool pushed_ = false;        // looks pressed
  bool mousePressed_ = false;  // the button went down on this control and is held
  bool keyPressed_ = false;    // the space key likewise
};
