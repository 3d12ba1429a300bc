// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/MediaDescriber.h"

#include "Com/ThreadPriority.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Bin/ProxyJobs.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/EngineText.h"

namespace {

constexpr int kThreads = 2;

QString FindProxy(INLEProxyMaker& proxies, const QString& path)
{
    return EngineText<kEnginePath>([&](wchar_t* found, int capacity) {
        return proxies.Find(path.toStdWString().c_str(), found, capacity);
    });
}

NLEComPtr<INLEMediaInfo> InfoOf(const NLEComPtr<INLETimeline>& clip)
{
    NLEComPtr<INLEMediaInfo> info;
    const auto source = clip.query<INLETimelineSource>();
    if (!source || FAILED(source->GetMediaInfo(info.put())))
        info.forget();
    return info;
}

} // namespace

MediaDescriber::MediaDescriber(QObject* parent) : QObject(parent), m_proxies(MakeProxyMaker())
{
    EngineProvider(); // is made on this thread
    m_threads.setMaxThreadCount(kThreads);
}

MediaDescriber::~MediaDescriber()
{
    m_threads.clear();
    m_threads.waitForDone();
}

void MediaDescriber::Describe(const QString& path)
{
    if (m_asked.contains(path))
        return;
    m_asked.insert(path);
    m_threads.start([this, path] {
        LowerThreadPriority();
        const MediaDescription description = Read(path);
        QMetaObject::invokeMethod(this, [this, description] {
            m_asked.remove(description.path);
            Q_EMIT Described(description);
        });
    });
}

MediaDescription MediaDescriber::Read(const QString& path) const
{
    using State = MediaDescription::State;
    MediaDescription description;
    description.path = path;
    description.state = State::Unreadable;
    const NLEComPtr<INLETimeline> clip = EngineProvider().CreateMediaTimeline(path, true);
    if (!clip) {
        description.reason = LastReason();
        return description;
    }
    const NLEComPtr<INLEMediaInfo> info = InfoOf(clip);
    int kind = NLEMedia_Offline;
    if (!info || FAILED(info->GetKind(&kind)))
        return description;
    description.state = kind == NLEMedia_Offline ? State::Offline : State::Ready;
    if (description.state == State::Offline)
        return description;
    description.info = info;
    description.report = std::make_shared<MediaReport>(info.get());
    if (m_proxies && kind == NLEMedia_Video)
        description.proxy = FindProxy(*m_proxies, path);
    return description;
}
