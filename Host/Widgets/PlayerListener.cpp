// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PlayerListener.h"

#include "Com/ComGuard.h"

#include <utility>

PlayerListener::PlayerListener(std::function<void()> wake)
{
    m_guarded.wake = std::move(wake);
}

PlayerNews PlayerListener::Take()
{
    const std::lock_guard lock(m_mutex);
    m_guarded.isAwake = false;
    return std::exchange(m_guarded.news, {});
}

void PlayerListener::Silence()
{
    std::unique_lock lock(m_mutex);
    m_guarded.wake = nullptr;
    const PlayerNews dropped = std::exchange(m_guarded.news, {});
    lock.unlock(); // frames end outside of it
}

template <typename Change>
HRESULT PlayerListener::Note(Change change)
{
    return ComGuard([&] {
        const std::lock_guard lock(m_mutex);
        if (!m_guarded.wake)
            return S_OK;
        change(m_guarded.news);
        if (!std::exchange(m_guarded.isAwake, true))
            m_guarded.wake();
        return S_OK;
    });
}

HRESULT PlayerListener::PictureDue(int frame, int source, INLEVideoFrame* picture)
{
    // What it held before ends outside of the lock.
    std::optional<PlayerNews::Picture> newest({picture, frame, source});
    return Note([&](PlayerNews& news) { news.picture.swap(newest); });
}

HRESULT PlayerListener::StateChanged(int /*state*/)
{
    return Note([](PlayerNews& news) { news.hasStateChanged = true; });
}

HRESULT PlayerListener::DeviceChanged()
{
    return Note([](PlayerNews& news) { news.hasDeviceChanged = true; });
}

HRESULT PlayerListener::SecondPlayed(const NLEPlayerReport* report)
{
    if (!report)
        return E_POINTER;
    return Note([report](PlayerNews& news) { news.report = *report; });
}
