// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEPlayer.h"

#include <QImage>
#include <QMutex>
#include <QStringList>

#include <atomic>
#include <cwchar>
#include <thread>
#include <utility>

/// A player and its frames, which may be used from any thread, unlike the scripted engine's
/// objects.
namespace ScriptedPlayer {

/// A frame over an image whose valid rectangle is a part of it.
class Frame : public ComObject<INLEVideoFrame>
{
public:
    explicit Frame(const QImage& image) : Frame(image, image.rect()) {}
    Frame(const QImage& image, const QRect& valid)
        : m_image(image), m_valid{valid.x(), valid.y(), valid.width(), valid.height()}
    {
        ++s_alive;
    }
    ~Frame() override { --s_alive; }

    static int Alive() { return s_alive; }

    int memory = NLEMemory_System;

    HRESULT Prepare() override { return S_OK; }
    HRESULT GetSize(NLESize* size) override
    {
        return GiveValue(size, NLESize{m_image.width(), m_image.height()});
    }
    HRESULT GetValidRect(NLERect* rect) override { return GiveValue(rect, m_valid); }
    HRESULT SetValidRect(const NLERect*) override { return E_NOTIMPL; }
    HRESULT GetData(std::uint8_t** pixels) override
    {
        *pixels = m_image.isNull() ? nullptr : m_image.bits();
        return *pixels ? S_OK : E_FAIL;
    }
    HRESULT GetMemory(int* out) override { return GiveValue(out, memory); }

private:
    static inline std::atomic<int> s_alive{0};
    QImage m_image;
    const NLERect m_valid;
};

/// Notes what it is asked for and answers what a test has set; what it tells its listener is the
/// test's to say, from any thread.
class Player : public ComObject<INLEPlayer>
{
public:
    HRESULT answer = S_OK; ///< of all that changes something
    std::atomic<int> state{NLEPlayer_Closed};
    std::atomic<int> position{0};
    int length = 100;
    double rate = 1;
    double volume = 1;
    bool isMuted = false;
    NLEPlayerLevels levels{};
    NLEComPtr<INLEPlayerListener> listener;

    QStringList TakeCalls() { return std::exchange(m_calls, {}); }

    HRESULT SetListener(INLEPlayerListener* newOne) override
    {
        listener = newOne;
        return S_OK;
    }
    HRESULT Open(INLETimeline*) override { return Change(state, int(NLEPlayer_Paused), "Open"); }
    HRESULT Refresh() override { return Note("Refresh"); }
    HRESULT Close() override { return Change(state, int(NLEPlayer_Closed), "Close"); }
    HRESULT Play(double newRate) override
    {
        Change(rate, newRate, QStringLiteral("Play %1").arg(newRate));
        return SUCCEEDED(answer) ? state = NLEPlayer_Playing, answer : answer;
    }
    HRESULT Pause() override { return Change(state, int(NLEPlayer_Paused), "Pause"); }
    HRESULT Seek(int frame) override { return Note(QStringLiteral("Seek %1").arg(frame)); }
    HRESULT Step(int frames) override { return Note(QStringLiteral("Step %1").arg(frames)); }
    HRESULT Scrub(int frame) override { return Note(QStringLiteral("Scrub %1").arg(frame)); }
    HRESULT SetLoop(int first, int last, bool on) override
    {
        return Note(on ? QStringLiteral("Loop %1-%2").arg(first).arg(last) : QString("Loop off"));
    }
    HRESULT GetState(int* out) override { return GiveValue(out, state.load()); }
    HRESULT GetPosition(int* out) override { return GiveValue(out, position.load()); }
    HRESULT GetRate(double* out) override { return GiveValue(out, rate); }
    HRESULT GetLength(int* out) override { return GiveValue(out, length); }
    HRESULT SetPictureSize(int width, int height) override
    {
        return Note(QStringLiteral("Size %1x%2").arg(width).arg(height));
    }
    HRESULT SetVolume(double newOne) override
    {
        return Change(volume, newOne, QStringLiteral("Volume %1").arg(newOne));
    }
    HRESULT GetVolume(double* out) override { return GiveValue(out, volume); }
    HRESULT SetMute(bool mute) override { return Change(isMuted, mute, mute ? "Mute" : "Unmute"); }
    HRESULT GetMute(bool* out) override { return GiveValue(out, isMuted); }
    HRESULT GetSoundDeviceCount(int* out) override { return GiveValue(out, 2); }
    HRESULT GetSoundDeviceName(int index, wchar_t* name, int capacity) override
    {
        std::swprintf(name, std::size_t(capacity), L"device %d", index);
        return S_OK;
    }
    HRESULT SetSoundDevice(const wchar_t* name) override
    {
        return Note("Device " + QString::fromWCharArray(name));
    }
    HRESULT GetSoundDevice(wchar_t* name, int) override
    {
        *name = L'\0';
        return answer;
    }
    HRESULT SetSoundOffset(int milliseconds) override
    {
        return Note(QStringLiteral("Offset %1").arg(milliseconds));
    }
    HRESULT GetSoundOffset(int* out) override { return GiveValue(out, 0); }
    HRESULT GetReport(NLEPlayerReport* out) override { return GiveValue(out, {}); }
    HRESULT GetTotals(NLEPlayerReport* out) override { return GiveValue(out, {}); }
    HRESULT GetLevels(NLEPlayerLevels* out) override { return GiveValue(out, levels); }
    HRESULT ResetClipping() override { return Note("ResetClipping"); }

private:
    HRESULT Note(const QString& call)
    {
        m_calls << call;
        return answer;
    }
    template <typename Field, typename Value>
    HRESULT Change(Field& field, const Value& value, const QString& call)
    {
        if (SUCCEEDED(answer))
            field = value;
        return Note(call);
    }

    QStringList m_calls;
};

/// Runs \a work on a thread of its own and waits for its end; no event of this thread is handled
/// meanwhile.
template <typename Work>
void OnOtherThread(Work work)
{
    std::thread(work).join();
}

} // namespace ScriptedPlayer
