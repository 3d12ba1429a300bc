// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/Decoders.h"

namespace nle {

DecoderPool& Decoders()
{
    static DecoderPool pool;
    return pool;
}

} // namespace nle
