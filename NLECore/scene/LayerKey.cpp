// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/LayerKey.h"

#include "Com/WideText.h"
#include "NLECore/scene/FieldKeys.h"
#include "NLECore/scene/SourceChoice.h"
#include "NLECore/scene/Title.h"

#include <QDateTime>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

namespace nle {

bool HasPicture(const Layer& layer)
{
    if (layer.mode == NLERender_AudioOnly || NLERangeLength(layer.range) == 0)
        return false;
    switch (layer.kind) {
    case LayerKind::Media:
        return layer.ShownMedia()->videoStream >= 0;
    case LayerKind::Composite:
        return layer.argb >> 24 != 0 ||
               std::any_of(layer.children.begin(), layer.children.end(),
                           [](const Snapshot& child) { return HasPicture(*child); });
    case LayerKind::Color:
    case LayerKind::Text:
    case LayerKind::Title:
        break;
    }
    return true;
}

ContentKey LayerKeys::Of(const Layer& layer)
{
    const auto known = m_layers.find(&layer);
    if (known != m_layers.end())
        return known->second;
    ContentHash hash;
    ForEachField<Layer>([&](const auto& field) {
        if constexpr (std::decay_t<decltype(field)>::kShows)
            AddField(hash, layer, layer.*field.member);
    });
    if (layer.kind == LayerKind::Text || layer.kind == LayerKind::Title) {
        const bool canDraw = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
        hash.Add(canDraw);
    }
    return m_layers[&layer] = hash.Result();
}

bool LayerKeys::CountsFrames(const Layer& layer)
{
    return layer.kind != LayerKind::Title || layer.keyFrames;
}

// Of media and proxy only the one that shows counts.
template <typename Value>
void LayerKeys::AddField(ContentHash& hash, const Layer& layer, const Value& value)
{
    if constexpr (std::is_same_v<Value, std::shared_ptr<const MediaInfo>>) {
        if (value && &value == &layer.ShownMedia()) {
            const NLERational rate = ShownStreamOf(layer).frameRate;
            hash.Add(OfMedia(*value)).Add(rate.num).Add(rate.den);
        }
    } else if constexpr (std::is_same_v<Value, std::vector<SharedParameters>>) {
        for (const SharedParameters& values : value)
            AddParameters(hash, *values);
    } else {
        AddValue(hash, value);
    }
}

void LayerKeys::AddParameters(ContentHash& hash, const ParameterValues& values)
{
    hash.Add(QString::fromLatin1(values.Declared().names.name));
    int index = 0;
    for (const ParameterRow& row : values.Declared().parameters) {
        const QString text = FromWide(values.Text(index));
        const bool isAnimated = !values.Keys(index).empty();
        hash.Add(isAnimated).Add(isAnimated ? 0 : values.Number(index)).Add(text);
        if (row.kind == NLEParameter_File && !text.isEmpty())
            hash.Add(OfFile(text));
        ++index;
    }
}

void LayerKeys::AddParameterFrames(ContentHash& hash, const ParameterValues& values,
                                   std::int64_t first, std::int64_t last)
{
    for (int index = 0; index < int(values.Declared().parameters.size()); ++index) {
        if (values.Keys(index).empty())
            continue;
        for (std::int64_t frame = first; frame <= last; ++frame)
            hash.Add(values.NumberAtFrame(index, double(frame)));
    }
}

void LayerKeys::AddFrames(ContentHash& hash, const Layer& layer, std::int64_t first,
                          std::int64_t last)
{
    for (const SharedParameters& values : layer.effects)
        AddParameterFrames(hash, *values, first, last);
    if (layer.kind == LayerKind::Title)
        AddMoments(hash, layer, first, last);
}

void LayerKeys::AddMoments(ContentHash& hash, const Layer& layer, std::int64_t first,
                           std::int64_t last)
{
    ContentKey before;
    const std::int64_t end = IsStill(layer) ? first : last;
    for (std::int64_t frame = first; frame <= end; ++frame) {
        ContentHash moment;
        AddFields(moment, MomentOf(layer, frame));
        const ContentKey now = moment.Result();
        if (frame == first || now != before)
            hash.Add(frame - first).Add(now);
        before = now;
    }
}

ContentKey LayerKeys::OfMedia(const MediaInfo& media)
{
    const auto known = m_media.find(&media);
    if (known != m_media.end())
        return known->second;
    ContentHash hash;
    hash.Add(media.path).Add(media.stamp.size).Add(media.stamp.modifiedNs).Add(media.videoStream);
    return m_media[&media] = hash.Add(OfFile(media.path)).Result();
}

ContentKey LayerKeys::OfFile(const QString& path)
{
    const auto known = m_files.find(path);
    if (known != m_files.end())
        return known->second;
    const QFileInfo file(path);
    const bool isThere = file.isFile();
    ContentHash hash;
    hash.Add(isThere ? file.size() : qint64(-1));
    hash.Add(isThere ? file.lastModified().toMSecsSinceEpoch() : qint64(0));
    return m_files[path] = hash.Result();
}

} // namespace nle
