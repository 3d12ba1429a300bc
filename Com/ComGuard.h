// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <new>

/// Runs \a call, which gives an HRESULT, for a component's caller, who may come from another
/// compiler: nothing is thrown into it. E_OUTOFMEMORY where memory was out, E_FAIL for any other
/// exception; out-parameters then are as \a call left them.
template <typename Call>
HRESULT ComGuard(Call&& call) noexcept
{
    try {
        return call();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}
