// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/SoundDevice.h"

#include <memory>
#include <mutex>

namespace nle {

/// The device that a player's sound goes to: the one that is wanted, the preset one while that is
/// not there, and a silent one that keeps time while there is none.
///
/// Keep() belongs to one thread; the others are for any.
class PlayDevice
{
public:
    explicit PlayDevice(SoundQueue& queue) : m_queue(queue) {}
    ~PlayDevice() { Close(); }
    PlayDevice(const PlayDevice&) = delete;
    PlayDevice& operator=(const PlayDevice&) = delete;

    /// Opens what is to be open and looks for what has gone or come, not more often than it must.
    /// Whether another device takes sound now, or the list has changed.
    bool Keep();
    /// Nothing takes sound until the next Keep(). For the thread of Keep().
    void Close();

    void Want(const QString& name);
    /// The device that is open; \a isSilent tells that it is none.
    QString Name(bool* isSilent) const;
    /// As SoundQueue::Cut, while the device is still.
    std::int64_t Cut(int kept);

private:
    using Clock = SoundQueue::Clock;

    struct Guarded
    {
        std::unique_ptr<SoundDevice> device;
        QString wanted;
        QString name; ///< of the device, empty: the preset one
        bool isSilent = true;
        bool isWantNew = false;
    };

    /// Whether another device was wanted since, or none is open.
    bool TakeWish();
    bool IsLost() const;
    bool IsAsWanted() const;
    bool HasListChanged();
    /// \a isFailing: by a silent device alone.
    void Reopen(bool isFailing);
    /// Nothing takes sound any more; gives the name that is wanted.
    QString Disconnect();
    /// True when it is open.
    bool TryOpen(const QString& name);
    void Take(std::unique_ptr<SoundDevice> device, const QString& name, bool isSilent);

    SoundQueue& m_queue;
    mutable std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;

    std::shared_ptr<SoundSystem> m_system;
    QStringList m_names;
    Clock::time_point m_nextLook;
    Clock::time_point m_nextStart; ///< of the system, where it did not start
    Clock::time_point m_opened;
    std::unique_ptr<SoundDevice> m_former; ///< to be closed, which waits for its thread
};

} // namespace nle
