// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/NLEWraper.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEPlayer.h"
#include "Host/Widgets/IMediaPlayerControl.h"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <optional>

class PlayerListener;
class QSize;

/// The engine's player for a GUI thread.
///
/// Of what the player's threads tell, the newest waits to be told here; no thread waits for
/// another. While something is heard, position and levels are told thirty times a second. A slot of
/// any signal may delete the player, in mid-play too.
///
/// While it lives it is the player control that NLEWraper hands out, unless the host sets another.
class MediaPlayer : public QObject, public IMediaPlayerControl
{
    Q_OBJECT
    Q_PROPERTY(int position READ Position NOTIFY PositionChanged)
    Q_PROPERTY(int length READ Length NOTIFY LengthChanged)
    Q_PROPERTY(bool playing READ IsPlaying NOTIFY StateChanged)
    Q_PROPERTY(double rate READ Rate NOTIFY RateChanged)
    Q_PROPERTY(double volume READ Volume WRITE SetVolume NOTIFY VolumeChanged)
    Q_PROPERTY(bool muted READ IsMuted WRITE SetMuted NOTIFY MutedChanged)

public:
    /// With a player of the engine's; without an engine IsUsable() is false and nothing works.
    explicit MediaPlayer(QObject* parent = nullptr);
    /// With \a player, which has no other listener; null as without an engine.
    explicit MediaPlayer(NLEComPtr<INLEPlayer> player, QObject* parent = nullptr);
    /// Ends playing. Waits for the frame that is being drawn.
    ~MediaPlayer() override;

    bool IsUsable() const { return bool(m_player); }

    bool Open(NLEComPtr<INLETimeline> timeline) override;
    bool Refresh() override;
    void Close() override;
    bool Play(double rate) override;
    bool Pause() override;
    bool Seek(int frame) override;
    bool Step(int frames) override;
    bool Scrub(int frame) override;
    bool SetLoop(int first, int last) override;
    bool ClearLoop() override;
    bool IsOpen() const override { return State() != NLEPlayer_Closed; }
    bool IsPlaying() const override { return State() == NLEPlayer_Playing; }
    int Position() const override;
    int Length() const override;

    NLEPlayerState State() const;
    /// The rate that was last asked for.
    double Rate() const;

    /// Listening volume, linear, 0 to 4.
    double Volume() const;
    bool SetVolume(double volume);
    bool IsMuted() const;
    bool SetMuted(bool muted);

    /// Size that pictures are fitted into, in device pixels; an empty one is the node's own.
    bool SetPictureSize(const QSize& size);

    /// Names of the devices that sound can go to.
    QStringList SoundDevices() const;
    /// The device that sound goes to, empty for the system's preset one; none while a steady clock
    /// counts.
    std::optional<QString> SoundDevice() const;
    /// An empty name: the system's preset device.
    bool SetSoundDevice(const QString& name);
    /// Milliseconds by which the device sounds later than it says, -1000 to 1000.
    int SoundOffset() const;
    bool SetSoundOffset(int milliseconds);

    /// How playing has gone since Open().
    NLEPlayerReport Totals() const;
    bool ResetClipping();

Q_SIGNALS:
    /// The frame on show or heard is another one.
    void PositionChanged(int frame);
    void LengthChanged(int frames);
    void StateChanged(NLEPlayerState state);
    void RateChanged(double rate);
    /// \a picture is frame \a frame and due now; null where the node has none. \a source is an
    /// NLEPlayerSource.
    void PictureReady(const NLEComPtr<INLEVideoFrame>& picture, int frame, int source);
    void LevelsChanged(const NLEPlayerLevels& levels);
    /// Sound goes elsewhere, or other devices are there.
    void DeviceChanged();
    /// How the last second of playing went.
    void SecondPlayed(const NLEPlayerReport& report);
    void VolumeChanged(double volume);
    void MutedChanged(bool muted);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void Deliver();
    void TellState();
    void TellPosition(int frame);
    void TellLength();
    void Watch();
    template <typename Operation, typename... Arguments>
    bool Call(Operation operation, const Arguments&... arguments) const;
    template <typename Value, typename Operation>
    Value Get(Value preset, Operation operation) const;

    NLEComPtr<INLEPlayer> m_player;
    NLEComPtr<PlayerListener> m_listener;
    QPointer<NLEWraper> m_wraper; ///< with whom this is registered

    // As they were told last.
    NLEPlayerState m_state = NLEPlayer_Closed;
    int m_position = 0;
    int m_length = 0;

    QBasicTimer m_timer;
    int m_silentTicks = 0; ///< of the timer, since something was heard
};
