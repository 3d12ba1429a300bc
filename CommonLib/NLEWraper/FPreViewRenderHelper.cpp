// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"

#include "Com/WideText.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/NLETimeline.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QFileInfo>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QtConcurrent>

#include <algorithm>

namespace {

constexpr char kSourcePath[] = "CommonLib/NLEWraper/FPreViewRenderHelper";
constexpr int kUpdateDelay = 50;       // ms
constexpr int kAutoRenderSeconds = 60; // until a host sets its own
constexpr int kStopTimeOut = 30000;    // ms
constexpr int kEventSlice = 100;       // ms
constexpr int kMaxQuota = 100 * 1024;  // MiB
constexpr int kDiskReserve = 2 * 1024; // MiB
constexpr float kProjectScale = 0.5f;

#define LOG_INFO(function, ...)                                                                    \
    GetGlobalLogInstance()->LogInfo(kSourcePath, "FPreViewRenderHelper::" function, __LINE__,      \
                                    __VA_ARGS__)

// Readers of the log look for this file's messages as they are, misspellings included: see
// docs/compatibility.md.

const char* Answer(bool success)
{
    return success ? "ture" : "false";
}

/// The bytes of \a text's UTF-16 units, as a narrow text. A Latin first character is followed by a
/// zero byte, so such a text has one character.
const char* WideAsNarrow(const QString& text)
{
    return reinterpret_cast<const char*>(text.utf16());
}

bool FolderExists(const QString& folder)
{
    return QFileInfo(folder).isDir();
}

} // namespace

QMutex FPreViewRenderHelper::s_asynUpdateUserDatasMutex;
QList<void*> FPreViewRenderHelper::m_asynUpdateUserDatas;
QList<void*> FPreViewRenderHelper::m_renderUserDatas;

FPreViewRenderHelper::FPreViewRenderHelper(NLEComPtr<INLETimeline> timeline, QObject* parent)
    : QObject(parent), m_timeline(std::move(timeline)), m_autoRenderSeconds(kAutoRenderSeconds)
{
    if (const auto* owner = qobject_cast<NLETimeline*>(parent))
        SetCacheSize(owner->GetProjectResolution(), kProjectScale);
    m_autoRenderTimer = new QTimer(this);
    connect(m_autoRenderTimer, &QTimer::timeout, this,
            &FPreViewRenderHelper::SlotAutoRenderTimeOut);
}

FPreViewRenderHelper::~FPreViewRenderHelper()
{
    // Slots run below; neither the wrapper's end nor deleteLater() may delete a second time.
    setParent(nullptr);
    m_isEnding = true;
    // Nor may the slot that deletes this object be called again by what its end emits.
    if (m_emitting > 0) {
        disconnect(this, &FPreViewRenderHelper::sigRenderStateChange, nullptr, nullptr);
        disconnect(this, &FPreViewRenderHelper::sigRenderStateChangeInternal, nullptr, nullptr);
        disconnect(this, &FPreViewRenderHelper::sigRenderProgressInfo, nullptr, nullptr);
        disconnect(this, &FPreViewRenderHelper::sigRenderCatchDeleted, nullptr, nullptr);
    }
    {
        const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
        m_asynUpdateUserDatas.removeOne(this);
    }
    m_autoRenderEnable = false;
    m_autoRenderSeconds = kAutoRenderSeconds;
    m_autoRenderTimer->stop();
    if (IsCaching())
        StopRenderSync();
    else
        LOG_INFO("~FPreViewRenderHelper", "FPreViewRenderHelper need not to stop");
    if (m_autoDeleteCaching) {
        if (FolderExists(m_cacheDir))
            DelRenderCache(true);
        LOG_INFO("~FPreViewRenderHelper", "dir:%s returnStr:%s esist:%d",
                 qUtf8Printable(m_cacheDir), "", FolderExists(m_cacheDir) ? 1 : 0);
    }
    const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
    m_renderUserDatas.removeOne(this);
    // An update that was due has run while this one waited.
    m_asynUpdateUserDatas.removeOne(this);
}

/// False when a slot has deleted this object.
template <typename... Values>
bool FPreViewRenderHelper::Emit(void (FPreViewRenderHelper::*signal)(Values...), Values... values)
{
    const QPointer<FPreViewRenderHelper> self(this);
    ++m_emitting;
    Q_EMIT(this->*signal)(values...);
    if (self)
        --m_emitting;
    return bool(self);
}

bool FPreViewRenderHelper::event(QEvent* event)
{
    return (m_isEnding && event->type() == QEvent::DeferredDelete) || QObject::event(event);
}

INLEBackgroundCache* FPreViewRenderHelper::EnsureCache()
{
    if (!m_backgroundCache)
        m_backgroundCache = LookUp<INLEBackgroundCache>(m_timeline.get());
    return m_backgroundCache.get();
}

template <typename Interface>
Interface* FPreViewRenderHelper::EnsurePart(NLEComPtr<Interface>& part)
{
    if (!part && EnsureCache())
        part = m_backgroundCache.query<Interface>();
    return part.get();
}

bool FPreViewRenderHelper::IsState(RenderCacheState state) const
{
    const QMutexLocker lock(&m_stateMutex);
    return m_state == state;
}

bool FPreViewRenderHelper::IsCaching() const
{
    return IsState(Caching);
}

bool FPreViewRenderHelper::IsLowDisk() const
{
    return IsState(LowDisk);
}

bool FPreViewRenderHelper::IsFolderFull() const
{
    return IsState(FolderFull);
}

bool FPreViewRenderHelper::IsFolderUnWriteable() const
{
    return IsState(FolderUnwriteable);
}

bool FPreViewRenderHelper::IsFinished() const
{
    return IsState(Finished);
}

bool FPreViewRenderHelper::IsNeedRender() const
{
    return !m_needRenderRanges.isEmpty();
}

bool FPreViewRenderHelper::IsFramNeedRender(int frame) const
{
    // The end counts, although it lies behind the range; hosts rely on it.
    return std::any_of(
        m_needRenderRanges.cbegin(), m_needRenderRanges.cend(),
        [frame](const auto& range) { return range.first <= frame && frame <= range.second; });
}

QString FPreViewRenderHelper::GetCacheDirectory() const
{
    return m_cacheDir;
}

QString FPreViewRenderHelper::GetUserSetRenderPath(QString folder)
{
    return folder + QDir::separator() + QStringLiteral(".RenderCache");
}

bool FPreViewRenderHelper::CheckAnsyUpdateUserData(void* userData)
{
    const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
    return m_asynUpdateUserDatas.contains(userData);
}

void FPreViewRenderHelper::GetRenderProgress(QList<QPair<int, int>>& cached,
                                             QList<QPair<int, int>>& needRender)
{
    INLEBackgroundCacheStat* stat = EnsurePart(m_cacheStat);
    if (!stat)
        return;
    const long count = stat->GetCount();
    // Not cleared for each segment, as the range is. Kept: see docs/compatibility.md.
    long valid = 0;
    int cachedTo = 0;
    for (int index = 0; index < count; ++index) {
        NLERange range{};
        stat->GetStat(index, &range, &valid, &cachedTo);
        if (valid < 1)
            continue;
        if (range.in != cachedTo)
            cached.append({range.in, cachedTo});
        if (cachedTo != range.out + 1)
            needRender.append({cachedTo, range.out + 1});
    }
    m_needRenderRanges = needRender;
    if (!IsNeedRender() || !IsFinished())
        return;
    const QPointer<FPreViewRenderHelper> self(this);
    SetCachingState(Idle);
    if (self)
        RestartAutoRender(!m_forceStopAutoStartRender); // it had ended with the finished cache
}

bool FPreViewRenderHelper::SetCacheDirectory(QString folder)
{
    bool success = false;
    if (EnsureCache()) {
        const QPointer<FPreViewRenderHelper> self(this);
        if (IsCaching())
            StopRender();
        if (!self)
            return false;
        const int freeSpace = static_cast<int>(gGetDiskFreeSpace(nullptr, folder));
        const int quota = std::min(freeSpace / 2, kMaxQuota);
        // Only the folder's first character is logged. Kept: see docs/compatibility.md.
        LOG_INFO("SetCacheDirectory", "folderSize:%s forder:%s",
                 qUtf8Printable(QString::number(quota)), WideAsNarrow(folder));
        success = SUCCEEDED(
            m_backgroundCache->SetCacheFolder(ToWide(folder).c_str(), quota, kDiskReserve));
        SetCachingState(Idle);
        if (self)
            delayedAsyncUpdate();
        if (!self)
            return success;
        if (success)
            m_cacheDir = folder;
    }
    LOG_INFO("SetCacheDirectory", "SetCacheDirectory:%s,dir:%s", Answer(success),
             qUtf8Printable(m_cacheDir));
    return success;
}

void FPreViewRenderHelper::SetCacheSize(QSize size, float ratio)
{
    // Compared with 0 this is true for exactly 0 only.
    if (!qFuzzyCompare(ratio, 0.0f))
        size = QSize(ToInteger<int>(static_cast<float>(size.width()) * ratio),
                     ToInteger<int>(static_cast<float>(size.height()) * ratio));
    const double width = size.width();
    const double height = size.height();
    const int maxWidth = m_maxCacheSize.width();
    const int maxHeight = m_maxCacheSize.height();
    if (width * height > maxWidth * maxHeight) {
        if (width <= height)
            size = QSize(ToInteger<int>(width * maxHeight / height), maxHeight);
        else
            size = QSize(maxWidth, ToInteger<int>(height * maxWidth / width));
    }
    m_cacheWidth = size.width();
    m_cacheHeight = size.height();
    doDelayedUpdate(kUpdateDelay);
    LOG_INFO("SetCacheSize", "cacth width:%d,cacth height:%d", m_cacheWidth, m_cacheHeight);
}

void FPreViewRenderHelper::SetTimelineQuality(double quality)
{
    const QPointer<FPreViewRenderHelper> self(this);
    StopRender();
    if (!self)
        return;
    if (INLEBackgroundCacheQualitySet* setting = EnsurePart(m_qualitySet))
        setting->SetQuality(NLECommon::RateToRational(quality));
    delayedAsyncUpdate();
}

bool FPreViewRenderHelper::EnsureCacheFolder() const
{
    return FolderExists(m_cacheDir) || (!m_cacheDir.isEmpty() && QDir().mkpath(m_cacheDir));
}

void FPreViewRenderHelper::StartRender()
{
    if (IsCaching() || IsFinished() || !EnsureCache())
        return;
    if (m_timeline && NLETimeline(m_timeline, ExactType_Unknown, nullptr).GetClipCount() < 1)
        return;
    if (!EnsureCacheFolder()) {
        GetGlobalLogInstance()->LogError(
            kSourcePath, "FPreViewRenderHelper::StartRender", __LINE__,
            "Preview Render CacheDir is not exist, CacheDir mkpath failed!");
        SetCachingState(FolderUnwriteable);
        return;
    }

    Register(m_renderUserDatas, this);
    const NLESize resolution{m_cacheWidth, m_cacheHeight};
    const HRESULT status = m_backgroundCache->Start(&resolution, &OnRender, this);
    if (SUCCEEDED(status)) {
        SetCachingState(Caching);
    } else if (status == E_ACCESSDENIED || status == E_INVALIDARG) {
        SetCachingState(FolderUnwriteable);
    } else if (status == E_FAIL) {
        // The engine has nothing to render.
        const QPointer<FPreViewRenderHelper> self(this);
        SetCachingState(Finished);
        if (self)
            doDelayedUpdate(kUpdateDelay);
    }
}

void FPreViewRenderHelper::StopRender()
{
    if (!IsCaching()) {
        m_autoRenderTimer->setInterval(AutoRenderInterval());
        return;
    }
    const QPointer<FPreViewRenderHelper> self(this);
    if (EnsureCache() && SUCCEEDED(m_backgroundCache->Stop())) {
        LOG_INFO("StopRender", "StopRender succeed");
        SetCachingState(Idle);
    } else {
        LOG_INFO("StopRender", "StopRender failed");
    }
    if (self)
        RestartAutoRender(!m_forceStopAutoStartRender);
}

void FPreViewRenderHelper::StopRenderSync()
{
    if (!IsCaching())
        return;
    const QPointer<FPreViewRenderHelper> self(this);
    StopRender();
    LOG_INFO("StopRenderSync", "FPreViewRenderHelper StopRender exec start");
    const bool stopped = self && WaitForStop();
    LOG_INFO("StopRenderSync", stopped || !self ? "StopRender StopByUser" : "StopRender timeOut");
    if (self)
        disconnect(this, &FPreViewRenderHelper::sigRenderStateChangeInternal, this, nullptr);
    LOG_INFO("StopRenderSync", "FPreViewRenderHelper StopRender exec end");
}

/// False when the engine does not answer in time, or a slot deletes this object.
bool FPreViewRenderHelper::WaitForStop()
{
    const QPointer<FPreViewRenderHelper> self(this);
    bool stopped = false;
    // The engine's answer counts, not the state, which is idle by now.
    connect(this, &FPreViewRenderHelper::sigRenderStateChangeInternal, this,
            [&stopped](long state) { stopped = stopped || state == StoppedByUser; });
    QElapsedTimer waited;
    waited.start();
    while (self && !stopped && waited.elapsed() < kStopTimeOut) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kEventSlice);
        // Without events the call returns at once; the rest keeps the processor free.
        if (!stopped)
            QThread::msleep(1);
    }
    return stopped;
}

void FPreViewRenderHelper::DelRenderCache(bool flag)
{
    bool success = false;
    if (EnsureCache()) {
        const QPointer<FPreViewRenderHelper> self(this);
        if (IsCaching())
            StopRender();
        if (!self)
            return;
        success = SUCCEEDED(m_backgroundCache->DeleteCache(flag));
        SetCachingState(Idle);
        if (self)
            Emit(&FPreViewRenderHelper::sigRenderCatchDeleted);
    }
    LOG_INFO("DelRenderCache", "DelRenderCache:%s", Answer(success));
}

int FPreViewRenderHelper::AutoRenderInterval() const
{
    constexpr double millisecond = 1000;
    return ToInteger<int>(std::max(m_autoRenderSeconds, 0) * millisecond);
}

/// Stops the countdown, and starts it anew when auto-render is on and \a wanted.
void FPreViewRenderHelper::RestartAutoRender(bool wanted)
{
    m_autoRenderTimer->stop();
    if (m_autoRenderEnable && m_autoRenderSeconds >= 0 && wanted)
        m_autoRenderTimer->start(AutoRenderInterval());
}

void FPreViewRenderHelper::SetAutoRenderEnable(bool enable, int seconds)
{
    m_autoRenderEnable = enable;
    m_autoRenderSeconds = seconds;
    RestartAutoRender(!IsFinished());
}

void FPreViewRenderHelper::SetForceStopAutoStartRender(bool force)
{
    m_forceStopAutoStartRender = force;
    if (!force)
        return;
    const QPointer<FPreViewRenderHelper> self(this);
    StopRender();
    if (!self)
        return;
    m_autoRenderEnable = false;
    m_autoRenderSeconds = kAutoRenderSeconds;
    m_autoRenderTimer->stop();
}

void FPreViewRenderHelper::SetAutoDeleteCaching(bool autoDelete)
{
    m_autoDeleteCaching = autoDelete;
}

void FPreViewRenderHelper::SetRenderPriority(bool priority)
{
    m_renderPriority = priority;
}

void FPreViewRenderHelper::ClearUpdateCallBack(bool clear)
{
    const QMutexLocker lock(&m_updateMutex);
    m_clearUpdateCallBack = clear;
}

void FPreViewRenderHelper::Update()
{
    doDelayedUpdate(kUpdateDelay);
}

void FPreViewRenderHelper::UpdateSysc()
{
    const QPointer<FPreViewRenderHelper> self(this);
    if (!IsCaching() && EnsureCache())
        m_backgroundCache->Update();
    TrigerAutoRender();
    if (self)
        m_delayedUpdatePending = false;
}

void FPreViewRenderHelper::doDelayedUpdate(int ms)
{
    if (m_delayedUpdatePending)
        return;
    m_delayedUpdatePending = true;
    QTimer::singleShot(ms, this, &FPreViewRenderHelper::delayedAsyncUpdate);
}

void FPreViewRenderHelper::delayedAsyncUpdate()
{
    const QPointer<FPreViewRenderHelper> self(this);
    if (IsCaching()) {
        TrigerAutoRender();
    } else if (INLEBackgroundCacheAsyncUpdate* update = EnsurePart(m_asyncUpdate)) {
        const QMutexLocker lock(&m_updateMutex);
        if (m_clearUpdateCallBack) {
            update->SetUpdateCallback(nullptr, nullptr);
            LOG_INFO("delayedAsyncUpdate", "ClearUpdate......");
        } else {
            Register(m_asynUpdateUserDatas, this);
            update->SetUpdateCallback(&OnUpdate, this);
        }
    }
    if (self)
        m_delayedUpdatePending = false;
}

void FPreViewRenderHelper::delayedUpdate()
{
    m_delayedUpdatePending = false;
    if (IsCaching()) {
        TrigerAutoRender();
        return;
    }
    EnsureCache();
    Register(m_asynUpdateUserDatas, this);
    // The task holds what it needs: the helper may be gone when it ends.
    static_cast<void>(
        QtConcurrent::run([cache = m_backgroundCache, helper = static_cast<void*>(this)] {
            if (cache)
                cache->Update();
            OnUpdate(nullptr, 0, 0, 0, 0, helper);
            LOG_INFO("delayedUpdate", "delayedUpdate Finished");
        }));
}

void FPreViewRenderHelper::TrigerAutoRender()
{
    const QPointer<FPreViewRenderHelper> self(this);
    SetProgressInfo();
    if (self)
        RestartAutoRender(!IsFinished());
}

void FPreViewRenderHelper::SlotAutoRenderTimeOut()
{
    if (m_autoRenderEnable && !m_forceStopAutoStartRender)
        StartRender();
}

void FPreViewRenderHelper::SetCachingState(long state)
{
    QMutexLocker lock(&m_stateMutex);
    if (m_state == state)
        return;
    m_state = state;
    lock.unlock();
    if (Emit(&FPreViewRenderHelper::sigRenderStateChange, state))
        Emit(&FPreViewRenderHelper::sigRenderStateChangeInternal, state);
}

void FPreViewRenderHelper::SetProgressInfo(long progress, long cachedframes, long totalframes)
{
    m_progress = progress;
    m_cachedFrames = cachedframes;
    m_totalFrames = totalframes;
    SetProgressInfo();
}

void FPreViewRenderHelper::SetProgressInfo()
{
    if (!m_forceStopAutoStartRender)
        Emit(&FPreViewRenderHelper::sigRenderProgressInfo, m_progress, m_cachedFrames,
             m_totalFrames);
}

void FPreViewRenderHelper::Register(QList<void*>& helpers, void* helper)
{
    const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
    if (!helpers.contains(helper))
        helpers.append(helper);
}

// Called on the engine's threads. The lock keeps the helper alive until the call is queued.
int FPreViewRenderHelper::OnRender(int progress, long state, long cachedFrames, long totalFrames,
                                   void* userData)
{
    constexpr int complete = 100;
    const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
    if (!m_renderUserDatas.contains(userData))
        return 0;
    auto* helper = static_cast<FPreViewRenderHelper*>(userData);
    QMetaObject::invokeMethod(
        helper, "SetCachingState", Qt::QueuedConnection,
        Q_ARG(long, progress < complete ? state : static_cast<long>(Finished)));
    return QMetaObject::invokeMethod(helper, "SetProgressInfo", Qt::QueuedConnection,
                                     Q_ARG(long, progress), Q_ARG(long, cachedFrames),
                                     Q_ARG(long, totalFrames));
}

int FPreViewRenderHelper::OnUpdate(void*, long, long, long, long, void* userData)
{
    const QMutexLocker lock(&s_asynUpdateUserDatasMutex);
    return m_asynUpdateUserDatas.contains(userData) &&
           QMetaObject::invokeMethod(static_cast<FPreViewRenderHelper*>(userData),
                                     "TrigerAutoRender", Qt::QueuedConnection);
}
