// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/ComObject.h"
#include "EngineApi/INLEProperties.h"

#include <map>
#include <optional>
#include <string>
#include <variant>

namespace nle {

/// Copies \a text into a caller's buffer, cut to \a capacity characters with the terminating zero.
HRESULT CopyText(const std::wstring& text, wchar_t* buffer, int capacity);

/// Property bag over a sorted map. A subclass may answer some keys from elsewhere.
class PropertyBag : public ComObject<INLEProperties>
{
public:
    using Value = std::variant<int, double, NLERational, std::wstring>;
    using Values = std::map<std::wstring, Value>;

    HRESULT GetInt(const wchar_t* key, int* value) override;
    HRESULT SetInt(const wchar_t* key, int value) override { return Store(key, value); }
    HRESULT GetDouble(const wchar_t* key, double* value) override;
    HRESULT SetDouble(const wchar_t* key, double value) override { return Store(key, value); }
    HRESULT GetRational(const wchar_t* key, NLERational* value) override;
    HRESULT SetRational(const wchar_t* key, NLERational value) override
    {
        return Store(key, value);
    }
    HRESULT GetString(const wchar_t* key, wchar_t* buffer, int capacity) override;
    HRESULT SetString(const wchar_t* key, const wchar_t* value) override;

    const Values& All() const { return m_values; }
    void SetAll(const Values& values) { m_values = values; }
    /// The integer under \a key, or \a preset.
    int IntOr(const wchar_t* key, int preset) const;

protected:
    /// Value under \a key, if there is one.
    virtual std::optional<Value> Read(const std::wstring& key) const;
    virtual HRESULT Write(const std::wstring& key, Value value);

private:
    HRESULT Store(const wchar_t* key, Value value);
    std::optional<Value> Find(const wchar_t* key) const;

    Values m_values;
};

} // namespace nle
