# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the library from BUILD into WORK, moves what was installed, then configures and builds the
# projects in SOURCE and EXAMPLES against it, and runs the first; where BUILD has the engine, also what
# makes films and the examples that open no window. FLAGS are the compiler flags that the library was
# built with, SUFFIX ends the name of a program; TOOLCHAIN and EMULATOR are the tool chain file and what
# runs programs when the library is cross-compiled. LIBDIR is where libraries lie in a prefix. PYTHON, where
# there is one, takes the programs of PAGE and of README from them.

cmake_minimum_required(VERSION 3.21)

function(step)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result)
  if(result)
    message(FATAL_ERROR "failed (${result}): ${ARGV}")
  endif()
endfunction()

# build_project NAME FOLDER: in WORK/NAME, against the installed package.
function(build_project name folder)
  step(${CMAKE_COMMAND} -S ${folder} -B ${WORK}/${name} -G Ninja -DCMAKE_CXX_FLAGS=${FLAGS}
    -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}
    -DCMAKE_FIND_ROOT_PATH=${WORK}/prefix -DCMAKE_PREFIX_PATH=${WORK}/prefix)
  step(${CMAKE_COMMAND} --build ${WORK}/${name})
endfunction()

# Where programs for Windows find the library.
if(EMULATOR)
  set(ENV{WINEPATH} "Z:${WORK}/prefix/bin")
elseif(SUFFIX)
  set(ENV{PATH} "${WORK}/prefix/bin;$ENV{PATH}")
endif()

# What programs write without a folder comes into WORK.
function(run program)
  step(${EMULATOR} ${WORK}/${program}${SUFFIX} ${ARGN} WORKING_DIRECTORY ${WORK})
endfunction()

file(REMOVE_RECURSE ${WORK})
set(components library development)
foreach(module IN ITEMS engine=NLECore customisation=CVUtilities devices=PortableDevices)
  string(REGEX MATCH "^([^=]+)=(.+)$" module ${module})
  if(EXISTS ${BUILD}/bin/${CMAKE_MATCH_2}.dll)
    list(APPEND components ${CMAKE_MATCH_1})
  endif()
endforeach()
foreach(component IN LISTS components)
  step(${CMAKE_COMMAND} --install ${BUILD} --component ${component} --prefix ${WORK}/installed)
endforeach()
file(RENAME ${WORK}/installed ${WORK}/prefix)
file(GLOB_RECURSE private_headers ${WORK}/prefix/*_p.h)
if(private_headers)
  message(FATAL_ERROR "private headers were installed: ${private_headers}")
endif()

build_project(build ${SOURCE})
# The package's host has what the library's own has of Qt's translations.
foreach(language IN ITEMS de zhh)
  if(EXISTS ${BUILD}/bin/Lang/${language}/Qt.qm AND NOT EXISTS ${WORK}/build/Lang/${language}/Qt.qm)
    message(FATAL_ERROR "Qt's translation is missing: ${WORK}/build/Lang/${language}/Qt.qm")
  endif()
endforeach()
run(build/consumer ${WORK}/consumer.log)

build_project(examples ${EXAMPLES})
if("engine" IN_LIST components)
  set(sample ${WORK}/sample.mp4)
  step(ffmpeg -v error -f lavfi -i testsrc=size=320x180:rate=25:duration=2 -y ${sample})
  run(build/film ${sample} ${WORK}/film.mlt ${WORK}/film.mp4)
  run(examples/example_join ${WORK}/joined.mp4 ${sample} ${sample})
  # Only the joined film is that long.
  run(examples/example_picture ${WORK}/joined.mp4 00:00:03:20 ${WORK}/picture.png)
  # The programs of the page that begins with nothing; the last one exports a film.
  if(PYTHON)
    step(${PYTHON} ${SOURCE}/steps.py ${PAGE} ${WORK}/steps)
    file(GLOB programs RELATIVE ${WORK} ${WORK}/steps/*)
    foreach(program IN LISTS programs)
      build_project(${program}/build ${WORK}/${program})
      run(${program}/build/host ${sample})
    endforeach()
    if(NOT EXISTS ${WORK}/cut.mp4)
      message(FATAL_ERROR "the last step has written no film")
    endif()
    step(${PYTHON} ${SOURCE}/steps.py ${README} ${WORK}/readme)
    build_project(readme/build ${WORK}/readme)
    file(GLOB programs RELATIVE ${WORK} ${WORK}/readme/*.cpp)
    foreach(program IN LISTS programs)
      get_filename_component(name ${program} NAME_WE)
      step(${EMULATOR} ${WORK}/readme/build/${name}${SUFFIX} ${sample} WORKING_DIRECTORY ${WORK}/readme)
    endforeach()
    foreach(result IN ITEMS frame-10.png cut.mlt film.mp4 host.log secrets.zip)
      if(NOT EXISTS ${WORK}/readme/${result})
        message(FATAL_ERROR "an example has not written ${result}")
      endif()
    endforeach()
  endif()
  # What is beside the program suffices.
  if(NOT EXISTS ${WORK}/build/deployed/Lang/de/NLECore.qm)
    message(FATAL_ERROR "the engine's texts were not deployed")
  endif()
  file(REMOVE_RECURSE ${WORK}/prefix/${LIBDIR}/commonlib ${WORK}/prefix/share)
  if(EMULATOR)
    set(ENV{QT_PLUGIN_PATH} "Z:${WORK}/none")
  endif()
  run(build/deployed/film_deployed ${sample} ${WORK}/deployed.mlt ${WORK}/deployed.mp4)
endif()
