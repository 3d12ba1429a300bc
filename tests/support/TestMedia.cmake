# SPDX-License-Identifier: LGPL-2.1-or-later

# Clips made while a test or benchmark runs; needs the ffmpeg program then.
include_guard(GLOBAL)
add_library(TestSupportMedia STATIC
  ${CMAKE_CURRENT_LIST_DIR}/TestMedia.cpp ${CMAKE_CURRENT_LIST_DIR}/TestMedia.h)
target_include_directories(TestSupportMedia PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(TestSupportMedia PUBLIC Qt${COMMONLIB_QT}::Core Qt${COMMONLIB_QT}::Gui PRIVATE ProjectSettings)
# In Wine the machine's own programs make them.
if(WIN32 AND CMAKE_CROSSCOMPILING)
  foreach(program IN ITEMS ffmpeg heif-enc melt)
    add_executable(Outside_${program} ${CMAKE_CURRENT_LIST_DIR}/OutsideProgram_win.cpp)
    set_target_properties(Outside_${program} PROPERTIES OUTPUT_NAME ${program})
    target_link_libraries(Outside_${program} PRIVATE ProjectSettings)
    add_dependencies(TestSupportMedia Outside_${program})
  endforeach()
endif()
