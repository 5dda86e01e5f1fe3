# Compiler settings of all targets, and the rooms the library is made of.

function(wexa_strict target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
endfunction()

# wexa_room(name folder... LINKS target...): the sources of some folders as one object library.
function(wexa_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS;FOLDERS" ${ARGN})
  set(sources)
  foreach(folder IN LISTS ROOM_FOLDERS)
    file(GLOB found CONFIGURE_DEPENDS ${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  if(NOT sources)
    return()
  endif()
  add_library(${name} OBJECT ${sources})
  wexa_strict(${name})
  target_compile_definitions(${name} PRIVATE WEXA_BUILDING)
  target_link_libraries(${name} PUBLIC wexa_headers ${ROOM_LINKS})
  target_precompile_headers(${name} PRIVATE
    <algorithm> <array> <cstdint> <functional> <map> <memory> <string> <string_view>
    <unordered_map> <utility> <vector>)
  set_property(GLOBAL APPEND PROPERTY WEXA_ROOMS ${name})
endfunction()

# The test programs that run under the thread sanitizer: those with the label "threads".
add_custom_target(thread_tests)

# wexa_test(name FOLDERS folder... ROOMS room... LABELS label...): one test program of the sources in
# some folders, linked to the rooms themselves, so that it sees what the shared library hides.
# LAUNCHER is a program that runs it, if not the test driver itself.
function(wexa_test name)
  cmake_parse_arguments(TEST "" "LAUNCHER" "ROOMS;FOLDERS;LABELS" ${ARGN})
  set(sources)
  foreach(folder IN LISTS TEST_FOLDERS)
    file(GLOB found CONFIGURE_DEPENDS ${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  wexa_strict(${name})
  target_compile_definitions(${name} PRIVATE WEXA_BUILDING)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${TEST_ROOMS} test_data GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h> <memory> <string> <vector>)
  add_test(NAME ${name} COMMAND ${TEST_LAUNCHER} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "WEXA_DISPLAY=offscreen;WEXA_DPI=96;FONTCONFIG_FILE=${PROJECT_SOURCE_DIR}/tests/support/fonts.conf;LC_ALL=C.UTF-8"
    LABELS "${TEST_LABELS}"
    TIMEOUT 300)
  if(threads IN_LIST TEST_LABELS)
    add_dependencies(thread_tests ${name})
  endif()
endfunction()
