find_package(PkgConfig REQUIRED)
pkg_check_modules(GRAPHICS REQUIRED IMPORTED_TARGET
  pangocairo pangoft2 cairo fontconfig pixman-1 gdk-pixbuf-2.0)
pkg_check_modules(X11 REQUIRED IMPORTED_TARGET
  xcb xcb-shm xcb-icccm xcb-cursor xcb-render xcb-randr xcb-xrm xcb-xkb xkbcommon xkbcommon-x11
  glib-2.0)
find_path(RAPIDXML_INCLUDE_DIR rapidxml/rapidxml.hpp REQUIRED)
find_package(utf8cpp REQUIRED)
if(WEXA_BUILD_TESTS)
  find_package(GTest REQUIRED)
endif()
if(WEXA_BUILD_BENCHMARKS)
  find_package(benchmark REQUIRED)
endif()
find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
