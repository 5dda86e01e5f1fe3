#include "MFC/forms/WidgetSettings.h"

#include <string>

#include "BaseGUIObject.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/base/ControlIds.h"
#include "WexaUtils.h"
#include "form/FormReader.h"
#include "form/FormText.h"

namespace Wexa {

namespace {

// The extent of a node without geometry is its parent's.
int ExtentOf(const FormReader& form, PropertyId id) {
  const FormNode* parent = form.Node().parent;
  const bool inherits = !form.Find(id) && parent;
  return (inherits ? FormReader(*parent) : form).Integer(id, 0);
}

CRect RectOf(const FormReader& form) {
  const Rect rect(form.Integer(PropertyId::X, 0), form.Integer(PropertyId::Y, 0),
                  ExtentOf(form, PropertyId::Width), ExtentOf(form, PropertyId::Height));
  return rect.PlatformRect();
}

void ApplyStyle(CreationRecord& record, const FormReader& form) {
  const std::wstring* frame = form.Find(PropertyId::FrameShape);
  if (frame && IsEnumWord(*frame, L"QFrame::Box")) record.style |= WS_BORDER;
  if (form.Has(PropertyId::FocusPolicy, L"Qt::NoFocus")) record.style &= ~WS_TABSTOP;
  if (form.Has(PropertyId::FrameShape, L"QFrame::NoFrame")) record.style &= ~WS_BORDER;
}

SizePolicy Turned(const SizePolicy& lying) {
  return {lying.GetVerticalPolicy(), lying.GetHorizontalPolicy()};
}

SizePolicy PolicyOf(const BaseImplMFC& impl, const FormReader& form) {
  const std::wstring* horizontal = form.Find(PropertyId::HSizeType);
  const std::wstring* vertical = form.Find(PropertyId::VSizeType);
  if (!horizontal || !vertical || !form.Find(PropertyId::HorStretch) ||
      !form.Find(PropertyId::VerStretch))
    return form.IsVertical() ? Turned(impl.DefaultPolicy()) : impl.DefaultPolicy();
  SizePolicy policy(WexaUtils::PropertyToSizePolicy(*horizontal),
                    WexaUtils::PropertyToSizePolicy(*vertical));
  policy.SetHorizontalStretch(form.Integer(PropertyId::HorStretch, 0));
  policy.SetVerticalStretch(form.Integer(PropertyId::VerStretch, 0));
  return policy;
}

}  // namespace

void ApplySizeLimits(BaseGUIObject& widget, const FormReader& form) {
  BaseImplMFC& impl = *ImplOf(&widget);
  LayoutLinks& links = impl.Links();
  Size least = impl.MinimumSize();
  Size most = impl.MaximumSize();
  auto read = [&](PropertyId id, bool& isExplicit, auto set) {
    if (!form.Find(id)) return;
    set(Scale(form.Integer(id, 0)));
    isExplicit = true;
  };
  read(PropertyId::MinWidth, links.explicitMinimum.width, [&](int v) { least.SetWidth(v); });
  read(PropertyId::MinHeight, links.explicitMinimum.height, [&](int v) { least.SetHeight(v); });
  read(PropertyId::MaxWidth, links.explicitMaximum.width, [&](int v) { most.SetWidth(v); });
  read(PropertyId::MaxHeight, links.explicitMaximum.height, [&](int v) { most.SetHeight(v); });
  impl.SetMinimumSize(least);
  impl.SetMaximumSize(most);
}

void ApplyWidgetSettings(BaseGUIObject& widget, const FormReader& form) {
  BaseImplMFC& impl = *ImplOf(&widget);
  CreationRecord& record = impl.Creation();
  record.text = form.Text(PropertyId::Text);
  if (record.text.empty()) record.text = form.Node().titleAttribute;
  record.title = form.Text(PropertyId::Title);
  record.enabled = form.Flag(L"enabled", true);
  impl.SetFont(form.Node().font);
  record.rect = RectOf(form);
  record.controlId = NextControlId();
  if (!form.Flag(L"visible", true)) record.style &= ~WS_VISIBLE;
  ApplyStyle(record, form);
  ApplySizeLimits(widget, form);
  widget.SetSizePolicy(PolicyOf(impl, form));
  impl.ReadForm(form);
}

}  // namespace Wexa
