#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// One line of text that the user edits.
class WEXA_API Edit : public BaseGUIObject {
 public:
  class impl;

  enum class TextAlign { Left = 0, Center = 1, Right = 2 };
  enum class PasswordMode { Normal = 0, Password = 1 };

  Edit();
  ~Edit() override;

  // Fired with the new text: TextEdited by the user's changes, then TextChanged by every one.
  CallbackList<std::wstring> TextChanged;
  CallbackList<std::wstring> TextEdited;
  // Fired when the focus leaves the edit.
  CallbackList<> EditingFinished;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Values beyond those of the enumeration count as Right.
  virtual void SetTextAlign(TextAlign align);
  virtual void SetSelectAll();
  virtual void SetFocus();
  // In characters.
  virtual void SetLimitText(int limit);
  virtual void SetReadOnly(bool readOnly);
  virtual bool IsReadOnly();

  void SetText(const std::wstring& text);
  std::wstring GetText();
  // Shown while the edit is empty.
  void SetPlaceHolderText(std::wstring text);
  void SetPasswordMode(PasswordMode mode);
  PasswordMode GetPasswordMode();
  // False takes the frame away; true changes nothing any more.
  void SetFrameMode(bool frame);
  bool GetFrameMode();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
