# SPDX-License-Identifier: LGPL-2.1-or-later
# Part of the installed package.

# commonlib_deploy(TARGET): once the program TARGET is built, puts beside it what it loads at run time:
# the package's modules, what lies with them, and their translations. On Windows also the libraries
# that it links, and the plugins of Qt: those that its windeployqt chooses, or without one what windows
# and pictures need; with GCC, there or cross-compiling, at last what all these link, as far as it lies in
# the bin folder of one of CMAKE_PREFIX_PATH and CMAKE_FIND_ROOT_PATH or comes with the compiler, and SDL,
# which the engine loads by its name. Beside its executable a program looks first, so such a folder runs
# without the package wherever it is moved, on systems that find libraries there too.
function(commonlib_deploy target)
  if(NOT EXISTS "${CommonLib_MODULE_FOLDER}")
    message(WARNING "commonlib_deploy(${target}): the package has no modules in ${CommonLib_MODULE_FOLDER}")
    return()
  endif()
  set(to $<TARGET_FILE_DIR:${target}>)
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CommonLib_MODULE_FOLDER} ${to})
  foreach(folder IN ITEMS Lang Fonts)
    if(EXISTS "${CommonLib_DATA_FOLDER}/${folder}")
      add_custom_command(TARGET ${target} POST_BUILD VERBATIM
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${CommonLib_DATA_FOLDER}/${folder} ${to}/${folder})
    endif()
  endforeach()
  if(NOT WIN32)
    return()
  endif()
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM COMMAND_EXPAND_LISTS
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_RUNTIME_DLLS:${target}> ${to})
  get_target_property(qmake Qt${COMMONLIB_QT}::qmake IMPORTED_LOCATION)
  get_filename_component(tools ${qmake} DIRECTORY)
  find_program(WINDEPLOYQT_PROGRAM windeployqt HINTS ${tools})
  if(WINDEPLOYQT_PROGRAM)
    add_custom_command(TARGET ${target} POST_BUILD VERBATIM
      COMMAND ${WINDEPLOYQT_PROGRAM} --no-translations $<TARGET_FILE:${target}>)
  else()
    commonlib_deploy_plugins(${target})
  endif()
  if(CMAKE_OBJDUMP)
    commonlib_deploy_linked(${target})
  endif()
endfunction()

function(commonlib_deploy_plugins target)
  set(to $<TARGET_FILE_DIR:${target}>)
  foreach(plugin IN ITEMS QWindowsIntegrationPlugin QWindowsVistaStylePlugin QGifPlugin QICOPlugin QJpegPlugin)
    set(plugin Qt${COMMONLIB_QT}::${plugin})
    if(TARGET ${plugin}) # what a Qt has differs
      get_target_property(type ${plugin} QT_PLUGIN_TYPE)
      add_custom_command(TARGET ${target} POST_BUILD VERBATIM
        COMMAND ${CMAKE_COMMAND} -E make_directory ${to}/${type}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:${plugin}> ${to}/${type})
    endif()
  endforeach()
endfunction()

function(commonlib_deploy_linked target)
  set(folders ${CMAKE_PREFIX_PATH} ${CMAKE_FIND_ROOT_PATH})
  list(TRANSFORM folders APPEND /bin)
  get_filename_component(compiler ${CMAKE_CXX_COMPILER} DIRECTORY)
  list(APPEND folders ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES} ${compiler})
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM
    COMMAND ${CMAKE_COMMAND} -DOBJDUMP=${CMAKE_OBJDUMP} -DTO=$<TARGET_FILE_DIR:${target}> "-DFOLDERS=${folders}"
      -DLOADED=SDL2.dll -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/CommonLibCopyLibraries.cmake)
endfunction()
