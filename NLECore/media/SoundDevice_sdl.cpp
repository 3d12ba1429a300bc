// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/RuntimeLibrary_p.h"
#include "NLECore/media/SoundDevice.h"

#include <SDL_audio.h>
#include <SDL_error.h>
#include <SDL_hints.h>

#include <mutex>

namespace nle {

namespace {

/// Samples that a device is asked to take at a time: 21 milliseconds.
constexpr int kBlock = 1024;
/// Of SDL.h, which would rename a host's main().
constexpr Uint32 kInitAudio = 0x10;

/// SDL, found when it is first needed and kept then.
struct Sdl : RuntimeLibrary
{
    decltype(&SDL_GetError) getError = nullptr;
    decltype(&SDL_SetHint) setHint = nullptr;
    int (*initSubSystem)(Uint32) = nullptr;
    void (*quitSubSystem)(Uint32) = nullptr;
    void (*cleanThread)() = nullptr; ///< what SDL keeps for the calling thread
    decltype(&SDL_OpenAudioDevice) open = nullptr;
    decltype(&SDL_CloseAudioDevice) close = nullptr;
    decltype(&SDL_PauseAudioDevice) pause = nullptr;
    decltype(&SDL_LockAudioDevice) lock = nullptr;
    decltype(&SDL_UnlockAudioDevice) unlock = nullptr;
    decltype(&SDL_GetAudioDeviceStatus) status = nullptr;
    decltype(&SDL_GetNumAudioDevices) count = nullptr;
    decltype(&SDL_GetAudioDeviceName) name = nullptr;

    Sdl();
    /// Null when there is no SDL on this computer.
    static const Sdl* Get();
};

Sdl::Sdl() : RuntimeLibrary(QStringLiteral("SDL2-2.0"), 0)
{
    if (!library.load())
        library.setFileName(QStringLiteral("SDL2"));
    Resolve(getError, "SDL_GetError");
    Resolve(setHint, "SDL_SetHint");
    Resolve(initSubSystem, "SDL_InitSubSystem");
    Resolve(quitSubSystem, "SDL_QuitSubSystem");
    Resolve(cleanThread, "SDL_TLSCleanup");
    Resolve(open, "SDL_OpenAudioDevice");
    Resolve(close, "SDL_CloseAudioDevice");
    Resolve(pause, "SDL_PauseAudioDevice");
    Resolve(lock, "SDL_LockAudioDevice");
    Resolve(unlock, "SDL_UnlockAudioDevice");
    Resolve(status, "SDL_GetAudioDeviceStatus");
    Resolve(count, "SDL_GetNumAudioDevices");
    Resolve(name, "SDL_GetAudioDeviceName");
    if (!isThere)
        qCWarning(lcEngine, "no sound: %s", qPrintable(library.errorString()));
}

const Sdl* Sdl::Get()
{
    static const Sdl sdl;
    return sdl.isThere ? &sdl : nullptr;
}

/// SDL's sound for as long as somebody uses it. SDL counts its users, but not from several threads.
class SdlSystem final : public SoundSystem, public std::enable_shared_from_this<SdlSystem>
{
public:
    explicit SdlSystem(const Sdl& functions) : sdl(functions) {}
    ~SdlSystem() override
    {
        const std::lock_guard<std::mutex> lock(Mutex());
        sdl.quitSubSystem(kInitAudio);
        sdl.cleanThread();
    }

    QStringList Names() const override
    {
        QStringList names;
        const int count = sdl.count(0);
        for (int i = 0; i < count; ++i)
            names << QString::fromUtf8(sdl.name(i, 0));
        return names;
    }
    std::unique_ptr<SoundDevice> Open(const QString& name) override;

    static std::mutex& Mutex()
    {
        static std::mutex s_mutex;
        return s_mutex;
    }

    const Sdl& sdl;
};

class SdlDevice final : public SoundDevice
{
public:
    explicit SdlDevice(std::shared_ptr<SdlSystem> system) : m_system(std::move(system)) {}
    ~SdlDevice() override
    {
        if (m_id != 0)
            m_system->sdl.close(m_id);
    }

    bool Open(const QString& name)
    {
        SDL_AudioSpec wanted = {};
        wanted.freq = SoundQueue::kRate;
        wanted.format = AUDIO_F32SYS;
        wanted.channels = SoundQueue::kChannels;
        wanted.samples = kBlock;
        wanted.callback = &SdlDevice::OnWanted;
        wanted.userdata = static_cast<SoundDevice*>(this);
        SDL_AudioSpec obtained = {};
        const Sdl& sdl = m_system->sdl;
        const QByteArray bytes = name.toUtf8();
        m_id = sdl.open(name.isEmpty() ? nullptr : bytes.constData(), 0, &wanted, &obtained,
                        SDL_AUDIO_ALLOW_SAMPLES_CHANGE);
        if (m_id == 0) {
            qCWarning(lcEngine, "no sound device: %s", sdl.getError());
            return false;
        }
        sdl.pause(m_id, 0);
        return true;
    }

    void WhileStill(const std::function<void()>& change) override
    {
        m_system->sdl.lock(m_id);
        change();
        m_system->sdl.unlock(m_id);
    }
    bool IsLost() const override { return m_system->sdl.status(m_id) == SDL_AUDIO_STOPPED; }

protected:
    // The block that plays and the one that was taken.
    int Latency() const override { return 2; }

private:
    static void SDLCALL OnWanted(void* device, Uint8* bytes, int length)
    {
        static_cast<SdlDevice*>(static_cast<SoundDevice*>(device))
            ->Take(reinterpret_cast<float*>(bytes),
                   length / int(sizeof(float) * SoundQueue::kChannels));
    }

    const std::shared_ptr<SdlSystem> m_system;
    SDL_AudioDeviceID m_id = 0;
};

std::unique_ptr<SoundDevice> SdlSystem::Open(const QString& name)
{
    auto device = std::make_unique<SdlDevice>(shared_from_this());
    return device->Open(name) ? std::move(device) : nullptr;
}

} // namespace

std::shared_ptr<SoundSystem> SoundSystem::Start()
{
    const Sdl* sdl = Sdl::Get();
    if (!sdl)
        return nullptr;
    const std::lock_guard<std::mutex> lock(SdlSystem::Mutex());
    // The program's own handlers of signals stay.
    sdl->setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (sdl->initSubSystem(kInitAudio) == 0)
        return std::make_shared<SdlSystem>(*sdl);
    qCWarning(lcEngine, "no sound: %s", sdl->getError());
    sdl->cleanThread();
    return nullptr;
}

} // namespace nle
