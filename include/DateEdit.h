#pragma once

#include <memory>

#include "BaseGUIObject.h"
#include "KvDateTime.h"

namespace Wexa {

// A field for a date. It shows its date as year, month and day.
class WEXA_API DateEdit : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  DateEdit();
  ~DateEdit() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // A date that does not exist is kept as it is. Counts before and after the window exists.
  void SetDate(const KvDateTime& date);
  // As set; the first day of 1900 at first.
  KvDateTime GetDate() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
