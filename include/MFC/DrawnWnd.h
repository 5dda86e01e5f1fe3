#pragma once

#include <functional>
#include <string>

#include "platform/Classes.h"
#include "platform/SelfDrawn.h"

namespace Wexa {

// The base of all windows of the library's own: widgets' windows and the parts of widgets.
class DrawnWnd : public CWnd, public SelfDrawn {
 public:
  // The window's colours; without it they are its parent's. A widget's window has those of the
  // widget.
  std::function<void(ControlPalette&)> fillPalette;

  // `parent` and `id` as for any window; the text is the window's own.
  BOOL Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0,
              DWORD exStyle = 0);

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    return Handle(message, wParam, lParam);
  }
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
  HWND Window() const final { return m_hWnd; }
  LRESULT Unhandled(UINT message, WPARAM wParam, LPARAM lParam) final {
    return CWnd::WindowProc(message, wParam, lParam);
  }
};

}  // namespace Wexa
