# SPDX-License-Identifier: LGPL-2.1-or-later
# The AES block cipher. On x86 each kind of vector has a source of its own, compiled for it and
# chosen at run time; the rest of the library needs no special processor.
list(APPEND sources AesCipher.cpp AesCipher_portable.cpp)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64)$")
  list(APPEND sources
    AesCipher_x86.cpp AesCipher_x86_aesni.cpp AesCipher_x86_vaes256.cpp AesCipher_x86_vaes512.cpp)
  # MSVC knows the instructions without options; the ones it has choose the encoding.
  if(MSVC)
    set_source_files_properties(AesCipher_x86_vaes256.cpp PROPERTIES COMPILE_OPTIONS /arch:AVX2)
    set_source_files_properties(AesCipher_x86_vaes512.cpp PROPERTIES COMPILE_OPTIONS /arch:AVX512)
  else()
    if(MINGW)
      # The stack of 64-bit Windows is aligned to 16 bytes, and this compiler saves wider vectors there
      # as if it were aligned to their size: let the assembler take the moves that do not ask for it.
      set(wide_vectors -Wa,-muse-unaligned-vector-move)
    endif()
    set_source_files_properties(AesCipher_x86_aesni.cpp
      PROPERTIES COMPILE_OPTIONS "-maes;-msse4.1")
    set_source_files_properties(AesCipher_x86_vaes256.cpp
      PROPERTIES COMPILE_OPTIONS "-maes;-mvaes;-mavx2;${wide_vectors}")
    set_source_files_properties(AesCipher_x86_vaes512.cpp
      PROPERTIES COMPILE_OPTIONS "-maes;-mvaes;-mavx2;-mavx512f;-mavx512vl;${wide_vectors}")
  endif()
else()
  list(APPEND sources AesCipher_other.cpp)
endif()
