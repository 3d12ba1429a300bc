# SPDX-License-Identifier: LGPL-2.1-or-later
# What every target of the project shares: language level, warnings, sanitizers, output folders.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

# Run-time modules are looked for beside the executable, so everything that runs lands in one folder.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(ProjectSettings INTERFACE)
target_compile_definitions(ProjectSettings INTERFACE
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DEPRECATED_WARNINGS)
# What only Qt 6 has other names for keeps those of both.
if(COMMONLIB_QT EQUAL 6)
  target_compile_definitions(ProjectSettings INTERFACE QT_DEPRECATED_WARNINGS_SINCE=0x050F00)
endif()
if(MSVC)
  # Exported classes hold members of Qt's and the standard library's types, which host and
  # library get from the same compiler (4251, 4275). The C library's functions are not to be
  # replaced by those of one system.
  target_compile_options(ProjectSettings INTERFACE
    /W4 $<$<BOOL:${COMMONLIB_WARNINGS_AS_ERRORS}>:/WX> /utf-8 /permissive- /Zc:__cplusplus /wd4251 /wd4275)
  target_compile_definitions(ProjectSettings INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(ProjectSettings INTERFACE -Wall -Wextra -Wpedantic -Wshadow
    $<$<BOOL:${COMMONLIB_WARNINGS_AS_ERRORS}>:-Werror>
    # Records are begun with what differs from their presets.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-missing-field-initializers>)
endif()

if(COMMONLIB_SANITIZE STREQUAL "address")
  set(sanitize -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(COMMONLIB_SANITIZE STREQUAL "thread")
  set(sanitize -fsanitize=thread -fno-omit-frame-pointer)
elseif(COMMONLIB_SANITIZE)
  message(FATAL_ERROR "COMMONLIB_SANITIZE is address, thread or empty")
endif()
# What fuzzing steers by is compiled into everything; only the targets in tests/fuzz have its main().
option(COMMONLIB_FUZZ "Build the fuzz targets on libFuzzer; needs Clang" OFF)
if(COMMONLIB_FUZZ)
  list(APPEND sanitize -fsanitize=fuzzer-no-link)
endif()
if(sanitize)
  target_compile_options(ProjectSettings INTERFACE ${sanitize})
  target_link_options(ProjectSettings INTERFACE ${sanitize})
elseif(UNIX)
  target_link_options(ProjectSettings INTERFACE -Wl,--no-undefined)
endif()

# The suffix that platform sources carry.
if(WIN32)
  set(PLATFORM_SUFFIX win)
else()
  set(PLATFORM_SUFFIX linux)
endif()
