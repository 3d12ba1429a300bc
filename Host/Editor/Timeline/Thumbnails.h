// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFrames.h"
#include "Host/Editor/Timeline/ClipRow.h"
#include "Host/Editor/Timeline/MediaKey.h"
#include "Host/Editor/Timeline/NewestFirst.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>

/// Small pictures of media files, made on a thread of their own and kept as long as there is room.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit Thumbnails(QObject* parent = nullptr);
    ~Thumbnails() override;

    /// The picture of a file's frame, of \a size in device pixels; null when it is not there.
    /// Unless it cannot be read it is made then, and Ready() tells.
    const QImage* Find(const ClipMedia& media, int frame, const QSize& size);
    /// The picture if it is there; nothing is made.
    const QImage* Kept(const ClipMedia& media, int frame, const QSize& size) const;

Q_SIGNALS:
    /// A picture is there that was asked for.
    void Ready();

private:
    static MediaKey KeyOf(const ClipMedia& media, int frame, const QSize& size);
    void Ask(const MediaKey& key, const ClipMedia& media, const QSize& size);
    void Keep(const MediaKey& key, const QImage& picture);

    NLEComPtr<INLEThumbnailExtractor> m_extractor; ///< the thread's
    mutable QCache<MediaKey, QImage> m_kept;       ///< costs are KiB
    QSet<MediaKey> m_asked;
    std::unique_ptr<NewestFirst<MediaKey>> m_worker; ///< ends before what it works with
};
