#include "BaseGUIObject.h"

#include <cmath>

#include "MFC/BaseImpl.h"
#include "WexaUtils.h"

namespace Wexa {

namespace {

const std::shared_ptr<const BaseGUIObject::EventHandler>& NoProcedure() {
  static const auto& none =
      *new std::shared_ptr<const BaseGUIObject::EventHandler>(new BaseGUIObject::EventHandler);
  return none;
}

Size Scaled(const Size& size) {
  double scale = WexaUtils::GetScaleFactor();
  return {static_cast<int>(std::lround(size.Width() * scale)),
          static_cast<int>(std::lround(size.Height() * scale))};
}

int ToPixels(int units) {
  return static_cast<int>(units * WexaUtils::GetScaleFactor());
}
int ToUnits(int pixels) {
  return static_cast<int>(pixels / WexaUtils::GetScaleFactor());
}

}  // namespace

BaseGUIObject::BaseGUIObject() : BaseGUIObject(GuiType::None) {}

BaseGUIObject::BaseGUIObject(GuiType type)
    : WexaObject(nullptr), guiType_(type), eventProcedure_(NoProcedure()) {}

BaseGUIObject::~BaseGUIObject() = default;

void BaseGUIObject::ReleaseImpl() {
  const auto impl = GetBaseImpl();
  if (!impl) return;
  impl->Links().released = true;
  impl->Release();
}

void BaseGUIObject::SetEventProcedure(const EventHandler& procedure) {
  eventProcedure_ = procedure ? std::make_shared<const EventHandler>(procedure) : NoProcedure();
}

Size BaseGUIObject::IdealSize() {
  return GetBaseImpl()->IdealSize();
}
Size BaseGUIObject::MinimumIdealSize() {
  return GetBaseImpl()->MinimumIdealSize();
}
Size BaseGUIObject::MinimumSize() {
  return GetBaseImpl()->MinimumSize();
}
Size BaseGUIObject::MaximumSize() {
  return GetBaseImpl()->MaximumSize();
}
void BaseGUIObject::Show(bool show, bool updateLayout) {
  GetBaseImpl()->Show(show, updateLayout);
}
bool BaseGUIObject::IsVisible() {
  return GetBaseImpl()->IsVisible();
}
void BaseGUIObject::Enable(bool enable, bool remember) {
  GetBaseImpl()->Enable(enable, remember);
}
bool BaseGUIObject::IsEnabled() {
  return GetBaseImpl()->IsEnabled();
}

void BaseGUIObject::MoveWindow(int x, int y, int width, int height, bool repaint) {
  GetBaseImpl()->MoveWindow(x, y, width, height, repaint);
}

void BaseGUIObject::MoveWindowUnscaled(int x, int y, int width, int height, bool repaint) {
  GetBaseImpl()->MoveWindow(ToPixels(x), ToPixels(y), ToPixels(width), ToPixels(height), repaint);
}

void BaseGUIObject::Update(const Region& region) {
  GetBaseImpl()->Update(region);
}
void BaseGUIObject::Update() {
  GetBaseImpl()->Update();
}
void BaseGUIObject::Repaint(const Region& region) {
  GetBaseImpl()->Repaint(region);
}
void BaseGUIObject::Repaint() {
  GetBaseImpl()->Repaint();
}
int BaseGUIObject::GetLogicalPixelsX() {
  return GetBaseImpl()->GetLogicalPixelsX();
}
int BaseGUIObject::GetLogicalPixelsY() {
  return GetBaseImpl()->GetLogicalPixelsY();
}
Rect BaseGUIObject::GetWindowRect() {
  return GetBaseImpl()->GetWindowRect();
}

Rect BaseGUIObject::GetWindowRectUnscaled() {
  Rect rect = GetWindowRect();
  return {ToUnits(rect.Left()), ToUnits(rect.Top()), ToUnits(rect.Width()), ToUnits(rect.Height())};
}

Rect BaseGUIObject::GetClientRect() {
  return GetBaseImpl()->GetClientRect();
}

Point BaseGUIObject::ScreenToClient(Point point) {
  return GetBaseImpl()->ScreenToClient(point.x, point.y);
}

Point BaseGUIObject::ClientToScreen(Point point) {
  return GetBaseImpl()->ClientToScreen(point.x, point.y);
}

HWND BaseGUIObject::GetParentWindow() {
  return parentWindow_;
}
void BaseGUIObject::SetParentWindow(HWND parent) {
  parentWindow_ = parent;
}
void BaseGUIObject::SetTopLevelDlg(CWnd* dialog) {
  topLevelDlg_ = dialog;
}
CWnd* BaseGUIObject::GetTopLevelDlg() {
  return topLevelDlg_;
}

unsigned BaseGUIObject::SetTimer(unsigned id, unsigned milliseconds) {
  return GetBaseImpl()->SetTimer(id, milliseconds);
}

void BaseGUIObject::KillTimer(unsigned id) {
  GetBaseImpl()->KillTimer(id);
}
SizePolicy BaseGUIObject::GetSizePolicy() const {
  return GetBaseImpl()->GetSizePolicy();
}
void BaseGUIObject::SetSizePolicy(const SizePolicy& policy) {
  GetBaseImpl()->SetSizePolicy(policy);
}
SkinManager& BaseGUIObject::GetSkinManager() {
  return GetBaseImpl()->GetSkinManager();
}
bool BaseGUIObject::SetSkinMode(SkinMode mode, bool repaint) {
  return GetBaseImpl()->SetSkinMode(mode, repaint);
}

void BaseGUIObject::SetMinimumSize(const Size& size) {
  GetBaseImpl()->SetMinimumSize(Scaled(size));
}
void BaseGUIObject::SetMaximumSize(const Size& size) {
  GetBaseImpl()->SetMaximumSize(Scaled(size));
}
int BaseGUIObject::GetFrarmeWidth() {
  return GetBaseImpl()->GetFrameWidth();
}
void BaseGUIObject::SetAcceptDrops(bool accept) {
  GetBaseImpl()->SetAcceptDrops(accept);
}
bool BaseGUIObject::IsAcceptDrops() {
  return GetBaseImpl()->IsAcceptDrops();
}
void BaseGUIObject::SetTrackMouseEvent() {
  GetBaseImpl()->SetTrackMouseEvent();
}

CWnd* BaseGUIObject::GetPlatformWindow() const {
  auto impl = GetBaseImpl();
  return impl ? impl->GetCWnd() : nullptr;
}

HWND BaseGUIObject::GetPlatformHandle() const {
  auto impl = GetBaseImpl();
  return impl ? impl->GetHandle() : nullptr;
}

int BaseGUIObject::GetWidthForText(std::wstring& text, FontData* font) {
  return GetBaseImpl()->GetTextWidth(text, font);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& text, BalloonTipIconType icon,
                                     bool closesOnInput, bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(text, icon, closesOnInput, closesInTime);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                     BalloonTipIconType icon, bool closesOnInput,
                                     bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(title, text, icon, closesOnInput, closesInTime);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                     bool closesOnInput, bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(title, text, closesOnInput, closesInTime);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                     const std::wstring& iconPath, bool closesOnInput,
                                     bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(title, text, iconPath, closesOnInput, closesInTime);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& text, const unsigned char* icon, int size,
                                     bool closesOnInput, bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(text, icon, size, closesOnInput, closesInTime);
}

bool BaseGUIObject::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                     const unsigned char* icon, int size, bool closesOnInput,
                                     bool closesInTime) {
  return GetBaseImpl()->ShowBalloonTipEx(title, text, icon, size, closesOnInput, closesInTime);
}

bool BaseGUIObject::HideBalloonTipEx() {
  return GetBaseImpl()->HideBalloonTip();
}
bool BaseGUIObject::IsBalloonTipDisplayed() {
  return GetBaseImpl()->IsBalloonTipDisplayed();
}

}  // namespace Wexa
