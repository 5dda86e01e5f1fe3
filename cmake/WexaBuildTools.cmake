# Quick builds where the tools for it are installed: ccache for compiling, gold for linking.

find_program(WEXA_CCACHE ccache)
if(WEXA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Results with precompiled headers are kept only when ccache may trust their defines and times.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${WEXA_CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold WEXA_HAS_GOLD)
if(WEXA_HAS_GOLD)
  add_link_options(-fuse-ld=gold)
endif()
