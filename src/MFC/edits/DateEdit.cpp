#include "DateEdit.h"

#include <cwchar>

#include "KvDateTime.h"
#include "MFC/FieldImpl.h"
#include "form/FormReader.h"
#include "platform/Theme.h"

namespace Wexa {

class DateEdit::impl : public LineFieldImpl {
 public:
  using LineFieldImpl::LineFieldImpl;

  // Forms state "year-month-day".
  void ReadForm(const FormReader& form) override {
    KvDateTime stated = date;
    const int parts = std::swscanf(form.Text(L"date").c_str(), L"%hu-%hu-%hu", &stated.year,
                                   &stated.month, &stated.day);
    if (parts == 3) date = stated;
  }

  KvDateTime date{2000, 1, 1, 0, 0, 0};

 protected:
  std::wstring ShownText() override {
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"%04u-%02u-%02u", date.year, date.month, date.day);
    return text;
  }
  int ContentWidth() override { return GetTextExtent(Font(), L"0000-00-00").cx; }
  void PaintEnd(Painter& painter, const CRect& end, const ControlPalette& palette) override {
    Theme::DrawSpinArrows(painter, end, Shown().State(), palette);
  }
};

DateEdit::DateEdit() : BaseGUIObject(GuiType::DateEdit), impl_(std::make_shared<impl>(this)) {}
DateEdit::~DateEdit() {
  ReleaseImpl();
}

bool DateEdit::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> DateEdit::GetBaseImpl() const {
  return impl_;
}
Size DateEdit::IdealSize() {
  return impl_->IdealSize();
}
void DateEdit::SetDate(const KvDateTime& date) {
  impl_->date = date;
  if (GetPlatformHandle()) Repaint();
}
KvDateTime DateEdit::GetDate() const {
  return impl_->date;
}

}  // namespace Wexa
