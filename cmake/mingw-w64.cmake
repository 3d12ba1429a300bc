# SPDX-License-Identifier: LGPL-2.1-or-later
# Tool chain file: cross-compiles for 64-bit Windows with mingw-w64. COMMONLIB_WINDOWS_QT (variable or
# environment) is the folder of Qt 5.15 and QuaZip built for it, its moc, rcc and uic for this system,
# COMMONLIB_WINDOWS_MEDIA that of FFmpeg and SDL, which the open engine needs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(COMMONLIB_WINDOWS_QT "$ENV{COMMONLIB_WINDOWS_QT}" CACHE PATH "Folder of Qt and QuaZip for Windows")
set(COMMONLIB_WINDOWS_MEDIA "$ENV{COMMONLIB_WINDOWS_MEDIA}" CACHE PATH "Folder of FFmpeg and SDL for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES COMMONLIB_WINDOWS_QT COMMONLIB_WINDOWS_MEDIA)

list(APPEND CMAKE_PREFIX_PATH ${COMMONLIB_WINDOWS_QT} ${COMMONLIB_WINDOWS_MEDIA})
list(APPEND CMAKE_FIND_ROOT_PATH ${COMMONLIB_WINDOWS_QT} ${COMMONLIB_WINDOWS_MEDIA} /usr/x86_64-w64-mingw32)
# pkg-config tells of the libraries for Windows, of none of this system.
set(ENV{PKG_CONFIG_LIBDIR} "${COMMONLIB_WINDOWS_MEDIA}/lib/pkgconfig")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What is built for Windows runs in Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR
  ${CMAKE_CURRENT_LIST_DIR}/../scripts/run-in-wine ${COMMONLIB_WINDOWS_QT}:${COMMONLIB_WINDOWS_MEDIA} ${CMAKE_BINARY_DIR})
