// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/PropertyBag.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

HRESULT NoValue(const wchar_t* key)
{
    return Refuse(E_FAIL, NLEReason_NoValue, FromWide(key));
}

/// A value as \a Wanted, if it is one. Numbers stand for one another: as a whole one, what fits,
/// without its fraction.
template <typename Wanted>
std::optional<Wanted> ValueAs(const PropertyBag::Value& value)
{
    if (const Wanted* exact = std::get_if<Wanted>(&value))
        return *exact;
    if constexpr (std::is_same_v<Wanted, int>) {
        const double* number = std::get_if<double>(&value);
        if (number && std::abs(*number) < 2147483648.0)
            return int(*number);
    } else if constexpr (std::is_same_v<Wanted, double>) {
        if (const int* whole = std::get_if<int>(&value))
            return *whole;
    }
    return std::nullopt;
}

} // namespace

HRESULT CopyText(const std::wstring& text, wchar_t* buffer, int capacity)
{
    if (!buffer)
        return Refuse(E_POINTER);
    if (capacity < 1)
        return Refuse(E_INVALIDARG);
    const size_t length = std::min(text.size(), size_t(capacity) - 1);
    std::copy_n(text.data(), length, buffer);
    buffer[length] = L'\0';
    return S_OK;
}

PropertyBag* PropertyBag::From(IUnknown* object)
{
    void* bag = nullptr;
    if (!object || FAILED(object->QueryInterface(kBagId, &bag)))
        return nullptr;
    auto* result = static_cast<PropertyBag*>(bag);
    result->Release();
    return result;
}

HRESULT PropertyBag::QueryInterface(REFIID iid, void** out)
{
    if (!out || iid != kBagId)
        return ComObject::QueryInterface(iid, out);
    *out = this;
    AddRef();
    return S_OK;
}

HRESULT PropertyBag::GetInt(const wchar_t* key, int* value)
{
    return Give(key, value);
}

HRESULT PropertyBag::GetDouble(const wchar_t* key, double* value)
{
    return Give(key, value);
}

HRESULT PropertyBag::GetRational(const wchar_t* key, NLERational* value)
{
    return Give(key, value);
}

HRESULT PropertyBag::GetString(const wchar_t* key, wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        const auto found = Find(key);
        const Text* text = found ? std::get_if<Text>(&*found) : nullptr;
        return text ? CopyText(**text, buffer, capacity) : NoValue(key);
    });
}

HRESULT PropertyBag::SetString(const wchar_t* key, const wchar_t* value)
{
    return ComGuard([&] {
        return value ? Store(key, std::make_shared<const std::wstring>(value)) : Refuse(E_POINTER);
    });
}

std::optional<PropertyBag::Value> PropertyBag::Exchange(const std::wstring& key,
                                                        std::optional<Value> value)
{
    std::optional<Value> old;
    const auto found = m_values.find(key);
    if (found != m_values.end())
        old = found->second;
    if (value)
        m_values.insert_or_assign(key, std::move(*value));
    else if (old)
        m_values.erase(found);
    return old;
}

int PropertyBag::IntOr(const wchar_t* key, int preset) const
{
    const auto found = Find(key);
    const int* number = found ? std::get_if<int>(&*found) : nullptr;
    return number ? *number : preset;
}

QString PropertyBag::TextOrEmpty(const wchar_t* key) const
{
    const auto found = Find(key);
    const Text* text = found ? std::get_if<Text>(&*found) : nullptr;
    return text ? FromWide(**text) : QString();
}

std::vector<int> PropertyBag::NumbersIn(const wchar_t* key) const
{
    std::vector<int> numbers;
    for (const QString& word : TextOrEmpty(key).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        numbers.push_back(word.toInt());
    return numbers;
}

std::optional<PropertyBag::Value> PropertyBag::ValueOf(const std::vector<int>& numbers)
{
    if (numbers.empty())
        return std::nullopt;
    QStringList words;
    for (const int number : numbers)
        words << QString::number(number);
    return std::make_shared<const std::wstring>(words.join(QLatin1Char(' ')).toStdWString());
}

std::optional<PropertyBag::Value> PropertyBag::Read(std::wstring_view key) const
{
    const auto found = m_values.find(key);
    if (found == m_values.end())
        return std::nullopt;
    return found->second;
}

HRESULT PropertyBag::Write(std::wstring_view key, Value value)
{
    m_values.insert_or_assign(std::wstring(key), std::move(value));
    return S_OK;
}

template <typename Wanted>
HRESULT PropertyBag::Give(const wchar_t* key, Wanted* value) const
{
    return ComGuard([&] {
        if (!value)
            return Refuse(E_POINTER);
        const auto found = Find(key);
        const auto wanted = found ? ValueAs<Wanted>(*found) : std::nullopt;
        return wanted ? GiveValue(value, *wanted) : NoValue(key);
    });
}

HRESULT PropertyBag::Store(const wchar_t* key, Value value)
{
    return ComGuard([&] { return key ? Write(key, std::move(value)) : Refuse(E_POINTER); });
}

std::optional<PropertyBag::Value> PropertyBag::Find(const wchar_t* key) const
{
    return key ? Read(key) : std::nullopt;
}

} // namespace nle
