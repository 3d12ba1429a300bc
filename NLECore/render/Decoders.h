// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/DecoderPool.h"

namespace nle {

/// The engine's open decoders, shared by all extractors and renders.
DecoderPool& Decoders();

} // namespace nle
