#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

class ChildDialog;

// Where the tabs stand, beside their pages. In a right-to-left dialog west is at the right.
enum class TabPosition { North, South, West, East };

// Pages of which one is shown, chosen by tabs. The pages belong to the dialog that built them.
class WEXA_API TabView : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  TabView();
  ~TabView() override;

  // Fired with the new index after the current page changed.
  CallbackList<int> CurrentChanged;

  // As BaseGUIObject says.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;

  // Appends a page with its caption.
  void AddPage(ChildDialog* page, const std::wstring& caption);
  // North at first.
  void SetTabPosition(TabPosition position);
  // -1 without pages.
  int GetCurrentIndex();
  int GetItemCount();
  // An index out of range changes nothing.
  virtual void SetCurrentIndex(int index);
  void ActivateNextTab();
  void ActivatePreviousTab();
  // Nothing happens for an index out of range.
  virtual void EnablePage(int index, bool enable, bool remember);
  virtual void SetTabText(int index, const std::wstring& text);
  // At most 255 characters; empty for an index out of range.
  virtual std::wstring GetTabText(int index);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
