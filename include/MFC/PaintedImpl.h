#pragma once

#include <memory>

#include "MFC/BaseImplMFC.h"

class Painter;

namespace Wexa {

// The native window of widgets that draw themselves and of containers.
class PaintedWnd : public CWnd {
 public:
  explicit PaintedWnd(class PaintedImpl& impl) : impl_(impl) {}
  BOOL Create(const CreationRecord& record, DWORD exStyle, const CRect& rect, CWnd* parent);
  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }

 private:
  void OnPaint();

  PaintedImpl& impl_;
};

// Implementations whose window is a PaintedWnd: they say what is drawn.
class PaintedImpl : public BaseImplMFC {
 public:
  explicit PaintedImpl(BaseGUIObject* owner);
  ~PaintedImpl() override;
  CWnd* GetCWnd() override { return &window_; }
  // Draws the client area, whose background is not filled yet.
  virtual void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) = 0;
  // Native messages of the window before its default processing; true when handled.
  virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
  // Input for the window or one inside it, before it is dispatched; true when it is used up.
  virtual bool OnPreTranslate(const MSG&) { return false; }

 protected:
  bool CreateNative(CWnd* parent) override;
  virtual DWORD ExtendedStyle() const { return Creation().exStyle; }

 private:
  PaintedWnd window_;
};

}  // namespace Wexa
