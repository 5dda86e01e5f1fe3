#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "BaseGUIObject.h"
#include "Dialog.h"
#include "support/Robot.h"

namespace Wexa {

// A widget of a form, as form files write it: <widget class=... name=...>inner</widget>.
std::string WidgetXml(const std::string& className, const std::string& name,
                      const std::string& inner = "");
// A property with a value element: <property name=...><kind>value</kind></property>.
std::string PropertyXml(const std::string& name, const std::string& kind, const std::string& value);
// A column of items below each other in a dialog of this client size.
std::string ColumnForm(const std::string& items, int width = 300, int height = 200);
// A whole form around the content of its root widget.
std::string FormXml(const std::string& rootContent, int width, int height);
std::string ItemXml(const std::string& inner, const std::string& attributes = "");

// Dialogs from forms on the offscreen display, used by a robot.
class FormTest : public ::testing::Test {
 protected:
  void TearDown() override;

  // Writes the form to a file and makes the dialog.
  std::unique_ptr<Dialog> Make(const std::string& form, unsigned long style = 0);
  // The same, shown modeless and painted.
  Dialog& Open(const std::string& form, unsigned long style = 0);
  // The file of a form; gone with the test.
  std::wstring FileOf(const std::string& form);

  template <typename Widget>
  Widget& Find(const wchar_t* name) {
    auto widget = dialog_->GetElementByName(name);
    if (!widget) throw std::runtime_error("the form has no such widget");
    return static_cast<Widget&>(*widget);
  }
  // Its place in the dialog's client area.
  Rect PlaceOf(const wchar_t* name);

  Robot robot_;
  std::unique_ptr<Dialog> dialog_;

 private:
  std::vector<std::string> files_;
};

}  // namespace Wexa
