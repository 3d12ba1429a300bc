// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/BinEntries.h"
#include "Host/Editor/Bin/MediaDescriber.h"
#include "Host/Editor/Bin/ProxyJobs.h"

#include <QAbstractListModel>

class MediaBin;

/// A file of the bin as it shows.
struct BinItem
{
    MediaDescription media;
    BinEntry entry;
    int uses = 0;          ///< clips that play it
    int proxyPercent = -1; ///< of the proxy that is being made; -1 when none is

    /// The file's name.
    QString Name() const;
    /// What the media is in a line, or why it is not there.
    QString Summary() const;
    /// Its size, where there is no room for the summary.
    QString Brief() const;
    /// Summary, streams, proxy and use, one a line.
    QStringList Details() const;
    /// Frames that have a picture, at least 1 where there is any; 0 while nothing is known.
    int Frames() const;
    /// Frames a second; 25 while nothing is known.
    double Rate() const;
    bool IsOffline() const { return media.state == MediaDescription::State::Offline; }
    /// Whether a proxy can be made of it.
    bool IsFilm() const;
};
Q_DECLARE_METATYPE(BinItem)

/// The media of a bin as a list, in the order in which they came.
class BinModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        ItemRole = Qt::UserRole, ///< a BinItem
        PathRole,                ///< text
        SearchRole               ///< all that is known of it, as text
    };
    /// In and out point of a file that is dragged: two decimal numbers with a blank between them,
    /// both inclusive, in frames of the file at its own rate.
    static constexpr char kRangeType[] = "application/x-commonlib-range";

    /// All outlive the model. \a describer describes for this model alone.
    BinModel(MediaBin& bin, MediaDescriber& describer, ProxyJobs& proxies,
             QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    const QVector<BinItem>& Items() const { return m_items; }
    /// An item of presets for a file that is not here.
    BinItem Item(const QString& path) const;

public Q_SLOTS:
    /// Looks which files are there that were not, and the other way round.
    void LookAgain();

Q_SIGNALS:
    /// Files and folders were dropped.
    void Dropped(const QStringList& paths);

private:
    void TakeFiles();
    void TakeDescription(const MediaDescription& description);
    void TakeProgress(const QString& file);
    int RowOf(const QString& path) const;
    void Tell(int row);

    MediaBin& m_bin;
    MediaDescriber& m_describer;
    ProxyJobs& m_proxies;
    QVector<BinItem> m_items;
};
