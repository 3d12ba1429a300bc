# SPDX-License-Identifier: LGPL-2.1-or-later
# Compiles translations with the toolkit's tools, those of this machine also when the build is for
# another.

get_target_property(qmake_program Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_tools ${qmake_program} DIRECTORY)
find_program(LRELEASE_PROGRAM NAMES lrelease lrelease-qt5 HINTS ${qt_tools} /usr/lib/qt5/bin)
if(NOT LRELEASE_PROGRAM)
  message(FATAL_ERROR "lrelease is missing (Debian: qttools5-dev-tools)")
endif()

# commonlib_add_translations(TARGET NAME FILES…): compiles <folder>/<name>_<language>.ts, for each of
# FILES, to Lang/<language>/<NAME>.qm beside the executables.
function(commonlib_add_translations target name)
  set(compiled)
  foreach(source IN LISTS ARGN)
    get_filename_component(source ${source} ABSOLUTE)
    get_filename_component(base ${source} NAME_WE)
    string(REGEX REPLACE "^.*_" "" language ${base})
    set(folder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Lang/${language})
    add_custom_command(OUTPUT ${folder}/${name}.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND ${LRELEASE_PROGRAM} -silent ${source} -qm ${folder}/${name}.qm
      DEPENDS ${source} VERBATIM)
    list(APPEND compiled ${folder}/${name}.qm)
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${compiled})
endfunction()
