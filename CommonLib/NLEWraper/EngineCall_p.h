// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Not part of the library's interface.

#include "EngineApi/NLEComPtr.h"
#include "EngineApi/NLETypes.h"

#include <cmath>

/// Calls an \a operation that delivers a new reference through its last parameter. Null when
/// \a engine is null and when the operation fails.
template <typename Result, typename Interface, typename Operation, typename... Arguments>
NLEComPtr<Result> EngineObject(Interface* engine, Operation operation,
                               const Arguments&... arguments)
{
    NLEComPtr<Result> result;
    // A failed call hands no reference over, whatever it left in the out-parameter.
    if (engine && FAILED((engine->*operation)(arguments..., result.put())))
        result.detach();
    return result;
}

/// Frames a second as the engine carries them: millionths.
inline NLERational RateToRational(double rate)
{
    constexpr std::int64_t Millionths = 1000000;
    return {static_cast<std::int64_t>(std::trunc(rate * Millionths + 0.5)), Millionths};
}

/// The fraction's value; 0 when the denominator is 0.
inline float RationalToFloat(const NLERational& value)
{
    if (value.den == 0)
        return 0;
    return static_cast<float>(static_cast<double>(value.num) / static_cast<double>(value.den));
}
