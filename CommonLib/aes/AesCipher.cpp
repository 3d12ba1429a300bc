// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/aes/AesCipher_p.h"

#include <atomic>

namespace AesCipher {

namespace {

std::atomic<const Implementation*> s_chosen{nullptr};

} // namespace

const Implementation* Available(int index)
{
    if (const Implementation* native = Native(index))
        return native;
    const bool behindNative = index == 0 || Native(index - 1);
    return behindNative ? &kPortable : nullptr;
}

const Implementation& Current()
{
    // Threads that come here together for the first time all find the same.
    const Implementation* current = s_chosen.load(std::memory_order_relaxed);
    if (!current) {
        current = Available(0);
        s_chosen.store(current, std::memory_order_relaxed);
    }
    return *current;
}

void Use(const Implementation* implementation)
{
    s_chosen.store(implementation, std::memory_order_relaxed);
}

} // namespace AesCipher
