# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the library from BUILD into WORK, then configures, builds and runs the project in SOURCE
# against what was installed. FLAGS are the compiler flags that the library was built with, SUFFIX
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
