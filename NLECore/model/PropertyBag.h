// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEProperties.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace nle {

/// Copies \a text into a caller's buffer, cut to \a capacity characters with the terminating zero.
HRESULT CopyText(const std::wstring& text, wchar_t* buffer, int capacity);

/// Property bag over a sorted map. A subclass may answer some keys from elsewhere.
class PropertyBag : public ComObject<INLEProperties>
{
public:
    /// Shared, as copying a variant must not fail: libstdc++ ends in undefined behaviour then.
    using Text = std::shared_ptr<const std::wstring>;
    using Value = std::variant<int, double, NLERational, Text>;
    using Values = std::map<std::wstring, Value, std::less<>>;

    /// Identifier under which a bag of this engine tells its class.
    static constexpr _GUID kBagId = {
        0x6C1B7F04, 0x9A3E, 0x4D52, {0x8E, 0x61, 0x2F, 0x90, 0x37, 0xC4, 0xD8, 0x1B}};
    /// The bag behind an engine interface, not a new reference; null for another engine's object.
    static PropertyBag* From(IUnknown* object);

    HRESULT QueryInterface(REFIID iid, void** out) override;

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
    /// Sets a plain value, or takes it out, and gives what was there. Live keys are none.
    std::optional<Value> Exchange(const std::wstring& key, std::optional<Value> value);
    /// The integer under \a key, or \a preset.
    int IntOr(const wchar_t* key, int preset) const;
    /// The text under \a key; empty when there is none.
    QString TextOrEmpty(const wchar_t* key) const;
    /// The whole numbers in the text under \a key, as ValueOf() has them; 0 for what is none.
    std::vector<int> NumbersIn(const wchar_t* key) const;
    /// Numbers as a text, with blanks between them; nothing for none.
    static std::optional<Value> ValueOf(const std::vector<int>& numbers);

protected:
    /// Value under \a key, if there is one.
    virtual std::optional<Value> Read(std::wstring_view key) const;
    virtual HRESULT Write(std::wstring_view key, Value value);

private:
    template <typename Wanted>
    HRESULT Give(const wchar_t* key, Wanted* value) const;
    HRESULT Store(const wchar_t* key, Value value);
    std::optional<Value> Find(const wchar_t* key) const;

    Values m_values;
};

} // namespace nle
