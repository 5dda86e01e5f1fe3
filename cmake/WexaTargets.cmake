# Compiler settings of all targets, and the rooms the library is made of.

function(wexa_strict target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
  if(WEXA_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

add_library(wexa_headers INTERFACE)
target_include_directories(wexa_headers INTERFACE
  ${PROJECT_SOURCE_DIR}/platform/include ${PROJECT_SOURCE_DIR}/platform/src
  ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
set(WEXA_STANDARD_HEADERS
  <algorithm> <array> <atomic> <bit> <chrono> <cmath> <cstdint> <cstdlib> <cstring> <deque> <exception>
  <filesystem> <fstream> <functional> <iterator> <limits> <list> <map> <memory> <mutex> <numeric>
  <optional> <set> <span> <sstream> <stdexcept> <string> <string_view> <unordered_map> <utility> <vector>)

# wexa_precompiled(name header...): a precompiled header that wexa_quick shares among targets.
function(wexa_precompiled name)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/${name}.cpp)
  wexa_strict(${name})
  target_link_libraries(${name} PRIVATE wexa_headers)
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

wexa_precompiled(wexa_standard_headers ${WEXA_STANDARD_HEADERS})
if(WEXA_BUILD_TESTS)
  wexa_precompiled(wexa_test_headers <gmock/gmock.h> <gtest/gtest.h> ${WEXA_STANDARD_HEADERS})
  target_link_libraries(wexa_test_headers PRIVATE GTest::gmock)
endif()

# wexa_sources(list folder...): the sources of some folders; those of one folder are compiled together,
# eight at a time.
function(wexa_sources list)
  set(sources)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS ${folder}/*.cpp)
    string(MAKE_C_IDENTIFIER "${folder}" group)
    set(count 0)
    foreach(source IN LISTS found)
      math(EXPR batch "${count} / 8")
      math(EXPR count "${count} + 1")
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group}_${batch})
    endforeach()
    list(APPEND sources ${found})
  endforeach()
  set(${list} ${sources} PARENT_SCOPE)
endfunction()

# wexa_quick(target precompiled): compiles a target's sources together, on top of a precompiled header.
function(wexa_quick target precompiled)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${WEXA_UNITY_BUILD} UNITY_BUILD_MODE GROUP)
  if(WEXA_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # An implementation's hidden members look to it as if they stood in a header.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
  target_precompile_headers(${target} REUSE_FROM ${precompiled})
endfunction()

# wexa_room(name FOLDERS folder... LINKS target... APART): the sources of some folders as one object
# library, which is part of libwexa.so unless it stands apart.
function(wexa_room name)
  cmake_parse_arguments(ROOM "APART" "" "LINKS;FOLDERS" ${ARGN})
  wexa_sources(sources ${ROOM_FOLDERS})
  if(NOT sources)
    return()
  endif()
  add_library(${name} OBJECT ${sources})
  wexa_strict(${name})
  target_compile_definitions(${name} PRIVATE WEXA_BUILDING)
  target_link_libraries(${name} PUBLIC wexa_headers ${ROOM_LINKS})
  wexa_quick(${name} wexa_standard_headers)
  if(NOT ROOM_APART)
    set_property(GLOBAL APPEND PROPERTY WEXA_ROOMS ${name})
  endif()
endfunction()

# The test programs that run under the thread sanitizer: those with the label "threads".
add_custom_target(thread_tests)

# wexa_test(name FOLDERS folder... ROOMS room... LABELS label...): one test program of the sources in
# some folders, linked to the rooms themselves, so that it sees what the shared library hides.
# LAUNCHER is a program that runs it, if not the test driver itself.
function(wexa_test name)
  cmake_parse_arguments(TEST "" "LAUNCHER" "ROOMS;FOLDERS;LABELS" ${ARGN})
  wexa_sources(sources ${TEST_FOLDERS})
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  wexa_strict(${name})
  target_compile_definitions(${name} PRIVATE WEXA_BUILDING)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${TEST_ROOMS} test_data GTest::gmock GTest::gtest_main)
  wexa_quick(${name} wexa_test_headers)
  add_test(NAME ${name} COMMAND ${TEST_LAUNCHER} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "WEXA_DISPLAY=offscreen;WEXA_DPI=96;FONTCONFIG_FILE=${PROJECT_SOURCE_DIR}/tests/support/fonts.conf;LC_ALL=C.UTF-8"
    LABELS "${TEST_LABELS}"
    TIMEOUT 300)
  if(threads IN_LIST TEST_LABELS)
    add_dependencies(thread_tests ${name})
  endif()
endfunction()
