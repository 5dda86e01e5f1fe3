#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "MFC/DialogImplMFC.h"
#include "form/FormModel.h"

namespace Wexa {

class FormReader;
class Layout;
class LayoutItem;
class RadioButton;

// Turns a form's model into the widgets and layouts of a dialog. Nothing native is made yet.
class DialogBuilder {
 public:
  DialogBuilder(Dialog& dialog, Dialog::impl& impl, const FormModel& model)
      : dialog_(dialog), impl_(impl), model_(model) {}

  // Throws WexaException for a tree that cannot be built, and the conversion errors of numbers that
  // are none.
  void Build();

 private:
  // Where a node's children go: into a widget, or into a layout that stands in one.
  struct Place {
    BaseGUIObject* widget;
    Layout* layout = nullptr;
    const FormNode* layoutNode = nullptr;
    // The cell of a skipped widget, which its children take over.
    const FormNode* cellNode = nullptr;
  };

  void ConfigureDialog(const FormNode& root);
  void FillWithCentralWidget(const FormNode& root);
  void BuildChildren(const FormNode& node, const Place& place);
  void BuildLayout(const FormNode& node, const Place& place);
  void BuildSpacer(const FormNode& node, const Place& place);
  void BuildWidget(const FormNode& node, const Place& place);
  std::shared_ptr<BaseGUIObject> MakeWidget(std::wstring className) const;
  void AddToolTip(const FormReader& form, const std::shared_ptr<BaseGUIObject>& widget);
  void PlaceWidget(const FormNode& node, BaseGUIObject& widget, const Place& place);
  void AddToLayout(const FormNode& node, LayoutItem* item, const Place& place);
  void NoteUnknown(const std::wstring& className);
  void ResolveBuddies();
  void GroupRadioButtons();
  static void MakeGroup(const std::vector<RadioButton*>& radios);

  Dialog& dialog_;
  Dialog::impl& impl_;
  const FormModel& model_;
  std::vector<std::pair<BaseGUIObject*, std::wstring>> buddies_;
};

}  // namespace Wexa
