#include "MFC/forms/DialogBuilder.h"

#include <algorithm>
#include <map>
#include <ranges>

#include "Label.h"
#include "MFC/RadioButtonImplMFC.h"
#include "MFC/base/ControlIds.h"
#include "MFC/forms/LayoutSettings.h"
#include "MFC/forms/WidgetSettings.h"
#include "MFC/tips/ToolTips.h"
#include "Utf8.h"
#include "WexaObjectFactory.h"
#include "WexaUtils.h"
#include "form/FormReader.h"
#include "form/FormText.h"
#include "layout/BoxLayout.h"
#include "layout/GridLayout.h"
#include "layout/SpacerItem.h"
#include "layout/WidgetItem.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

using GuiType = BaseGUIObject::GuiType;

Size ScaledSize(const FormNode& node, PropertyId width, PropertyId height) {
  return {Scale(node.Integer(width).value_or(0)), Scale(node.Integer(height).value_or(0))};
}

bool IsVerticalSpacer(const FormNode& node, const FormNode* parentLayout) {
  const std::wstring* orientation = node.Text(PropertyId::Orientation);
  if (orientation && IsEnumWord(*orientation, L"Qt::Vertical")) return true;
  return parentLayout && parentLayout->layoutKind == FormNode::LayoutKind::VBox;
}

// Below a custom skin any palette does: the dialog's colours show through.
SkinMode ChildModeOf(const SkinManager& skin) {
  const SkinMode mode = skin.GetRequestedMode();
  return mode == SkinMode::Custom ? SkinMode::Default : mode;
}

Layout* MakeLayout(FormNode::LayoutKind kind, WexaObject* parent) {
  switch (kind) {
    case FormNode::LayoutKind::HBox: return new HBoxLayout(parent);
    case FormNode::LayoutKind::VBox: return new VBoxLayout(parent);
    default: return new GridLayout(parent);
  }
}

}  // namespace

void DialogBuilder::Build() {
  const FormNode& root = *model_.root;
  ConfigureDialog(root);
  BuildChildren(root, {&dialog_});
  FillWithCentralWidget(root);
  ResolveBuddies();
  impl_.Elements().SetTabOrder(model_.tabOrder);
  GroupRadioButtons();
}

void DialogBuilder::ConfigureDialog(const FormNode& root) {
  ApplySizeLimits(dialog_, FormReader(root));
  if (const std::wstring* title = root.Text(PropertyId::Title)) impl_.Life().SetTitle(*title);
  dialog_.SetName(root.name);
  impl_.SetFont(root.font);
  impl_.SetClientSize(ScaledSize(root, PropertyId::Width, PropertyId::Height));
}

// Main windows state no layout for their central widget: it fills them.
void DialogBuilder::FillWithCentralWidget(const FormNode& root) {
  if (root.className != L"QMainWindow" || impl_.Links().layout || impl_.Children().empty()) return;
  auto* layout = new VBoxLayout(&dialog_);
  layout->SetContentsMargins(0, 0, 0, 0);
  layout->AddItem(new WidgetItemV2(layout, impl_.Children().front()));
}

void DialogBuilder::BuildChildren(const FormNode& node, const Place& place) {
  for (const auto& child : node.children) {
    switch (child->kind) {
      case FormNode::Kind::Layout: BuildLayout(*child, place); break;
      case FormNode::Kind::Spacer: BuildSpacer(*child, place); break;
      case FormNode::Kind::Widget: BuildWidget(*child, place); break;
    }
  }
}

// -- Layouts and spacers

void DialogBuilder::BuildLayout(const FormNode& node, const Place& place) {
  bool isTopLevel = !place.layout;
  Layout* layout = MakeLayout(node.layoutKind, isTopLevel ? place.widget : nullptr);
  if (isTopLevel && ImplOf(place.widget)->Links().layout != layout) {
    delete layout;  // a second layout in one widget has no area to share out
    return;
  }
  if (!isTopLevel) AddToLayout(place.cellNode ? *place.cellNode : node, layout, place);
  ApplyLayoutSettings(*layout, node);
  BuildChildren(node, {place.widget, layout, &node});
  ApplyLayoutLists(*layout, node);
}

void DialogBuilder::BuildSpacer(const FormNode& node, const Place& place) {
  if (!place.layout || !node.Text(PropertyId::Width)) return;
  const std::wstring* sizeType = node.Text(PropertyId::SizeType);
  SizePolicy::Policy along = sizeType
                                 ? WexaUtils::PropertyToSizePolicy(L"QSizePolicy::" + *sizeType)
                                 : SizePolicy::Expanding;
  bool isVertical = IsVerticalSpacer(node, place.layoutNode);
  Size size = ScaledSize(node, PropertyId::Width, PropertyId::Height);
  auto* spacer =
      new SpacerItem(size.Width(), size.Height(), isVertical ? SizePolicy::Minimum : along,
                     isVertical ? along : SizePolicy::Minimum);
  AddToLayout(node, spacer, place);
}

void DialogBuilder::AddToLayout(const FormNode& node, LayoutItem* item, const Place& place) {
  item->SetAlignment(ItemAlignmentOf(node));
  auto* grid = dynamic_cast<GridLayout*>(place.layout);
  if (!grid) return place.layout->AddItem(item);
  const FormNode::Cell& cell = node.cell;
  grid->AddItem(item, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
}

// -- Widgets

// A class of the form's own stands for the class it extends; chains are short, loops end.
std::shared_ptr<BaseGUIObject> DialogBuilder::MakeWidget(std::wstring className) const {
  WexaObjectFactory& factory = WexaObjectFactory::Instance();
  auto widget = factory.Create(NarrowUtf8(className));
  for (std::size_t i = 0; !widget && i <= model_.customClasses.size(); ++i) {
    auto base = model_.customClasses.find(className);
    if (base == model_.customClasses.end()) break;
    className = base->second;
    widget = factory.Create(NarrowUtf8(className));
  }
  return widget;
}

void DialogBuilder::NoteUnknown(const std::wstring& className) {
  auto& unknown = impl_.Statistics().unknownClasses;
  if (std::find(unknown.begin(), unknown.end(), className) == unknown.end())
    unknown.push_back(className);
}

void DialogBuilder::BuildWidget(const FormNode& node, const Place& place) {
  auto widget = MakeWidget(node.className);
  if (!widget) {
    NoteUnknown(node.className);
    Place sameParent = place;
    sameParent.cellNode = &node;
    return BuildChildren(node, sameParent);
  }
  widget->SetName(node.name);
  widget->SetParent(place.widget);
  ImplOf(place.widget)->AddChild(*widget);
  widget->GetSkinManager().InitSkinManager(&impl_.GetSkinManager(),
                                           ChildModeOf(impl_.GetSkinManager()));
  const FormReader form(node);
  ApplyWidgetSettings(*widget, form);
  impl_.Elements().Add(node.name, widget);
  AddToolTip(form, widget);
  ++impl_.Statistics().widgets;
  PlaceWidget(node, *widget, place);
  if (const std::wstring* buddy = node.Text(PropertyId::Buddy);
      buddy && widget->Type() == GuiType::Label)
    buddies_.emplace_back(widget.get(), *buddy);
  BuildChildren(node, {widget.get()});
}

void DialogBuilder::AddToolTip(const FormReader& form,
                               const std::shared_ptr<BaseGUIObject>& widget) {
  if (const auto tip = form.PlainText(L"toolTip"))
    impl_.Tips().Set(widget, {L"", *tip}, 0, nullptr);
}

void DialogBuilder::PlaceWidget(const FormNode& node, BaseGUIObject& widget, const Place& place) {
  if (!place.layout) return ImplOf(place.widget)->TakeChild(widget, FormReader(node));
  const FormNode& cell = place.cellNode ? *place.cellNode : node;
  AddToLayout(cell, new WidgetItemV2(place.layout, &widget), place);
}

// -- After the tree

void DialogBuilder::ResolveBuddies() {
  for (const auto& [label, name] : buddies_)
    static_cast<Label*>(label)->SetBuddy(impl_.Elements().Find(name).get());
}

// Radio buttons of one group name form a group; those without one, a group in each parent. A
// group's ids follow one another, and the keyboard stays within it.
void DialogBuilder::GroupRadioButtons() {
  using Key = std::pair<std::wstring, WexaObject*>;
  std::map<Key, std::vector<RadioButton*>> groups;
  std::map<WexaObject*, Key> previous;
  for (const auto& element : impl_.Elements()) {
    BaseGUIObject* widget = element.widget.get();
    WexaObject* parent = widget->GetParent();
    Key key;
    if (widget->Type() == GuiType::RadioButton) {
      const std::wstring& name = static_cast<RadioButton::impl*>(ImplOf(widget))->GroupName();
      key = {name, name.empty() ? parent : nullptr};
      groups[key].push_back(static_cast<RadioButton*>(widget));
    }
    auto [place, isFirst] = previous.try_emplace(parent, key);
    if (isFirst ? key != Key() : place->second != key) ImplOf(widget)->Creation().style |= WS_GROUP;
    place->second = key;
  }
  for (const auto& [key, radios] : groups) MakeGroup(radios);
}

// Where the form checks several, the last one stays so.
void DialogBuilder::MakeGroup(const std::vector<RadioButton*>& radios) {
  auto group = std::make_shared<GroupInfo>();
  for (RadioButton* radio : radios) {
    ImplOf(radio)->Creation().controlId = NextControlId();
    radio->SetGroupInfo(group);
  }
  group->firstId = ImplOf(radios.front())->Creation().controlId;
  group->lastId = ImplOf(radios.back())->Creation().controlId;
  for (RadioButton* radio : radios | std::views::reverse)
    if (radio->Checked()) radio->SetCheck();
}

}  // namespace Wexa
