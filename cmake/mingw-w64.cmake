# SPDX-License-Identifier: LGPL-2.1-or-later
# Tool chain file: cross-compiles for 64-bit Windows with mingw-w64. COMMONLIB_WINDOWS_QT (variable or
# environment) is the folder of Qt 5.15 and QuaZip built for it, its moc, rcc and uic for this system,
# COMMONLIB_WINDOWS_MEDIA that of FFmpeg and SDL, which the open engine needs, COMMONLIB_WINDOWS_LIBRARIES that of
# what reads pictures beside FFmpeg.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(COMMONLIB_WINDOWS_QT "$ENV{COMMONLIB_WINDOWS_QT}" CACHE PATH "Folder of Qt and QuaZip for Windows")
set(COMMONLIB_WINDOWS_MEDIA "$ENV{COMMONLIB_WINDOWS_MEDIA}" CACHE PATH "Folder of FFmpeg and SDL for Windows")
set(COMMONLIB_WINDOWS_LIBRARIES "$ENV{COMMONLIB_WINDOWS_LIBRARIES}" CACHE PATH "Folder of picture libraries for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES
  COMMONLIB_WINDOWS_QT COMMONLIB_WINDOWS_MEDIA COMMONLIB_WINDOWS_LIBRARIES)

set(windows_parts ${COMMONLIB_WINDOWS_QT} ${COMMONLIB_WINDOWS_MEDIA} ${COMMONLIB_WINDOWS_LIBRARIES})
list(APPEND CMAKE_PREFIX_PATH ${windows_parts})
list(APPEND CMAKE_FIND_ROOT_PATH ${windows_parts} /usr/x86_64-w64-mingw32)
# pkg-config tells of the libraries for Windows, of none of this system.
list(TRANSFORM windows_parts APPEND /lib/pkgconfig OUTPUT_VARIABLE pkgconfig_folders)
list(JOIN pkgconfig_folders : pkgconfig_folders)
set(ENV{PKG_CONFIG_LIBDIR} "${pkgconfig_folders}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What is built for Windows runs in Wine.
list(JOIN windows_parts : emulated_parts)
set(CMAKE_CROSSCOMPILING_EMULATOR
  ${CMAKE_CURRENT_LIST_DIR}/../scripts/run-in-wine ${emulated_parts} ${CMAKE_BINARY_DIR})
