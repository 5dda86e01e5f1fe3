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

  // Without a native window: the dialog that holds the widget makes it.
  ComboBox();
  ~ComboBox() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Replaces the choices. The first one is chosen where none was.
  void SetItems(std::vector<std::wstring> items);
  // -1 for no choice.
  void SetCurrentIndex(int index);
  // -1 when nothing is chosen.
  int GetCurrentIndex() const;
  // The field is at least so many average characters wide.
  void SetMinimumContentsLength(int characters);

 protected:
  explicit ComboBox(GuiType type);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
