# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the library from BUILD into WORK, then configures and builds the projects in SOURCE and
# EXAMPLES against what was installed, and runs the first; where BUILD has the engine, also the
# examples that open no window. FLAGS are the compiler flags that the library was built with, SUFFIX
# ends the name of a program; TOOLCHAIN and EMULATOR are the tool chain file and what runs programs
# when the library is cross-compiled.

function(step)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result)
  if(result)
    message(FATAL_ERROR "failed (${result}): ${ARGV}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --component CommonLib --prefix ${WORK}/prefix)
file(GLOB_RECURSE private_headers ${WORK}/prefix/*_p.h)
if(private_headers)
  message(FATAL_ERROR "private headers were installed: ${private_headers}")
endif()
step(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -G Ninja -DCMAKE_CXX_FLAGS=${FLAGS}
  -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
  -DCMAKE_FIND_ROOT_PATH=${WORK}/prefix -DCMAKE_PREFIX_PATH=${WORK}/prefix)
step(${CMAKE_COMMAND} --build ${WORK}/build)
# The package's host has what the library's own has of Qt's translations.
foreach(language IN ITEMS de zhh)
  if(EXISTS ${BUILD}/bin/Lang/${language}/Qt.qm AND NOT EXISTS ${WORK}/build/Lang/${language}/Qt.qm)
    message(FATAL_ERROR "Qt's translation is missing: ${WORK}/build/Lang/${language}/Qt.qm")
  endif()
endforeach()
file(GLOB libraries ${WORK}/prefix/bin/*.dll)
if(libraries)
  file(COPY ${libraries} DESTINATION ${WORK}/build)
endif()
step(${EMULATOR} ${WORK}/build/consumer${SUFFIX} ${WORK}/consumer.log)

step(${CMAKE_COMMAND} -S ${EXAMPLES} -B ${WORK}/examples -G Ninja -DCMAKE_CXX_FLAGS=${FLAGS}
  -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
  -DCMAKE_FIND_ROOT_PATH=${WORK}/prefix -DCMAKE_PREFIX_PATH=${WORK}/prefix)
step(${CMAKE_COMMAND} --build ${WORK}/examples)
set(engine ${BUILD}/bin/NLECore.dll)
if(EXISTS ${engine})
  file(COPY ${engine} DESTINATION ${WORK}/examples)
  step(ffmpeg -v error -f lavfi -i testsrc=size=320x180:rate=25:duration=2 -y ${WORK}/sample.mp4)
  step(${EMULATOR} ${WORK}/examples/example_join${SUFFIX} ${WORK}/joined.mp4
    ${WORK}/sample.mp4 ${WORK}/sample.mp4)
  # Only the joined film is that long.
  step(${EMULATOR} ${WORK}/examples/example_picture${SUFFIX} ${WORK}/joined.mp4
    00:00:03:20 ${WORK}/picture.png)
endif()
