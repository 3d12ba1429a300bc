// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ContentHash.h"
#include "NLECore/scene/Layer.h"

namespace nle {

/// Adds the fields of \a settings that pictures depend on.
template <typename Settings>
void AddFields(ContentHash& hash, const Settings& settings);

template <typename Value>
std::enable_if_t<std::is_arithmetic_v<Value> || std::is_enum_v<Value>> AddValue(ContentHash& hash,
                                                                                Value value)
{
    hash.Add(value);
}
inline void AddValue(ContentHash& hash, const NLERational& value)
{
    hash.Add(value.num).Add(value.den);
}
inline void AddValue(ContentHash& hash, const NLESize& value)
{
    hash.Add(value.width).Add(value.height);
}
inline void AddValue(ContentHash& hash, const NLEPointF& value)
{
    hash.Add(value.x).Add(value.y);
}
inline void AddValue(ContentHash& hash, const NLESizeF& value)
{
    hash.Add(value.width).Add(value.height);
}
inline void AddValue(ContentHash& hash, const QString& value)
{
    hash.Add(value);
}
inline void AddValue(ContentHash& hash, const std::optional<int>& value)
{
    hash.Add(value.has_value()).Add(value.value_or(0));
}
// What is switched off counts as what was never set.
inline void AddValue(ContentHash& hash, const BlendSettings& blend)
{
    AddFields(hash, blend.enabled ? blend : BlendSettings());
}
inline void AddValue(ContentHash& hash, const TransformSettings& transform)
{
    AddFields(hash, transform.IsIdentity() ? TransformSettings() : transform);
}
inline void AddValue(ContentHash& hash, const SourceSettings& source)
{
    AddFields(hash, source);
}
inline void AddValue(ContentHash& hash, const std::shared_ptr<const KeyFrameCurve>& curve)
{
    hash.Add(curve != nullptr);
    if (curve)
        curve->ForEachNumber([&hash](double number) { hash.Add(number); });
}

template <typename Settings>
std::enable_if_t<kFieldCount<Settings> != 0> AddValue(ContentHash& hash, const Settings& settings)
{
    AddFields(hash, settings);
}

template <typename Settings>
void AddFields(ContentHash& hash, const Settings& settings)
{
    ForEachField<Settings>([&](const auto& field) {
        if constexpr (std::decay_t<decltype(field)>::kShows)
            AddValue(hash, settings.*field.member);
    });
}

} // namespace nle
