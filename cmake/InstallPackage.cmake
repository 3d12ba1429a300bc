# SPDX-License-Identifier: LGPL-2.1-or-later
# Where everything is installed, by component:
#   library        the shared library
#   development    headers, CMake package, pkg-config file
#   engine         the open engine and its translations
#   devices        the portable-device service
#   customisation  the reader of customisation data
#   designer       the widgets for Qt Designer
#   editor         the editor and its translations
#   documentation  what docs/ and the root's documents hold
# All paths are relative to the prefix, so that an installed package may be moved as a whole.

include(CMakePackageConfigHelpers)

# Modules are no libraries to link, so they have a folder of their own. Beside it lies that of what is
# the same on every system.
set(module_folder ${CMAKE_INSTALL_LIBDIR}/commonlib)
set(data_folder ${CMAKE_INSTALL_DATADIR}/commonlib)
set(licence_folder ${CMAKE_INSTALL_DATADIR}/licenses/commonlib)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/CommonLib)
if(WIN32)
  set(library_folder ${CMAKE_INSTALL_BINDIR})
else()
  set(library_folder ${CMAKE_INSTALL_LIBDIR})
endif()

function(commonlib_install_licence component)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${licence_folder} COMPONENT ${component})
endfunction()

function(commonlib_install_module target component)
  install(TARGETS ${target} LIBRARY DESTINATION ${module_folder} COMPONENT ${component})
  commonlib_install_licence(${component})
endfunction()

# Programs find the library wherever the prefix lies; packages for a system turn this off.
if(UNIX)
  file(RELATIVE_PATH to_library /${CMAKE_INSTALL_BINDIR} /${library_folder})
  set(program_rpath $ORIGIN/${to_library})
endif()

install(EXPORT CommonLibTargets NAMESPACE CommonLib:: DESTINATION ${package_folder} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CommonLibConfig.cmake.in
  ${PROJECT_BINARY_DIR}/CommonLibConfig.cmake INSTALL_DESTINATION ${package_folder}
  PATH_VARS module_folder data_folder)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/CommonLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/CommonLibConfig.cmake ${PROJECT_BINARY_DIR}/CommonLibConfigVersion.cmake
  DESTINATION ${package_folder} COMPONENT development)
foreach(part IN ITEMS Translations Deploy CopyLibraries)
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/${part}.cmake RENAME CommonLib${part}.cmake
    DESTINATION ${package_folder} COMPONENT development)
endforeach()

file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" to_prefix ${to_prefix})
configure_file(${PROJECT_SOURCE_DIR}/cmake/commonlib.pc.in ${PROJECT_BINARY_DIR}/commonlib.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/commonlib.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT documentation)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
foreach(component IN ITEMS library development documentation)
  commonlib_install_licence(${component})
endforeach()
