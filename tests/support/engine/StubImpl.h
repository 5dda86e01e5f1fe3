#pragma once

#include "MFC/BaseImpl.h"
#include "SkinManager.h"

namespace Wexa {

// A widget's implementation without a window, for tests that override what they look at.
class StubImpl : public BaseImpl {
 public:
  void Show(bool, bool) override {}
  bool IsVisible() override { return true; }
  void Enable(bool, bool) override {}
  bool IsEnabled() override { return true; }
  int GetLogicalPixelsX() override { return 96; }
  int GetLogicalPixelsY() override { return 96; }
  Rect GetWindowRect() override { return {}; }
  Rect GetClientRect() override { return {}; }
  Point ScreenToClient(int x, int y) override { return {x, y}; }
  Point ClientToScreen(int x, int y) override { return {x, y}; }
  Size IdealSize() override { return {}; }
  Size MinimumIdealSize() override { return {}; }
  Size MinimumSize() override { return {}; }
  Size MaximumSize() override { return {}; }
  void SetMinimumSize(Size) override {}
  void SetMaximumSize(Size) override {}
  void MoveWindow(int, int, int, int, bool) override {}
  int GetFrameWidth() override { return 0; }
  unsigned SetTimer(unsigned, unsigned) override { return 0; }
  void KillTimer(unsigned) override {}
  void Update(const Region&) override {}
  void Update() override {}
  void Repaint(const Region&) override {}
  void Repaint() override {}
  SizePolicy GetSizePolicy() override { return {}; }
  void SetSizePolicy(const SizePolicy&) override {}
  void SetAcceptDrops(bool) override {}
  bool IsAcceptDrops() override { return false; }
  void SetTrackMouseEvent() override {}
  bool IsMouseTracked() override { return false; }
  void SetMouseTracked(bool) override {}
  bool ShowBalloonTipEx(const std::wstring&, BalloonTipIconType, bool, bool) override {
    return false;
  }
  bool ShowBalloonTipEx(const std::wstring&, const std::wstring&, BalloonTipIconType, bool,
                        bool) override {
    return false;
  }
  bool ShowBalloonTipEx(const std::wstring&, const std::wstring&, bool, bool) override {
    return false;
  }
  bool ShowBalloonTipEx(const std::wstring&, const std::wstring&, const std::wstring&, bool,
                        bool) override {
    return false;
  }
  bool ShowBalloonTipEx(const std::wstring&, const unsigned char*, int, bool, bool) override {
    return false;
  }
  bool ShowBalloonTipEx(const std::wstring&, const std::wstring&, const unsigned char*, int, bool,
                        bool) override {
    return false;
  }
  bool HideBalloonTip() override { return false; }
  bool IsBalloonTipDisplayed() override { return false; }
  void OnSkinColorsChanged() override {}
  CWnd* GetCWnd() override { return nullptr; }
  HWND GetHandle() override { return nullptr; }
  int HeightForWidth(int) override { return -1; }
  bool HasHeightForWidth() override { return false; }
  Rect GetLayoutRect() override { return {}; }
  Rect LayoutGeometry() override { return {}; }
  bool PostLayoutRequest() override { return false; }
  int ParentScrollOffset() override { return 0; }
  void SetFixedSize(Size) override {}
  void RefreshSkinColors() override {}
  bool Create(HWND) override { return false; }
  SkinManager& GetSkinManager() override { return skin_; }
  bool SetSkinMode(SkinMode, bool) override { return false; }
  int GetTextWidth(const std::wstring&, const FontData*) override { return 0; }
  void Release() override {}

 private:
  SkinManager skin_{SkinMode::Default};
};

}  // namespace Wexa
