// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/aes/AesCipher_x86_kernels_p.h"

namespace AesCipher {

constexpr Implementation kAesNi = MakeImplementation<Vector128>("AES-NI");

} // namespace AesCipher
