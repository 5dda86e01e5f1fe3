#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// One line of text that the user edits.
class WEXA_API Edit : public BaseGUIObject {
 public:
  class impl;

  // Where the text stands in the field.
  enum class TextAlign { Left = 0, Center = 1, Right = 2 };
  // Whether dots are shown in place of characters.
  enum class PasswordMode { Normal = 0, Password = 1 };

  // Without a native window: the dialog that holds the widget makes it.
  Edit();
  ~Edit() override;

  // Fired with the new text: TextEdited by the user's changes, then TextChanged by every one.
  CallbackList<std::wstring> TextChanged;
  CallbackList<std::wstring> TextEdited;
  // Fired when the focus leaves the edit.
  CallbackList<> EditingFinished;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Values beyond those of the enumeration count as Right.
  // Left at first.
  virtual void SetTextAlign(TextAlign align);
  // The caret stands behind the text then.
  virtual void SetSelectAll();
  // Nothing happens while the edit is hidden or disabled.
  virtual void SetFocus();
  // In characters.
  virtual void SetLimitText(int limit);
  // A read-only text can be selected and copied.
  virtual void SetReadOnly(bool readOnly);
  virtual bool IsReadOnly();

  // Fires TextChanged when the text is another.
  void SetText(const std::wstring& text);
  // Also before the window exists and after it is gone.
  std::wstring GetText();
  // Shown while the edit is empty.
  void SetPlaceHolderText(std::wstring text);
  // Normal at first. A password is never copied out.
  void SetPasswordMode(PasswordMode mode);
  PasswordMode GetPasswordMode();
  // False takes the frame away; true changes nothing any more.
  void SetFrameMode(bool frame);
  bool GetFrameMode();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
