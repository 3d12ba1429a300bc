// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace nle {

/// Takes over the log of the media libraries; does nothing after the first call.
void InstallMediaLog();

} // namespace nle
