// SPDX-License-Identifier: LGPL-2.1-or-later
// The player's thread of a PlayLoop: shows what is due, tells, and looks after the device.
#include "NLECore/render/PlayLimits_p.h"
#include "NLECore/render/PlayLoop.h"

#include <algorithm>

namespace nle {

namespace {

/// Playing begins after this, filled up or not.
constexpr std::chrono::milliseconds kLongestFill{500};
constexpr std::chrono::milliseconds kLookEvery{250};

double Seconds(std::int64_t samples)
{
    return double(samples) / SoundQueue::kRate;
}

} // namespace

void PlayLoop::Present()
{
    Lock lock(m_mutex);
    while (!m_guarded.isEnding)
        Try(lock, [&] { PresentNext(lock); });
    lock.unlock();
    m_device.Close();
}

void PlayLoop::PresentNext(Lock& lock)
{
    if (TellState(lock) || CountSecond() || TellSecond(lock) || ShowUrgent(lock) ||
        KeepDevice(lock))
        return;
    Measure();
    if (m_guarded.scene && (BeginPlaying() || EndPlaying() || ShowDue(lock)))
        return;
    WaitForMore(lock);
}

bool PlayLoop::TellState(Lock& lock)
{
    if (m_guarded.states.empty())
        return false;
    const int state = m_guarded.states.front();
    m_guarded.states.erase(m_guarded.states.begin());
    lock.unlock();
    m_events.StateChanged(state);
    lock.lock();
    return true;
}

bool PlayLoop::CountSecond()
{
    if (!IsRunning() || Clock::now() < m_guarded.secondSince + std::chrono::seconds(1))
        return false;
    m_guarded.secondSince += std::chrono::seconds(1);
    const int underruns = m_queue.Underruns();
    m_guarded.second.report.underruns = underruns - std::exchange(m_guarded.underruns, underruns);
    m_guarded.lastSecond = m_guarded.toldSecond = m_guarded.second.Sum();
    m_guarded.total.Add(std::exchange(m_guarded.second, {}));
    return true;
}

bool PlayLoop::TellSecond(Lock& lock)
{
    if (!m_guarded.toldSecond)
        return false;
    const NLEPlayerReport report = *m_guarded.toldSecond;
    m_guarded.toldSecond.reset();
    lock.unlock();
    m_events.SecondPlayed(report);
    lock.lock();
    return true;
}

bool PlayLoop::ShowUrgent(Lock& lock)
{
    if (!m_guarded.urgent)
        return false;
    PlayPicture picture = std::move(*m_guarded.urgent);
    m_guarded.urgent.reset();
    Show(lock, std::move(picture));
    return true;
}

void PlayLoop::Show(Lock& lock, PlayPicture picture)
{
    m_guarded.shown = picture;
    m_guarded.shownAt = Clock::now();
    Wake();
    lock.unlock();
    m_events.PictureDue(picture);
    lock.lock();
}

bool PlayLoop::KeepDevice(Lock& lock)
{
    const Clock::time_point now = Clock::now();
    if (!m_guarded.scene) {
        if (!m_guarded.isDeviceOpen)
            return false;
        lock.unlock();
        m_device.Close();
        lock.lock();
        m_guarded.isDeviceOpen = false;
        Wake();
        return true;
    }
    if (m_guarded.isDeviceOpen && now < m_guarded.deviceLook)
        return false;
    m_guarded.isDeviceOpen = true;
    m_guarded.deviceLook = now + kLookEvery;
    lock.unlock();
    if (m_device.Keep())
        m_events.DeviceChanged();
    lock.lock();
    return true;
}

bool PlayLoop::BeginPlaying()
{
    if (m_guarded.state != NLEPlayer_Playing || !m_guarded.isHeld)
        return false;
    const Clock::time_point now = Clock::now();
    const PlayPlan& plan = m_guarded.runs.back().plan;
    const bool hasSound = m_queue.Waiting() >= kSoundAtFirst || m_guarded.written >= plan.Length();
    const int wanted = std::min(kPicturesAtFirst, MostAhead());
    const bool hasPictures = int(m_guarded.ahead.size()) >= wanted ||
                             plan.Picture(m_guarded.index).played >= plan.Length();
    if (!(hasSound && hasPictures) && now < m_guarded.heldSince + kLongestFill)
        return false;
    m_guarded.isHeld = false;
    m_queue.Hold(false);
    m_guarded.secondSince = now;
    m_guarded.total.Add(std::exchange(m_guarded.second, {}));
    Wake();
    return true;
}

bool PlayLoop::EndPlaying()
{
    if (!IsRunning())
        return false;
    const Run& run = m_guarded.runs.back();
    const std::int64_t length = run.plan.Length();
    const std::int64_t heard = HeardNow();
    if (length == PlayPlan::kNever || heard < run.base + length)
        return false;
    const bool isShown = m_guarded.ahead.empty();
    if (!isShown)
        return false;
    GoTo(run.plan.FrameAt(length), NLEPlayer_Paused, RunKind::Fresh);
    return true;
}

bool PlayLoop::ShowDue(Lock& lock)
{
    if (!IsRunning())
        return false;
    std::deque<WaitingPicture>& ahead = m_guarded.ahead;
    const std::int64_t heard = HeardNow();
    for (; ahead.size() > 1 && ahead[1].due <= heard; ahead.pop_front())
        ++m_guarded.second.report.dropped;
    if (ahead.empty() || ahead.front().due > heard)
        return false;
    WaitingPicture next = std::move(ahead.front());
    ahead.pop_front();
    const double late = Seconds(heard - next.due);
    const bool isStill = Clock::now() > m_guarded.shownAt + kLongestStill;
    if (late > 1 / ToDouble(m_guarded.scene->root->frameRate) && !isStill) {
        ++m_guarded.second.report.dropped;
        return true;
    }
    m_guarded.second.Add(next.picture.source, late * 1000);
    Show(lock, std::move(next.picture));
    return true;
}

void PlayLoop::WaitForMore(Lock& lock)
{
    if (!m_guarded.scene) {
        m_changed.wait(lock);
        return;
    }
    std::chrono::duration<double> longest = kPlayEvery;
    if (m_guarded.state != NLEPlayer_Playing && m_guarded.pieces.empty())
        longest = kLookEvery;
    else if (IsRunning() && !m_guarded.ahead.empty())
        longest = std::min(longest, std::chrono::duration<double>(
                                        Seconds(m_guarded.ahead.front().due - HeardNow() + 1)));
    m_changed.wait_for(lock, longest);
}

} // namespace nle
