#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "BaseGUIObject.h"
#include "Dialog.h"
#include "support/FormXml.h"
#include "support/Robot.h"

namespace Wexa {

// Dialogs from forms on the offscreen display, used by a robot.
class FormTest : public ::testing::Test {
 protected:
  void TearDown() override;

  // A fresh display of this resolution; what was open on the one before goes.
  void UseResolution(int dpi);
  // Writes the form to a file and makes the dialog.
  std::unique_ptr<Dialog> Make(const std::string& form, unsigned long style = 0);
  // The same, shown modeless and painted.
  Dialog& Open(const std::string& form, unsigned long style = 0);
  // Closes what is open, and opens a form file.
  Dialog& OpenFile(const std::wstring& file);
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
  Dialog& Show();

  std::vector<std::string> files_;
};

}  // namespace Wexa
