# SPDX-License-Identifier: LGPL-2.1-or-later
# Part of the installed package. A script: copies into the folder TO the libraries of Windows programs named LOADED, and
# what they and the programs, libraries and plugins (one folder below) in TO link, as far as it lies in one of FOLDERS;
# what does not is the system's. OBJDUMP is the tool of that name for such files.
cmake_minimum_required(VERSION 3.21)

file(GLOB files ${TO}/*.exe ${TO}/*.dll ${TO}/*/*.dll)
set(names ${LOADED})
while(names OR files)
  foreach(name IN LISTS names)
    find_file(library ${name} PATHS ${FOLDERS} NO_CACHE NO_DEFAULT_PATH)
    if(library AND NOT EXISTS ${TO}/${name})
      file(COPY ${library} DESTINATION ${TO})
      list(APPEND files ${TO}/${name})
    endif()
    unset(library)
  endforeach()
  list(POP_FRONT files file)
  set(names)
  if(file)
    execute_process(COMMAND ${OBJDUMP} -p ${file} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "DLL Name: [^\r\n]+" names "${headers}")
    list(TRANSFORM names REPLACE "DLL Name: " "")
  endif()
endwhile()
