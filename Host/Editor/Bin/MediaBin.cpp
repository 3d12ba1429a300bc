// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/MediaBin.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEditing.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"

#include <algorithm>
#include <set>

namespace {

constexpr int kCollectDelay = 50; // ms
constexpr int kMostLevels = 100;

/// A clip and the files between which it is relinked.
struct Move
{
    NLEComPtr<INLETimeline> clip;
    QString before;
    QString now;
};

/// All or none.
bool RelinkAll(const QVector<Move>& moves)
{
    for (int i = 0; i < moves.size(); ++i) {
        if (RelinkClip(moves[i].clip, moves[i].now, false))
            continue;
        while (--i >= 0)
            RelinkClip(moves[i].clip, moves[i].before, true);
        return false;
    }
    return true;
}

bool UnlinkAll(const QVector<Move>& moves)
{
    bool isDone = true;
    for (const Move& move : moves)
        isDone = RelinkClip(move.clip, move.before, true) && isDone;
    return isDone;
}

/// Index of the entry of \a file; -1 when there is none.
int FindEntry(const BinEntries& entries, const QString& file)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const BinEntry& entry) { return entry.path == file; });
    return found == entries.end() ? -1 : int(found - entries.begin());
}

/// Two entries of one file are one.
BinEntries Renamed(const BinEntries& entries, const QHash<QString, QString>& moved)
{
    BinEntries result;
    for (BinEntry entry : entries) {
        entry.path = moved.value(entry.path, entry.path);
        if (FindEntry(result, entry.path) < 0)
            result.append(entry);
    }
    return result;
}

} // namespace

MediaBin::MediaBin(Project& project, QObject* parent) : QObject(parent), m_project(project)
{
    m_collectTimer.setSingleShot(true);
    m_collectTimer.setInterval(kCollectDelay);
    const auto collectSoon = [this] {
        if (!m_collectTimer.isActive())
            m_collectTimer.start();
    };
    connect(&m_collectTimer, &QTimer::timeout, this, &MediaBin::Collect);
    connect(&m_project, &Project::Replaced, this, &MediaBin::Collect);
    connect(&m_project, &Project::ClipsChanged, this, &MediaBin::TakeClips);
    connect(&m_project, &Project::ClipsChanged, this, collectSoon);
    connect(&m_project, &Project::NodeChanged, this,
            [this, collectSoon](const NLEComPtr<INLETimeline>& node) {
                node == m_project.Node() ? Collect() : collectSoon();
            });
    Collect();
}

void MediaBin::Collect()
{
    m_collectTimer.stop();
    if (!m_project.IsUsable())
        return;
    m_entries = ReadBinEntries(*m_project.Node());
    m_clips = FindClips(m_project.Node());
    QStringList files;
    for (const BinEntry& entry : m_entries)
        files << entry.path;
    QStringList used = m_clips.keys();
    used.sort(); // a hash has no order
    for (const QString& file : used) {
        if (!files.contains(file))
            files << file;
    }
    m_files = files;
    Q_EMIT Changed();
}

BinEntry MediaBin::Entry(const QString& file) const
{
    const int index = FindEntry(m_entries, file);
    return index < 0 ? BinEntry{file, {}, BinEntry::kNoMarks} : m_entries[index];
}

BinEntries MediaBin::WithEntry(const QString& file, int* index) const
{
    BinEntries entries = m_entries;
    *index = FindEntry(entries, file);
    if (*index < 0) {
        *index = entries.size();
        entries.append({file, {}, BinEntry::kNoMarks});
    }
    return entries;
}

bool MediaBin::ChangeEntries(const QString& text, const BinEntries& entries)
{
    const NLEComPtr<INLETimeline> node = m_project.Node();
    return m_project.Change(
        text, node, [node, entries] { return WriteBinEntries(*node, entries); },
        [node, before = m_entries] { return WriteBinEntries(*node, before); });
}

bool MediaBin::Add(const QStringList& files)
{
    BinEntries entries = m_entries;
    for (const QString& file : files) {
        if (FindEntry(entries, file) < 0)
            entries.append({file, {}, BinEntry::kNoMarks});
    }
    return entries.size() > m_entries.size() && ChangeEntries(tr("Add media"), entries);
}

bool MediaBin::Remove(const QStringList& files)
{
    BinEntries entries;
    for (const BinEntry& entry : m_entries) {
        if (!files.contains(entry.path) || Uses(entry.path) > 0)
            entries.append(entry);
    }
    return entries.size() < m_entries.size() && ChangeEntries(tr("Remove media"), entries);
}

bool MediaBin::Relink(const QHash<QString, QString>& moved)
{
    QVector<Move> moves;
    for (auto it = moved.cbegin(); it != moved.cend(); ++it) {
        for (const NLEComPtr<INLETimeline>& clip : m_clips.value(it.key()))
            moves.append({clip, it.key(), it.value()});
    }
    const NLEComPtr<INLETimeline> node = m_project.Node();
    const BinEntries before = m_entries;
    const BinEntries now = Renamed(before, moved);
    const auto redo = [=] { return RelinkAll(moves) && WriteBinEntries(*node, now); };
    const auto undo = [=] { return UnlinkAll(moves) && WriteBinEntries(*node, before); };
    return !moved.isEmpty() && m_project.Change(tr("Relink media"), node, redo, undo);
}

bool MediaBin::UseProxy(const QString& file, const QString& proxy)
{
    int index = 0;
    BinEntries now = WithEntry(file, &index);
    const QString former = std::exchange(now[index].proxy, proxy);
    if (former == proxy)
        return false;
    const NLEComPtr<INLETimeline> node = m_project.Node();
    const auto write = [node, clips = m_clips.value(file)](const BinEntries& entries,
                                                           const QString& film) {
        for (const NLEComPtr<INLETimeline>& clip : clips)
            SetProxy(clip, film);
        return WriteBinEntries(*node, entries);
    };
    return m_project.Change(
        proxy.isEmpty() ? tr("Use the media itself") : tr("Use a proxy"), node,
        [=] { return write(now, proxy); },
        [write, former, before = m_entries] { return write(before, former); });
}

bool MediaBin::Mark(const QString& file, const NLERange& marks)
{
    int index = 0;
    BinEntries now = WithEntry(file, &index);
    const NLERange former = std::exchange(now[index].marks, marks);
    if (former.in == marks.in && former.out == marks.out)
        return false;
    return ChangeEntries(
        NLERangeLength(marks) > 0 ? tr("Set in and out point") : tr("Clear in and out point"), now);
}

NLEComPtr<INLETimeline> MediaBin::MakeClip(const QString& file) const
{
    NLEComPtr<INLETimeline> clip = EngineProvider().CreateMediaTimeline(file, true);
    if (!clip)
        return clip;
    const BinEntry entry = Entry(file);
    if (NLERangeLength(entry.marks) > 0)
        clip->SetRange(&entry.marks);
    if (!entry.proxy.isEmpty())
        SetProxy(clip, entry.proxy);
    return clip;
}

NLEComPtr<INLETimeline> MediaBin::Place(const QString& file, int frame)
{
    NLEComPtr<INLETimeline> clip = MakeClip(file);
    const auto place = [&](INLEEditing& editing) {
        HRESULT result = E_FAIL;
        for (int level = 0; level < kMostLevels && FAILED(result); ++level)
            result = editing.Place(clip.get(), frame, level, 0);
        return result;
    };
    if (!clip || !m_project.Edit(tr("Place a clip"), place))
        clip.reset();
    return clip;
}

void MediaBin::Reload(const QString& file)
{
    for (const NLEComPtr<INLETimeline>& clip : m_clips.value(file)) {
        if (const auto relink = clip.query<INLEMediaRelink>())
            relink->Reload();
    }
}

void MediaBin::TakeClips(const QVector<NLEComPtr<INLETimeline>>& clips)
{
    // Those that others have placed use the proxies as well.
    for (const NLEComPtr<INLETimeline>& clip : clips) {
        const QString proxy = Entry(FileOf(*clip)).proxy;
        if (!proxy.isEmpty())
            SetProxy(clip, proxy);
    }
}
