// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <exception>
#include <new>

/// What a module does about the calls of its callers, to tell why one failed; nothing unless it
/// sets both, which it does before its first object is made. Calls within calls come in pairs.
struct ComCallWatch
{
    /// Before each call.
    void (*begins)() noexcept = nullptr;
    /// After it; \a words are those of an exception that ended the call; null without one.
    void (*ends)(HRESULT result, const char* words) noexcept = nullptr;
};
inline ComCallWatch s_comCallWatch;

/// Runs \a call, which gives an HRESULT, for a component's caller, who may come from another
/// compiler: nothing is thrown into it. E_OUTOFMEMORY where memory was out, E_FAIL for any other
/// exception; out-parameters then are as \a call left them.
template <typename Call>
HRESULT ComGuard(Call&& call) noexcept
{
    const auto end = [](HRESULT result, const char* words) {
        if (s_comCallWatch.ends)
            s_comCallWatch.ends(result, words);
        return result;
    };
    if (s_comCallWatch.begins)
        s_comCallWatch.begins();
    try {
        return end(call(), nullptr);
    } catch (const std::bad_alloc&) {
        return end(E_OUTOFMEMORY, nullptr);
    } catch (const std::exception& error) {
        return end(E_FAIL, error.what());
    } catch (...) {
        return end(E_FAIL, nullptr);
    }
}

/// Gives a failure that needs no guard.
inline HRESULT ComFailure(HRESULT result) noexcept
{
    return ComGuard([result] { return result; });
}
