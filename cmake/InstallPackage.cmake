# SPDX-License-Identifier: LGPL-2.1-or-later
# Makes the installed library one that find_package(CommonLib) finds.

include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/CommonLib)

install(EXPORT CommonLibTargets NAMESPACE CommonLib:: COMPONENT CommonLib
  DESTINATION ${package_folder})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CommonLibConfig.cmake.in
  ${CMAKE_BINARY_DIR}/CommonLibConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/CommonLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/CommonLibConfig.cmake ${CMAKE_BINARY_DIR}/CommonLibConfigVersion.cmake
  COMPONENT CommonLib DESTINATION ${package_folder})
install(FILES ${PROJECT_SOURCE_DIR}/cmake/Translations.cmake RENAME CommonLibTranslations.cmake
  COMPONENT CommonLib DESTINATION ${package_folder})
