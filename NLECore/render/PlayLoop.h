// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComGuard.h"
#include "EngineApi/INLEPlayer.h"
#include "NLECore/render/LevelMeter.h"
#include "NLECore/render/PlayDevice.h"
#include "NLECore/render/PlayLimits_p.h"
#include "NLECore/render/PlayScene.h"

#include <condition_variable>
#include <deque>
#include <thread>

namespace nle {

/// Hears of a PlayLoop, on one thread of it, with nothing locked.
struct PlayEvents
{
    virtual ~PlayEvents() = default;
    virtual void PictureDue(const PlayPicture& picture) = 0;
    virtual void StateChanged(int state) = 0;
    virtual void DeviceChanged() = 0;
    virtual void SecondPlayed(const NLEPlayerReport& report) = 0;
};

/// Plays scenes: see INLEPlayer, whose functions those of this class are.
///
/// Three threads share what m_mutex guards. One mixes sound ahead into the queue that the device
/// takes it from; one composes pictures ahead; one gives pictures to the listener when they are
/// due and looks after the device. Time is the count of samples that are heard. A *run* says which
/// material they are: each seek, change of rate and edit begins one, with a new generation; what
/// was begun for an older one is thrown away.
class PlayLoop
{
public:
    explicit PlayLoop(PlayEvents& events);
    /// Waits for what the threads are at. Not for one of them.
    ~PlayLoop();
    PlayLoop(const PlayLoop&) = delete;
    PlayLoop& operator=(const PlayLoop&) = delete;

    /// False when there are no threads.
    bool Start();
    /// Whether this is a thread of the object.
    bool IsOwnThread() const;
    /// Whether this is the thread that PlayEvents are called on.
    bool IsPlayerThread() const
    {
        return std::this_thread::get_id() == m_threads[kPlayer].get_id();
    }

    void Open(SharedScene scene);
    /// False when nothing is open.
    bool Refresh(SharedScene scene);
    void Close();

    HRESULT Play(double rate);
    HRESULT Pause();
    HRESULT Seek(int frame);
    HRESULT Step(int frames);
    HRESULT Scrub(int frame);
    HRESULT SetLoop(NLERange range, bool isOn);

    int State() const;
    /// -1 when nothing is open.
    int Position() const;
    double Rate() const;
    int Length() const;

    /// Empty: the node's own.
    void SetPictureSize(const QSize& size);
    void SetGain(float gain) { m_queue.SetGain(gain); }
    void SetDevice(const QString& name);
    QString DeviceName(bool* isSilent) const { return m_device.Name(isSilent); }
    void SetSoundOffset(int milliseconds);

    /// False when there was no second yet.
    bool LastSecond(NLEPlayerReport* report) const;
    void Totals(NLEPlayerReport* report) const;
    void Levels(NLEPlayerLevels* levels);
    void ResetClipping();

private:
    using Clock = SoundQueue::Clock;
    using Lock = std::unique_lock<std::mutex>;

    /// How a run begins and what is heard of it.
    enum class RunKind
    {
        Fresh,   ///< anew: fills up before it plays, its first picture is shown at once
        Spliced, ///< goes on where the one before ends
        Scrubbed ///< one picture and a short piece of sound
    };
    struct Run
    {
        std::int64_t base; ///< count of the queue that is its played sample 0
        PlayPlan plan;
        RunKind kind;
    };
    struct WaitingPicture
    {
        std::int64_t due; ///< count of the queue
        PlayPicture picture;
    };
    struct HeardPiece
    {
        std::int64_t end; ///< count of the queue
        LevelMeter::Piece piece;
    };
    /// Pictures of a span of playing.
    struct Tally
    {
        NLEPlayerReport report = {};
        double driftSum = 0;

        void Add(int source, double lateMs);
        void Add(const Tally& other);
        NLEPlayerReport Sum() const;
    };
    /// What the thread that composes is to draw.
    struct Task
    {
        std::uint64_t generation;
        int frame;
        std::int64_t due;
        QSize size;
        SharedScene scene;
        bool isNear;
        bool isFirst; ///< of a fresh or scrubbed run
    };

    struct Guarded
    {
        bool isEnding = false;
        SharedScene scene; ///< null: nothing is open
        int state = NLEPlayer_Closed;
        double rate = 1;
        bool isLoop = false;
        NLERange loop = {0, 0};
        QSize size;              ///< empty: the scene's own
        std::int64_t offset = 0; ///< samples by which the device sounds later than it says

        std::uint64_t generation = 0;
        /// The last one is being rendered, those before may be heard; none only without a scene.
        std::vector<Run> runs; ///< has room for all that there may be
        bool isHeld = true;    ///< fills up
        Clock::time_point heldSince;
        std::int64_t written = 0; ///< played samples of the run in the queue
        bool isGrainDone = false;

        std::int64_t index = 0; ///< of the picture of the run that is composed next
        bool isNearDone = false;
        bool isDrawingAhead = false;
        std::deque<WaitingPicture> ahead;
        std::optional<PlayPicture> urgent;
        std::vector<PlayPicture> spare; ///< composed, may be of use again; has room for all
        std::optional<PlayPicture> shown;
        Clock::time_point shownAt;
        double cost = 0; ///< seconds that a picture takes, about

        std::vector<int> states; ///< to be told; has room for all
        std::deque<HeardPiece> pieces;
        LevelMeter meter;
        Clock::time_point measuredAt;
        Tally second;
        Tally total;
        int underruns = 0;
        Clock::time_point secondSince;
        std::optional<NLEPlayerReport> lastSecond;
        std::optional<NLEPlayerReport> toldSecond;

        SharedScene composing; ///< what the threads have open
        SharedScene mixing;
        bool isDeviceOpen = false;
        Clock::time_point deviceLook; ///< when it is looked after next
    };

    /// Does one step of a thread. Without memory for it the next one comes a little later.
    template <typename Work>
    void Try(Lock& lock, const Work& work);

    // Commands; the mutex is locked.
    PlayPlan PlanFrom(std::int64_t material) const;
    std::int64_t StartOf(int frame) const;
    int ClampFrame(std::int64_t frame) const;
    void Restart(std::int64_t material, RunKind kind);
    void Splice();
    void BeginRun(const Run& run, bool isStopping);
    void Clear();
    void KeepSpare(PlayPicture picture);
    void Change(int state);
    void Wake();
    HRESULT GoTo(std::int64_t frame, int state, RunKind kind);

    // Time; the mutex is locked.
    std::int64_t HeardNow() const;
    const Run& RunAt(std::int64_t count) const;
    int FrameNow() const;
    /// Whether time goes on.
    bool IsRunning() const;

    // The thread that mixes.
    void MixSound();
    void MixNext(Lock& lock, PlaySound& sound, std::uint64_t* planned);
    /// Both are false when there is nothing to mix now.
    bool MixGrain(Lock& lock, PlaySound& sound);
    bool MixChunk(Lock& lock, PlaySound& sound);
    void WriteSound(const float* samples, int count);
    template <typename Object>
    bool FollowScene(Lock& lock, Object& object, SharedScene Guarded::*open);

    // The thread that composes.
    void ComposePictures();
    void ComposeNext(Lock& lock, PlayComposer& composer);
    std::optional<Task> NextTask();
    bool TakeSpare(const Task& task);
    void SkipLate();
    void Compose(Lock& lock, PlayComposer& composer, const Task& task);
    void Deliver(const Task& task, PlayPicture picture);
    QSize WantedSize() const;
    int MostAhead() const;

    // The player's thread.
    void Present();
    void PresentNext(Lock& lock);
    bool TellState(Lock& lock);
    bool TellSecond(Lock& lock);
    bool ShowUrgent(Lock& lock);
    bool ShowDue(Lock& lock);
    void Show(Lock& lock, PlayPicture picture);
    bool BeginPlaying();
    bool EndPlaying();
    bool KeepDevice(Lock& lock);
    bool CountSecond();
    Tally TotalNow() const;
    void Measure();
    void WaitForMore(Lock& lock);

    PlayEvents& m_events;
    SoundQueue m_queue;
    PlayDevice m_device{m_queue};
    std::atomic<bool> m_stop{false};
    mutable std::mutex m_mutex; ///< guards m_guarded, and who writes to the queue
    std::condition_variable m_changed;
    Guarded m_guarded;

    enum
    {
        kPlayer,
        kMixer,
        kComposer,
        kThreads
    };
    std::array<std::thread, kThreads> m_threads;
};

template <typename Work>
void PlayLoop::Try(Lock& lock, const Work& work)
{
    const HRESULT result = ComGuard([&] {
        work();
        return S_OK;
    });
    if (SUCCEEDED(result))
        return;
    if (!lock.owns_lock())
        lock.lock();
    m_changed.wait_for(lock, kPlayEvery);
}

} // namespace nle
