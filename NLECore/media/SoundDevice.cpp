// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SoundDevice.h"

#include "NLECore/media/EngineLog.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace nle {

namespace {

/// Samples that the silent device takes at a time.
constexpr int kSilentBlock = 480;
/// A clock that is later than this was suspended, and does not catch up.
constexpr std::chrono::milliseconds kSuspended{500};

class SilentDevice final : public SoundDevice
{
public:
    SilentDevice() : m_thread([this] { Run(); }) {}
    ~SilentDevice() override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isEnding = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }

    void WhileStill(const std::function<void()>& change) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        change();
    }
    bool IsLost() const override { return false; }

protected:
    int Latency() const override { return 1; }

private:
    void Run()
    {
        using Clock = SoundQueue::Clock;
        const std::chrono::microseconds period(std::int64_t(kSilentBlock) * 1000000 /
                                               SoundQueue::kRate);
        float samples[kSilentBlock * SoundQueue::kChannels];
        std::unique_lock<std::mutex> lock(m_mutex);
        for (Clock::time_point next = Clock::now(); !m_isEnding; next += period) {
            if (Clock::now() > next + kSuspended)
                next = Clock::now();
            m_changed.wait_until(lock, next, [this] { return m_isEnding; });
            Take(samples, kSilentBlock);
        }
    }

    std::mutex m_mutex; ///< guards m_isEnding and what Take() uses
    std::condition_variable m_changed;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace

void SoundDevice::Connect(SoundQueue* queue)
{
    WhileStill([=] {
        m_queue = queue;
        if (queue)
            queue->SetLatency(Latency());
    });
}

void SoundDevice::Take(float* samples, int count)
{
    if (m_queue)
        m_queue->Take(samples, count, SoundQueue::Clock::now());
    else
        std::fill_n(samples, size_t(count) * SoundQueue::kChannels, 0.0f);
}

std::unique_ptr<SoundDevice> OpenSilentDevice()
{
    try {
        return std::make_unique<SilentDevice>();
    } catch (const std::system_error& error) {
        qCWarning(lcEngine, "no thread: %s", error.what());
    }
    return nullptr;
}

} // namespace nle
