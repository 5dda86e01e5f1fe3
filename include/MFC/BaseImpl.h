#pragma once

#include <cstdint>
#include <string>

#include "BalloonTipIconType.h"
#include "Point.h"
#include "Rect.h"
#include "Region.h"
#include "Size.h"
#include "SizePolicy.h"
#include "SkinManager.h"
#include "WexaExport.h"
#include "platform/Types.h"

class CWnd;

namespace Wexa {

class ChildArranger;
class Layout;
class WidgetItemV2;
struct FontData;

// The axes on which a size was set by the host or its form, and so is not the layout's to change.
struct ExplicitAxes {
  bool width = false;
  bool height = false;
};

// What a widget's implementation knows for the layout it owns and for the layout that holds it.
// Sizes are device pixels.
struct LayoutLinks {
  Layout* layout = nullptr;            // the widget's own top-level layout
  WidgetItemV2* layoutItem = nullptr;  // the item that places the widget
  ExplicitAxes explicitMinimum;
  ExplicitAxes explicitMaximum;
  std::int16_t contentsMargins[4] = {0, 0, 0, 0};  // left, top, right, bottom
  bool released = false;                           // the widget is going or gone
};

// The interface that every widget's implementation fulfils. Operations that need the native window
// throw WexaException "Control is not valid." when it does not exist.
class WEXA_API BaseImpl {
 public:
  virtual void Show(bool show, bool updateLayout) = 0;
  virtual bool IsVisible() = 0;
  virtual void Enable(bool enable, bool remember) = 0;
  virtual bool IsEnabled() = 0;
  virtual int GetLogicalPixelsX() = 0;
  virtual int GetLogicalPixelsY() = 0;
  virtual Rect GetWindowRect() = 0;
  virtual Rect GetClientRect() = 0;
  virtual Point ScreenToClient(int x, int y) = 0;
  virtual Point ClientToScreen(int x, int y) = 0;
  virtual Size IdealSize() = 0;
  virtual Size MinimumIdealSize() = 0;
  virtual Size MinimumSize() = 0;
  virtual Size MaximumSize() = 0;
  virtual void SetMinimumSize(Size size) = 0;
  virtual void SetMaximumSize(Size size) = 0;
  virtual void MoveWindow(int x, int y, int width, int height, bool repaint) = 0;
  virtual int GetFrameWidth() = 0;
  virtual unsigned SetTimer(unsigned id, unsigned milliseconds) = 0;
  virtual void KillTimer(unsigned id) = 0;
  virtual void Update(const Region& region) = 0;
  virtual void Update() = 0;
  virtual void Repaint(const Region& region) = 0;
  virtual void Repaint() = 0;
  virtual SizePolicy GetSizePolicy() = 0;
  virtual void SetSizePolicy(const SizePolicy& policy) = 0;
  virtual void SetAcceptDrops(bool accept) = 0;
  virtual bool IsAcceptDrops() = 0;
  virtual void SetTrackMouseEvent() = 0;
  virtual bool IsMouseTracked() = 0;
  virtual void SetMouseTracked(bool tracked) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& text, BalloonTipIconType icon,
                                bool closesOnInput, bool closesInTime) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                BalloonTipIconType icon, bool closesOnInput, bool closesInTime) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                bool closesOnInput, bool closesInTime) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                const std::wstring& iconPath, bool closesOnInput,
                                bool closesInTime) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& text, const unsigned char* icon, int size,
                                bool closesOnInput, bool closesInTime) = 0;
  virtual bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                const unsigned char* icon, int size, bool closesOnInput,
                                bool closesInTime) = 0;
  virtual bool HideBalloonTip() = 0;
  virtual bool IsBalloonTipDisplayed() = 0;
  // A slot of the widget's skin is about to be marked as changed.
  virtual void OnSkinColorsChanged() = 0;
  virtual ~BaseImpl() = default;
  // The native window object; null when there is none.
  virtual CWnd* GetCWnd() = 0;
  // Its handle; null when there is no native window.
  virtual HWND GetHandle() = 0;

  // -- For layouts --------------------------------------------------------------

  // -1 when the height does not depend on the width.
  virtual int HeightForWidth(int width) = 0;
  virtual bool HasHeightForWidth() = 0;
  // The rectangle a layout attached to the widget may fill, in the widget's client area.
  virtual Rect GetLayoutRect() = 0;
  // The widget's place in its parent's client area, as last moved.
  virtual Rect LayoutGeometry() = 0;
  // Asks for LayoutRequest later, through the window's queue; false without a native window.
  virtual bool PostLayoutRequest() = 0;
  // The widget as what places its children without a layout; null when it does not.
  virtual ChildArranger* AsArranger() { return nullptr; }
  // How far the native parent is scrolled down, in pixels.
  virtual int ParentScrollOffset() = 0;
  // Gives the widget exactly this size.
  virtual void SetFixedSize(Size size) = 0;
  // A layout has placed the widget; a combo box brings its drop-down list into line.
  virtual void RefreshDropDownSelection() {}
  // Redraws after a change of the skin.
  virtual void RefreshSkinColors() = 0;

  // -- For facades --------------------------------------------------------------

  virtual bool Create(HWND parent) = 0;
  virtual SkinManager& GetSkinManager() = 0;
  virtual bool SetSkinMode(SkinMode mode, bool repaint) = 0;
  virtual int GetTextWidth(const std::wstring& text, const FontData* font) = 0;
  // The facade is going: destroys a native window that still exists and forgets the facade.
  virtual void Release() = 0;

  LayoutLinks& Links() { return links_; }

 private:
  LayoutLinks links_;
};

}  // namespace Wexa
