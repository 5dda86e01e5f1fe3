#include "support/FormTest.h"

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "MFC/DialogImplMFC.h"

namespace Wexa {

std::string WidgetXml(const std::string& className, const std::string& name,
                      const std::string& inner) {
  return "<widget class=\"" + className + "\" name=\"" + name + "\">" + inner + "</widget>";
}

std::string PropertyXml(const std::string& name, const std::string& kind,
                        const std::string& value) {
  return "<property name=\"" + name + "\"><" + kind + ">" + value + "</" + kind + "></property>";
}

std::string ItemXml(const std::string& inner, const std::string& attributes) {
  return "<item " + attributes + ">" + inner + "</item>";
}

std::string FormXml(const std::string& rootContent, int width, int height) {
  return "<ui version=\"4.0\"><widget class=\"QDialog\" name=\"root\">"
         "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>" +
         std::to_string(width) + "</width><height>" + std::to_string(height) +
         "</height></rect></property>" + rootContent + "</widget></ui>";
}

std::string ColumnForm(const std::string& items, int width, int height) {
  return FormXml("<layout class=\"QVBoxLayout\" name=\"column\">" + items + "</layout>", width,
                 height);
}

void FormTest::TearDown() {
  dialog_.reset();
  Robot::PumpAll();
  for (const std::string& file : files_) std::remove(file.c_str());
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
