#pragma once

#include <memory>
#include <string>
#include <vector>

#include "BaseGUIObject.h"

namespace Wexa {

// A list of rows. It shows the items of its form.
class WEXA_API ListBox : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  ListBox();
  ~ListBox() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Replaces the rows.
  void SetItems(std::vector<std::wstring> items);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
