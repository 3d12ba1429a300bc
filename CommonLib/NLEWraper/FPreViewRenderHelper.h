// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLETimeline.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QPair>
#include <QSize>
#include <QString>

class QTimer;

/// Drives the engine's background render of one timeline's preview: folder, quota, picture size,
/// start and stop, and what is cached or needs rendering.
///
/// Belongs to the GUI thread. The engine reports from threads of its own; states and progress
/// arrive here queued, in its order. An engine without a preview cache makes the commands do
/// nothing. Frames are whole frames of the timeline.
///
/// Slots of its signals may delete the object, or its wrapper, at once or later; the operation
/// that emitted ends there. The destructor emits too, unless it runs in such a slot: there only
/// deleteLater() is safe.
class COMMONLIB_EXPORT FPreViewRenderHelper : public QObject
{
    Q_OBJECT

public:
    /// State of the cache. The values travel through signals and the engine's callback.
    enum RenderCacheState : long
    {
        Caching = NLECache_Caching,
        LowDisk = NLECache_LowDisk,         ///< stopped: disk space is low
        FolderFull = NLECache_QuotaReached, ///< stopped: the cache's quota is reached
        StoppedByUser = NLECache_Stopped,   ///< the engine has stopped as it was asked to
        FolderUnwriteable =
            NLECache_FolderUnwriteable, ///< the folder is missing or the engine refuses it
        Finished = NLECache_Finished,   ///< everything that needed rendering is cached
        Idle = NLECache_Idle            ///< at first, after a stop, a new folder or a deletion
    };

    /// Holds a reference to \a timeline. A \a parent is the wrapper of that timeline: half of its
    /// project's resolution becomes the size of the cached pictures, see SetCacheSize().
    FPreViewRenderHelper(NLEComPtr<INLETimeline> timeline, QObject* parent);
    /// Stops a running render as StopRenderSync() does, so this may take 30 s, and deletes the
    /// cache when SetAutoDeleteCaching() asked for it.
    ~FPreViewRenderHelper() override;

    bool IsCaching() const; ///< whether the state is the one of that name
    bool IsLowDisk() const;
    bool IsFolderFull() const;
    bool IsFolderUnWriteable() const;
    bool IsFinished() const;
    /// Whether the last GetRenderProgress() found frames that need rendering.
    bool IsNeedRender() const;
    /// Whether \a frame was among them. The frame just behind a range counts as within it.
    bool IsFramNeedRender(int frame) const;
    /// Folder that the engine accepted last; empty before.
    QString GetCacheDirectory() const;
    /// The folder for a render cache within a \a folder that the user chose.
    static QString GetUserSetRenderPath(QString folder);
    /// Whether \a userData is a living helper that has asked for asynchronous updates. From any
    /// thread.
    static bool CheckAnsyUpdateUserData(void* userData);
    /// Appends what is cached and what is not, as ranges without their end frame, and keeps
    /// \a needRender for IsNeedRender(). When frames need rendering, a finished cache becomes idle
    /// and the countdown of auto-render begins again.
    void GetRenderProgress(QList<QPair<int, int>>& cached, QList<QPair<int, int>>& needRender);

    /// Makes the engine cache in \a folder, stopping a running render. The cache may fill half of
    /// the disk's free space, at most 100 GiB, and leaves 2 GiB free. False when the engine refuses
    /// the folder or has no cache; the folder kept here then stays.
    bool SetCacheDirectory(QString folder);
    /// Size of the cached pictures: \a size times \a ratio (0 stands for 1), each side cut off. A
    /// size of more pixels than 960 x 540 is brought to 960 in width, or to 540 in height when it
    /// is no wider than high. Takes effect with the next start.
    void SetCacheSize(QSize size, float ratio);
    /// Fidelity of the cached pictures, 0 to 1, kept to a millionth. Stops a running render.
    void SetTimelineQuality(double quality);

    /// Starts the render in the background and makes the folder when it is missing. Nothing happens
    /// while it runs, when all is cached and when the timeline has no clips.
    void StartRender();
    /// Asks the engine to stop; does not wait for it.
    void StopRender();
    /// As StopRender(), and waits until the engine has stopped, at most 30 s. Events other than the
    /// user's input are processed meanwhile.
    void StopRenderSync();
    /// Deletes what is cached, stopping a running render; \a flag goes to the engine as it is.
    void DelRenderCache(bool flag);

    /// Lets the render start by itself \a seconds after the last change or progress report.
    void SetAutoRenderEnable(bool enable, int seconds);
    /// True stops the render, ends auto-render and silences the progress signal; false lifts the
    /// silence and lets auto-render be enabled again.
    void SetForceStopAutoStartRender(bool force);
    /// Whether the destructor deletes the cache.
    void SetAutoDeleteCaching(bool autoDelete);
    /// Kept for hosts; nothing here depends on it.
    void SetRenderPriority(bool priority);
    /// True makes updates withdraw the engine's update callback instead of setting it.
    void ClearUpdateCallBack(bool clear);

    /// Asks for a new analysis of what needs rendering. Calls within 50 ms become one. While the
    /// render runs there is none, and only the progress is emitted again.
    void Update();
    /// As Update(), at once and on the calling thread.
    void UpdateSysc();
    /// Asks for a new analysis in \a ms milliseconds, unless one is due already.
    void doDelayedUpdate(int ms);
    /// Emits the last progress again.
    void SetProgressInfo();

Q_SIGNALS:
    /// The state has changed; a RenderCacheState.
    void sigRenderStateChange(long lState);
    /// Follows each sigRenderStateChange().
    void sigRenderStateChangeInternal(long lState);
    /// Percentage and frames, as the engine reported them last.
    void sigRenderProgressInfo(long lProgress, long lCacheFrame, long lTotalFrames);
    /// DelRenderCache() has been carried out, with success or not.
    void sigRenderCatchDeleted();

public Q_SLOTS:
    /// Stores a RenderCacheState; signals follow only when it differs from the last one.
    void SetCachingState(long state);
    /// Stores and emits a progress.
    void SetProgressInfo(long progress, long cachedframes, long totalframes);

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    /// Emits the progress, and begins the countdown of auto-render anew where it is enabled.
    void TrigerAutoRender();

private:
    /// Analyses on a thread of the pool instead of the engine's; kept beside delayedAsyncUpdate()
    /// and invoked by name, nothing here calls it.
    Q_INVOKABLE void delayedUpdate();
    void SlotAutoRenderTimeOut();
    void delayedAsyncUpdate();

    bool IsState(RenderCacheState state) const;
    INLEBackgroundCache* EnsureCache();
    template <typename Interface>
    Interface* EnsurePart(NLEComPtr<Interface>& part);
    bool EnsureCacheFolder() const;
    bool WaitForStop();
    template <typename... Values>
    bool Emit(void (FPreViewRenderHelper::*signal)(Values...), Values... values);
    int AutoRenderInterval() const;
    void RestartAutoRender(bool wanted);
    static void Register(QList<void*>& helpers, void* helper);
    static int OnRender(int progress, long state, long cachedFrames, long totalFrames,
                        void* userData);
    static int OnUpdate(void* cache, long state, long firstFrame, long lastFrame, long count,
                        void* userData);

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    // Null until first use.
    NLEComPtr<INLEBackgroundCache> m_backgroundCache;
    NLEComPtr<INLEBackgroundCacheStat> m_cacheStat;
    NLEComPtr<INLEBackgroundCacheAsyncUpdate> m_asyncUpdate;
    NLEComPtr<INLEBackgroundCacheQualitySet> m_qualitySet;
    QList<QPair<int, int>> m_needRenderRanges; ///< first frame, end frame
    const QSize m_maxCacheSize{960, 540};
    int m_cacheWidth = 0;
    int m_cacheHeight = 0;
    long m_state = Idle;
    QString m_cacheDir;
    mutable QMutex m_stateMutex; ///< m_state only
    QMutex m_updateMutex;        ///< m_clearUpdateCallBack and who is called back
    bool m_clearUpdateCallBack = false;
    bool m_autoRenderEnable = false;
    bool m_autoDeleteCaching = false;
    int m_autoRenderSeconds;
    QTimer* m_autoRenderTimer;
    bool m_delayedUpdatePending = false;
    bool m_renderPriority = false;
    long m_progress = 0;
    long m_totalFrames = 0;
    long m_cachedFrames = 0;
    bool m_forceStopAutoStartRender = false;
    bool m_isEnding = false; ///< in the destructor
    int m_emitting = 0;      ///< signals whose slots are being called

    // Living helpers that engine threads may call, guarded by s_asynUpdateUserDatasMutex, which is
    // taken last.
    static QMutex s_asynUpdateUserDatasMutex;
    static QList<void*> m_asynUpdateUserDatas;
    static QList<void*> m_renderUserDatas; ///< those that have started a render
};
