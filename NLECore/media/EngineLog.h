// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLoggingCategory>

namespace nle {

/// The engine's messages; a host routes them through qInstallMessageHandler().
Q_DECLARE_LOGGING_CATEGORY(lcEngine)

} // namespace nle
