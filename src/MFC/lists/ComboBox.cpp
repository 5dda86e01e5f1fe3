#include "ComboBox.h"

#include <algorithm>

#include "MFC/FieldImpl.h"
#include "WexaConfig.h"
#include "form/FormReader.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kMinimumContentWidth = 40;
constexpr int kMostContents = 1000;

}  // namespace

class ComboBox::impl : public LineFieldImpl {
 public:
  using LineFieldImpl::LineFieldImpl;

  std::vector<std::wstring> items;
  // Choices are never cut off: the field does not shrink below its widest one.
  Size MinimumIdealSize() override { return IdealSize(); }
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Preferred, SizePolicy::Fixed}; }

  void ReadForm(const FormReader& form) override {
    SetItems(form.Node().itemTexts);
    current = form.Clamped(PropertyId::CurrentIndex, current);
    SetMinimumContentsLength(form.Clamped(PropertyId::MinimumContentsLength, 0));
  }

  void SetItems(std::vector<std::wstring> texts) {
    items = std::move(texts);
    if (current < 0 && !items.empty()) current = 0;
    InvalidateLayout();
    if (GetHandle()) Repaint();
  }

  void SetMinimumContentsLength(int characters) {
    minimumContentsLength = std::clamp(characters, 0, kMostContents);
    InvalidateLayout();
  }

  int current = -1;
  int minimumContentsLength = 0;

 protected:
  std::wstring ShownText() override {
    bool valid = current >= 0 && current < static_cast<int>(items.size());
    return valid ? items[static_cast<std::size_t>(current)] : Text();
  }

  int ContentWidth() override {
    int width = GetFontMetrics(Font()).averageWidth * minimumContentsLength;
    for (const std::wstring& item : items)
      width = std::max(width, static_cast<int>(GetTextExtent(Font(), item).cx));
    return std::max(width, Scale(kMinimumContentWidth));
  }

  int CornerRadius() const override { return GetComboboxRadius(); }

  void PaintEnd(Painter& painter, const CRect& end, const ControlPalette& palette) override {
    Theme::DrawDropDownArrow(painter, end, Shown().State(), palette);
  }
};

ComboBox::ComboBox() : BaseGUIObject(GuiType::ComboBox), impl_(std::make_shared<impl>(this)) {}
ComboBox::~ComboBox() {
  ReleaseImpl();
}

bool ComboBox::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ComboBox::GetBaseImpl() const {
  return impl_;
}
Size ComboBox::IdealSize() {
  return impl_->IdealSize();
}
ComboBox::ComboBox(GuiType type) : BaseGUIObject(type), impl_(std::make_shared<impl>(this)) {}

void ComboBox::SetItems(std::vector<std::wstring> items) {
  impl_->SetItems(std::move(items));
}
void ComboBox::SetCurrentIndex(int index) {
  impl_->current = index;
  if (GetPlatformHandle()) Repaint();
}
int ComboBox::GetCurrentIndex() const {
  return impl_->current;
}
void ComboBox::SetMinimumContentsLength(int characters) {
  impl_->SetMinimumContentsLength(characters);
}

}  // namespace Wexa
