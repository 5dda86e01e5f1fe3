#pragma once

#include <memory>

#include "BaseGUIObject.h"

namespace Wexa {

class ChildDialog;

// Pages of which one is shown. The pages belong to the dialog that built them.
class WEXA_API StackedDialog : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  StackedDialog();
  ~StackedDialog() override;

  // As BaseGUIObject says.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;

  // The last page from now on; null is ignored. The first one is shown.
  void AddChildDialog(ChildDialog* page);
  // Null for an index out of range.
  virtual ChildDialog* GetPage(int index);
  // -1 without pages.
  virtual int GetCurrentIndex();
  // An index out of range changes nothing, but the area is repainted.
  virtual void SetCurrentIndex(int index);
  // Nothing happens for an index out of range.
  void EnablePage(int index, bool enable, bool remember);
  // Has no effect and returns 0.
  int InsertChildDialog(int index, CWnd* page);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
