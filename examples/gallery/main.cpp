// A gallery: the widgets in their states, and the skins to see them in.
//
//   gallery                                  shows it
//   gallery --pictures PREFIX [dark] [rtl]   writes a picture of each page

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

#include "Gallery.h"

namespace {

using Arguments = std::vector<std::string_view>;

bool Has(const Arguments& arguments, std::string_view word) {
  return std::ranges::find(arguments, word) != arguments.end();
}

void SetLook(const Arguments& arguments) {
  Wexa::SetWorkingDirPath(L"./");  // where its pictures are
  Wexa::SetLayoutRTL(Has(arguments, "rtl"));
  if (Has(arguments, "dark")) Wexa::SetGlobalSkinMode(Wexa::SkinMode::Dark);
}

void Show() {
  Gallery gallery;
  gallery.Run();
  std::printf("The push button was clicked %d times.\n", gallery.Clicks());
}

}  // namespace

int main(int argc, char** argv) try {
  std::setlocale(LC_ALL, "");
  const Arguments arguments(argv + 1, argv + argc);
  SetLook(arguments);
  const bool makesPictures = arguments.size() > 1 && arguments[0] == "--pictures";
  makesPictures ? Gallery().SavePictures(argv[2]) : Show();
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "gallery: %s\n", error.what());
  return 1;
}
