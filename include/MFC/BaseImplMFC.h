#pragma once

#include <memory>
#include <string>
#include <vector>

#include "FontData.h"
#include "MFC/BaseImpl.h"
#include "SkinManager.h"
#include "platform/Classes.h"

struct ControlPalette;
struct ControlState;

namespace Wexa {

class BalloonTip;
class BaseGUIObject;
class Rescaling;
class FormReader;
struct TipContent;

// What a widget was told before its native window exists; sizes in 96-DPI units, on the dialog.
struct CreationRecord {
  std::wstring text;
  std::wstring title;
  CRect rect;
  DWORD style = WS_CHILD | WS_VISIBLE;
  DWORD exStyle = 0;
  UINT controlId = 0;
  bool enabled = true;  // as told to remember, also from one showing to the next
};

// The common behaviour of all widgets with a native window.
class BaseImplMFC : public BaseImpl {
 public:
  explicit BaseImplMFC(BaseGUIObject* owner);
  ~BaseImplMFC() override;
  BaseImplMFC(const BaseImplMFC&) = delete;
  BaseImplMFC& operator=(const BaseImplMFC&) = delete;

  void Show(bool show, bool updateLayout) override;
  // The widget's own visibility, whether or not its dialog is shown yet.
  bool IsVisible() override;
  void Enable(bool enable, bool remember) override;
  bool IsEnabled() override;
  int GetLogicalPixelsX() override;
  int GetLogicalPixelsY() override;
  Rect GetWindowRect() override;
  Rect GetClientRect() override;
  Point ScreenToClient(int x, int y) override;
  Point ClientToScreen(int x, int y) override;
  Size IdealSize() override;
  Size MinimumIdealSize() override;
  Size MinimumSize() override { return minimumSize_; }
  Size MaximumSize() override { return maximumSize_; }
  void SetMinimumSize(Size size) override;
  void SetMaximumSize(Size size) override;
  void MoveWindow(int x, int y, int width, int height, bool repaint) override;
  int GetFrameWidth() override;
  unsigned SetTimer(unsigned id, unsigned milliseconds) override;
  void KillTimer(unsigned id) override;
  void Update(const Region& region) override;
  void Update() override;
  void Repaint(const Region& region) override { Update(region); }
  void Repaint() override;
  SizePolicy GetSizePolicy() override { return sizePolicy_; }
  void SetSizePolicy(const SizePolicy& policy) override;
  void SetAcceptDrops(bool accept) override;
  bool IsAcceptDrops() override { return acceptDrops_; }
  void SetTrackMouseEvent() override;
  bool IsMouseTracked() override { return mouseTracked_; }
  void SetMouseTracked(bool tracked) override { mouseTracked_ = tracked; }
  bool ShowBalloonTipEx(const std::wstring& text, BalloonTipIconType icon, bool closesOnInput,
                        bool closesInTime) override;
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        BalloonTipIconType icon, bool closesOnInput, bool closesInTime) override;
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text, bool closesOnInput,
                        bool closesInTime) override;
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        const std::wstring& iconPath, bool closesOnInput,
                        bool closesInTime) override;
  bool ShowBalloonTipEx(const std::wstring& text, const unsigned char* icon, int size,
                        bool closesOnInput, bool closesInTime) override;
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        const unsigned char* icon, int size, bool closesOnInput,
                        bool closesInTime) override;
  bool HideBalloonTip() override;
  bool IsBalloonTipDisplayed() override;
  // The widget and those in it are due to be painted, once however many slots change before.
  void OnSkinColorsChanged() override;
  HWND GetHandle() override;

  int HeightForWidth(int width) override;
  bool HasHeightForWidth() override;
  Rect GetLayoutRect() override;
  // What the window has for its content: the client area.
  virtual Rect GetLocalRect() { return GetClientRect(); }
  Rect LayoutGeometry() override { return lastGeometry_; }
  bool PostLayoutRequest() override;
  int ParentScrollOffset() override;
  void SetFixedSize(Size size) override;
  // With the windows that are parts of the widget.
  void RefreshSkinColors() override;
  bool Create(HWND parent) override;
  SkinManager& GetSkinManager() override { return skinManager_; }
  bool SetSkinMode(SkinMode mode, bool repaint) override;
  int GetTextWidth(const std::wstring& text, const FontData* font) override;
  void Release() override;

  // The widget's own font; what is not set is its parent's, and at last the dialogs' default.
  const FontData& GetFontRecord() const { return fontRecord_; }
  void SetFont(const FontData& font);
  // Takes over the font of a new parent, or what changed in the parent's; so do the children.
  void ResolveFont();
  // The font the widget draws with.
  HFONT Font() const;
  // The font as the native window has it, as a record.
  FontData NativeFont();
  // Keeps the top-left corner and changes the size.
  void Resize(int width, int height);
  // Places the widget as a layout item asks, then its own layout.
  void SetLayoutGeometry(int x, int y, int width, int height);
  virtual void UpdateLayout();
  // The widget's content changed size: the layout that holds it has to look again.
  void InvalidateLayout();
  // The pass that was asked for with PostLayoutRequest.
  virtual void PlaceAsRequested();
  void SetSkinManager(const SkinManager& skin) { skinManager_ = skin; }
  // Destroys the layout with its items, before the widgets that they place.
  void DeleteLayout();
  // The dialog is going. The skin of a widget that others still hold stands on its own from now on.
  void LeaveDialog(bool survives);
  // The resolution changed: sizes, layouts, fonts and pictures follow, here and in the child
  // widgets. Windows keep their places until they are arranged.
  virtual void Rescale(const Rescaling& rescale);
  // The dialog's window has been told of another resolution.
  virtual void OnResolutionChanged() {}
  // The desktop's colours or its contrast changed.
  virtual void OnSystemColorsChanged() {}
  // The native window is going: what the user entered stays readable.
  virtual void KeepState();
  // What the widget's window paints with: the one place where slots become a palette.
  void ReadPalette(ControlPalette& palette);
  // The state its window paints itself in, as the widget wants it.
  virtual void RefineState(ControlState&) {}
  // The colour the widget gives what stands on it.
  virtual COLORREF BackgroundColor();

  // -- From the form, before the native window exists

  // What the form says of this kind of widget. Throws the conversion errors of numbers that are
  // none.
  virtual void ReadForm(const FormReader&) {}
  // A widget that the form has in this one, and that no layout places.
  virtual void TakeChild(BaseGUIObject&, const FormReader&) {}
  // The policy where the form states none, of a widget that lies; one that stands has the axes
  // exchanged.
  virtual SizePolicy DefaultPolicy() const {
    return {SizePolicy::Preferred, SizePolicy::Preferred};
  }

  // The window that a child widget's window is made in.
  virtual HWND HolderOf(const BaseGUIObject&) { return GetHandle(); }
  // A child widget's window has been made.
  virtual void OnChildCreated(BaseGUIObject&) {}
  // A window inside the widget got the focus.
  virtual void OnFocusWithin(HWND) {}
  // Whether the wheel turns it while the pointer is over it, wherever the focus is.
  virtual bool TurnsUnderPointer() const { return false; }
  // Alt and a character; true when it is a mnemonic of the widget, which has followed it.
  virtual bool OnMnemonic(wchar_t) { return false; }
  // Child widgets whose skins follow this one's.
  std::vector<BaseGUIObject*>& Children() { return children_; }
  // Takes a widget in, from another one if it was there; it leaves when it dies.
  void AddChild(BaseGUIObject& child);
  // The child is going, or goes to another widget.
  virtual void ForgetChild(BaseGUIObject& child);

  CreationRecord& Creation() { return creation_; }
  const CreationRecord& Creation() const { return creation_; }
  BaseGUIObject* Owner() const { return owner_; }

 protected:
  // Makes the native window; the record is filled and the parent is a window of this process.
  virtual bool CreateNative(CWnd* parent) = 0;
  // The window object, or the "Control is not valid." exception.
  CWnd& Window();
  // Puts the colours of the widget's family into a palette whose background is given.
  virtual void FillPalette(ControlPalette& palette);
  // The creation rectangle in device pixels.
  CRect ScaledRect() const;
  // The window's text, or what it will be given.
  std::wstring Text();
  void SetText(const std::wstring& text);

 private:
  Size Clamped(int width, int height) const;
  bool ShowBalloon(const TipContent& content, bool closesOnInput, bool closesInTime);

  BaseGUIObject* owner_;
  CreationRecord creation_;
  Size minimumSize_;
  Size maximumSize_;
  SizePolicy sizePolicy_;
  SkinManager skinManager_;
  FontData fontRecord_;
  FontData resolvedFont_;        // over the parent's
  std::shared_ptr<CFont> font_;  // null for the default
  bool mouseTracked_ = false;
  bool acceptDrops_ = false;
  Rect lastGeometry_;
  std::vector<BaseGUIObject*> children_;
  std::weak_ptr<BaseImpl> holder_;  // the widget that has this one among its children
  std::shared_ptr<BalloonTip> balloonTip_;
};

// The implementation behind a widget; null for a null widget.
BaseImplMFC* ImplOf(const BaseGUIObject* widget);

// A metric of 96-DPI units in pixels, truncated toward zero.
int Scale(int units);
Size Scale(int width, int height);
// What a check box or radio button needs for its mark and text.
Size CheckSizeFor(HFONT font, const std::wstring& text);

}  // namespace Wexa
