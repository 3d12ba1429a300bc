// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EngineLog.h"

namespace nle {

Q_LOGGING_CATEGORY(lcEngine, "nle.engine")

} // namespace nle
