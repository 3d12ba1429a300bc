# SPDX-License-Identifier: LGPL-2.1-or-later
# The Qt to build with, by COMMONLIB_QT. Its targets are named with the number, Qt5::Core or Qt6::Core:
# so the installed package means the Qt it was built with also in a project that uses the other one.

set(least_qt_5 5.15)
set(least_qt_6 6.4)
if(NOT DEFINED least_qt_${COMMONLIB_QT})
  message(FATAL_ERROR "COMMONLIB_QT is 5 or 6")
endif()
set(COMMONLIB_LEAST_QT ${least_qt_${COMMONLIB_QT}})

macro(commonlib_find_qt)
  find_package(Qt${COMMONLIB_QT} ${COMMONLIB_LEAST_QT} REQUIRED COMPONENTS ${ARGN})
endmacro()
