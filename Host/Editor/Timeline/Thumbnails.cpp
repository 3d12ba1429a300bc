// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/Thumbnails.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"

namespace {

constexpr int kMostKept = 96 * 1024; ///< KiB
constexpr std::size_t kMostWaiting = 256;

/// Reads a picture and scales it; null when it cannot be read.
QImage Extract(INLEThumbnailExtractor& extractor, const ClipMedia& media, int frame,
               const QSize& size)
{
    NLEComPtr<INLEPicture> picture;
    int width = 0;
    int height = 0;
    const std::uint8_t* pixels = nullptr;
    if (FAILED(extractor.SetSource(media.info.get(), media.picture)) ||
        FAILED(extractor.Extract(frame, {size.width(), size.height()}, picture.put())) ||
        !picture || FAILED(picture->GetWidth(&width)) || FAILED(picture->GetHeight(&height)) ||
        FAILED(picture->GetData(&pixels)) || !pixels)
        return {};
    const QImage image(pixels, width, height, QImage::Format_ARGB32);
    // As windows are painted, so that drawing it is copying it.
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .copy();
}

} // namespace

Thumbnails::Thumbnails(QObject* parent)
    : QObject(parent)
    , m_extractor(EngineProvider().CreateThumbnailExtractor())
    , m_kept(kMostKept)
    , m_worker(std::make_unique<NewestFirst<MediaKey>>(kMostWaiting))
{
}

Thumbnails::~Thumbnails() = default;

MediaKey Thumbnails::KeyOf(const ClipMedia& media, int frame, const QSize& size)
{
    return {media.path, media.picture, size.height(), frame};
}

const QImage* Thumbnails::Find(const ClipMedia& media, int frame, const QSize& size)
{
    const MediaKey key = KeyOf(media, frame, size);
    const QImage* picture = m_kept.object(key);
    if (!picture && m_extractor && !m_asked.contains(key))
        Ask(key, media, size);
    return picture && !picture->isNull() ? picture : nullptr;
}

const QImage* Thumbnails::Kept(const ClipMedia& media, int frame, const QSize& size) const
{
    const QImage* picture = m_kept.object(KeyOf(media, frame, size));
    return picture && !picture->isNull() ? picture : nullptr;
}

void Thumbnails::Ask(const MediaKey& key, const ClipMedia& media, const QSize& size)
{
    m_asked.insert(key);
    const auto job = [this, key, media, size](const std::atomic<bool>&) {
        const QImage picture = Extract(*m_extractor, media, key.index, size);
        QMetaObject::invokeMethod(
            this, [this, key, picture] { Keep(key, picture); }, Qt::QueuedConnection);
    };
    if (const auto dropped = m_worker->Post(key, job))
        m_asked.remove(*dropped);
}

void Thumbnails::Keep(const MediaKey& key, const QImage& picture)
{
    m_asked.remove(key);
    m_kept.insert(key, new QImage(picture), static_cast<int>(picture.sizeInBytes() / 1024) + 1);
    if (!picture.isNull())
        Q_EMIT Ready();
}
