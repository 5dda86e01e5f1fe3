#include "MFC/forms/WidgetSettings.h"

#include <string_view>

#include "MFC/BaseImplMFC.h"
#include "MFC/DialogImplMFC.h"
#include "MFC/base/ControlIds.h"
#include "MFC/forms/ClassSettings.h"
#include "MFC/forms/DefaultPolicy.h"
#include "WexaUtils.h"
#include "form/FormModel.h"
#include "form/FormText.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

bool HasWord(const FormNode& node, PropertyId id, std::wstring_view word) {
  const std::wstring* text = node.Text(id);
  return text && HasEnumWord(*text, word);
}

// The extent of a node without geometry is its parent's.
int ExtentOf(const FormNode& node, PropertyId id) {
  if (node.Text(id)) return *node.Integer(id);
  return node.parent ? node.parent->Integer(id).value_or(0) : 0;
}

CRect RectOf(const FormNode& node) {
  int x = node.Integer(PropertyId::X).value_or(0);
  int y = node.Integer(PropertyId::Y).value_or(0);
  Rect rect(x, y, ExtentOf(node, PropertyId::Width), ExtentOf(node, PropertyId::Height));
  return rect.PlatformRect();
}

DWORD ClassStyle(const FormNode& node, std::wstring_view className) {
  bool isVertical = HasWord(node, PropertyId::Orientation, L"Qt::Vertical");
  if (className == L"QTableWidget" || className == L"QListWidget") {
    const std::wstring* sorted = node.Text(PropertyId::SortingEnabled);
    return sorted && *sorted == L"true" ? LVS_SORTASCENDING : 0;
  }
  if (className == L"QSlider") return isVertical ? TBS_VERT : 0;
  if (className == L"QScrollBar") return isVertical ? SBS_VERT : 0;
  if (className == L"QProgressBar") return isVertical ? PBS_VERTICAL : 0;
  if (className == L"Line" && isVertical) return SS_ETCHEDVERT;
  if (className == L"Line" && HasWord(node, PropertyId::Orientation, L"Qt::Horizontal"))
    return SS_ETCHEDHORZ;
  return 0;
}

void ApplyStyle(CreationRecord& record, const FormNode& node, std::wstring_view className) {
  record.style |= ClassStyle(node, className);
  const std::wstring* frame = node.Text(PropertyId::FrameShape);
  if (frame && IsEnumWord(*frame, L"QFrame::Box")) record.style |= WS_BORDER;
  if (HasWord(node, PropertyId::FocusPolicy, L"Qt::NoFocus")) record.style &= ~WS_TABSTOP;
  if (HasWord(node, PropertyId::FrameShape, L"QFrame::NoFrame")) record.style &= ~WS_BORDER;
}

void ApplySizePolicy(BaseGUIObject& widget, const FormNode& node, const std::wstring& className) {
  const std::wstring* horizontal = node.Text(PropertyId::HSizeType);
  const std::wstring* vertical = node.Text(PropertyId::VSizeType);
  if (!horizontal || !vertical || !node.Text(PropertyId::HorStretch) ||
      !node.Text(PropertyId::VerStretch)) {
    bool isVertical = HasWord(node, PropertyId::Orientation, L"Qt::Vertical");
    return widget.SetSizePolicy(DefaultPolicyOf(className, isVertical));
  }
  SizePolicy policy(WexaUtils::PropertyToSizePolicy(*horizontal),
                    WexaUtils::PropertyToSizePolicy(*vertical));
  policy.SetHorizontalStretch(*node.Integer(PropertyId::HorStretch));
  policy.SetVerticalStretch(*node.Integer(PropertyId::VerStretch));
  widget.SetSizePolicy(policy);
}

}  // namespace

void ApplySizeLimits(BaseGUIObject& widget, const FormNode& node) {
  BaseImplMFC& impl = *ImplOf(&widget);
  LayoutLinks& links = impl.Links();
  Size least = impl.MinimumSize();
  Size most = impl.MaximumSize();
  auto read = [&](PropertyId id, bool& isExplicit, auto set) {
    const auto number = node.Integer(id);
    if (!number) return;
    set(Scale(*number));
    isExplicit = true;
  };
  read(PropertyId::MinWidth, links.explicitMinimum.width, [&](int v) { least.SetWidth(v); });
  read(PropertyId::MinHeight, links.explicitMinimum.height, [&](int v) { least.SetHeight(v); });
  read(PropertyId::MaxWidth, links.explicitMaximum.width, [&](int v) { most.SetWidth(v); });
  read(PropertyId::MaxHeight, links.explicitMaximum.height, [&](int v) { most.SetHeight(v); });
  impl.SetMinimumSize(least);
  impl.SetMaximumSize(most);
}

void ApplyWidgetSettings(BaseGUIObject& widget, const FormNode& node,
                         const std::wstring& className) {
  CreationRecord& record = ImplOf(&widget)->Creation();
  const std::wstring* text = node.Text(PropertyId::Text);
  record.text = text && !text->empty() ? *text : node.titleAttribute;
  if (const std::wstring* title = node.Text(PropertyId::Title)) record.title = *title;
  if (const std::wstring* enabled = node.Extra(L"enabled")) record.enabled = *enabled != L"false";
  ImplOf(&widget)->SetFont(node.font);
  record.rect = RectOf(node);
  record.controlId = NextControlId();
  if (const std::wstring* visible = node.Extra(L"visible"); visible && *visible == L"false")
    record.style &= ~WS_VISIBLE;
  ApplyStyle(record, node, className);
  ApplySizeLimits(widget, node);
  ApplySizePolicy(widget, node, className);
  ApplyClassSettings(widget, node);
}

}  // namespace Wexa
