// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/MediaDescriber.h"

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QSet>
#include <QThreadPool>

#include <deque>

/// Small pictures of media, made in a background thread: frames of films, stills, the envelope of
/// sounds.
class BinPictures : public QObject
{
    Q_OBJECT

public:
    explicit BinPictures(QObject* parent = nullptr);
    /// Waits for the picture that is being made.
    ~BinPictures() override;

    /// Pictures fit into this many pixels; the shape is that of the media. Another one forgets all.
    void SetRoom(const QSize& room);
    /// Frame \a frame of \a media, counted from the file's first one; null when it is not at hand.
    /// It is made then, and Made() tells; what was asked for last comes first. Of what is
    /// \a passing, under a pointer that moves, only the newest waits.
    QImage Picture(const MediaDescription& media, int frame, bool isPassing = false);

Q_SIGNALS:
    void Made(const QString& path);

private:
    struct Wanted
    {
        MediaDescription media;
        int frame = 0;
        QSize room;
        bool isPassing = false;
    };
    struct Waiting
    {
        QMutex mutex; ///< guards what follows
        std::deque<Wanted> pictures;
    };

    static QString KeyOf(const QString& path, int frame);
    void Want(Wanted wanted);
    void MakeNext();
    void Take(const Wanted& wanted, const QImage& picture);

    QSize m_room;
    QCache<QString, QImage> m_made; ///< costs are kB; a null picture is one that cannot be made
    QSet<QString> m_asked;
    Waiting m_waiting;
    QThreadPool m_threads;
};
