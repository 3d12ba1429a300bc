// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/BinEntries.h"
#include "Host/Editor/Bin/ProjectClips.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class Project;

/// The media of the open project: what its clips use, and what was added and is not used yet.
///
/// What changes it is a step of the project. Such a call is false, and nothing has changed, when
/// there was nothing to do or the engine refused.
class MediaBin : public QObject
{
    Q_OBJECT

public:
    /// \a project outlives the bin.
    explicit MediaBin(Project& project, QObject* parent = nullptr);

    /// Paths, in the order in which they came.
    const QStringList& Files() const { return m_files; }
    /// What is kept of a file; an entry of presets for one that is only used.
    BinEntry Entry(const QString& file) const;
    /// Number of clips that play \a file.
    int Uses(const QString& file) const { return m_clips.value(file).size(); }

    /// Files that are there already are passed over.
    bool Add(const QStringList& files);
    /// Takes out those of \a files that no clip uses.
    bool Remove(const QStringList& files);
    /// Lets clips and bin have new files: new paths by old ones. Refused as a whole when the engine
    /// cannot read one of them.
    bool Relink(const QHash<QString, QString>& moved);
    /// Films stand for files, by which they are found, in all of their clips, those to come
    /// included; a file itself does again with an empty one. A step for all, and one for calls that
    /// follow each other with the same \a merge of NewMerge().
    bool UseProxies(const QHash<QString, QString>& films, int merge = 0);
    int NewMerge();
    /// Clips of \a file are made of these frames only, all of them for an empty range.
    bool Mark(const QString& file, const NLERange& marks);
    /// A clip of \a file in its marks; null when the engine cannot read it.
    NLEComPtr<INLETimeline> MakeClip(const QString& file) const;
    /// Puts a clip of \a file on the timeline at \a frame, on the lowest level with room for it.
    /// The clip; null when it was refused.
    NLEComPtr<INLETimeline> Place(const QString& file, int frame);
    /// Reads the media of the clips of \a file again, which has gone or is back.
    void Reload(const QString& file);

Q_SIGNALS:
    /// Files, entries or uses are other ones.
    void Changed();

private:
    void Collect();
    void TakeClips(const QVector<NLEComPtr<INLETimeline>>& clips);
    bool ChangeEntries(const QString& text, const BinEntries& entries);

    Project& m_project;
    QTimer m_collectTimer; ///< an edit and what follows from it are looked at once
    BinEntries m_entries;
    QHash<QString, int> m_places; ///< of the entries, by their files
    ClipsByFile m_clips;
    QStringList m_files;
};
