// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEPlayer.h"

#include <functional>
#include <mutex>
#include <optional>

/// What a player's thread has told and nobody has heard yet: the newest of each.
struct PlayerNews
{
    struct Picture
    {
        NLEComPtr<INLEVideoFrame> frame; ///< null where the node has none
        int number;
        int source; ///< NLEPlayerSource
    };
    std::optional<Picture> picture;
    std::optional<NLEPlayerReport> report;
    bool hasStateChanged = false;
    bool hasDeviceChanged = false;
};

/// Keeps the news of a player until they are fetched.
class PlayerListener : public ComObject<INLEPlayerListener>
{
public:
    /// \a wake is called on the player's thread when there are news and none were before. It must
    /// only post: news are guarded meanwhile.
    explicit PlayerListener(std::function<void()> wake);

    /// The news, which are none then.
    PlayerNews Take();
    /// Nobody is woken any more, and nothing kept.
    void Silence();

    HRESULT PictureDue(int frame, int source, INLEVideoFrame* picture) override;
    HRESULT StateChanged(int state) override;
    HRESULT DeviceChanged() override;
    HRESULT SecondPlayed(const NLEPlayerReport* report) override;

private:
    template <typename Change>
    HRESULT Note(Change change);

    struct Guarded
    {
        PlayerNews news;
        std::function<void()> wake; ///< null: silenced
        bool isAwake = false;
    };
    std::mutex m_mutex;
    Guarded m_guarded;
};
