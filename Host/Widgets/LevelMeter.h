// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEPlayer.h"
#include "Host/Widgets/LevelBallistics.h"
#include "Host/Widgets/MeterLayout.h"

#include <QBasicTimer>
#include <QWidget>

#include <array>
#include <cstdint>
#include <functional>
#include <type_traits>

/// Channels that a meter has at the most: as many as a player tells of.
constexpr int kMostMeterChannels = std::extent_v<decltype(NLEPlayerLevels::peak)>;

/// Level meter of 1 to 8 channels: a bar of the peak with the RMS within, a line of the highest
/// peak of the last 1.5 s, and a mark of samples beyond full scale that stays until it is clicked.
///
/// Levels rise at once and fall by 20 dB a second, also when no more come. The meter redraws itself
/// thirty times a second while something moves and not at all otherwise. Colours follow the
/// palette, light or dark.
///
/// A click, Space or Return clears the clip marks.
class LevelMeter : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        Qt::Orientation orientation READ Orientation WRITE SetOrientation NOTIFY OrientationChanged)
    Q_PROPERTY(int channels READ Channels WRITE SetChannels NOTIFY ChannelsChanged)
    Q_PROPERTY(double minimum READ Minimum WRITE SetMinimum NOTIFY RangeChanged)
    Q_PROPERTY(double maximum READ Maximum WRITE SetMaximum NOTIFY RangeChanged)
    Q_PROPERTY(
        bool scaleVisible READ IsScaleVisible WRITE SetScaleVisible NOTIFY ScaleVisibleChanged)
    Q_PROPERTY(bool clipped READ IsClipped NOTIFY ClippedChanged)

public:
    /// Milliseconds of a steady clock.
    using Clock = std::function<std::int64_t()>;

    explicit LevelMeter(Qt::Orientation orientation = Qt::Vertical, QWidget* parent = nullptr);
    /// With a \a clock of the host's.
    LevelMeter(Clock clock, Qt::Orientation orientation, QWidget* parent = nullptr);

    /// Takes levels that are heard now; with other channels than before the meter begins anew.
    /// \a levels without any fall as if none had come.
    void SetLevels(const NLEPlayerLevels& levels);
    /// Takes all clip marks away.
    void ClearClipping();
    bool IsClipped() const;

    /// Vertical: bars beside each other that grow upward.
    Qt::Orientation Orientation() const { return m_orientation; }
    void SetOrientation(Qt::Orientation orientation);
    /// 2 by default; limited to 1 to 8. The levels of before are gone.
    int Channels() const { return m_channels; }
    void SetChannels(int channels);
    /// Ends of the scale in decibels of full scale, -60 and 0 by default; a mix of floating-point
    /// samples may be shown up to 24 dB above. The minimum is at least -120 and below -6, the
    /// maximum at least -3; a value outside becomes the nearest.
    double Minimum() const { return m_minimum; }
    void SetMinimum(double decibels);
    double Maximum() const { return m_maximum; }
    void SetMaximum(double decibels);
    /// Whether numbers stand beside the bars, where there is room. On by default.
    bool IsScaleVisible() const { return m_isScaleVisible; }
    void SetScaleVisible(bool visible);

    /// What shows now of \a channel, in decibels; minus infinity for a channel that there is not.
    double Peak(int channel) const;
    double HeldPeak(int channel) const;
    double Rms(int channel) const;
    /// Whether the meter redraws itself.
    bool IsMoving() const { return m_timer.isActive(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void OrientationChanged(Qt::Orientation orientation);
    void ChannelsChanged(int channels);
    void RangeChanged(double minimum, double maximum);
    void ScaleVisibleChanged(bool visible);
    void ClippedChanged(bool clipped);
    /// The user wants the clip marks cleared; they are by then.
    void ClippingCleared();

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    double Shown(int channel, FallingLevel ChannelLevels::*level) const;
    bool AnythingShows() const;
    void Forget();
    void ClearByUser();
    void SetRange(double minimum, double maximum);
    void SetTexts();
    void ShowFocus(const QFocusEvent& event);
    MeterLayout LayOut() const;
    void PaintChannel(QPainter& painter, const MeterLayout& layout, int channel) const;
    void PaintScale(QPainter& painter, const MeterLayout& layout) const;

    Clock m_clock;
    QBasicTimer m_timer;
    std::array<ChannelLevels, kMostMeterChannels> m_levels;
    std::array<std::int32_t, kMostMeterChannels> m_told{}; ///< clipped samples, as counted last
    Qt::Orientation m_orientation;
    int m_channels = 2;
    double m_minimum = -60;
    double m_maximum = 0;
    bool m_isScaleVisible = true;
    bool m_showsFocus = false;
    QString m_defaultName;
};
