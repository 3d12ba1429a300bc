// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "tests/support/EngineFixture.h"

#include <mutex>

constexpr NLESize kCacheSize = {160, 90};
/// Peak signal to noise ratio, in dB, from which on a compressed picture shows the same.
constexpr double kAlike = 40;
/// And of pictures that are the same in each bit.
constexpr double kEqual = 99;
constexpr NLERational kBest = {1, 1};
/// From the first to the one after the last.
using Frames = QVector<QPair<int, int>>;

struct Report
{
    int percent;
    long state;
    long cached;
    long total;
};

/// The cache of one timeline.
class Cache
{
public:
    Cache(const Node& node, const QString& folder, qint64 quota = 1000, int reserve = 0)
    {
        void* found = nullptr;
        if (node->GetInterface(INLEBackgroundCache::Iid, &found, 0, 0) == S_OK)
            engine.attach(static_cast<INLEBackgroundCache*>(found));
        Limit(folder, quota, reserve);
        engine.query<INLEBackgroundCacheQualitySet>()->SetQuality(kBest);
    }
    HRESULT Limit(const QString& folder, qint64 quota, int reserve = 0)
    {
        return engine->SetCacheFolder(folder.toStdWString().c_str(), quota, reserve);
    }
    HRESULT Start(const NLESize& size = kCacheSize)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_reports.clear();
        }
        return engine->Start(&size, Note, this);
    }
    /// The state with which a run ends; -1 when it tells nothing for a minute. Beside others it
    /// gets a tenth of a processor, so that a whole run may take longer.
    long End(int wanted = -1)
    {
        const auto hasEnded = [&] {
            const long state = Reports().empty() ? 0 : Reports().back().state;
            return wanted < 0 ? state != 0 : state == wanted;
        };
        size_t told = 0;
        do {
            told = Reports().size();
            if (QTest::qWaitFor(hasEnded, 60000))
                return Reports().back().state;
        } while (Reports().size() > told);
        return -1;
    }
    long Render()
    {
        const HRESULT started = Start();
        return started == S_OK ? End() : started;
    }
    std::vector<Report> Reports()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_reports;
    }
    /// What is cached and what is needed.
    QPair<Frames, Frames> Stat()
    {
        QPair<Frames, Frames> result;
        const auto add = [](Frames& frames, int from, int to) {
            if (from != to && !frames.isEmpty() && frames.back().second == from)
                frames.back().second = to;
            else if (from != to)
                frames.append({from, to});
        };
        const auto stat = engine.query<INLEBackgroundCacheStat>();
        const long count = stat->GetCount();
        for (int index = 0; index < count; ++index) {
            NLERange range = {0, 0};
            long valid = 0;
            int cachedTo = 0;
            if (stat->GetStat(index, &range, &valid, &cachedTo) != S_OK || valid < 1 ||
                cachedTo < range.in || cachedTo > range.out + 1)
                return {};
            add(result.first, range.in, cachedTo);
            add(result.second, cachedTo, range.out + 1);
        }
        return result;
    }
    Frames Needed()
    {
        engine->Update();
        return Stat().second;
    }

private:
    static int Note(int percent, long state, long cached, long total, void* self)
    {
        auto* cache = static_cast<Cache*>(self);
        const std::lock_guard<std::mutex> lock(cache->m_mutex);
        cache->m_reports.push_back({percent, state, cached, total});
        return 0;
    }

    std::mutex m_mutex;
    std::vector<Report> m_reports;

public:
    NLEComPtr<INLEBackgroundCache> engine; ///< ends before what it reports to
};

inline long CountOf(const Frames& frames)
{
    long count = 0;
    for (const auto& [from, to] : frames)
        count += to - from;
    return count;
}

/// Peak signal to noise ratio over all four channels, at most kEqual.
inline double Psnr(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return -1;
    double sum = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i) {
        const double error = double(a.constBits()[i]) - b.constBits()[i];
        sum += error * error;
    }
    return sum == 0 ? kEqual : 10 * std::log10(255.0 * 255.0 * double(a.sizeInBytes()) / sum);
}

/// Two clips of a file, a picture above the second, a gap, and a composite of two colours.
struct Timeline
{
    Node project, a, b, above, nested, inner;
    Frames shown; ///< by the project
};

/// The open engine with clips and timelines that are worth a cache.
class PreviewCacheFixture : public EngineFixture
{
public:
    QString MakeMedia(const QString& path, const QSize& size = QSize(320, 180)) const
    {
        TestClip clip;
        clip.size = size;
        clip.frames = kMediaFrames;
        clip.extra = QStringList{"-colorspace", "bt709"}; // not what these sizes have by default
        return MakeTestClip(path, clip);
    }
    Timeline Make() const
    {
        Timeline t{Project(),
                   Media(mMedia),
                   Media(mMedia),
                   Colour(Qt::red, QSize(64, 64)),
                   provider->CreateVirtualTimeline(0),
                   Colour(Qt::green),
                   {{0, 120}, {140, 200}}};
        Trimmed(t.above, 0, 19);
        Trimmed(t.inner, 0, 29);
        t.b.query<INLEBlendSetting>()->SetAlpha(200);
        const Node first = Colour(Qt::blue);
        Trimmed(first, 0, 29);
        Add(t.nested, first);
        Add(t.nested, t.inner, 30);
        Add(t.project, t.a);
        Add(t.project, t.b, 60);
        Add(t.project, t.above, 70, 1);
        Add(t.project, t.nested, 140);
        return t;
    }
    /// Clips that all look different, so that each has to be rendered.
    Node LongProject(int clips = kLongClips) const
    {
        Node project = Project();
        for (int i = 0; i < clips; ++i) {
            const Node clip = Media(mMedia);
            clip.query<INLEBlendSetting>()->SetAlpha(255 - i);
            Add(project, clip, kMediaFrames * i);
        }
        return project;
    }
    QImage Shown(const Node& node, int frame, int flags) const
    {
        return Frame(node, frame, flags, QSize(kCacheSize.width, kCacheSize.height));
    }
    /// The worst likeness of cached pictures to rendered ones in some of \a frames.
    double Likeness(const Node& node, const Frames& frames) const
    {
        double worst = kEqual;
        for (const auto& [from, to] : frames) {
            for (int frame = from; frame < to; frame += 17)
                worst = std::min(worst, Psnr(Shown(node, frame, NLEOpen_Cached),
                                             Shown(node, frame, NLEOpen_Render)));
        }
        return worst;
    }

    static constexpr int kMediaFrames = 60;
    static constexpr int kLongClips = 60;
    static constexpr int kChunksOfAClip = 2; ///< chunks are shorter than a clip
    const QString mMedia = Path("clip.mp4");
};
