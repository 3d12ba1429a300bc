// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/MediaPlayer.h"

#include "Com/WideText.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "EngineApi/INLEFactory.h"
#include "Host/Widgets/PlayerListener.h"

#include <QMetaObject>
#include <QSize>
#include <QTimerEvent>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace {

constexpr int kTick = 33; // milliseconds: thirty a second
/// After the last sound the meters get this many silent levels more: sound that was asked for may
/// be on its way to the device.
constexpr int kMostSilentTicks = 15;
constexpr int kNameCapacity = 256;

NLEComPtr<INLEPlayer> MakePlayer()
{
    NLEWraper::GetInstance(nullptr); // starts the engine
    NLEComPtr<INLEFactory> factory;
    NLEComPtr<INLEPlayer> player;
    if (!CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                        INLEFactory::Iid, factory.putVoid()))
        return nullptr;
    if (FAILED(factory->CreatePlayer(player.put())))
        player.forget();
    return player;
}

bool IsSilent(const NLEPlayerLevels& levels)
{
    const int count = std::clamp(levels.channels, 0, int(std::size(levels.peak)));
    return std::all_of(levels.peak, levels.peak + count, [](float peak) { return peak <= 0; });
}

} // namespace

MediaPlayer::MediaPlayer(QObject* parent) : MediaPlayer(MakePlayer(), parent) {}

MediaPlayer::MediaPlayer(NLEComPtr<INLEPlayer> player, QObject* parent)
    : QObject(parent), m_player(std::move(player))
{
    m_wraper = NLEWraper::GetInstance(nullptr);
    m_wraper->SetMeidaPlayerControl(this);
    if (!m_player)
        return;
    m_listener = MakeCom<PlayerListener>([this] {
        QMetaObject::invokeMethod(
            this, [this] { Deliver(); }, Qt::QueuedConnection);
    });
    m_player->SetListener(m_listener.get());
}

MediaPlayer::~MediaPlayer()
{
    // The host may have released the wrapper, or set another control.
    if (m_wraper && m_wraper->GetMeidaPlayerControl() == this)
        m_wraper->SetMeidaPlayerControl(nullptr);
    if (!m_player)
        return;
    m_listener->Silence();
    m_player->SetListener(nullptr);
    m_player->Close();
}

template <typename Operation, typename... Arguments>
bool MediaPlayer::Call(Operation operation, const Arguments&... arguments) const
{
    return m_player && SUCCEEDED((m_player.get()->*operation)(arguments...));
}

template <typename Value, typename Operation>
Value MediaPlayer::Get(Value preset, Operation operation) const
{
    Value value = preset;
    return Call(operation, &value) ? value : preset;
}

bool MediaPlayer::Open(NLEComPtr<INLETimeline> timeline)
{
    const QPointer<MediaPlayer> self(this);
    Close(); // so that nothing of the former node comes after this
    if (!self)
        return false;
    const bool isOpen = Call(&INLEPlayer::Open, timeline.get());
    TellLength();
    return isOpen;
}

bool MediaPlayer::Refresh()
{
    const bool isRefreshed = Call(&INLEPlayer::Refresh);
    TellLength();
    return isRefreshed;
}

void MediaPlayer::Close()
{
    if (!IsOpen())
        return;
    m_player->Close();
    m_timer.stop();
    m_listener->Take();
    const QPointer<MediaPlayer> self(this);
    TellState();
    if (self)
        TellLength();
    if (self)
        TellPosition(0);
}

bool MediaPlayer::Play(double rate)
{
    const double before = Rate();
    if (!Call(&INLEPlayer::Play, rate))
        return false;
    Watch();
    if (rate != before)
        Q_EMIT RateChanged(rate);
    return true;
}

bool MediaPlayer::Pause()
{
    return Call(&INLEPlayer::Pause);
}

bool MediaPlayer::Seek(int frame)
{
    return Call(&INLEPlayer::Seek, frame);
}

bool MediaPlayer::Step(int frames)
{
    return Call(&INLEPlayer::Step, frames);
}

bool MediaPlayer::Scrub(int frame)
{
    if (!Call(&INLEPlayer::Scrub, frame))
        return false;
    Watch();
    return true;
}

bool MediaPlayer::SetLoop(int first, int last)
{
    return Call(&INLEPlayer::SetLoop, first, last, true);
}

bool MediaPlayer::ClearLoop()
{
    return Call(&INLEPlayer::SetLoop, 0, 0, false);
}

int MediaPlayer::Position() const
{
    return Get(0, &INLEPlayer::GetPosition);
}

int MediaPlayer::Length() const
{
    return IsOpen() ? Get(0, &INLEPlayer::GetLength) : 0;
}

NLEPlayerState MediaPlayer::State() const
{
    return static_cast<NLEPlayerState>(Get<int>(NLEPlayer_Closed, &INLEPlayer::GetState));
}

double MediaPlayer::Rate() const
{
    return Get(1.0, &INLEPlayer::GetRate);
}

double MediaPlayer::Volume() const
{
    return Get(1.0, &INLEPlayer::GetVolume);
}

bool MediaPlayer::SetVolume(double volume)
{
    const double before = Volume();
    if (!Call(&INLEPlayer::SetVolume, volume))
        return false;
    if (volume != before)
        Q_EMIT VolumeChanged(volume);
    return true;
}

bool MediaPlayer::IsMuted() const
{
    return Get(false, &INLEPlayer::GetMute);
}

bool MediaPlayer::SetMuted(bool muted)
{
    const bool before = IsMuted();
    if (!Call(&INLEPlayer::SetMute, muted))
        return false;
    if (muted != before)
        Q_EMIT MutedChanged(muted);
    return true;
}

bool MediaPlayer::SetPictureSize(const QSize& size)
{
    const QSize wanted = size.isEmpty() ? QSize(0, 0) : size;
    return Call(&INLEPlayer::SetPictureSize, wanted.width(), wanted.height());
}

QStringList MediaPlayer::SoundDevices() const
{
    QStringList names;
    const int count = Get(0, &INLEPlayer::GetSoundDeviceCount);
    for (int index = 0; index < count; ++index) {
        wchar_t name[kNameCapacity] = {};
        if (SUCCEEDED(m_player->GetSoundDeviceName(index, name, kNameCapacity)))
            names << FromWide(name);
    }
    return names;
}

std::optional<QString> MediaPlayer::SoundDevice() const
{
    wchar_t name[kNameCapacity] = {};
    if (!m_player || m_player->GetSoundDevice(name, kNameCapacity) != S_OK)
        return {};
    return FromWide(name);
}

bool MediaPlayer::SetSoundDevice(const QString& name)
{
    return Call(&INLEPlayer::SetSoundDevice, name.toStdWString().c_str());
}

int MediaPlayer::SoundOffset() const
{
    return Get(0, &INLEPlayer::GetSoundOffset);
}

bool MediaPlayer::SetSoundOffset(int milliseconds)
{
    return Call(&INLEPlayer::SetSoundOffset, milliseconds);
}

NLEPlayerReport MediaPlayer::Totals() const
{
    return Get(NLEPlayerReport{}, &INLEPlayer::GetTotals);
}

bool MediaPlayer::ResetClipping()
{
    return Call(&INLEPlayer::ResetClipping);
}

void MediaPlayer::Deliver()
{
    const PlayerNews news = m_listener->Take();
    const QPointer<MediaPlayer> self(this);
    if (news.hasStateChanged)
        TellState();
    if (self && news.picture)
        TellPosition(news.picture->number);
    if (self && news.picture)
        Q_EMIT PictureReady(news.picture->frame, news.picture->number, news.picture->source);
    if (self && news.hasDeviceChanged)
        Q_EMIT DeviceChanged();
    if (self && news.report)
        Q_EMIT SecondPlayed(*news.report);
}

void MediaPlayer::TellState()
{
    // The one of now: a change that was noted may be followed by another.
    const NLEPlayerState state = State();
    if (state == NLEPlayer_Playing)
        Watch();
    if (std::exchange(m_state, state) != state)
        Q_EMIT StateChanged(state);
}

void MediaPlayer::TellPosition(int frame)
{
    if (std::exchange(m_position, frame) != frame)
        Q_EMIT PositionChanged(frame);
}

void MediaPlayer::TellLength()
{
    const int length = Length();
    if (std::exchange(m_length, length) != length)
        Q_EMIT LengthChanged(length);
}

void MediaPlayer::Watch()
{
    m_silentTicks = 0;
    if (!m_timer.isActive())
        m_timer.start(kTick, this);
}

void MediaPlayer::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return QObject::timerEvent(event);
    NLEPlayerLevels levels{};
    Call(&INLEPlayer::GetLevels, &levels);
    m_silentTicks = IsPlaying() || !IsSilent(levels) ? 0 : m_silentTicks + 1;
    if (m_silentTicks > kMostSilentTicks)
        m_timer.stop();
    const QPointer<MediaPlayer> self(this);
    TellPosition(Position());
    if (self)
        Q_EMIT LevelsChanged(levels);
}
