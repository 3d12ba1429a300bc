// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/CacheDefaults.h"

#include <mutex>

namespace nle {

namespace {

struct Guarded
{
    std::mutex mutex; ///< guards the rest
    CacheDefaults defaults;
};

Guarded& State()
{
    static Guarded s_state;
    return s_state;
}

} // namespace

CacheDefaults DefaultCache()
{
    const std::lock_guard<std::mutex> lock(State().mutex);
    return State().defaults;
}

void ChangeDefaultCache(const std::function<void(CacheDefaults&)>& change)
{
    const std::lock_guard<std::mutex> lock(State().mutex);
    change(State().defaults);
}

} // namespace nle
