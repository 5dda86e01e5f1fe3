#include "PromptsPopup.h"

#include <algorithm>

#include "BaseGUIObject.h"
#include "MFC/tips/BalloonTip.h"

namespace Wexa {

struct PromptsPopup::impl {
  TipContent content;
  BalloonTip::Manner manner;
  BalloonTip tip;
};

PromptsPopup::PromptsPopup(const std::wstring& text, int width, int milliseconds,
                           bool closesOnInput)
    : impl_(std::make_unique<impl>()) {
  impl_->content.text = text;
  if (width > 0) impl_->content.width = width;
  impl_->manner = {closesOnInput, static_cast<UINT>(std::max(milliseconds, 0))};
}

PromptsPopup::~PromptsPopup() = default;

const std::wstring& PromptsPopup::GetText() const {
  return impl_->content.text;
}

void PromptsPopup::SetText(const std::wstring& text) {
  impl_->content.text = text;
}

bool PromptsPopup::Show(BaseGUIObject& widget) {
  return impl_->tip.Show(widget, impl_->content, impl_->manner);
}

void PromptsPopup::Hide() {
  impl_->tip.Close();
}

bool PromptsPopup::IsShown() const {
  return impl_->tip.IsShown();
}

// -- The popups of widgets

std::shared_ptr<PromptsPopup> BaseGUIObject::InsertPromptsPopup(const std::wstring& text, int width,
                                                                int milliseconds,
                                                                bool closesOnInput) {
  promptsPopup_ = std::make_shared<PromptsPopup>(text, width, milliseconds, closesOnInput);
  return promptsPopup_;
}

void BaseGUIObject::ShowPromptsPopup(const std::shared_ptr<PromptsPopup>& popup, bool show) {
  if (!popup) return;
  if (show) {
    popup->Show(*this);
  } else {
    popup->Hide();
  }
}

}  // namespace Wexa
