#pragma once

#include <memory>
#include <string>
#include <vector>

#include "BaseGUIObject.h"
#include "WexaUtils.h"

namespace Wexa {

// The radio buttons of which one is checked: those that were given this record, in any windows of a
// dialog, and the others with these control ids in the same parent window.
struct GroupInfo {
  unsigned firstId = 0;
  unsigned lastId = 0;
  unsigned checkedId = 0;  // the one last checked by the program or its user, 0 when none was
  std::vector<std::weak_ptr<BaseImpl>> members;  // kept by SetGroupInfo
};

class WEXA_API RadioButton : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  RadioButton();
  ~RadioButton() override;

  // Fired by a click on a radio button that is checked then.
  CallbackList<> Clicked;
  // Fired after Clicked when another button of the group was checked before.
  CallbackList<> GroupChanged;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Checks this button and unchecks the rest of its group, at once or for when they get their
  // windows. Nothing happens without a group.
  virtual void SetCheck();
  virtual bool Checked();
  // Shows a picture between the mark and the text. What fits or fills, fits the widget's area
  // beside the mark as it is now. `iconSize` chooses among the icons of an icon file. Nothing
  // changes when there is no picture to read.
  virtual void LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                           WexaUtils::ScalePicture scale, int iconSize);
  // A file, its type by its extension.
  virtual void LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale, int iconSize);

  void SetText(const std::wstring& text);
  std::wstring GetText();
  void SetGroupInfo(std::shared_ptr<GroupInfo> group);
  std::shared_ptr<GroupInfo> GetGroupInfo();

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
