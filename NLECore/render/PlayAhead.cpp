// SPDX-License-Identifier: LGPL-2.1-or-later
// What a PlayLoop renders ahead: the thread that mixes and the one that composes.
#include "NLECore/render/PlayLimits_p.h"
#include "NLECore/render/PlayLoop.h"

#include <algorithm>

namespace nle {

namespace {

/// Samples that are mixed at a time, and ahead of what the device takes.
constexpr int kChunk = 480;
constexpr int kSoundAhead = SoundQueue::kRate / 5;
/// Pictures that are composed ahead while playing. Fewer where they are large.
constexpr int kPicturesAhead = 8;
constexpr std::int64_t kMostBytesAhead = std::int64_t(256) << 20;
/// What a picture is thought to cost at the most, in seconds.
constexpr double kMostCost = 0.5;

constexpr std::chrono::milliseconds kMixEvery{5};

} // namespace

template <typename Object>
bool PlayLoop::FollowScene(Lock& lock, Object& object, SharedScene Guarded::*open)
{
    if (m_guarded.*open == m_guarded.scene)
        return false;
    const SharedScene scene = m_guarded.scene;
    lock.unlock();
    object.SetScene(scene);
    lock.lock();
    m_guarded.*open = scene;
    Wake();
    return true;
}

// --- The thread that mixes ---

void PlayLoop::MixSound()
{
    PlaySound sound;
    std::uint64_t planned = 0;
    Lock lock(m_mutex);
    while (!m_guarded.isEnding)
        Try(lock, [&] { MixNext(lock, sound, &planned); });
}

void PlayLoop::MixNext(Lock& lock, PlaySound& sound, std::uint64_t* planned)
{
    if (FollowScene(lock, sound, &Guarded::mixing))
        return;
    if (!m_guarded.scene)
        return m_changed.wait(lock);
    if (*planned != m_guarded.generation)
        sound.SetPlan(m_guarded.runs.back().plan);
    *planned = m_guarded.generation;
    const bool isScrubbed = m_guarded.runs.back().kind == RunKind::Scrubbed;
    if (isScrubbed ? MixGrain(lock, sound) : MixChunk(lock, sound))
        return;
    if (IsRunning() || (isScrubbed && !m_guarded.isGrainDone))
        m_changed.wait_for(lock, kMixEvery);
    else
        m_changed.wait(lock);
}

bool PlayLoop::MixChunk(Lock& lock, PlaySound& sound)
{
    // Silence stands in for what a late device still has to sound when the run has ended.
    const std::int64_t length = m_guarded.runs.back().plan.Length();
    const std::int64_t tail = std::max<std::int64_t>(m_guarded.offset, 0);
    const std::int64_t left = std::min(length, PlayPlan::kNever - tail) + tail - m_guarded.written;
    const int count = int(std::min<std::int64_t>(left, kChunk));
    if (count <= 0 || m_queue.Waiting() + count > kSoundAhead)
        return false;
    const std::uint64_t generation = m_guarded.generation;
    float samples[kChunk * SoundQueue::kChannels];
    lock.unlock();
    sound.Read(count, samples);
    lock.lock();
    if (generation != m_guarded.generation)
        return true;
    WriteSound(samples, count);
    m_guarded.written += count;
    if (left == count)
        m_queue.SetWhole(true);
    if (!IsRunning())
        Wake();
    return true;
}

bool PlayLoop::MixGrain(Lock& lock, PlaySound& sound)
{
    if (m_guarded.isGrainDone || m_queue.Waiting() > kChunk)
        return false;
    const std::uint64_t generation = m_guarded.generation;
    const NLERational rate = m_guarded.scene->root->frameRate;
    const std::int64_t material = PlayPlan::MaterialOf(FrameNow(), rate);
    std::vector<float> samples(size_t(PlaySound::kGrain) * SoundQueue::kChannels);
    lock.unlock();
    sound.ReadGrain(material, samples.data());
    lock.lock();
    if (generation != m_guarded.generation)
        return true;
    for (int done = 0; done < PlaySound::kGrain; done += kChunk)
        WriteSound(samples.data() + size_t(done) * SoundQueue::kChannels, kChunk);
    m_guarded.isGrainDone = true;
    m_queue.Hold(false);
    return true;
}

void PlayLoop::WriteSound(const float* samples, int count)
{
    m_queue.Write(samples, count);
    // Without memory the levels are without it.
    ComGuard([&] {
        m_guarded.pieces.push_back({m_queue.End(), LevelMeter::Measure(samples, count)});
        return S_OK;
    });
}

// --- The thread that composes ---

void PlayLoop::ComposePictures()
{
    std::optional<PlayComposer> composer;
    Lock lock(m_mutex);
    while (!m_guarded.isEnding) {
        Try(lock, [&] {
            if (!composer)
                composer.emplace(m_stop);
            ComposeNext(lock, *composer);
        });
    }
}

void PlayLoop::ComposeNext(Lock& lock, PlayComposer& composer)
{
    if (FollowScene(lock, composer, &Guarded::composing))
        return;
    if (const std::optional<Task> task = NextTask())
        Compose(lock, composer, *task);
    else if (IsRunning())
        m_changed.wait_for(lock, kPlayEvery);
    else
        m_changed.wait(lock);
}

QSize PlayLoop::WantedSize() const
{
    const NLESize own = m_guarded.scene->root->size;
    return m_guarded.size.isEmpty() ? QSize(own.width, own.height) : m_guarded.size;
}

int PlayLoop::MostAhead() const
{
    if (m_guarded.runs.back().kind == RunKind::Scrubbed)
        return 0;
    const QSize size = WantedSize();
    const std::int64_t bytes = std::int64_t(4) * size.width() * size.height();
    const auto most = int(kMostBytesAhead / std::max<std::int64_t>(bytes, 1));
    return std::clamp(most, 1,
                      m_guarded.state == NLEPlayer_Playing ? kPicturesAhead : kPicturesAtFirst);
}

std::optional<PlayLoop::Task> PlayLoop::NextTask()
{
    while (m_guarded.scene) {
        const Run& run = m_guarded.runs.back();
        const bool isFirst = m_guarded.index == 0 && run.kind != RunKind::Spliced;
        if (!isFirst && int(m_guarded.ahead.size()) >= MostAhead())
            break;
        if (!isFirst && IsRunning())
            SkipLate();
        const PlayPlan::Due due = run.plan.Picture(m_guarded.index);
        if (due.played >= run.plan.Length())
            break;
        const QSize size = WantedSize();
        const bool isNear = run.kind == RunKind::Scrubbed && !m_guarded.isNearDone;
        const Task task = {m_guarded.generation,
                           due.frame,
                           run.base + due.played,
                           size,
                           m_guarded.scene,
                           isNear,
                           isFirst};
        if (!TakeSpare(task))
            return task;
    }
    return {};
}

bool PlayLoop::TakeSpare(const Task& task)
{
    std::vector<PlayPicture>& spare = m_guarded.spare;
    const auto found = std::find_if(spare.begin(), spare.end(), [&](const PlayPicture& picture) {
        return picture.frame == task.frame && picture.size == task.size;
    });
    if (found == spare.end())
        return false;
    PlayPicture picture = *found;
    Deliver(task, std::move(picture));
    return true;
}

/// Passes over pictures that would come more than a frame too late.
void PlayLoop::SkipLate()
{
    const Run& run = m_guarded.runs.back();
    const auto cost = std::int64_t(std::min(m_guarded.cost, kMostCost) * SoundQueue::kRate);
    const std::int64_t then = HeardNow() - run.base + cost;
    const double frame = SoundQueue::kRate / ToDouble(m_guarded.scene->root->frameRate);
    if (double(run.plan.Picture(m_guarded.index).played) + frame >= double(then))
        return;
    const std::int64_t next = run.plan.PictureAt(then) + 1;
    m_guarded.second.report.dropped += int(std::max<std::int64_t>(next - m_guarded.index, 0));
    m_guarded.index = std::max(next, m_guarded.index);
}

void PlayLoop::Compose(Lock& lock, PlayComposer& composer, const Task& task)
{
    m_stop = false;
    m_guarded.isDrawingAhead = !task.isFirst;
    const Clock::time_point start = Clock::now();
    lock.unlock();
    PlayPicture picture = task.isNear ? composer.ComposeNear(task.frame, task.size)
                                      : composer.Compose(task.frame, task.size);
    lock.lock();
    m_guarded.isDrawingAhead = false;
    const double cost = std::chrono::duration<double>(Clock::now() - start).count();
    if (!task.isFirst)
        m_guarded.cost = m_guarded.cost == 0 ? cost : 0.8 * m_guarded.cost + 0.2 * cost;
    Deliver(task, std::move(picture));
}

void PlayLoop::Deliver(const Task& task, PlayPicture picture)
{
    const bool isNear = picture.source == NLEPlayerSource_Near;
    if (task.generation != m_guarded.generation) {
        if (task.scene != m_guarded.scene || picture.image.isNull())
            return;
        // Of a play head that moves on faster than pictures can be drawn some are shown.
        const bool isStill = Clock::now() > m_guarded.shownAt + kLongestStill;
        if (task.isFirst && !m_guarded.urgent && (isNear || isStill))
            m_guarded.urgent = picture;
        KeepSpare(std::move(picture));
    } else if (!task.isFirst) {
        m_guarded.ahead.push_back({task.due, std::move(picture)});
        ++m_guarded.index;
    } else {
        m_guarded.urgent = std::move(picture);
        m_guarded.isNearDone = true;
        m_guarded.index += isNear ? 0 : 1;
    }
    Wake();
}

} // namespace nle
