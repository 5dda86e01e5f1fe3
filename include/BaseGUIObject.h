#pragma once

#include <functional>
#include <memory>
#include <string>

#include "BalloonTipIconType.h"
#include "CallbackList.h"
#include "FontData.h"
#include "Point.h"
#include "Rect.h"
#include "Region.h"
#include "Size.h"
#include "SizePolicy.h"
#include "SkinManager.h"
#include "WexaExport.h"
#include "WexaObject.h"
#include "platform/Types.h"

class CWnd;

namespace Wexa {

class BaseImpl;
class ContextMenu;
class Event;
class PromptsPopup;

// The base of every widget: a name, a kind, the host's event procedure, and the operations that
// every widget answers through its implementation. Sizes and positions are device pixels unless
// stated; operations that need the native window throw WexaException "Control is not valid."
// without one.
class WEXA_API BaseGUIObject : public WexaObject {
 public:
  // The kind of a widget.
  enum class GuiType {
    Dialog = 0,
    Button = 1,
    Edit = 2,
    ListBox = 3,
    CheckBox = 4,
    RadioButton = 5,
    GroupBox = 6,
    ComboBox = 7,
    Label = 8,
    TabView = 9,
    ChildDialog = 10,
    Slider = 11,
    SpinEdit = 13,
    DoubleSpinEdit = 14,
    StackedDialog = 15,
    ButtonBox = 17,
    TreeView = 18,
    MultiLineEdit = 19,
    RichEdit = 20,
    Splitter = 21,
    DrawElement = 22,
    ScrollBar = 23,
    ProgressBar = 24,
    ToolBar = 25,
    Line = 26,
    ScrollArea = 27,
    HyperLinkElement = 28,
    DateEdit = 29,
    ComboBoxFS = 30,
    None = 31
  };
  using EventHandler = std::function<bool(BaseGUIObject*, Event*)>;
  using PreTranslateProcedure = std::function<int(void*)>;

  BaseGUIObject();
  ~BaseGUIObject() override;
  BaseGUIObject(const BaseGUIObject&) = delete;
  BaseGUIObject& operator=(const BaseGUIObject&) = delete;

  // -- Virtual operations -------------------------------------------------------

  // Makes the native window under `parent`; false when it cannot be made.
  virtual bool Create(HWND parent) = 0;
  // The size the content asks for, the least it can do with; (-1, -1) where there is no opinion.
  virtual Size IdealSize();
  virtual Size MinimumIdealSize();
  // The limits set by the host, the form or the widget's layout.
  virtual Size MinimumSize();
  virtual Size MaximumSize();
  // With updateLayout the layout that holds the widget takes the change into account.
  virtual void Show(bool show, bool updateLayout);
  virtual bool IsVisible();
  // A remembered disable cannot be undone by an enable that is not remembered.
  virtual void Enable(bool enable, bool remember);
  virtual bool IsEnabled();
  // Moves within the parent's client area, kept within the widget's limits. The last argument has
  // no effect.
  virtual void MoveWindow(int x, int y, int width, int height, bool repaint);
  // The same in 96-DPI units.
  virtual void MoveWindowUnscaled(int x, int y, int width, int height, bool repaint);
  virtual void Update(const Region& region);
  virtual void Update();
  virtual void Repaint(const Region& region);
  virtual void Repaint();
  virtual int GetLogicalPixelsX();
  virtual int GetLogicalPixelsY();
  // In screen coordinates.
  virtual Rect GetWindowRect();
  // In 96-DPI units.
  virtual Rect GetWindowRectUnscaled();
  virtual Rect GetClientRect();
  virtual Point ScreenToClient(Point point);
  virtual Point ClientToScreen(Point point);
  virtual HWND GetParentWindow();
  virtual void SetParentWindow(HWND parent);
  virtual void SetTopLevelDlg(CWnd* dialog);
  // The top-level dialog's window object, null outside one.
  virtual CWnd* GetTopLevelDlg();
  virtual std::shared_ptr<BaseImpl> GetBaseImpl() const = 0;
  // Timer events with this id follow until KillTimer. Returns the id, 0 on failure.
  virtual unsigned SetTimer(unsigned id, unsigned milliseconds);
  virtual void KillTimer(unsigned id);
  virtual SizePolicy GetSizePolicy() const;
  virtual void SetSizePolicy(const SizePolicy& policy);
  virtual SkinManager& GetSkinManager();
  // Loads a palette into the widget's skin and those of its children. With `repaint` the widget is
  // redrawn. False for a mode that cannot be loaded.
  virtual bool SetSkinMode(SkinMode mode, bool repaint);

  // -- Common operations --------------------------------------------------------

  // Limits in 96-DPI units, rounded to whole pixels.
  void SetMinimumSize(const Size& size);
  void SetMaximumSize(const Size& size);
  // Half of what the frame adds to the client area's width.
  int GetFrarmeWidth();
  void SetAcceptDrops(bool accept);
  bool IsAcceptDrops();
  // Asks for hover and leave events until the pointer leaves.
  void SetTrackMouseEvent();
  // The native window object and its handle; null without a window.
  CWnd* GetPlatformWindow() const;
  HWND GetPlatformHandle() const;

  void SetName(const std::wstring& name) { name_ = name; }
  const std::wstring& GetName() const { return name_; }
  GuiType Type() const { return guiType_; }

  // Called with every event of the widget; true suppresses the default processing.
  void SetEventProcedure(const EventHandler& procedure);
  const EventHandler& EventProcedure() const { return *eventProcedure_; }
  // Gets the native message record before the library's own pre-processing: 1 consumes it, 0 ends
  // the pre-processing, anything else lets it go on.
  void SetPreTranslateMessage(const PreTranslateProcedure& procedure) {
    preTranslateMessage_ = procedure;
  }
  const PreTranslateProcedure& PreTranslateMessage() const { return preTranslateMessage_; }

  // Width in pixels of a text in the given font, or in the widget's when null.
  int GetWidthForText(std::wstring& text, FontData* font);

  // -- Context menu: shown at the pointer when the user asks for it and the event procedure does
  // not take the request. Edits show theirs themselves.

  void InsertContextMenu(const std::shared_ptr<ContextMenu>& menu) { contextMenu_ = menu; }
  void RemoveContextMenu() { contextMenu_ = nullptr; }
  // Empty when there is none.
  std::shared_ptr<ContextMenu> GetContextMenu() const { return contextMenu_; }

  // -- Prompts popup: made as PromptsPopup says, and kept by the widget until the next one is made.

  std::shared_ptr<PromptsPopup> InsertPromptsPopup(const std::wstring& text, int width,
                                                   int milliseconds, bool closesOnInput);
  // Shows the popup beside this widget, or hides it. Nothing happens without one.
  void ShowPromptsPopup(const std::shared_ptr<PromptsPopup>& popup, bool show);

  // -- Balloon tips: a title, a text and an icon that point at the widget. One is shown at a time.
  // It closes with the next key or press when `closesOnInput`, after ten seconds when
  // `closesInTime`, and always with a click on it. False when there is nothing to say or the widget
  // is not to be seen.

  bool ShowBalloonTipEx(const std::wstring& text, BalloonTipIconType icon, bool closesOnInput,
                        bool closesInTime);
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        BalloonTipIconType icon, bool closesOnInput, bool closesInTime);
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text, bool closesOnInput,
                        bool closesInTime);
  // The icon is a picture file, or the bytes of one: icon files and what decodes as a picture.
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        const std::wstring& iconPath, bool closesOnInput, bool closesInTime);
  bool ShowBalloonTipEx(const std::wstring& text, const unsigned char* icon, int size,
                        bool closesOnInput, bool closesInTime);
  bool ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                        const unsigned char* icon, int size, bool closesOnInput, bool closesInTime);
  // False when no tip was ever shown.
  bool HideBalloonTipEx();
  bool IsBalloonTipDisplayed();

  // Fired with the widget when its native window is destroyed.
  CallbackList<BaseGUIObject*> Destroyed;

 protected:
  explicit BaseGUIObject(GuiType type);
  // For destructors of concrete widgets: the native window goes while the widget is still whole.
  void ReleaseImpl();

 private:
  friend class EventDispatch;

  std::wstring name_;
  GuiType guiType_ = GuiType::None;
  HWND parentWindow_ = nullptr;
  // Shared with a call under way, which may replace it or destroy the widget.
  std::shared_ptr<const EventHandler> eventProcedure_;
  PreTranslateProcedure preTranslateMessage_;
  CWnd* topLevelDlg_ = nullptr;
  std::shared_ptr<PromptsPopup> promptsPopup_;
  std::shared_ptr<ContextMenu> contextMenu_;
};

}  // namespace Wexa
