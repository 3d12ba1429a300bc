// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLECommon.h"

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

/// Settings structs list their fields once, beside the struct, as a specialisation of kFields. What
/// has to know every field follows from that list: comparison, cache keys, documents, the ranges
/// that setters accept. A struct with a field that is not listed does not compile.
namespace nle {

/// Whether a field decides about pictures; then it counts in the keys of the preview cache.
struct Shows
{
    static constexpr std::false_type kNo = {};
    static constexpr std::true_type kYes = {};
};

namespace FieldDetail {

/// The number that a field's range is given in: that of a plain field, else that of its parts.
template <typename Value, typename = void>
struct RangeOf
{
    using Number = double;
};
template <typename Value>
struct RangeOf<Value, std::enable_if_t<std::is_arithmetic_v<Value>>>
{
    using Number = Value;
};
template <typename Value>
struct RangeOf<Value, std::enable_if_t<std::is_enum_v<Value>>>
{
    using Number = std::underlying_type_t<Value>;
};

} // namespace FieldDetail

/// One field of a settings struct.
template <typename Settings, typename Type, typename IsShown>
struct Field
{
    static constexpr bool kShows = IsShown::value;
    using Value = Type;
    using Number = typename FieldDetail::RangeOf<Type>::Number;

    Type Settings::*member;
    /// Name of the document property that holds it, together with the fields beside it that have
    /// the same name; null when documents do not hold it.
    const char* property;
    IsShown shows;
    /// What is accepted, both inclusive; numbers that are not finite never are.
    Number lowest = std::numeric_limits<Number>::lowest();
    Number highest = std::numeric_limits<Number>::max();
};
template <typename Settings, typename Type, typename IsShown, typename... Range>
Field(Type Settings::*, const char*, IsShown, Range...) -> Field<Settings, Type, IsShown>;

/// The fields of \a Settings, in the order of documents.
template <typename Settings>
inline constexpr std::tuple<> kFields;

/// How many fields \a Settings lists; none for what is no settings struct.
template <typename Settings>
inline constexpr std::size_t kFieldCount =
    std::tuple_size_v<std::remove_const_t<decltype(kFields<Settings>)>>;

/// Gives each field of \a Settings to \a visit, in order.
template <typename Settings, typename Visit>
constexpr void ForEachField(Visit&& visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, kFields<Settings>);
}

namespace FieldDetail {

/// Stands for a value of any type where a struct's fields are counted.
struct Anything
{
    template <typename T>
    operator T() const;
};

template <typename Settings, typename... Values>
constexpr std::size_t CountFields(...)
{
    return sizeof...(Values) - 1;
}
template <typename Settings, typename... Values,
          typename = decltype(Settings{std::declval<Values>()...})>
constexpr std::size_t CountFields(int)
{
    return CountFields<Settings, Values..., Anything>(0);
}

} // namespace FieldDetail

/// Whether kFields names as many fields as \a Settings has. For plain structs.
template <typename Settings>
inline constexpr bool kListsAllFields = kFieldCount<Settings> ==
                                        FieldDetail::CountFields<Settings>(0);

template <typename T>
std::enable_if_t<!std::is_floating_point_v<T>, bool> IsFinite(const T& /*value*/)
{
    return true;
}
inline bool IsFinite(double value)
{
    return std::isfinite(value);
}

/// Whether \a value lies from \a lowest to \a highest, in all of its parts; what has no numbers
/// does.
template <typename Value, typename Number>
bool IsWithin(const Value& value, Number lowest, Number highest)
{
    if constexpr (std::is_enum_v<Value>)
        return IsWithin(Number(value), lowest, highest);
    else if constexpr (std::is_arithmetic_v<Value>)
        return IsFinite(value) && value >= lowest && value <= highest;
    else
        return true;
}
inline bool IsWithin(const NLEPointF& value, double lowest, double highest)
{
    return IsWithin(value.x, lowest, highest) && IsWithin(value.y, lowest, highest);
}
inline bool IsWithin(const NLESizeF& value, double lowest, double highest)
{
    return IsWithin(value.width, lowest, highest) && IsWithin(value.height, lowest, highest);
}
inline bool IsWithin(const NLERational& value, double lowest, double highest)
{
    return value.den > 0 && IsWithin(NLECommon::ToDouble(value), lowest, highest);
}
template <std::size_t Count>
bool IsWithin(const std::array<double, Count>& values, double lowest, double highest)
{
    for (const double value : values) {
        if (!IsWithin(value, lowest, highest))
            return false;
    }
    return true;
}

/// Whether every field of \a settings is one that is accepted.
template <typename Settings>
bool IsValid(const Settings& settings)
{
    bool isValid = true;
    ForEachField<Settings>([&](const auto& field) {
        isValid = isValid && IsWithin(settings.*field.member, field.lowest, field.highest);
    });
    return isValid;
}

/// Sets a field when \a value is one that it accepts. \a Member is the field's member pointer.
template <auto Member, typename Settings, typename Value>
bool SetField(Settings& settings, const Value& value)
{
    bool isSet = false;
    ForEachField<Settings>([&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_const_t<decltype(field.member)>,
                                     std::remove_const_t<decltype(Member)>>) {
            if (field.member != Member || !IsWithin(value, field.lowest, field.highest))
                return;
            settings.*Member = value;
            isSet = true;
        }
    });
    return isSet;
}

inline bool IsSame(const NLEPointF& a, const NLEPointF& b)
{
    return a.x == b.x && a.y == b.y;
}
inline bool IsSame(const NLESizeF& a, const NLESizeF& b)
{
    return a.width == b.width && a.height == b.height;
}
inline bool IsSame(const NLERational& a, const NLERational& b)
{
    return a.num == b.num && a.den == b.den;
}
inline bool IsSame(const std::optional<NLERange>& a, const std::optional<NLERange>& b)
{
    return a.has_value() == b.has_value() && (!a || (a->in == b->in && a->out == b->out));
}
template <typename Value>
bool IsSame(const Value& a, const Value& b)
{
    if constexpr (kFieldCount < Value >> 0) {
        bool same = true;
        ForEachField<Value>(
            [&](const auto& field) { same = same && IsSame(a.*field.member, b.*field.member); });
        return same;
    } else {
        return a == b;
    }
}

} // namespace nle
