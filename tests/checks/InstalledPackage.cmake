# Installs the built library under a fresh prefix and builds each example against it as a host would:
# with find_package, then with pkg-config. Each runs offscreen from its own folder and must end well.
#
# Needs BUILD_DIR, SOURCE_DIR, WORK_DIR, GENERATOR, COMPILER.

set(prefix ${WORK_DIR}/prefix)
set(offscreen ${CMAKE_COMMAND} -E env WEXA_DISPLAY=offscreen WEXA_DPI=96)

function(run what)
  cmake_parse_arguments(PARSE_ARGV 1 RUN "" "IN" "COMMAND")
  if(NOT RUN_IN)
    set(RUN_IN ${WORK_DIR})
  endif()
  execute_process(COMMAND ${RUN_COMMAND} WORKING_DIRECTORY ${RUN_IN} TIMEOUT 120
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}")
  endif()
endfunction()

function(check_with_cmake name example)
  set(build ${WORK_DIR}/${name})
  run("${name}: configuring" COMMAND ${CMAKE_COMMAND} -S ${example} -B ${build} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${prefix})
  run("${name}: building" COMMAND ${CMAKE_COMMAND} --build ${build})
  run("${name}: running" IN ${example} COMMAND ${offscreen} ${build}/${name})
endfunction()

function(check_with_pkgconfig name example)
  file(READ ${example}/CMakeLists.txt project)
  set(package wexa)
  if(project MATCHES Wexa::Testing)
    set(package wexa-testing)
  endif()
  file(GLOB_RECURSE found ${prefix}/*/wexa.pc)
  get_filename_component(pc_dir ${found} DIRECTORY)
  set(ENV{PKG_CONFIG_PATH} ${pc_dir})
  execute_process(COMMAND pkg-config --cflags --libs ${package} OUTPUT_VARIABLE flags
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags UNIX_COMMAND "${flags}")
  file(GLOB sources ${example}/*.cpp)
  set(program ${WORK_DIR}/${name}-pkgconfig)
  run("${name}: compiling by pkg-config" COMMAND ${COMPILER} -std=c++20 ${sources} -o ${program} ${flags})
  run("${name}: running" IN ${example} COMMAND ${offscreen} ${program})
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
run("installing" COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

file(GLOB projects ${SOURCE_DIR}/examples/*/CMakeLists.txt)
if(NOT projects)
  message(FATAL_ERROR "there is no example to build")
endif()
foreach(project IN LISTS projects)
  get_filename_component(example ${project} DIRECTORY)
  get_filename_component(name ${example} NAME)
  check_with_cmake(${name} ${example})
  check_with_pkgconfig(${name} ${example})
endforeach()
