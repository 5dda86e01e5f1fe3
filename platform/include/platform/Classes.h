#pragma once

// The class layer: objects attached to windows. A CWnd owns its window when it created it and
// destroys one that still exists when it goes.

#include <memory>
#include <string>

#include "DialogManager.h"
#include "Font.h"
#include "Theme.h"
#include "Window.h"

#pragma GCC visibility push(default)  // hosts may use all of this

// Owns one font.
class PLATFORM_API CFont {
 public:
  CFont() = default;
  CFont(const CFont&) = delete;
  CFont& operator=(const CFont&) = delete;
  ~CFont() { DeleteObject(); }
  // Replaces the font. FALSE for a null record.
  BOOL CreateFontIndirect(const LOGFONTW* description);
  BOOL CreatePointFontIndirect(const LOGFONTW* description);  // lfHeight in tenths of a point
  // Widgets that use the font fall back to the system's.
  void DeleteObject();
  HFONT GetSafeHandle() const { return font_; }

 private:
  HFONT font_ = nullptr;
};

// The device context of one WM_PAINT.
class PLATFORM_API CPaintDC {
 public:
  explicit CPaintDC(HWND window) : window_(window) { BeginPaint(window_, &paint_); }
  ~CPaintDC() { EndPaint(window_, &paint_); }
  CPaintDC(const CPaintDC&) = delete;
  CPaintDC& operator=(const CPaintDC&) = delete;
  operator HDC() const { return paint_.hdc; }
  const RECT& Area() const { return paint_.rcPaint; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
};

// An object for a window. It is found by FromHandle, and hears the window's messages in WindowProc.
class PLATFORM_API CWnd {
 public:
  CWnd() = default;
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;
  virtual ~CWnd();

  HWND m_hWnd = nullptr;
  HWND GetSafeHwnd() const { return m_hWnd; }

  // The object of a window; for one without an object, a temporary that lives until the window
  // dies.
  static CWnd* FromHandle(HWND window);
  // The object of a window, or null.
  static CWnd* FromHandlePermanent(HWND window);

  // Creates a window whose messages go through WindowProc. FALSE when it could not be made.
  BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                const RECT& rect, CWnd* parent, UINT id);
  // FALSE when this object has a window already, or that one has another object.
  BOOL Attach(HWND window);  // takes over an existing window
  // Leaves the window alive and without an object; returns it.
  HWND Detach();
  // FALSE when there is no window.
  virtual BOOL DestroyWindow();

  // The operations below are those of Window.h on this object's window. Without one they do nothing
  // and return 0, null or an empty value.
  LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  DWORD GetStyle() const;
  DWORD GetExStyle() const;
  // Takes words out of the style and adds others; with position flags SetWindowPos follows. FALSE
  // when nothing changed.
  BOOL ModifyStyle(DWORD remove, DWORD add, UINT positionFlags = 0);
  BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags = 0);
  int GetDlgCtrlID() const;
  // The parent's object, perhaps a temporary; null where there is no parent.
  CWnd* GetParent() const;
  CWnd* GetTopLevelParent() const;

  void SetWindowText(const std::wstring& text);
  std::wstring GetWindowText() const;
  // The font stays the caller's, and has to live as long as the window shows it.
  void SetFont(HFONT font, bool redraw = true);
  HFONT GetFont() const;  // the system font when none was set

  CRect GetWindowRect() const;
  CRect GetClientRect() const;
  void ScreenToClient(POINT* point) const;
  void ScreenToClient(RECT* rect) const;
  void ClientToScreen(POINT* point) const;
  void MoveWindow(const RECT& rect, bool repaint = true);
  BOOL SetWindowPos(HWND after, int x, int y, int width, int height, UINT flags);
  BOOL ShowWindow(int command);
  BOOL EnableWindow(BOOL enable = TRUE);
  BOOL IsWindowEnabled() const;
  BOOL IsWindowVisible() const;
  HWND SetFocus();
  void Invalidate(bool erase = true);
  void InvalidateRect(const RECT* rect, bool erase = true);
  BOOL RedrawWindow(const RECT* rect, HRGN region, UINT flags);
  UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds);
  BOOL KillTimer(UINT_PTR id);
  int GetScrollPos(int bar) const;  // SB_HORZ or SB_VERT
  void SetScrollPos(int bar, int position);
  void CenterWindow();

  // Before a posted message or input is dispatched, from the focused window up its parents.
  // TRUE: the message is consumed.
  virtual BOOL PreTranslateMessage(MSG* message);

 protected:
  // All messages of the window. The default routes WM_COMMAND to OnCommand, WM_NOTIFY to OnNotify
  // (after offering both to the sending control's object: OnChildNotify), WM_PAINT to OnPaint when
  // the class draws itself, and everything else to the window's own procedure.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
  // TRUE: handled.
  virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
  virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
  // A notification this control sent to its parent comes back here first. TRUE: handled.
  virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
  virtual void PostNcDestroy() {}
  // The processing that the window's class gives the current message.
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);
  // What WindowProc hears of the window's moves; asked for once, when the window is attached.
  virtual MoveInterest Moves() const { return MoveInterest::Steps; }

 private:
  friend struct ClassLayer;
  bool owned_ = false;
};

// A text that is shown: the class WC_STATIC.
class PLATFORM_API CStatic : public CWnd {
 public:
  BOOL Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent, UINT id);
  // In which the text fits; wrapped to `width` when that is not negative.
  SIZE GetIdealSize(int width = -1) const;

 protected:
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
};

// A push button, check box or radio button, by its style: the class WC_BUTTON.
class PLATFORM_API CButton : public CWnd {
 public:
  virtual BOOL Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent,
                      UINT id);
  // BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
  int GetCheck() const;
  void SetCheck(int check);
  // The check with BST_PUSHED and BST_FOCUS.
  UINT GetState() const;
  // The BS_ words of the style.
  DWORD GetButtonStyle() const;
  void SetButtonStyle(DWORD style, bool redraw = true);
  // In which the text fits, with the button's frame or its check mark.
  SIZE GetIdealSize() const;

 protected:
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
};

// A field to edit one line of text: the class WC_EDIT. Positions count UTF-16 code units.
class PLATFORM_API CEdit : public CWnd {
 public:
  BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
  // Selects from one position up to another; 0, -1 selects all, -1 as `from` nothing.
  void SetSel(int from, int to);
  void GetSel(int& from, int& to) const;
  // The caret stands behind the new text; it can be undone.
  void ReplaceSel(const std::wstring& text);
  void SetReadOnly(bool readOnly);
  // How much the user may enter; texts set by the program may be longer.
  void SetLimitText(UINT characters);
  // 0 shows the text itself.
  void SetPasswordChar(wchar_t c);
  void SetCueBanner(const std::wstring& text);  // shown while the edit is empty
  int GetIdealHeight() const;                   // of a line of its font with the frame

 protected:
  MoveInterest Moves() const override { return MoveInterest::SizeOnly; }
};

// A dialog made of a template in memory.
class PLATFORM_API CDialogEx : public CWnd {
 public:
  ~CDialogEx() override;

  // Keeps the template for DoModal. The memory stays the caller's.
  BOOL InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* owner);
  // Shows the dialog, disables its owner's top-level window and pumps until EndDialog; returns what
  // that was given, -1 when the window could not be made. An exception thrown by a handler leaves
  // here after the dialog is destroyed and owner, focus and capture are restored. On a display that
  // nobody sees the dialog is closed when nothing can happen any more.
  virtual std::intptr_t DoModal();
  // Makes a modeless dialog. FALSE for a malformed template, and when OnInitDialog destroyed it.
  BOOL CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* owner);
  // Hides the dialog; a modal one is destroyed when its loop is left, a modeless one by its host.
  void EndDialog(int result);
  bool IsModal() const { return run_ != nullptr; }  // inside DoModal
  // The button that Return presses.
  void SetDefID(UINT id);
  UINT GetDefID() const;
  // Moves the focus on to the next stop, or to a control, as the Tab key does.
  void NextDlgCtrl();
  void GotoDlgCtrl(HWND control);

  BOOL PreTranslateMessage(MSG* message) override;
  // What DoModal returns when nobody sees the dialog and it does not close itself.
  virtual int ClosedResult() const;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  // Calls OnOK and OnCancel.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  // FALSE: the dialog set the focus itself.
  virtual BOOL OnInitDialog();
  virtual void OnOK();      // Return without a default button; ends the dialog with IDOK
  virtual void OnCancel();  // Escape or the close command; ends the dialog with IDCANCEL

 private:
  friend struct ClassLayer;
  const DLGTEMPLATE* template_ = nullptr;
  HWND owner_ = nullptr;
  struct ModalRun* run_ = nullptr;  // while DoModal runs
};

// Takes one message from the queue, lets the windows pre-translate it, and dispatches it. FALSE
// when WM_QUIT came or nothing can happen any more. Modeless dialogs need their host to call this.
BOOL AfxPumpMessage();
// Pumps while there is something to do at once.
void AfxPumpPending();

#pragma GCC visibility pop
