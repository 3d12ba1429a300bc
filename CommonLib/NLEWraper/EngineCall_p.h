// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "Com/WideText.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/NLECommon.h"

#include <cmath>
#include <cstdint>
#include <limits>

/// Calls an \a operation that delivers a new reference through its last parameter. Null when
/// \a engine is null and when the operation fails.
template <typename Result, typename Interface, typename Operation, typename... Arguments>
NLEComPtr<Result> EngineObject(Interface* engine, Operation operation,
                               const Arguments&... arguments)
{
    NLEComPtr<Result> result;
    // A failed call hands no reference over, whatever it left in the out-parameter.
    if (engine && FAILED((engine->*operation)(arguments..., result.put())))
        result.forget();
    return result;
}

/// A facility of \a node; null when \a node is null and when it lacks the facility.
template <typename Facility>
NLEComPtr<Facility> LookUp(INLETimeline* node)
{
    NLEComPtr<Facility> result;
    if (node && FAILED(node->GetInterface(InterfaceId<Facility>(), result.putVoid(), 0, 0)))
        result.forget();
    return result;
}

/// Calls an \a operation that writes a value through its last parameter. \a preset when
/// \a engine is null and when the operation leaves it untouched, as one that fails does.
template <typename Value, typename Interface, typename Operation, typename... Arguments>
Value EngineValue(Value preset, Interface* engine, Operation operation,
                  const Arguments&... arguments)
{
    if (engine)
        (engine->*operation)(arguments..., &preset);
    return preset;
}

/// Calls a setter and ignores its result; does nothing when \a engine is null.
template <typename Interface, typename Operation, typename... Arguments>
void EngineSet(Interface* engine, Operation operation, const Arguments&... arguments)
{
    if (engine)
        (engine->*operation)(arguments...);
}

/// Calls an \a operation that writes text of at most \a Capacity characters into a buffer.
/// \a preset (a single character, or 0 for none) when \a engine is null and when it writes nothing.
template <int Capacity, typename Interface, typename Operation, typename... Arguments>
QString EngineText(wchar_t preset, Interface* engine, Operation operation,
                   const Arguments&... arguments)
{
    wchar_t buffer[Capacity + 1] = {preset}; // one more: ends a text that fills the capacity
    if (engine)
        (engine->*operation)(arguments..., buffer, Capacity);
    return FromWide(buffer);
}

/// The nearest number of the type \a Integer, towards zero; 0 for what is not finite.
template <typename Integer>
Integer ToInteger(double value)
{
    using Limits = std::numeric_limits<Integer>;
    if (!std::isfinite(value))
        return 0;
    // A 64-bit limit rounds up to a double that lies outside, hence the equality.
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    return static_cast<Integer>(value);
}

/// As NLECommon::ToDouble(), in the library's precision.
inline float RationalToFloat(const NLERational& value)
{
    return static_cast<float>(NLECommon::ToDouble(value));
}
