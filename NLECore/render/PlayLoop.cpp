// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PlayLoop.h"

#include "NLECore/render/TaskThread.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr double kFastest = 8;
/// Samples that still play after an edit or a change of rate, while the new ones are mixed. With
/// two blocks in the device the new ones are heard within 100 ms.
constexpr int kSplicedSound = SoundQueue::kRate * 45 / 1000;
/// Runs that may be heard; a sound offset lets several wait.
constexpr std::size_t kMostRuns = 16;
constexpr std::size_t kMostSpare = 10;
/// Changes of state that wait to be told; of more the oldest are not.
constexpr std::size_t kMostStates = 64;

} // namespace

// What is played does not depend on memory that commands would have to ask for.
PlayLoop::PlayLoop(PlayEvents& events) : m_events(events)
{
    m_guarded.runs.reserve(kMostRuns);
    m_guarded.spare.reserve(kMostSpare);
    m_guarded.states.reserve(kMostStates);
}

PlayLoop::~PlayLoop()
{
    {
        const Lock lock(m_mutex);
        m_guarded.isEnding = true;
        m_stop = true;
    }
    m_changed.notify_all();
    for (std::thread& thread : m_threads) {
        if (thread.joinable())
            thread.join();
    }
}

bool PlayLoop::Start()
{
    const Lock lock(m_mutex);
    const auto start = [&](int index, void (PlayLoop::*work)()) {
        std::thread& thread = m_threads[size_t(index)];
        if (!thread.joinable())
            thread = StartThread([this, work] { (this->*work)(); });
        return thread.joinable();
    };
    return start(kPlayer, &PlayLoop::Present) && start(kMixer, &PlayLoop::MixSound) &&
           start(kComposer, &PlayLoop::ComposePictures);
}

bool PlayLoop::IsOwnThread() const
{
    return std::any_of(m_threads.begin(), m_threads.end(), [](const std::thread& thread) {
        return thread.get_id() == std::this_thread::get_id();
    });
}

void PlayLoop::Open(SharedScene scene)
{
    const Lock lock(m_mutex);
    Clear();
    m_guarded.scene = std::move(scene);
    m_guarded.isLoop = false;
    m_guarded.total = {};
    m_guarded.second = {};
    m_guarded.lastSecond.reset();
    m_guarded.underruns = m_queue.Underruns();
    Change(NLEPlayer_Paused);
    Restart(StartOf(0), RunKind::Fresh);
}

bool PlayLoop::Refresh(SharedScene scene)
{
    const Lock lock(m_mutex);
    if (!m_guarded.scene)
        return false;
    const std::int64_t material =
        PlayPlan::MaterialOf(FrameNow(), m_guarded.scene->root->frameRate);
    m_guarded.scene = std::move(scene);
    m_stop = true;
    if (IsRunning()) {
        Splice();
        return true;
    }
    const NLERational& rate = m_guarded.scene->root->frameRate;
    Restart(StartOf(ClampFrame(PlayPlan::FrameOf(material, rate))), RunKind::Fresh);
    return true;
}

void PlayLoop::Close()
{
    Lock lock(m_mutex);
    Clear();
    m_guarded.scene.reset();
    Change(NLEPlayer_Closed);
    Wake();
    m_changed.wait(lock, [this] {
        return !m_guarded.composing && !m_guarded.mixing && !m_guarded.isDeviceOpen;
    });
}

void PlayLoop::Clear()
{
    ++m_guarded.generation;
    m_stop = true;
    m_queue.Hold(true);
    m_device.Cut(0);
    m_guarded.isHeld = true;
    m_guarded.runs.clear();
    m_guarded.ahead.clear();
    m_guarded.urgent.reset();
    m_guarded.shown.reset();
    m_guarded.spare.clear();
    m_guarded.pieces.clear();
    m_guarded.cost = 0;
}

HRESULT PlayLoop::Play(double rate)
{
    if (!(std::abs(rate) <= kFastest) || rate == 0)
        return E_INVALIDARG;
    const Lock lock(m_mutex);
    if (!m_guarded.scene)
        return E_FAIL;
    const bool isSame = std::exchange(m_guarded.rate, rate) == rate;
    if (IsRunning()) {
        if (!isSame)
            Splice();
        return S_OK;
    }
    const int last = m_guarded.scene->length - 1;
    int frame = FrameNow();
    const bool isOver = !m_guarded.isLoop && frame == (rate > 0 ? last : 0);
    if (isOver)
        frame = rate > 0 ? 0 : last;
    Change(NLEPlayer_Playing);
    m_guarded.heldSince = Clock::now();
    if (!isSame || isOver || m_guarded.isLoop || m_guarded.runs.back().kind != RunKind::Fresh)
        Restart(StartOf(frame), RunKind::Fresh);
    Wake();
    return S_OK;
}

HRESULT PlayLoop::Pause()
{
    const Lock lock(m_mutex);
    if (!m_guarded.scene)
        return E_FAIL;
    if (m_guarded.state == NLEPlayer_Playing)
        GoTo(FrameNow(), NLEPlayer_Paused, RunKind::Fresh);
    return S_OK;
}

HRESULT PlayLoop::Seek(int frame)
{
    const Lock lock(m_mutex);
    return GoTo(frame, m_guarded.state, RunKind::Fresh);
}

HRESULT PlayLoop::Step(int frames)
{
    const Lock lock(m_mutex);
    return m_guarded.scene
               ? GoTo(std::int64_t(FrameNow()) + frames, NLEPlayer_Paused, RunKind::Fresh)
               : E_FAIL;
}

HRESULT PlayLoop::Scrub(int frame)
{
    const Lock lock(m_mutex);
    return GoTo(frame, NLEPlayer_Paused, RunKind::Scrubbed);
}

HRESULT PlayLoop::GoTo(std::int64_t frame, int state, RunKind kind)
{
    if (!m_guarded.scene)
        return E_FAIL;
    Change(state);
    Restart(StartOf(ClampFrame(frame)), kind);
    return S_OK;
}

HRESULT PlayLoop::SetLoop(NLERange range, bool isOn)
{
    const Lock lock(m_mutex);
    if (!m_guarded.scene)
        return E_FAIL;
    range = {std::max(range.in, 0), std::min(range.out, m_guarded.scene->length - 1)};
    if (isOn && NLERangeLength(range) == 0)
        return E_INVALIDARG;
    m_guarded.isLoop = isOn;
    m_guarded.loop = range;
    if (IsRunning())
        Splice();
    else if (m_guarded.state == NLEPlayer_Playing)
        Restart(StartOf(FrameNow()), RunKind::Fresh);
    return S_OK;
}

PlayPlan PlayLoop::PlanFrom(std::int64_t material) const
{
    PlayPlan::Terms terms;
    terms.frameRate = m_guarded.scene->root->frameRate;
    terms.range = {0, m_guarded.scene->length - 1};
    terms.rate = m_guarded.rate;
    terms.material = material;
    const NLERange loop = {m_guarded.loop.in, std::min(m_guarded.loop.out, terms.range.out)};
    terms.isLoop =
        m_guarded.isLoop && m_guarded.state == NLEPlayer_Playing && NLERangeLength(loop) > 0;
    if (terms.isLoop)
        terms.range = loop;
    else
        terms.material = std::clamp<std::int64_t>(
            material, 0, PlayPlan::MaterialOf(m_guarded.scene->length, terms.frameRate) - 1);
    return PlayPlan(terms);
}

/// Backwards a frame begins with its last sample.
std::int64_t PlayLoop::StartOf(int frame) const
{
    const NLERational& rate = m_guarded.scene->root->frameRate;
    return m_guarded.rate > 0 ? PlayPlan::MaterialOf(frame, rate)
                              : PlayPlan::MaterialOf(std::int64_t(frame) + 1, rate) - 1;
}

int PlayLoop::ClampFrame(std::int64_t frame) const
{
    return int(std::clamp<std::int64_t>(frame, 0, m_guarded.scene->length - 1));
}

void PlayLoop::Restart(std::int64_t material, RunKind kind)
{
    const bool isScrubbing = kind == RunKind::Scrubbed;
    const bool isStillScrubbing =
        isScrubbing && !m_guarded.runs.empty() && m_guarded.runs.back().kind == RunKind::Scrubbed;
    m_guarded.isHeld = true;
    m_guarded.heldSince = Clock::now();
    if (!isStillScrubbing)
        m_queue.Hold(true);
    const std::int64_t base = m_device.Cut(isStillScrubbing ? SoundQueue::kCapacity : 0);
    // What is left of the grain before is no reason to want more.
    m_queue.SetWhole(isScrubbing);
    m_guarded.spare.clear();
    for (WaitingPicture& waiting : m_guarded.ahead)
        KeepSpare(std::move(waiting.picture));
    if (m_guarded.shown)
        KeepSpare(*m_guarded.shown);
    m_guarded.ahead.clear();
    m_guarded.runs.clear();
    BeginRun({base, PlanFrom(material), kind}, m_guarded.isDrawingAhead);
}

void PlayLoop::Splice()
{
    const std::int64_t base = m_device.Cut(kSplicedSound);
    const Run before = RunAt(base);
    const std::int64_t material = before.plan.MaterialAt(base - before.base);
    std::deque<WaitingPicture>& ahead = m_guarded.ahead;
    while (!ahead.empty() && ahead.back().due >= base)
        ahead.pop_back();
    std::vector<Run>& runs = m_guarded.runs;
    while (!runs.empty() && (runs.back().base >= base || runs.size() >= kMostRuns))
        runs.pop_back();
    BeginRun({base, PlanFrom(material), RunKind::Spliced}, true);
}

void PlayLoop::BeginRun(const Run& run, bool isStopping)
{
    ++m_guarded.generation;
    if (isStopping)
        m_stop = true;
    while (!m_guarded.pieces.empty() && m_guarded.pieces.back().end > run.base)
        m_guarded.pieces.pop_back();
    m_guarded.runs.push_back(run);
    m_guarded.written = 0;
    m_guarded.isGrainDone = false;
    m_guarded.index = 0;
    m_guarded.isNearDone = false;
    m_guarded.urgent.reset();
    Wake();
}

void PlayLoop::KeepSpare(PlayPicture picture)
{
    const bool isOfUse = picture.scene == m_guarded.scene && picture.size == WantedSize() &&
                         picture.source != NLEPlayerSource_Near;
    if (isOfUse && m_guarded.spare.size() < kMostSpare)
        m_guarded.spare.push_back(std::move(picture));
}

void PlayLoop::Change(int state)
{
    if (m_guarded.state == state)
        return;
    if (m_guarded.states.size() == kMostStates)
        m_guarded.states.erase(m_guarded.states.begin());
    m_guarded.states.push_back(state);
    m_guarded.state = state;
}

void PlayLoop::Wake()
{
    m_changed.notify_all();
}

bool PlayLoop::IsRunning() const
{
    return m_guarded.state == NLEPlayer_Playing && !m_guarded.isHeld;
}

std::int64_t PlayLoop::HeardNow() const
{
    const std::int64_t heard = m_queue.Heard(Clock::now()) - m_guarded.offset;
    return std::clamp(heard, std::min(m_guarded.runs.front().base, m_queue.End()), m_queue.End());
}

const PlayLoop::Run& PlayLoop::RunAt(std::int64_t count) const
{
    const auto after = std::find_if(m_guarded.runs.begin(), m_guarded.runs.end(),
                                    [=](const Run& run) { return run.base > count; });
    return after == m_guarded.runs.begin() ? *after : *std::prev(after);
}

int PlayLoop::FrameNow() const
{
    if (!IsRunning())
        return m_guarded.runs.back().plan.FrameAt(0);
    const std::int64_t heard = HeardNow();
    const Run& run = RunAt(heard);
    return run.plan.FrameAt(heard - run.base);
}

int PlayLoop::State() const
{
    const Lock lock(m_mutex);
    return m_guarded.state;
}

int PlayLoop::Position() const
{
    const Lock lock(m_mutex);
    return m_guarded.scene ? FrameNow() : -1;
}

double PlayLoop::Rate() const
{
    const Lock lock(m_mutex);
    return m_guarded.rate;
}

int PlayLoop::Length() const
{
    const Lock lock(m_mutex);
    return m_guarded.scene ? m_guarded.scene->length : -1;
}

void PlayLoop::SetPictureSize(const QSize& size)
{
    const Lock lock(m_mutex);
    if (m_guarded.size == size)
        return;
    m_guarded.size = size;
    m_guarded.spare.clear();
    if (!m_guarded.scene)
        return;
    if (IsRunning())
        Splice();
    else
        Restart(StartOf(FrameNow()), m_guarded.runs.back().kind == RunKind::Scrubbed
                                         ? RunKind::Fresh
                                         : m_guarded.runs.back().kind);
}

void PlayLoop::SetDevice(const QString& name)
{
    const Lock lock(m_mutex);
    m_device.Want(name);
    m_guarded.deviceLook = {};
    Wake();
}

void PlayLoop::SetSoundOffset(int milliseconds)
{
    const Lock lock(m_mutex);
    m_guarded.offset = std::int64_t(milliseconds) * SoundQueue::kRate / 1000;
    Wake();
}

} // namespace nle
