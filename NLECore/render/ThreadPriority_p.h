// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace nle {

/// Lets threads of normal priority go before the calling one, and before those that it starts.
void LowerThreadPriority();

} // namespace nle
