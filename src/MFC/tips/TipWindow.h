#pragma once

#include <memory>
#include <string>

#include "BalloonTipIconType.h"
#include "MFC/DrawnWnd.h"
#include "SkinManager.h"

namespace Wexa {

// What a tip says. The picture stands in the place of the icon.
struct TipContent {
  std::wstring title;
  std::wstring text;
  BalloonTipIconType icon = BalloonTipIconType::None;
  std::shared_ptr<HBITMAP__> picture{};
  int width = 320;  // at which lines are broken, in 96-DPI units
};

ControlPalette TipPalette(const SkinManager& skin);

// A window over all others that never gets the activation, with an icon, a bold title and a text.
class TipWindow : public DrawnWnd {
 public:
  TipWindow();
  bool IsShown() const;
  void Hide();

 protected:
  // Makes the hidden window, which lives no longer than the owner's top-level window. False when it
  // cannot be made.
  bool Prepare(HWND owner);
  void SetContent(const TipContent& content, const ControlPalette& palette, HFONT font);
  // With the padding around the content.
  SIZE ContentSize() const { return size_; }
  // Moved into the work area and shown there.
  void ShowAt(CRect place);
  const ControlPalette& Colors() const { return palette_; }
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  bool ShowsHover() const override { return false; }
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Measure();
  void PaintIcon(Painter& painter, const CRect& place, const ControlPalette& palette) const;
  SIZE TextExtent(const std::wstring& text, HFONT font) const;

  TipContent content_;
  ControlPalette palette_{};
  HFONT textFont_ = nullptr;
  std::unique_ptr<CFont> titleFont_;
  SIZE iconSize_{};
  SIZE titleSize_{};
  SIZE size_{};
};

// What the desktop leaves to windows.
CRect ScreenArea();

}  // namespace Wexa
