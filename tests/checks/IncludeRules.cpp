#include "checks/IncludeRules.h"

#include <algorithm>
#include <array>
#include <utility>

#include "checks/ProjectFiles.h"

namespace checks {

namespace {

// The house from the ground up: a floor uses itself and those below it.
enum class Floor { Graphics, Display, Window, Controls, Classes, Engine, Widgets };

struct Place {
  std::string_view path;  // a folder's or a file's
  Floor floor;
};

// The first that fits counts. Headers of the layer that only hold names and numbers are at the
// bottom.
constexpr std::array kPlaces = {
    Place{"platform/include/platform/Window.h", Floor::Window},
    Place{"platform/include/platform/DialogManager.h", Floor::Controls},
    Place{"platform/include/platform/Picture.h", Floor::Window},
    Place{"platform/include/platform/Classes.h", Floor::Classes},
    Place{"platform/include/", Floor::Graphics},
    Place{"platform/src/graphics/", Floor::Graphics},
    Place{"platform/src/display/", Floor::Display},
    Place{"platform/src/window/", Floor::Window},
    Place{"platform/src/controls/", Floor::Controls},
    Place{"platform/src/classes/", Floor::Classes},
    Place{"include/MFC/BaseImpl.h", Floor::Engine},
    Place{"include/MFC/", Floor::Widgets},
    Place{"include/", Floor::Engine},
    Place{"src/MFC/", Floor::Widgets},
    Place{"src/", Floor::Engine},
};

// What the engines and the public headers may use of the layer: values, and no windows.
constexpr std::array<std::string_view, 10> kWindowless = {
    "Types.h",        "Geometry.h",       "Region.h",       "Font.h",        "FontFamilies.h",
    "SystemColors.h", "WindowMessages.h", "WindowStyles.h", "VirtualKeys.h", "Bitmap.h"};

// Libraries' headers, and the one folder that may see them.
struct LibraryHome {
  std::string_view prefix;
  std::string_view folder;
};
constexpr std::array kLibraryHomes = {
    LibraryHome{"xcb/", "platform/src/display/x11/"},
    LibraryHome{"X11/", "platform/src/display/x11/"},
    LibraryHome{"xkbcommon/", "platform/src/display/x11/"},
    LibraryHome{"cairo", "platform/src/graphics/"},
    LibraryHome{"pango/", "platform/src/graphics/"},
    LibraryHome{"fontconfig/", "platform/src/graphics/"},
    LibraryHome{"pixman", "platform/src/graphics/"},
    LibraryHome{"gdk-pixbuf/", "platform/src/graphics/"},
};

std::optional<Floor> FloorOf(std::string_view path) {
  const auto place = std::ranges::find_if(
      kPlaces, [path](const Place& candidate) { return path.starts_with(candidate.path); });
  if (place == kPlaces.end()) return std::nullopt;
  return place->floor;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

bool IsPublicHeader(std::string_view path) {
  return path.starts_with("include/") && !path.starts_with("include/MFC/");
}

bool UsesWindowsOfTheLayer(const Include& include) {
  constexpr std::string_view kLayer = "platform/include/platform/";
  if (!include.target.starts_with(kLayer)) return false;
  return std::ranges::find(kWindowless, include.target.substr(kLayer.size())) == kWindowless.end();
}

bool NamesConcreteDisplay(const Include& include) {
  const std::string folder = FolderOf(include.target);
  return folder.starts_with("platform/src/display/") && folder != "platform/src/display/" &&
         include.from != "platform/src/display/DisplayFactory.cpp" &&
         FolderOf(include.from) != folder;
}

std::optional<std::string> BrokenLibraryRule(const Include& include) {
  for (const LibraryHome& home : kLibraryHomes) {
    if (include.target.starts_with(home.prefix) && !include.from.starts_with(home.folder)) {
      return "this library is used in " + std::string(home.folder) + " only";
    }
  }
  return std::nullopt;
}

std::string Resolve(const std::string& from, const std::string& name) {
  for (const std::string& folder :
       {FolderOf(from), std::string("platform/include/"), std::string("platform/src/"),
        std::string("include/"), std::string("src/")}) {
    if (IsFile(folder + name)) return folder + name;
  }
  return {};
}

std::optional<Include> Parse(const std::string& path, const std::string& line) {
  constexpr std::string_view kDirective = "#include ";
  if (!line.starts_with(kDirective)) return std::nullopt;
  const std::size_t open = kDirective.size();
  const bool isLibrary = line[open] == '<';
  const std::size_t close = line.find(isLibrary ? '>' : '"', open + 1);
  const std::string name = line.substr(open + 1, close - open - 1);
  return Include{path, 0, isLibrary ? name : Resolve(path, name), isLibrary};
}

}  // namespace

std::vector<Include> IncludesOf(const std::string& path) {
  std::vector<Include> includes;
  int number = 0;
  for (const std::string& line : LinesOf(path)) {
    ++number;
    auto include = Parse(path, line);
    if (!include || include->target.empty()) continue;
    include->line = number;
    includes.push_back(std::move(*include));
  }
  return includes;
}

std::optional<std::string> BrokenRule(const Include& include) {
  if (include.isLibrary) return BrokenLibraryRule(include);
  const auto from = FloorOf(include.from);
  const auto to = FloorOf(include.target);
  if (!from || !to) return std::nullopt;
  if (*to > *from) return "includes point downwards only";
  if (NamesConcreteDisplay(include)) return "only the display factory names a display";
  if (*from >= Floor::Engine && include.target.starts_with("platform/src/")) {
    return "the library knows the layer by platform/include only";
  }
  if (*from == Floor::Engine && UsesWindowsOfTheLayer(include)) {
    return "engines and public headers know no window";
  }
  if (IsPublicHeader(include.from) && include.target.starts_with("src/")) {
    return "public headers show nothing of src";
  }
  return std::nullopt;
}

}  // namespace checks
