// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/aes/AesCipher_p.h"

/// The implementations on instructions of x86.
namespace AesCipher {

/// Needs AES-NI and SSE4.1.
extern const Implementation kAesNi;
/// Needs VAES and AVX2 as well; two blocks in a vector.
extern const Implementation kVaes256;
/// Needs VAES and AVX-512 F and VL as well; four blocks in a vector.
extern const Implementation kVaes512;

} // namespace AesCipher
