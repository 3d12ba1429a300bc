// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/MediaBin.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEditing.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

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

/// The entry of \a file, which comes to the end where there is none.
BinEntry& EntryOf(BinEntries& entries, const QString& file)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const BinEntry& entry) { return entry.path == file; });
    if (found != entries.end())
        return *found;
    entries.append({file, {}, BinEntry::kNoMarks});
    return entries.last();
}

QHash<QString, QString> ProxiesByFile(const BinEntries& entries)
{
    QHash<QString, QString> proxies;
    for (const BinEntry& entry : entries)
        proxies.insert(entry.path, entry.proxy);
    return proxies;
}

/// Lets the clips of files whose proxies are others in \a now than in \a before have those.
void ChangeProxies(const ClipsByFile& clips, const BinEntries& before, const BinEntries& now)
{
    const QHash<QString, QString> former = ProxiesByFile(before);
    const QHash<QString, QString> proxies = ProxiesByFile(now);
    for (auto file = clips.cbegin(); file != clips.cend(); ++file) {
        const QString proxy = proxies.value(file.key());
        if (proxy == former.value(file.key()))
            continue;
        for (const NLEComPtr<INLETimeline>& clip : file.value())
            SetProxy(clip, proxy);
    }
}

/// Two entries of one file are one.
BinEntries Renamed(const BinEntries& entries, const QHash<QString, QString>& moved)
{
    BinEntries result;
    QSet<QString> paths;
    for (BinEntry entry : entries) {
        entry.path = moved.value(entry.path, entry.path);
        const int known = paths.size();
        paths.insert(entry.path);
        if (paths.size() > known)
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
    connect(&m_project, &Project::Saving, this, [this](const QString& path) {
        WriteBinEntries(*m_project.Node(), m_entries, QFileInfo(path).absolutePath());
    });
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
    const QString path = m_project.Path();
    const QString folder = path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
    m_entries = ReadBinEntries(*m_project.Node(), folder);
    m_clips = FindClips(m_project.Node());
    m_files.clear();
    m_places.clear();
    for (const BinEntry& entry : m_entries) {
        if (!m_places.contains(entry.path))
            m_places.insert(entry.path, m_files.size());
        m_files << entry.path;
    }
    QStringList used = m_clips.keys();
    used.sort(); // a hash has no order
    for (const QString& file : used) {
        if (!m_places.contains(file))
            m_files << file;
    }
    Q_EMIT Changed();
}

BinEntry MediaBin::Entry(const QString& file) const
{
    const auto place = m_places.find(file);
    return place == m_places.end() ? BinEntry{file, {}, BinEntry::kNoMarks} : m_entries[*place];
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
    QSet<QString> added;
    for (const QString& file : files) {
        if (m_places.contains(file) || added.contains(file))
            continue;
        added.insert(file);
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
    const auto note = [=] {
        for (const Move& move : moves)
            m_project.NoteChange(move.clip);
        return true;
    };
    const auto redo = [=] { return RelinkAll(moves) && note() && WriteBinEntries(*node, now); };
    const auto undo = [=] { return UnlinkAll(moves) && note() && WriteBinEntries(*node, before); };
    return !moved.isEmpty() && m_project.Change(tr("Relink media"), node, redo, undo);
}

bool MediaBin::UseProxies(const QHash<QString, QString>& films, int merge)
{
    BinEntries now = m_entries;
    QHash<QString, QString> unkept = films;
    for (BinEntry& entry : now)
        entry.proxy = unkept.contains(entry.path) ? unkept.take(entry.path) : entry.proxy;
    for (auto film = unkept.cbegin(); film != unkept.cend(); ++film)
        now.append({film.key(), film.value(), BinEntry::kNoMarks});
    const bool isNews = std::any_of(films.keyBegin(), films.keyEnd(), [&](const QString& file) {
        return Entry(file).proxy != films[file];
    });
    const bool isAny = std::any_of(films.begin(), films.end(),
                                   [](const QString& film) { return !film.isEmpty(); });
    const NLEComPtr<INLETimeline> node = m_project.Node();
    const auto write = [node, clips = m_clips](const BinEntries& entries, const BinEntries& from) {
        ChangeProxies(clips, from, entries);
        return WriteBinEntries(*node, entries);
    };
    // Undo may take back several steps that became one.
    const auto current = [this] { return m_entries; };
    return isNews && m_project.Change(
                         isAny ? tr("Use a proxy") : tr("Use the media itself"), node,
                         [=] { return write(now, current()); },
                         [=, before = m_entries] { return write(before, current()); }, merge);
}

int MediaBin::NewMerge()
{
    return m_project.NewMerge();
}

bool MediaBin::Mark(const QString& file, const NLERange& marks)
{
    BinEntries now = m_entries;
    const NLERange former = std::exchange(EntryOf(now, file).marks, marks);
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
        Q_EMIT m_project.NodeChanged(clip);
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
