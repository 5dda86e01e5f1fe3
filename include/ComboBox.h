#pragma once

#include <memory>
#include <string>
#include <vector>

#include "BaseGUIObject.h"

namespace Wexa {

// A field with a list of choices. It shows its current choice.
class WEXA_API ComboBox : public BaseGUIObject {
 public:
  class impl;

  ComboBox();
  ~ComboBox() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetItems(std::vector<std::wstring> items);
  // -1 for no choice.
  void SetCurrentIndex(int index);
  int GetCurrentIndex() const;
  // The field is at least so many average characters wide.
  void SetMinimumContentsLength(int characters);

 protected:
  explicit ComboBox(GuiType type);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
