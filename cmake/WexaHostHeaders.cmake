# A host writes <wexa/Dialog.h> and <wexa/platform/Window.h>. The package installs the headers in that
# shape; the build tree shows it with links.

set(WEXA_HOST_INCLUDE_DIR ${PROJECT_BINARY_DIR}/host-include)

set(folder ${PROJECT_SOURCE_DIR}/include)
file(GLOB headers RELATIVE ${folder} CONFIGURE_DEPENDS ${folder}/*.h ${folder}/testing/*.h)
file(MAKE_DIRECTORY ${WEXA_HOST_INCLUDE_DIR}/wexa/testing)
foreach(name IN LISTS headers)
  file(CREATE_LINK ${folder}/${name} ${WEXA_HOST_INCLUDE_DIR}/wexa/${name} SYMBOLIC)
endforeach()
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/platform/include/platform
  ${WEXA_HOST_INCLUDE_DIR}/wexa/platform SYMBOLIC)
