// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <functional>

namespace nle {

/// Where previews are cached until a host names another folder for a timeline.
struct CacheDefaults
{
    QString folder;     ///< empty for none
    int quota = 10240;  ///< MiB
    int reserve = 1024; ///< MiB
};

/// One set for the process.
CacheDefaults DefaultCache();
/// Nobody reads or changes it while \a change does.
void ChangeDefaultCache(const std::function<void(CacheDefaults&)>& change);

} // namespace nle
