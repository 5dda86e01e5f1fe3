// The balloon tips of widgets.

#include "BaseGUIObject.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/tips/BalloonTip.h"
#include "WexaUtils.h"
#include "platform/Bitmap.h"

namespace Wexa {

namespace {

constexpr int kPictureSide = 32;
constexpr UINT kBalloonMilliseconds = 10000;

std::shared_ptr<HBITMAP__> PictureOf(const unsigned char* data, int size,
                                     WexaUtils::ImageTypes type) {
  HBITMAP bitmap = WexaUtils::GetBitmap(data, size, type, Scale(kPictureSide));
  return {bitmap, [](HBITMAP made) { DeleteBitmap(made); }};
}

std::shared_ptr<HBITMAP__> PictureOfFile(const std::wstring& path) {
  int size = 0;
  std::unique_ptr<unsigned char[]> data(WexaUtils::LoadImageBuffer(path, &size));
  const auto dot = path.rfind(L'.');
  if (!data || dot == std::wstring::npos) return nullptr;
  return PictureOf(data.get(), size, WexaUtils::WstrToImageType(path.substr(dot)));
}

// Of bytes whose kind nobody told: icons say so at their start.
std::shared_ptr<HBITMAP__> PictureOfBytes(const unsigned char* data, int size) {
  if (!data || size < 4) return nullptr;
  const bool isIcon = data[0] == 0 && data[1] == 0 && data[2] == 1 && data[3] == 0;
  return PictureOf(data, size, isIcon ? WexaUtils::ICO : WexaUtils::PNG);
}

}  // namespace

bool BaseImplMFC::ShowBalloon(const TipContent& content, bool closesOnInput, bool closesInTime) {
  if (!owner_) return false;
  if (!balloonTip_) balloonTip_ = std::make_shared<BalloonTip>();
  return balloonTip_->Show(*owner_, content,
                           {closesOnInput, closesInTime ? kBalloonMilliseconds : 0});
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& text, BalloonTipIconType icon,
                                   bool closesOnInput, bool closesInTime) {
  return ShowBalloon({L"", text, icon}, closesOnInput, closesInTime);
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                   BalloonTipIconType icon, bool closesOnInput, bool closesInTime) {
  return ShowBalloon({title, text, icon}, closesOnInput, closesInTime);
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                   bool closesOnInput, bool closesInTime) {
  return ShowBalloon({title, text}, closesOnInput, closesInTime);
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                   const std::wstring& iconPath, bool closesOnInput,
                                   bool closesInTime) {
  return ShowBalloon({title, text, {}, PictureOfFile(iconPath)}, closesOnInput, closesInTime);
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& text, const unsigned char* icon, int size,
                                   bool closesOnInput, bool closesInTime) {
  return ShowBalloon({L"", text, {}, PictureOfBytes(icon, size)}, closesOnInput, closesInTime);
}

bool BaseImplMFC::ShowBalloonTipEx(const std::wstring& title, const std::wstring& text,
                                   const unsigned char* icon, int size, bool closesOnInput,
                                   bool closesInTime) {
  return ShowBalloon({title, text, {}, PictureOfBytes(icon, size)}, closesOnInput, closesInTime);
}

bool BaseImplMFC::HideBalloonTip() {
  if (!balloonTip_) return false;
  balloonTip_->Close();
  return true;
}

bool BaseImplMFC::IsBalloonTipDisplayed() {
  return balloonTip_ && balloonTip_->IsShown();
}

}  // namespace Wexa
