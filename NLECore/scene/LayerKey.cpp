// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/LayerKey.h"

#include <QDateTime>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

namespace nle {

namespace {

const std::shared_ptr<const MediaInfo>& ShownMedia(const Layer& layer)
{
    return layer.proxy ? layer.proxy : layer.media;
}

/// Everything of a layer that its picture depends on, its media apart.
void AddSettings(ContentHash& hash, const Layer& layer)
{
    hash.Add(layer.kind).Add(layer.frameRate.num).Add(layer.frameRate.den).Add(layer.margin);
    hash.Add(layer.size.width).Add(layer.size.height).Add(layer.argb);
    hash.Add(layer.speed).Add(layer.frozenFrame.has_value()).Add(layer.frozenFrame.value_or(0));
    // What is switched off counts as what was never set.
    const BlendSettings blend = layer.blend.enabled ? layer.blend : BlendSettings();
    hash.Add(blend.mode).Add(blend.alpha);
    const TransformSettings transform =
        layer.transform.IsIdentity() ? TransformSettings() : layer.transform;
    hash.Add(transform.center.x).Add(transform.center.y).Add(transform.rotation);
    hash.Add(transform.scale.width).Add(transform.scale.height);
    layer.ForEachKeyFrameNumber([&hash](double number) { hash.Add(number); });
    if (layer.kind == LayerKind::Text) {
        const bool canDraw = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
        hash.Add(layer.text).Add(layer.family).Add(canDraw);
    }
}

} // namespace

bool HasPicture(const Layer& layer)
{
    if (layer.mode == NLERender_AudioOnly || NLERangeLength(layer.range) == 0)
        return false;
    switch (layer.kind) {
    case LayerKind::Media:
        return ShownMedia(layer)->videoStream >= 0;
    case LayerKind::Composite:
        return layer.argb >> 24 != 0 ||
               std::any_of(layer.children.begin(), layer.children.end(),
                           [](const Snapshot& child) { return HasPicture(*child); });
    case LayerKind::Color:
    case LayerKind::Text:
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
    AddSettings(hash, layer);
    if (layer.kind == LayerKind::Media)
        hash.Add(OfMedia(*ShownMedia(layer)));
    return m_layers[&layer] = hash.Result();
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
