# Every header compiles alone, and included twice. Public headers are seen as a host sees them: only
# through <wexa/...>, without the tree's own include folders.

# wexa_headers_alone(name BASE folder PREFIX prefix HEADERS header...): one source for each header, which
# includes it as <prefix/path from base>.
function(wexa_headers_alone name)
  cmake_parse_arguments(ALONE "" "BASE;PREFIX" "HEADERS" ${ARGN})
  set(sources)
  foreach(header IN LISTS ALONE_HEADERS)
    file(RELATIVE_PATH path ${ALONE_BASE} ${header})
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}/${path}.cpp)
    set(line "#include <${ALONE_PREFIX}${path}>\n")
    file(CONFIGURE OUTPUT ${source} CONTENT "${line}${line}")
    list(APPEND sources ${source})
  endforeach()
  if(NOT sources)
    return()
  endif()
  add_library(${name} OBJECT ${sources})
  wexa_strict(${name})
  target_compile_options(${name} PRIVATE -g0)
endfunction()

set(root ${PROJECT_SOURCE_DIR})

file(GLOB headers CONFIGURE_DEPENDS ${root}/include/*.h)
wexa_headers_alone(public_headers_alone BASE ${root}/include PREFIX wexa/ HEADERS ${headers})
file(GLOB headers CONFIGURE_DEPENDS ${root}/platform/include/platform/*.h)
wexa_headers_alone(layer_headers_alone BASE ${root}/platform/include PREFIX wexa/ HEADERS ${headers})
foreach(target public_headers_alone layer_headers_alone)
  target_include_directories(${target} PRIVATE ${WEXA_HOST_INCLUDE_DIR})
endforeach()

file(GLOB_RECURSE layer CONFIGURE_DEPENDS ${root}/platform/src/*.h)
file(GLOB_RECURSE library CONFIGURE_DEPENDS ${root}/src/*.h)
file(GLOB implementations CONFIGURE_DEPENDS ${root}/include/MFC/*.h)
wexa_headers_alone(layer_internals_alone BASE ${root}/platform/src HEADERS ${layer})
wexa_headers_alone(library_internals_alone BASE ${root}/src HEADERS ${library})
wexa_headers_alone(implementation_headers_alone BASE ${root}/include HEADERS ${implementations})
foreach(target layer_internals_alone library_internals_alone implementation_headers_alone)
  if(TARGET ${target})
    target_link_libraries(${target} PRIVATE wexa_headers PkgConfig::GRAPHICS PkgConfig::X11 utf8cpp)
  endif()
endforeach()
