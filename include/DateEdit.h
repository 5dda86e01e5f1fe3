#pragma once

#include <memory>

#include "BaseGUIObject.h"
#include "KvDateTime.h"

namespace Wexa {

// A field for a date. It shows its date as year, month and day.
class WEXA_API DateEdit : public BaseGUIObject {
 public:
  class impl;

  DateEdit();
  ~DateEdit() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetDate(const KvDateTime& date);
  KvDateTime GetDate() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
