# The package for hosts: find_package(Wexa) gives Wexa::Wexa and, for their tests, Wexa::Testing;
# pkg-config gives wexa and wexa-testing. What the library links privately is none of the host's
# business, so neither asks for it.

include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Wexa)

install(TARGETS Wexa Testing EXPORT Wexa)
install(EXPORT Wexa NAMESPACE Wexa:: FILE WexaConfig.cmake DESTINATION ${package_dir})
write_basic_package_version_file(WexaConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/WexaConfigVersion.cmake DESTINATION ${package_dir})

file(RELATIVE_PATH WEXA_PKGCONFIG_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(name wexa wexa-testing)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

file(GLOB headers CONFIGURE_DEPENDS include/*.h)
install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/wexa)
file(GLOB headers CONFIGURE_DEPENDS include/testing/*.h)
install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/wexa/testing)
install(DIRECTORY platform/include/platform DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/wexa
  FILES_MATCHING PATTERN "*.h")

if(TARGET wexa-preview)
  install(TARGETS wexa-preview wexa-pack)
endif()
