// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEPlayer.h"
#include "NLECore/model/TimelineNode.h"
#include "NLECore/render/PlayLoop.h"

#include <memory>

namespace nle {

/// A picture that was composed for a player, without a copy of its pixels.
class PlayedFrame final : public ComObject<INLEVideoFrame>
{
public:
    explicit PlayedFrame(QImage image) : m_image(std::move(image)) {}

    HRESULT Prepare() override { return S_OK; }
    HRESULT GetSize(NLESize* size) override;
    HRESULT GetValidRect(NLERect* rect) override;
    HRESULT SetValidRect(const NLERect* rect) override;
    HRESULT GetData(std::uint8_t** pixels) override;
    HRESULT GetMemory(int* memory) override;

private:
    const QImage m_image;
};

class Player final : public ComObject<INLEPlayer>
{
public:
    /// Throws std::bad_alloc when there are no threads.
    Player();

    HRESULT SetListener(INLEPlayerListener* listener) override;
    HRESULT Open(INLETimeline* timeline) override;
    HRESULT Refresh() override;
    HRESULT Close() override;
    HRESULT Play(double rate) override;
    HRESULT Pause() override;
    HRESULT Seek(int frame) override;
    HRESULT Step(int frames) override;
    HRESULT Scrub(int frame) override;
    HRESULT SetLoop(int first, int last, bool on) override;
    HRESULT GetState(int* state) override;
    HRESULT GetPosition(int* frame) override;
    HRESULT GetRate(double* rate) override;
    HRESULT GetLength(int* frames) override;
    HRESULT SetPictureSize(int width, int height) override;
    HRESULT SetVolume(double volume) override;
    HRESULT GetVolume(double* volume) override;
    HRESULT SetMute(bool mute) override;
    HRESULT GetMute(bool* mute) override;
    HRESULT GetSoundDeviceCount(int* count) override;
    HRESULT GetSoundDeviceName(int index, wchar_t* name, int capacity) override;
    HRESULT SetSoundDevice(const wchar_t* name) override;
    HRESULT GetSoundDevice(wchar_t* name, int capacity) override;
    HRESULT SetSoundOffset(int milliseconds) override;
    HRESULT GetSoundOffset(int* milliseconds) override;
    HRESULT GetReport(NLEPlayerReport* report) override;
    HRESULT GetTotals(NLEPlayerReport* report) override;
    HRESULT GetLevels(NLEPlayerLevels* levels) override;
    HRESULT ResetClipping() override;

private:
    /// Calls the listener.
    class Voice final : public PlayEvents
    {
    public:
        /// Waits for a call that is running, unless \a isWithin it.
        void SetListener(INLEPlayerListener* listener, bool isWithin);

        void PictureDue(const PlayPicture& picture) override;
        void StateChanged(int state) override;
        void DeviceChanged() override;
        void SecondPlayed(const NLEPlayerReport& report) override;

    private:
        template <typename Call>
        void Tell(Call&& call);

        std::mutex m_calling; ///< held during a call, of which SetListener() awaits the end
        std::mutex m_mutex;   ///< guards m_listener
        NLEComPtr<INLEPlayerListener> m_listener;
    };
    struct Core
    {
        Voice voice;
        PlayLoop loop{voice};
        std::shared_ptr<Core> self; ///< while it outlasts the player
    };

    ~Player() override;
    static SharedScene SceneOf(const TimelineNode& node);
    void ApplyVolume();

    std::shared_ptr<Core> m_core = std::make_shared<Core>();
    NLEComPtr<TimelineNode> m_node; ///< of the thread that edits

    struct Guarded
    {
        double volume = 1;
        bool isMute = false;
        int offset = 0;
        QStringList devices;
    };
    std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;
};

} // namespace nle
