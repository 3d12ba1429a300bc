// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>

namespace nle {

/// Sends the warnings and errors of the media libraries to \a sink, one line per call, without the
/// line end. They are dropped while no sink is set and never reach standard error. The sink is
/// called from any thread, several at a time, and no lock is held meanwhile.
void SetMediaLogSink(std::function<void(const char*)> sink);

} // namespace nle
