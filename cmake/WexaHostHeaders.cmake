# A host writes <wexa/Dialog.h> and <wexa/platform/Window.h>. The package installs the headers in that
# shape; the build tree shows it with links.

set(WEXA_HOST_INCLUDE_DIR ${PROJECT_BINARY_DIR}/host-include)

file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)
file(MAKE_DIRECTORY ${WEXA_HOST_INCLUDE_DIR}/wexa)
foreach(header IN LISTS headers)
  get_filename_component(name ${header} NAME)
  file(CREATE_LINK ${header} ${WEXA_HOST_INCLUDE_DIR}/wexa/${name} SYMBOLIC)
endforeach()
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/platform/include/platform
  ${WEXA_HOST_INCLUDE_DIR}/wexa/platform SYMBOLIC)
