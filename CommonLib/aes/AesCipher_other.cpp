// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/aes/AesCipher_p.h"

namespace AesCipher {

const Implementation* Native(int)
{
    return nullptr;
}

} // namespace AesCipher
