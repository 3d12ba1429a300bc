// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/EncodePresets.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/NLEKey.h"
#include "Host/EngineText.h"

QVector<EncodePresets::Preset> EncodePresets::All(const NLEComPtr<INLEMediaEncoder>& encoder)
{
    QVector<Preset> presets;
    const auto catalog = encoder.query<INLEEncodeCatalog>();
    int count = 0;
    if (!catalog || catalog->GetPresetCount(&count) != S_OK)
        return presets;
    for (int index = 0; index < count; ++index) {
        const QString name = EngineText([&](wchar_t* text, int capacity) {
            return catalog->GetPresetName(index, text, capacity);
        });
        const QString title = EngineText([&](wchar_t* text, int capacity) {
            return catalog->GetPresetTitle(index, text, capacity);
        });
        if (!name.isEmpty())
            presets.append({name, title.isEmpty() ? name : title});
    }
    return presets;
}

NLEComPtr<INLEProperties> EncodePresets::Settings(PlayerMaterProvider& provider,
                                                  const NLEComPtr<INLEMediaEncoder>& encoder,
                                                  const QString& name)
{
    const auto catalog = encoder.query<INLEEncodeCatalog>();
    NLEComPtr<INLEProperties> settings = provider.CreateNLEProperties();
    if (catalog && settings &&
        catalog->GetPreset(name.toStdWString().c_str(), settings.get()) == S_OK)
        return settings;
    return {};
}

QString EncodePresets::Suffix(const NLEComPtr<INLEMediaEncoder>& encoder,
                              const NLEComPtr<INLEProperties>& settings)
{
    const auto catalog = encoder.query<INLEEncodeCatalog>();
    const QString wanted = EngineText([&](wchar_t* text, int capacity) {
        return settings->GetString(NLEKey::Encode::kContainer, text, capacity);
    });
    int count = 0;
    if (!catalog || catalog->GetContainerCount(&count) != S_OK)
        return {};
    for (int index = 0; index < count; ++index) {
        NLEContainerInfo container = {};
        if (catalog->GetContainer(index, &container) == S_OK &&
            wanted == QLatin1String(container.name))
            return QString::fromLatin1(container.suffixes).section(',', 0, 0);
    }
    return {};
}
