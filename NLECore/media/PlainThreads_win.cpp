// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PlainThreads_p.h"

namespace nle {

// Nothing that encodes here raises its threads.
PlainThreads::PlainThreads() = default;
PlainThreads::~PlainThreads() = default;

} // namespace nle
