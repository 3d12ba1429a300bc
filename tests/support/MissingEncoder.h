// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"

#include <QHash>

/// What tests say that do not run for lack of an encoder.
inline QString NoEncoderOf(const QString& codec)
{
    return "the engine's FFmpeg has no encoder of " + codec;
}

/// Of which encoder of another project the lack keeps this engine from writing a suffix; empty when
/// it does not.
inline QString MissingEncoder(PlayerMaterProvider& provider, const QString& suffix)
{
    const QHash<QString, QString> codecs = {
        {"mp3", "MP3"}, {"ogv", "Theora"}, {"opus", "Opus"}, {"swf", "MP3"}, {"webm", "VP9"}};
    const auto catalog = provider.CreateMediaEncoder().query<INLEEncodeCatalog>();
    const QString needed = suffix == "swf" ? "mp3" : suffix; // for its sound
    NLEContainerInfo container;
    for (int index = 0; catalog->GetContainer(index, &container) == S_OK; ++index) {
        if (needed == container.name)
            return {};
    }
    return codecs.value(suffix);
}
