// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PlayDevice.h"

#include "NLECore/media/EngineLog.h"

#include <utility>

namespace nle {

namespace {

constexpr std::chrono::milliseconds kLookEvery{250};
/// A sound system that found nothing is not asked again before.
constexpr std::chrono::seconds kStartEvery{10};
/// A device that goes sooner than this after it was opened is not opened again by itself.
constexpr std::chrono::seconds kShortest{2};

} // namespace

void PlayDevice::Want(const QString& name)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.wanted = name;
    m_guarded.isWantNew = true;
}

QString PlayDevice::Name(bool* isSilent) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    *isSilent = m_guarded.isSilent;
    return m_guarded.name;
}

std::int64_t PlayDevice::Cut(int kept)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::int64_t end = 0;
    const auto cut = [&] { end = m_queue.Cut(kept); };
    if (m_guarded.device)
        m_guarded.device->WhileStill(cut);
    else
        cut();
    return end;
}

bool PlayDevice::Keep()
{
    const Clock::time_point now = Clock::now();
    bool isWanted = TakeWish();
    if (!isWanted && now < m_nextLook)
        return false;
    m_nextLook = now + kLookEvery;
    const bool isLost = IsLost();
    const bool hasChanged = HasListChanged();
    if (isWanted || isLost || (hasChanged && !IsAsWanted())) {
        Reopen(isLost && now < m_opened + kShortest);
        isWanted = true;
    }
    return isWanted || hasChanged;
}

bool PlayDevice::TakeWish()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_guarded.isWantNew, false) || !m_guarded.device;
}

bool PlayDevice::IsLost() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_guarded.device && m_guarded.device->IsLost();
}

bool PlayDevice::IsAsWanted() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_guarded.isSilent && m_guarded.name == m_guarded.wanted;
}

bool PlayDevice::HasListChanged()
{
    const Clock::time_point now = Clock::now();
    if (!m_system && now >= m_nextStart) {
        m_system = SoundSystem::Start();
        m_nextStart = now + kStartEvery;
    }
    QStringList names = m_system ? m_system->Names() : QStringList();
    const bool hasChanged = names != m_names;
    m_names = std::move(names);
    return hasChanged;
}

void PlayDevice::Reopen(bool isFailing)
{
    const QString wanted = Disconnect();
    if (isFailing)
        qCWarning(lcEngine, "the sound device fails; a steady clock stands in");
    else if (TryOpen(wanted) || (!wanted.isEmpty() && TryOpen(QString())))
        return;
    Take(OpenSilentDevice(), QString(), true);
}

QString PlayDevice::Disconnect()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_guarded.device)
        m_guarded.device->Connect(nullptr);
    m_former = std::move(m_guarded.device);
    return m_guarded.wanted;
}

bool PlayDevice::TryOpen(const QString& name)
{
    m_former.reset();
    std::unique_ptr<SoundDevice> device = m_system ? m_system->Open(name) : nullptr;
    if (!device)
        return false;
    Take(std::move(device), name, false);
    return true;
}

void PlayDevice::Take(std::unique_ptr<SoundDevice> device, const QString& name, bool isSilent)
{
    m_former.reset();
    m_opened = Clock::now();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (device)
        device->Connect(&m_queue);
    m_guarded.device = std::move(device);
    m_guarded.name = name;
    m_guarded.isSilent = isSilent;
}

void PlayDevice::Close()
{
    Disconnect();
    m_former.reset();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_guarded.isSilent = true;
        m_guarded.name.clear();
    }
    m_system.reset();
    m_names.clear();
    m_nextStart = {};
}

} // namespace nle
