#include "RadioButton.h"

#include <algorithm>
#include <utility>

#include "MFC/RadioButtonImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/SelfDrawn.h"

namespace Wexa {

RadioButton::RadioButton()
    : BaseGUIObject(GuiType::RadioButton), impl_(std::make_shared<impl>(this)) {}
RadioButton::~RadioButton() {
  ReleaseImpl();
}

bool RadioButton::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> RadioButton::GetBaseImpl() const {
  return impl_;
}
Size RadioButton::IdealSize() {
  return impl_->IdealSize();
}
void RadioButton::SetCheck() {
  impl_->SetCheck();
}
bool RadioButton::Checked() {
  return impl_->IsChecked();
}
void RadioButton::LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                              WexaUtils::ScalePicture scale, int iconSize) {
  impl_->LoadPicture({data, size, type, scale, iconSize});
}
void RadioButton::LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale,
                              int iconSize) {
  const PictureFile file(path);
  LoadPicture(file.bytes.get(), file.size, file.type, scale, iconSize);
}
void RadioButton::SetText(const std::wstring& text) {
  impl_->SetText(text);
}
std::wstring RadioButton::GetText() {
  return impl_->Text();
}
void RadioButton::SetGroupInfo(std::shared_ptr<GroupInfo> group) {
  impl_->SetGroup(group, impl_);
}
std::shared_ptr<GroupInfo> RadioButton::GetGroupInfo() {
  return impl_->Group();
}

// -- Implementation

namespace {

int MarkWidth() {
  return Theme::CheckSize() + Theme::CheckGap();
}

CRect MarkRect(const CRect& client) {
  int side = Theme::CheckSize();
  int top = client.top + (client.Height() - side) / 2;
  return {client.left, top, client.left + side, top + side};
}

CSize CaptionSize(HFONT font, const std::wstring& text) {
  return GetTextExtent(font, text, INT32_MAX, DT_SINGLELINE);
}

}  // namespace

RadioButton::impl::impl(RadioButton* owner) : BaseImplMFC(owner), window_(*this) {
  Creation().style |= WS_TABSTOP | BS_AUTORADIOBUTTON;
}

bool RadioButton::impl::CreateNative(CWnd* parent) {
  if (!window_.Create(Creation().text, Creation().style, ScaledRect(), parent,
                      Creation().controlId))
    return false;
  if (keptCheck_) window_.SetCheck(BST_CHECKED);
  return true;
}

void RadioButton::impl::ReadForm(const FormReader& form) {
  groupName_ = form.Node().buttonGroup;
  keptCheck_ = form.Flag(L"checked", false);
}

Size RadioButton::impl::IdealSize() {
  Size plain = CheckSizeFor(Font(), Text());
  if (!pictures_.normal) return plain;
  CSize content = ContentSize(pictures_.Size(), CaptionSize(Font(), Text()));
  return {MarkWidth() + content.cx, std::max<int>(plain.Height(), content.cy)};
}

void RadioButton::impl::FillPalette(ControlPalette& palette) {
  FillCheckPalette(palette, GetSkinManager());
}

void RadioButton::impl::KeepState() {
  BaseImplMFC::KeepState();
  keptCheck_ = IsChecked();
}

// -- Group

void RadioButton::impl::SetGroup(const std::shared_ptr<GroupInfo>& group,
                                 const std::shared_ptr<BaseImpl>& self) {
  const auto isThis = [&](const std::weak_ptr<BaseImpl>& member) {
    return member.expired() || member.lock() == self;
  };
  if (group_) std::erase_if(group_->members, isThis);
  group_ = group;
  if (group_) group_->members.push_back(self);
}

// A copied record still names those of the first.
std::vector<RadioButton::impl*> RadioButton::impl::Members() const {
  std::vector<impl*> members;
  if (!group_) return members;
  for (const auto& link : group_->members) {
    auto* member = static_cast<impl*>(link.lock().get());
    if (member && member->group_ == group_) members.push_back(member);
  }
  return members;
}

unsigned RadioButton::impl::ControlId() {
  return GetHandle() ? static_cast<unsigned>(window_.GetDlgCtrlID()) : Creation().controlId;
}

unsigned RadioButton::impl::CheckedIdOfGroup() {
  unsigned checked = 0;
  for (impl* member : Members())
    if (member->IsChecked()) checked = std::max(checked, member->ControlId());
  return checked;
}

bool RadioButton::impl::IsChecked() {
  return GetHandle() ? window_.GetCheck() == BST_CHECKED : keptCheck_;
}

void RadioButton::impl::PutCheck(bool checked) {
  keptCheck_ = checked;
  if (GetHandle()) window_.SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
}

void RadioButton::impl::CheckAlone() {
  for (impl* member : Members())
    if (member != this) member->PutCheck(false);
  if (GetHandle() && group_->firstId <= group_->lastId)
    CheckRadioButton(window_.GetParent()->GetSafeHwnd(), static_cast<int>(group_->firstId),
                     static_cast<int>(group_->lastId), window_.GetDlgCtrlID());
  PutCheck(true);
}

void RadioButton::impl::SetCheck() {
  if (!group_) return;
  CheckAlone();
  group_->checkedId = ControlId();
}

// -- Pictures

void RadioButton::impl::Rescale(const Rescaling& rescale) {
  pictures_.Rescale(rescale);
  BaseImplMFC::Rescale(rescale);
}

void RadioButton::impl::LoadPicture(const PictureRequest& request) {
  CRect area = GetHandle() ? window_.GetClientRect() : ScaledRect();
  area.left = std::min<int>(area.left + MarkWidth(), area.right);
  UniqueBitmap loaded = LoadPictureInto(area, GetHandle() ? &window_ : nullptr, request);
  if (!loaded) return;
  pictures_.normal = std::move(loaded);
  if (GetHandle()) window_.Invalidate();
  InvalidateLayout();
}

void RadioButton::impl::PaintOwnerDrawn() {
  CPaintDC dc(GetHandle());
  Painter painter(dc);
  const ControlPalette palette = GetControlPalette(GetHandle());
  const ControlState look = GetControlState(GetHandle());
  CRect area = window_.GetClientRect();
  painter.FillRect(area, palette.background);
  Theme::DrawRadioButton(painter, MarkRect(area), look, palette);
  area.left += MarkWidth();
  CSize text = CaptionSize(Font(), Text());
  ContentPlaces places = PlaceContent(area, pictures_.Size(), text, ContentAlignment::Left);
  painter.Picture(pictures_.For(look.enabled), places.picture);
  COLORREF color = look.enabled ? palette.text : palette.disabledText;
  painter.Text(Text(), places.text,
               DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | Theme::PrefixFormat(look), Font(),
               color);
  if (look.focusCue) painter.FocusRect(places.text, palette.text);
}

// -- Input

// The buttons of a group need not follow one another in their parent, nor have the same one, so
// that the native button does not know them. Arrow keys and mnemonics click before they focus: only
// the focused and checked button reports.
void RadioButton::impl::OnClicked() {
  HWND window = GetHandle();
  if (group_ && IsChecked()) CheckAlone();
  if (!Owner() || GetFocus() != window || !IsChecked()) return;
  auto* owner = static_cast<RadioButton*>(Owner());
  owner->Clicked();
  if (!IsWindow(window) || !group_) return;
  const unsigned checked = CheckedIdOfGroup();
  if (std::exchange(group_->checkedId, checked) != checked) owner->GroupChanged();
}

}  // namespace Wexa
