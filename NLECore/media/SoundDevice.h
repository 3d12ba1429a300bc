// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/SoundQueue.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace nle {

/// What takes sound from a queue in real time.
class SoundDevice
{
public:
    SoundDevice() = default;
    virtual ~SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Takes from \a queue from now on, null: plays silence. The queue outlives the connection.
    void Connect(SoundQueue* queue);
    /// Runs \a change while nothing is taken. It must not wait for anything.
    virtual void WhileStill(const std::function<void()>& change) = 0;
    /// Whether the device has gone away or fails.
    virtual bool IsLost() const = 0;

protected:
    /// As SoundQueue::Take, from the queue that is connected.
    void Take(float* samples, int count);
    /// See SoundQueue::SetLatency.
    virtual int Latency() const = 0;

private:
    SoundQueue* m_queue = nullptr;
};

/// The devices of this computer. While one object lives the list follows what comes and goes.
class SoundSystem
{
public:
    SoundSystem() = default;
    virtual ~SoundSystem() = default;
    SoundSystem(const SoundSystem&) = delete;
    SoundSystem& operator=(const SoundSystem&) = delete;

    /// Null without a library for sound and where it finds nothing to play on; the log has the
    /// reason. May take a while, as opening does.
    static std::shared_ptr<SoundSystem> Start();

    virtual QStringList Names() const = 0;
    /// The device of that name, empty: the preset one; it outlives this object. Null when it cannot
    /// be opened; the log has the reason.
    virtual std::unique_ptr<SoundDevice> Open(const QString& name) = 0;
};

/// Takes sound at the pace of a steady clock, for where there is no device. Null when there is no
/// thread.
std::unique_ptr<SoundDevice> OpenSilentDevice();

} // namespace nle
