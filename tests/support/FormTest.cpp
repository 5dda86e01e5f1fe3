#include "support/FormTest.h"

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "MFC/DialogImplMFC.h"

namespace Wexa {

void FormTest::TearDown() {
  dialog_.reset();
  Robot::PumpAll();
  for (const std::string& file : files_) std::remove(file.c_str());
}

void FormTest::UseResolution(int dpi) {
  dialog_.reset();
  Robot::PumpAll();
  display::SetCurrent(std::make_unique<display::OffscreenDisplay>(dpi));
}

std::wstring FormTest::FileOf(const std::string& form) {
  static int count = 0;
  std::string name = "wexa-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".ui";
  std::string path = (std::filesystem::temp_directory_path() / name).string();
  std::ofstream(path, std::ios::binary) << form;
  files_.push_back(path);
  return std::wstring(path.begin(), path.end());
}

std::unique_ptr<Dialog> FormTest::Make(const std::string& form, unsigned long style) {
  return std::make_unique<Dialog>(FileOf(form), nullptr, style, 1.0);
}

Dialog& FormTest::Open(const std::string& form, unsigned long style) {
  dialog_ = Make(form, style);
  return Show();
}

Dialog& FormTest::OpenFile(const std::wstring& file) {
  dialog_.reset();
  dialog_ = std::make_unique<Dialog>(file, nullptr, 0, 1.0);
  return Show();
}

Dialog& FormTest::Show() {
  dialog_->DoModeless(true);
  Robot::PumpAll();
  return *dialog_;
}

Rect FormTest::PlaceOf(const wchar_t* name) {
  Rect place = Find<BaseGUIObject>(name).GetWindowRect();
  Point corner = dialog_->ScreenToClient(Point(place.Left(), place.Top()));
  return {corner.x, corner.y, place.Width(), place.Height()};
}

}  // namespace Wexa
