#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"
#include "WexaUtils.h"

class CRect;

namespace Wexa {

class Button;

// A top-level window built from a form file. Its widgets are found by name; it is shown modal or
// modeless and ends with a state.
class WEXA_API Dialog : public BaseGUIObject {
 public:
  class impl;

  // What DoModal returns. Hosts may end a dialog with states of their own.
  enum DoneState : int { Rejected = 0, Accepted = 1 };

  Dialog();
  // Builds the dialog from a form file, encrypted or plain. A style of 0 stands for
  // GetDefaultDialogStyle. Throws WexaException when the form cannot be read or built,
  // rapidxml::parse_error for malformed XML, std::invalid_argument and std::out_of_range for
  // numbers that are none. Each is a FormError too, which names file, line, widget and property.
  Dialog(const std::wstring& uiFile, HWND parent, unsigned long style, double scale);
  ~Dialog() override;

  // Visible, with caption, system menu and sizing frame.
  static unsigned long GetDefaultDialogStyle();

  // -- Showing and ending

  // Fired in each showing when the widgets have their windows, before the dialog is seen: here
  // widgets are enabled, shown, checked and timed for the first time. A handler may end the dialog.
  CallbackList<> Initialized;

  // Shows the dialog and returns what it was ended with. Throws WexaException when the native
  // dialog cannot be made; exceptions of handlers pass through after the dialog is taken down. On
  // the offscreen display, where no user can end it, the dialog is closed as by its user when
  // nothing can happen any more, which is said on standard error once; see WorkGuard.h.
  int DoModal();
  // Shows the dialog and returns; the host pumps messages. Throws like DoModal.
  void DoModeless(CWnd* parent, bool show = true);
  void DoModeless(bool show = true);
  // Ends the dialog, unless FilterDone answers -1. Throws WexaException "Invalid Control!" when the
  // dialog is not shown.
  void Done(DoneState state);
  bool IsModalMode() const { return modal_; }

  // -- Widgets

  // The first widget with this name in the order of the form; empty when there is none.
  std::shared_ptr<BaseGUIObject> GetElementByName(const std::wstring& name);
  // The widget that has the focus; null when none has.
  BaseGUIObject* GetFocusedCtrlPtr();
  void SetFocusToCtrl(BaseGUIObject* widget);
  // The button that Return clicks while no other has the focus, in this showing and later ones;
  // before the first one, too. Nothing happens for null.
  void SetDefaultButton(Button* button);
  // The tip shown while the pointer rests on the widget, or on an area of its client area: one for
  // each id. Disabled widgets have theirs, too. Without title and text the tip is removed.
  void SetToolTip(const std::shared_ptr<BaseGUIObject>& widget, const std::wstring& title,
                  const std::wstring& text, int id = 0, CRect* area = nullptr);

  // -- Appearance

  void SetWindowTitle(const std::wstring& title);
  // 0x00RRGGBB.
  void SetBackgroundColor(int color);
  int GetBackgroundColor();
  // Takes the skin over as the dialog's custom skin; with `update` the window is redrawn.
  void SetSkinManager(const SkinManager& skin, bool update);
  // In the mode XML the colours of InitSkinColorByMap; false, and nothing changes, when there are
  // none.
  bool SetSkinMode(SkinMode mode, bool repaint) override;
  void UpdateWindow();
  void SetCursorType(WexaUtils::CursorTypes type);
  // The cursor that CursorTypes::Custom shows: a picture file of any kind that can be decoded, or
  // the bytes of a PNG picture. The hot spot is a place in the picture; both grow with the screen's
  // resolution. False, and the former cursor stays, when there is no such picture.
  bool LoadCustomCursor(const std::wstring& path, int hotSpotX, int hotSpotY);
  bool LoadCustomCursor(const unsigned char* data, int size, int hotSpotX, int hotSpotY,
                        WexaUtils::ImageTypes type);

  // -- Properties

  void SetUIPath(const std::wstring& uiFile) { uiFile_ = uiFile; }
  const std::wstring& GetUIPath() const { return uiFile_; }
  void SetStringTable(const std::string& name) { stringTable_ = name; }
  const std::string& GetStringTable() const { return stringTable_; }
  void SupportPerformanceTest(bool support) { performanceTest_ = support; }
  bool SupportPerformanceTest() const { return performanceTest_; }
  double GetScale() const { return scale_; }
  // Whether the native initialisation is complete.
  bool IsInitialized() const { return initialized_; }

  // -- Native access

  // Null without a window.
  HWND GetHandle() const;
  CWnd* GetWndPtr() const;
  std::shared_ptr<impl> GetImpl() const { return impl_; }

  // -- Overrides

  std::shared_ptr<BaseImpl> GetBaseImpl() const override;

  // -- For derived dialogs

  // The state a dialog is about to end with; -1 keeps it open.
  virtual int FilterDone(int state) { return state; }
  // Called after the widgets have their windows, before Initialized fires and the dialog is seen.
  // False ends it.
  virtual bool InitializeControls() { return true; }
  // Embeds the window, or the widget's, as a page: it becomes a child without a frame that fills
  // the dialog's client area, also when that is resized. With `show` it is shown in front of the
  // pages before it, which are hidden. False for a window that is gone or that holds the dialog.
  virtual bool CreateTabWindow(CWnd* window, bool show);
  virtual bool CreateTabWindowEx(BaseGUIObject* widget, bool show);
  // Shows the dialog, but no child that was hidden.
  virtual void ShowButKeepHiddenChildren(bool show);

 private:
  friend class BaseDialogMFC;
  bool Create(HWND parent) override;

  double scale_ = 1.0;
  std::wstring uiFile_;
  std::string stringTable_;
  std::shared_ptr<impl> impl_;
  bool modal_ = false;
  bool initialized_ = false;
  bool performanceTest_ = false;
};

}  // namespace Wexa
