// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/SystemConfig.h"

#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/WholeFile.h"
#include "NLECore/media/WorkThreads.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/render/CacheDefaults.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <utility>

namespace nle {

namespace {

namespace Key = NLEKey::System;

constexpr std::int64_t kMebibyte = 1 << 20;
constexpr int kMostMebibytes = 65536;
constexpr int kMostThreads = 64;
/// MiB of a disk.
constexpr int kMostOnDisk = INT32_MAX;
/// Bytes of the largest file that is read.
constexpr std::int64_t kLargestFile = 1 << 20;

/// A number from 0 on; what counts is elsewhere.
struct NumberSetting
{
    const wchar_t* key;
    int highest;
    int (*get)();
    void (*set)(int value);
};

template <auto Member, typename Value>
void SetInDefaultCache(Value value)
{
    ChangeDefaultCache([&](CacheDefaults& defaults) { defaults.*Member = std::move(value); });
}

const NumberSetting kNumbers[] = {
    {Key::kHardwareDecoding, NLEHardware_All, [] { return int(HardwareDecoding()); },
     [](int value) { SetHardwareDecoding(NLEHardwareDecoding(value)); }},
    {Key::kDecodedPictures, kMostMebibytes,
     [] { return int(KeptPictures().MaxBytes() / kMebibyte); },
     [](int value) { KeptPictures().SetMaxBytes(value * kMebibyte); }},
    {Key::kThreads, kMostThreads, AllowedThreads, SetAllowedThreads},
    {Key::kCacheQuota, kMostOnDisk, [] { return DefaultCache().quota; },
     SetInDefaultCache<&CacheDefaults::quota>},
    {Key::kCacheReserve, kMostOnDisk, [] { return DefaultCache().reserve; },
     SetInDefaultCache<&CacheDefaults::reserve>}};

const NumberSetting* NumberOf(std::wstring_view key)
{
    for (const NumberSetting& setting : kNumbers) {
        if (key == setting.key)
            return &setting;
    }
    return nullptr;
}

HRESULT NotAccepted(std::wstring_view key)
{
    return Refuse(E_INVALIDARG, NLEReason_OutOfRange, FromWide(key));
}

/// Holds nothing itself: reads and writes what counts.
class SystemBag final : public PropertyBag
{
protected:
    std::optional<Value> Read(std::wstring_view key) const override
    {
        if (key == Key::kCacheFolder)
            return std::make_shared<const std::wstring>(ToWide(DefaultCache().folder));
        const NumberSetting* setting = NumberOf(key);
        return setting ? std::optional<Value>(setting->get()) : std::nullopt;
    }
    HRESULT Write(std::wstring_view key, Value value) override
    {
        const Text* text = std::get_if<Text>(&value);
        if (key == Key::kCacheFolder && text) {
            SetInDefaultCache<&CacheDefaults::folder>(FromWide(**text));
            return S_OK;
        }
        const NumberSetting* setting = NumberOf(key);
        const int* number = std::get_if<int>(&value);
        if (!setting || !number || *number < 0 || *number > setting->highest)
            return NotAccepted(key);
        setting->set(*number);
        return S_OK;
    }
};

QString Name(const wchar_t* key)
{
    return FromWide(key);
}

QJsonObject AllSettings()
{
    QJsonObject all;
    for (const NumberSetting& setting : kNumbers)
        all.insert(Name(setting.key), setting.get());
    all.insert(Name(Key::kCacheFolder), DefaultCache().folder);
    return all;
}

/// Null when all values are accepted, else the key of one that is not.
const wchar_t* Complaint(const QJsonObject& all)
{
    for (const NumberSetting& setting : kNumbers) {
        const QJsonValue value = all.value(Name(setting.key));
        const double number = value.toDouble(-1);
        const bool isWhole = number == std::floor(number);
        if (!value.isUndefined() && !(isWhole && number >= 0 && number <= setting.highest))
            return setting.key;
    }
    const QJsonValue folder = all.value(Name(Key::kCacheFolder));
    return folder.isUndefined() || folder.isString() ? nullptr : Key::kCacheFolder;
}

void TakeSettings(const QJsonObject& all)
{
    for (const NumberSetting& setting : kNumbers) {
        const QJsonValue value = all.value(Name(setting.key));
        if (!value.isUndefined())
            setting.set(value.toInt());
    }
    const QJsonValue folder = all.value(Name(Key::kCacheFolder));
    if (folder.isString())
        SetInDefaultCache<&CacheDefaults::folder>(folder.toString());
}

} // namespace

HRESULT SystemConfig::GetProperties(INLEProperties** properties)
{
    return GiveNew<SystemBag>(properties);
}

HRESULT SystemConfig::Save(const wchar_t* path)
{
    return ComGuard([&] {
        if (!path)
            return Refuse(E_POINTER);
        WholeFile file(Name(path));
        const bool isWritten = file.open(QIODevice::WriteOnly) &&
                               file.write(QJsonDocument(AllSettings()).toJson()) >= 0 &&
                               file.Commit();
        return isWritten ? S_OK : RefuseWriting(E_FAIL, Name(path), file);
    });
}

HRESULT SystemConfig::Load(const wchar_t* path)
{
    return ComGuard([&] {
        if (!path)
            return Refuse(E_POINTER);
        QFile file(Name(path));
        if (!file.exists())
            return Refuse(E_FAIL, NLEReason_FileMissing, Name(path));
        if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestFile)
            return Refuse(E_FAIL, NLEReason_FileUnreadable, Name(path));
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
        if (!document.isObject())
            return Refuse(E_FAIL, NLEReason_FileUnsupported, Name(path));
        if (const wchar_t* key = Complaint(document.object()))
            return NotAccepted(key);
        TakeSettings(document.object());
        return S_OK;
    });
}

} // namespace nle
