# SPDX-License-Identifier: LGPL-2.1-or-later
# Makes the translations beside the executables, Lang/<language>/*.qm, with Qt's tools, those of
# this machine also when the build is for another. Part of the installed package.

get_target_property(qmake_program Qt${COMMONLIB_QT}::qmake IMPORTED_LOCATION)
get_filename_component(qt_tools ${qmake_program} DIRECTORY)
find_program(LRELEASE_PROGRAM NAMES lrelease lrelease-qt${COMMONLIB_QT} HINTS ${qt_tools} /usr/lib/qt${COMMONLIB_QT}/bin)
find_program(LCONVERT_PROGRAM NAMES lconvert lconvert-qt${COMMONLIB_QT} HINTS ${qt_tools} /usr/lib/qt${COMMONLIB_QT}/bin)
# Texts are the same on every system: what the Qt that is linked lacks may come from this machine's.
execute_process(COMMAND ${qmake_program} -query QT_INSTALL_TRANSLATIONS
  OUTPUT_VARIABLE qt_translations OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
find_path(QT_TRANSLATIONS qtbase_de.qm
  HINTS ${qt_translations} ${qt_tools}/../translations PATHS /usr/share/qt${COMMONLIB_QT}/translations
  NO_CMAKE_FIND_ROOT_PATH DOC "Folder of Qt's own translations")
unset(qmake_program)
unset(qt_tools)
unset(qt_translations)

# Folder in Lang/ and the languages of Qt that serve it, the first that there is. Qt has none for
# Romanian, Indonesian and Swedish, and English needs none.
set(COMMONLIB_QT_LANGUAGES de=de esp=es fr=fr it=it pt=pt_PT,pt,pt_BR ja=ja cht=zh_TW
  zhh=zh_HK,zh_TW ru=ru nl=nl ar=ar ko=ko pl=pl ro=ro id=id sv=sv)

function(commonlib_require_tool tool)
  if(NOT ${tool})
    message(FATAL_ERROR "${tool} is missing (Debian: qttools5-dev-tools, for Qt 6 qt6-l10n-tools)")
  endif()
endfunction()

function(commonlib_language_folder language result)
  set(bin ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  if(NOT bin)
    set(bin ${CMAKE_CURRENT_BINARY_DIR})
  endif()
  set(${result} ${bin}/Lang/${language} PARENT_SCOPE)
endfunction()

# commonlib_add_translations(TARGET NAME FILES…): compiles <folder>/<name>_<language>.ts, for each of
# FILES, to Lang/<language>/<NAME>.qm beside the executables.
function(commonlib_add_translations target name)
  commonlib_require_tool(LRELEASE_PROGRAM)
  set(compiled)
  foreach(source IN LISTS ARGN)
    get_filename_component(source ${source} ABSOLUTE)
    get_filename_component(base ${source} NAME_WE)
    string(REGEX REPLACE "^.*_" "" language ${base})
    commonlib_language_folder(${language} folder)
    add_custom_command(OUTPUT ${folder}/${name}.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND ${LRELEASE_PROGRAM} -silent ${source} -qm ${folder}/${name}.qm
      DEPENDS ${source} VERBATIM)
    list(APPEND compiled ${folder}/${name}.qm)
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${compiled})
  set_property(TARGET ${target} PROPERTY COMMONLIB_COMPILED ${compiled})
endfunction()

# commonlib_add_qt_translations(TARGET [FILES…]): puts what Qt itself says (buttons of dialogs,
# menus of fields, help of the command line) beside the executables as Lang/<language>/Qt.qm, for the
# languages that Qt is translated into. FILES, <folder>/<name>_<language>.ts, add to that or replace
# it, text by text. Without Qt's translations there is only what FILES have.
function(commonlib_add_qt_translations target)
  if(NOT QT_TRANSLATIONS)
    message(STATUS "Qt's own translations are missing (Debian: qttranslations5-l10n, for Qt 6 qt6-translations-l10n): "
      "its dialogs and menus stay English in most languages")
  endif()
  set(made)
  foreach(entry IN LISTS COMMONLIB_QT_LANGUAGES)
    string(REGEX MATCH "^([^=]+)=(.+)$" entry ${entry})
    set(language ${CMAKE_MATCH_1})
    string(REPLACE "," ";" candidates ${CMAKE_MATCH_2})
    set(inputs)
    foreach(candidate IN LISTS candidates)
      if(NOT inputs AND EXISTS ${QT_TRANSLATIONS}/qtbase_${candidate}.qm)
        set(inputs ${QT_TRANSLATIONS}/qtbase_${candidate}.qm)
      endif()
    endforeach()
    foreach(source IN LISTS ARGN)
      if(source MATCHES "_${language}\\.ts$")
        get_filename_component(source ${source} ABSOLUTE)
        list(APPEND inputs ${source})
      endif()
    endforeach()
    if(NOT inputs)
      continue()
    endif()
    commonlib_require_tool(LCONVERT_PROGRAM)
    commonlib_language_folder(${language} folder)
    # Of two translations of a text the later one is kept.
    add_custom_command(OUTPUT ${folder}/Qt.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND ${LCONVERT_PROGRAM} -i ${inputs} -of qm -o ${folder}/Qt.qm
      DEPENDS ${inputs} VERBATIM)
    list(APPEND made ${folder}/Qt.qm)
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${made})
  set_property(TARGET ${target} PROPERTY COMMONLIB_COMPILED ${made})
endfunction()

# commonlib_install_translations(TARGET DESTINATION FOLDER [COMPONENT NAME]): installs what one of the
# functions above made as FOLDER/Lang/<language>/*.qm.
function(commonlib_install_translations target)
  cmake_parse_arguments(arg "" "DESTINATION;COMPONENT" "" ${ARGN})
  if(arg_COMPONENT)
    set(component COMPONENT ${arg_COMPONENT})
  endif()
  get_target_property(files ${target} COMMONLIB_COMPILED)
  foreach(file IN LISTS files)
    get_filename_component(folder ${file} DIRECTORY)
    get_filename_component(language ${folder} NAME)
    install(FILES ${file} DESTINATION ${arg_DESTINATION}/Lang/${language} ${component})
  endforeach()
endfunction()
