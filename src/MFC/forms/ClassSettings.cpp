#include "MFC/forms/ClassSettings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cwchar>
#include <limits>
#include <string_view>

#include "CheckBox.h"
#include "ComboBox.h"
#include "DateEdit.h"
#include "DoubleSpinEdit.h"
#include "Edit.h"
#include "GroupBox.h"
#include "KvDateTime.h"
#include "Label.h"
#include "ListBox.h"
#include "MFC/ButtonBoxImplMFC.h"
#include "MFC/ButtonImplMFC.h"
#include "MFC/RadioButtonImplMFC.h"
#include "MFC/containers/PagesImpl.h"
#include "MFC/containers/ScrollAreaImpl.h"
#include "MFC/containers/StackedDialogImpl.h"
#include "MultiLineEdit.h"
#include "ProgressBar.h"
#include "RichEdit.h"
#include "ScrollBar.h"
#include "Slider.h"
#include "SpinEdit.h"
#include "Splitter.h"
#include "TabView.h"
#include "WexaConfig.h"
#include "form/FormModel.h"
#include "form/FormText.h"
#include "form/RichText.h"

namespace Wexa {

namespace {

using GuiType = BaseGUIObject::GuiType;

bool Has(const FormNode& node, PropertyId id, std::wstring_view word) {
  const std::wstring* text = node.Text(id);
  return text && HasEnumWord(*text, word);
}

bool IsExtraTrue(const FormNode& node, std::wstring_view name) {
  const std::wstring* text = node.Extra(name);
  return text && *text == L"true";
}

double NumberOr(const FormNode& node, PropertyId id, double absent) {
  const double number = node.Number(id).value_or(absent);
  return std::isfinite(number) ? number : absent;
}

int ToInt(double number) {
  return static_cast<int>(
      std::clamp<double>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// Left, centre or right, as labels and edits share it: 0, 1, 2.
int AlignmentOf(const FormNode& node) {
  if (Has(node, PropertyId::Alignment, L"Qt::AlignCenter") ||
      Has(node, PropertyId::Alignment, L"Qt::AlignHCenter"))
    return 1;
  bool isRight = Has(node, PropertyId::Alignment, L"Qt::AlignRight") ||
                 Has(node, PropertyId::Alignment, L"Qt::AlignTrailing");
  return isRight ? 2 : 0;
}

// Forms name pictures in a resource file (":/icons/warning.png") or relative to themselves. Hosts
// keep them in the directory of images, in the folders of the resource file or flat.
void LoadPicture(Label& label, const std::wstring& name, WexaUtils::ScalePicture scale) {
  const std::size_t path = name.find_first_not_of(L":/");
  if (path == name.npos) return;
  const std::size_t file = name.find_last_of(L'/') + 1;
  for (const std::size_t from : {path, file})
    if (label.LoadPicture(GetImageDirPath(L"") + name.substr(from), scale, 0)) return;
}

void Apply(Label& label, const FormNode& node) {
  const std::wstring* format = node.Extra(L"textFormat");
  bool isPlain = format && HasEnumWord(*format, L"Qt::PlainText");
  std::wstring& text = ImplOf(&label)->Creation().text;
  if (!isPlain && IsRichText(text)) {
    FontData font = node.font;
    text = PlainTextOf(text, font.bold);
    if (font != node.font) label.SetFont(font);
  }
  label.SetAlignment(static_cast<Label::Alignment>(AlignmentOf(node)));
  if (Has(node, PropertyId::Alignment, L"Qt::AlignTop")) label.SetVerticallyCentered(false);
  if (Has(node, PropertyId::WordWrap, L"true")) label.SetWordWrap(true);
  if (const auto indent = node.Integer(L"indent")) label.SetIndent(*indent);
  if (const std::wstring* picture = node.Extra(L"pixmap"))
    LoadPicture(
        label, *picture,
        IsExtraTrue(node, L"scaledContents") ? WexaUtils::FillTarget : WexaUtils::ScaleByFactor);
}

void Apply(Edit& edit, const FormNode& node) {
  edit.SetTextAlign(static_cast<Edit::TextAlign>(AlignmentOf(node)));
  if (Has(node, PropertyId::ReadOnly, L"true")) edit.SetReadOnly(true);
  if (Has(node, PropertyId::EchoMode, L"QLineEdit::Password"))
    edit.SetPasswordMode(Edit::PasswordMode::Password);
  else if (Has(node, PropertyId::EchoMode, L"QLineEdit::Normal"))
    edit.SetPasswordMode(Edit::PasswordMode::Normal);
  if (Has(node, PropertyId::Frame, L"false")) edit.SetFrameMode(false);
  if (const std::wstring* text = node.Extra(L"placeholderText")) edit.SetPlaceHolderText(*text);
}

// What a text area holds, which forms know under several names.
std::wstring AreaTextOf(const FormNode& node) {
  std::int32_t bold = 0;
  if (const std::wstring* text = node.Extra(L"html")) return PlainTextOf(*text, bold);
  if (const std::wstring* text = node.Extra(L"plainText")) return *text;
  const std::wstring* text = node.Text(PropertyId::Text);
  return text ? *text : L"";
}

void Apply(ComboBox& combo, const FormNode& node) {
  combo.SetItems(node.itemTexts);
  combo.SetCurrentIndex(ToInt(NumberOr(node, PropertyId::CurrentIndex, combo.GetCurrentIndex())));
  combo.SetMinimumContentsLength(ToInt(NumberOr(node, PropertyId::MinimumContentsLength, 0)));
}

template <typename Spin>
void ApplyFixes(Spin& spin, const FormNode& node) {
  if (const std::wstring* prefix = node.Extra(L"prefix")) spin.SetPrefix(*prefix);
  if (const std::wstring* suffix = node.Extra(L"suffix")) spin.SetSuffix(*suffix);
}

template <typename Ranged>
void ApplyRange(Ranged& widget, const FormNode& node, int minimum, int maximum) {
  widget.SetRange(ToInt(NumberOr(node, PropertyId::Minimum, minimum)),
                  ToInt(NumberOr(node, PropertyId::Maximum, maximum)));
  widget.SetValue(ToInt(NumberOr(node, PropertyId::Value, minimum)));
}

void Apply(DoubleSpinEdit& spin, const FormNode& node) {
  if (const auto decimals = node.Integer(L"decimals")) spin.SetDecimals(*decimals);
  spin.SetRange(NumberOr(node, PropertyId::Minimum, 0), NumberOr(node, PropertyId::Maximum, 99.99));
  spin.SetValue(NumberOr(node, PropertyId::Value, 0));
  ApplyFixes(spin, node);
}

// Kept as "year-month-day".
void Apply(DateEdit& edit, const FormNode& node) {
  const std::wstring* text = node.Extra(L"date");
  KvDateTime date = edit.GetDate();
  if (text && std::swscanf(text->c_str(), L"%hu-%hu-%hu", &date.year, &date.month, &date.day) == 3)
    edit.SetDate(date);
}

void Apply(SpinEdit& spin, const FormNode& node) {
  ApplyRange(spin, node, 0, 99);
  ApplyFixes(spin, node);
}

void Apply(RangeControl& control, const FormNode& node) {
  ApplyRange(control, node, 0, 99);
  control.SetSingleStep(node.Integer(L"singleStep").value_or(control.GetSingleStep()));
  control.SetPageStep(node.Integer(L"pageStep").value_or(control.GetPageStep()));
}

void Apply(Slider& slider, const FormNode& node) {
  Apply(static_cast<RangeControl&>(slider), node);
  const std::wstring* position = node.Extra(L"tickPosition");
  if (!position || HasEnumWord(*position, L"QSlider::NoTicks")) return;
  slider.SetTickInterval(node.Integer(L"tickInterval").value_or(slider.GetPageStep()));
}

void Apply(ProgressBar& bar, const FormNode& node) {
  ApplyRange(bar, node, 0, 100);
  const std::wstring* shown = node.Extra(L"textVisible");
  bar.SetTextVisible(!shown || *shown != L"false");
  if (const std::wstring* format = node.Extra(L"format")) bar.SetFormat(*format);
}

void Apply(GroupBox& box, const FormNode& node) {
  box.SetTitleAlignment(static_cast<GroupBox::TitleAlignment>(AlignmentOf(node)));
  if (!IsExtraTrue(node, L"checkable")) return;
  box.SetCheckable(true);
  const std::wstring* checked = node.Extra(L"checked");
  box.SetChecked(!checked || *checked != L"false");
}

void Apply(Splitter& splitter, const FormNode& node) {
  splitter.SetOrientation(Has(node, PropertyId::Orientation, L"Qt::Vertical"));
  splitter.SetHandleWidth(node.Integer(L"handleWidth").value_or(splitter.GetHandleWidth()));
  const std::wstring* opaque = node.Extra(L"opaqueResize");
  splitter.SetDynamicResizing(!opaque || *opaque != L"false");
}

BarPolicy BarPolicyOf(const FormNode& node, std::wstring_view property) {
  const std::wstring* text = node.Extra(property);
  if (text && HasEnumWord(*text, L"Qt::ScrollBarAlwaysOff")) return BarPolicy::AlwaysOff;
  return text && HasEnumWord(*text, L"Qt::ScrollBarAlwaysOn") ? BarPolicy::AlwaysOn
                                                              : BarPolicy::AsNeeded;
}

void Apply(ScrollArea& area, const FormNode& node) {
  auto* impl = static_cast<ScrollArea::impl*>(ImplOf(&area));
  impl->SetBarPolicies({BarPolicyOf(node, L"verticalScrollBarPolicy"),
                        BarPolicyOf(node, L"horizontalScrollBarPolicy")});
  impl->SetFramed(!Has(node, PropertyId::FrameShape, L"QFrame::NoFrame"));
  if (const std::wstring* resizes = node.Extra(L"widgetResizable"))
    impl->SetContentFit(*resizes == L"true" ? ContentFit::Resize : ContentFit::Preferred);
}

void Apply(CheckBox& check, const FormNode& node) {
  if (IsExtraTrue(node, L"tristate")) check.SetTristate(true);
  if (IsExtraTrue(node, L"checked")) check.SetCheck(WexaUtils::Checked);
}

void Apply(RadioButton& radio, const FormNode& node) {
  auto* impl = static_cast<RadioButton::impl*>(ImplOf(&radio));
  impl->groupName = node.buttonGroup;
  impl->checkedByForm = IsExtraTrue(node, L"checked");
}

void Apply(Button& button, const FormNode& node) {
  auto* impl = static_cast<Button::impl*>(ImplOf(&button));
  const std::wstring* isDefault = node.Text(PropertyId::Default);
  impl->isDefault = isDefault && *isDefault == L"true";
  if (IsExtraTrue(node, L"checkable")) impl->BeginAsToggle(IsExtraTrue(node, L"checked"));
}

void Apply(ButtonBox& box, const FormNode& node) {
  auto* impl = static_cast<ButtonBox::impl*>(ImplOf(&box));
  box.SetOrientation(Has(node, PropertyId::Orientation, L"Qt::Vertical"));
  impl->SetButtons(node.standardButtons.flags);
}

void ApplyCurrentPage(PagesImpl& pages, const FormNode& node) {
  pages.SetInitialIndex(ToInt(NumberOr(node, PropertyId::CurrentIndex, 0)));
}

void Apply(StackedDialog& stack, const FormNode& node) {
  auto* impl = static_cast<StackedDialog::impl*>(ImplOf(&stack));
  ApplyCurrentPage(*impl, node);
  const std::wstring* shape = node.Text(PropertyId::FrameShape);
  constexpr std::array<std::wstring_view, 4> kFramed{L"QFrame::Box", L"QFrame::Panel",
                                                     L"QFrame::StyledPanel", L"QFrame::WinPanel"};
  impl->SetFramed(shape && std::any_of(kFramed.begin(), kFramed.end(), [&](std::wstring_view word) {
                    return IsEnumWord(*shape, word);
                  }));
}

TabPosition TabPositionOf(const FormNode& node) {
  const std::wstring* text = node.Extra(L"tabPosition");
  if (!text) return TabPosition::North;
  if (HasEnumWord(*text, L"QTabWidget::South")) return TabPosition::South;
  if (HasEnumWord(*text, L"QTabWidget::West")) return TabPosition::West;
  return HasEnumWord(*text, L"QTabWidget::East") ? TabPosition::East : TabPosition::North;
}

void Apply(TabView& tabs, const FormNode& node) {
  tabs.SetTabPosition(TabPositionOf(node));
  ApplyCurrentPage(static_cast<PagesImpl&>(*ImplOf(&tabs)), node);
}

}  // namespace

void ApplyClassSettings(BaseGUIObject& widget, const FormNode& node) {
  switch (widget.Type()) {
    case GuiType::Label: return Apply(static_cast<Label&>(widget), node);
    case GuiType::Edit: return Apply(static_cast<Edit&>(widget), node);
    case GuiType::ComboBox:
    case GuiType::ComboBoxFS: return Apply(static_cast<ComboBox&>(widget), node);
    case GuiType::DateEdit: return Apply(static_cast<DateEdit&>(widget), node);
    case GuiType::SpinEdit: return Apply(static_cast<SpinEdit&>(widget), node);
    case GuiType::DoubleSpinEdit: return Apply(static_cast<DoubleSpinEdit&>(widget), node);
    case GuiType::CheckBox: return Apply(static_cast<CheckBox&>(widget), node);
    case GuiType::RadioButton: return Apply(static_cast<RadioButton&>(widget), node);
    case GuiType::Button: return Apply(static_cast<Button&>(widget), node);
    case GuiType::ButtonBox: return Apply(static_cast<ButtonBox&>(widget), node);
    case GuiType::ProgressBar: return Apply(static_cast<ProgressBar&>(widget), node);
    case GuiType::Slider: return Apply(static_cast<Slider&>(widget), node);
    case GuiType::ScrollBar: return Apply(static_cast<RangeControl&>(widget), node);
    case GuiType::GroupBox: return Apply(static_cast<GroupBox&>(widget), node);
    case GuiType::ListBox: return static_cast<ListBox&>(widget).SetItems(node.itemTexts);
    case GuiType::MultiLineEdit:
      return static_cast<MultiLineEdit&>(widget).SetText(AreaTextOf(node));
    case GuiType::RichEdit: return static_cast<RichEdit&>(widget).SetText(AreaTextOf(node));
    case GuiType::ScrollArea: return Apply(static_cast<ScrollArea&>(widget), node);
    case GuiType::Splitter: return Apply(static_cast<Splitter&>(widget), node);
    case GuiType::TabView: return Apply(static_cast<TabView&>(widget), node);
    case GuiType::StackedDialog: return Apply(static_cast<StackedDialog&>(widget), node);
    default: return;
  }
}

}  // namespace Wexa
