// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/LevelMeter.h"
#include "Host/Widgets/ScaledFont.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr int kFrameTime = 33; // milliseconds: thirty drawings a second
constexpr double kLowestMinimum = -120;
constexpr double kHighestMinimum = -6;
constexpr double kLowestMaximum = -3;
constexpr double kHighestMaximum = 24;
constexpr int kFocusLine = 1;
constexpr int kMargin = 2 * kFocusLine;
constexpr double kHeldLine = 2;
constexpr double kNumberSize = 0.8; // of the font's
constexpr int kPeakAlpha = 0x90;
constexpr int kUsualLength = 180;
constexpr int kUsualAcross = 44;
constexpr int kLeastLength = 40;
constexpr int kLeastBar = 4;

/// Part of the scale in one colour. The alignment level of EBU R 68 is -18 dB of full scale; 6 dB
/// below full scale a mix comes near to clipping.
struct Zone
{
    double from; ///< decibels
    QRgb onDark;
    QRgb onLight;
};
constexpr Zone kZones[] = {{-1000, qRgb(0x3f, 0xae, 0x6a), qRgb(0x2a, 0x8c, 0x50)},
                           {-18, qRgb(0xdc, 0xb0, 0x45), qRgb(0xc2, 0x8a, 0x12)},
                           {-6, qRgb(0xe5, 0x5b, 0x45), qRgb(0xcc, 0x3d, 0x2a)}};
constexpr QRgb kClipped = qRgb(0xff, 0x2f, 0x2f);

std::int64_t SteadyMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QColor Mixed(const QPalette& palette, double textPart)
{
    const QColor& text = palette.color(QPalette::WindowText);
    const QColor& window = palette.color(QPalette::Window);
    const auto mix = [textPart](double a, double b) { return a + (b - a) * textPart; };
    return QColor::fromRgbF(mix(window.redF(), text.redF()), mix(window.greenF(), text.greenF()),
                            mix(window.blueF(), text.blueF()));
}

QColor ZoneColor(const Zone& zone, const QPalette& palette)
{
    return QColor(IsDark(palette) ? zone.onDark : zone.onLight);
}

/// A channel's bar up to \a decibels, in the colours of the scale.
void PaintBar(QPainter& painter, const MeterLayout& layout, int channel, double decibels,
              const QPalette& palette, int alpha)
{
    const double end = layout.Along(decibels);
    for (const Zone& zone : kZones) {
        const double from = layout.Along(zone.from);
        const Zone* next = &zone + 1;
        const double to = next == std::end(kZones) ? end : std::min(end, layout.Along(next->from));
        QColor color = ZoneColor(zone, palette);
        color.setAlpha(alpha);
        if (to > from)
            painter.fillRect(layout.Bar(channel, from, to), color);
    }
}

void PaintHeldLine(QPainter& painter, const MeterLayout& layout, int channel, double decibels,
                   const QPalette& palette)
{
    const double along = layout.Along(decibels);
    if (along <= 0)
        return;
    const Zone* zone = std::end(kZones) - 1;
    while (decibels < zone->from)
        --zone;
    painter.fillRect(layout.Bar(channel, std::max(0.0, along - kHeldLine), along),
                     ZoneColor(*zone, palette));
}

} // namespace

LevelMeter::LevelMeter(Qt::Orientation orientation, QWidget* parent)
    : LevelMeter(SteadyMilliseconds, orientation, parent)
{
}

LevelMeter::LevelMeter(Clock clock, Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent), m_clock(std::move(clock)), m_orientation(orientation)
{
    setFocusPolicy(Qt::StrongFocus);
    SetOrientation(orientation);
    SetTexts();
}

void LevelMeter::SetLevels(const NLEPlayerLevels& levels)
{
    const QPointer<LevelMeter> self(this);
    if (levels.channels > 0)
        SetChannels(levels.channels);
    if (!self)
        return;
    const std::int64_t now = m_clock();
    const bool wasClipped = IsClipped();
    for (int channel = 0; channel < std::min(levels.channels, m_channels); ++channel) {
        ChannelLevels& shown = m_levels[channel];
        shown.peak.Raise(ToDecibels(double(levels.peak[channel])), now);
        shown.held.Raise(ToDecibels(double(levels.peak[channel])), now);
        shown.rms.Raise(ToDecibels(double(levels.rms[channel])), now);
        const std::int32_t count = levels.clipped[channel];
        // Those of before the marks were cleared do not count again.
        shown.isClipped = shown.isClipped || count > m_told[channel];
        m_told[channel] = count;
    }
    if (!m_timer.isActive() && AnythingShows())
        m_timer.start(kFrameTime, this);
    if (IsClipped() == wasClipped)
        return;
    update();
    Q_EMIT ClippedChanged(true);
}

void LevelMeter::ClearClipping()
{
    if (!IsClipped())
        return;
    for (ChannelLevels& channel : m_levels)
        channel.isClipped = false;
    update();
    Q_EMIT ClippedChanged(false);
}

bool LevelMeter::IsClipped() const
{
    return std::any_of(m_levels.begin(), m_levels.end(),
                       [](const ChannelLevels& channel) { return channel.isClipped; });
}

void LevelMeter::ClearByUser()
{
    if (!IsClipped())
        return;
    const QPointer<LevelMeter> self(this);
    ClearClipping();
    if (self)
        Q_EMIT ClippingCleared();
}

void LevelMeter::SetOrientation(Qt::Orientation orientation)
{
    const bool isUpright = orientation == Qt::Vertical;
    setSizePolicy(isUpright ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                  isUpright ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    if (std::exchange(m_orientation, orientation) == orientation)
        return;
    updateGeometry();
    update();
    Q_EMIT OrientationChanged(orientation);
}

void LevelMeter::SetChannels(int channels)
{
    const int count = std::clamp(channels, 1, kMostMeterChannels);
    if (std::exchange(m_channels, count) == count)
        return;
    const QPointer<LevelMeter> self(this);
    Forget();
    if (self)
        Q_EMIT ChannelsChanged(count);
}

void LevelMeter::Forget()
{
    const bool wasClipped = IsClipped();
    m_levels.fill({});
    m_told = {};
    m_timer.stop();
    updateGeometry();
    update();
    if (wasClipped)
        Q_EMIT ClippedChanged(false);
}

void LevelMeter::SetMinimum(double decibels)
{
    SetRange(decibels, m_maximum);
}

void LevelMeter::SetMaximum(double decibels)
{
    SetRange(m_minimum, decibels);
}

void LevelMeter::SetRange(double minimum, double maximum)
{
    const double lowest = std::clamp(minimum, kLowestMinimum, kHighestMinimum);
    const double highest = std::clamp(maximum, kLowestMaximum, kHighestMaximum);
    if (lowest == m_minimum && highest == m_maximum)
        return;
    m_minimum = lowest;
    m_maximum = highest;
    update();
    Q_EMIT RangeChanged(lowest, highest);
}

void LevelMeter::SetScaleVisible(bool visible)
{
    if (std::exchange(m_isScaleVisible, visible) == visible)
        return;
    updateGeometry();
    update();
    Q_EMIT ScaleVisibleChanged(visible);
}

double LevelMeter::Shown(int channel, FallingLevel ChannelLevels::*level) const
{
    if (channel < 0 || channel >= m_channels)
        return ToDecibels(0);
    return (m_levels[channel].*level).At(m_clock());
}

double LevelMeter::Peak(int channel) const
{
    return Shown(channel, &ChannelLevels::peak);
}

double LevelMeter::HeldPeak(int channel) const
{
    return Shown(channel, &ChannelLevels::held);
}

double LevelMeter::Rms(int channel) const
{
    return Shown(channel, &ChannelLevels::rms);
}

bool LevelMeter::AnythingShows() const
{
    for (int channel = 0; channel < m_channels; ++channel) {
        // Neither of the others stays longer.
        if (std::max(HeldPeak(channel), Rms(channel)) > m_minimum)
            return true;
    }
    return false;
}

void LevelMeter::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return QWidget::timerEvent(event);
    update();
    if (!AnythingShows())
        m_timer.stop();
}

void LevelMeter::SetTexts()
{
    if (accessibleName() == m_defaultName) { // the host has given no other
        m_defaultName = tr("Level meter");
        setAccessibleName(m_defaultName);
    }
}

void LevelMeter::changeEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LanguageChange:
        SetTexts();
        break;
    case QEvent::FontChange:
        updateGeometry();
        break;
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        update();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void LevelMeter::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !IsClipped())
        return event->ignore();
    event->accept();
    ClearByUser();
}

void LevelMeter::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool clears = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    // Without a mark they are the host's: Space may well play.
    if (!clears || !IsClipped())
        return QWidget::keyPressEvent(event);
    event->accept();
    ClearByUser();
}

void LevelMeter::ShowFocus(const QFocusEvent& event)
{
    const Qt::FocusReason reason = event.reason();
    m_showsFocus =
        event.gotFocus() && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                             reason == Qt::ShortcutFocusReason);
    update();
}

void LevelMeter::focusInEvent(QFocusEvent* event)
{
    ShowFocus(*event);
    QWidget::focusInEvent(event);
}

void LevelMeter::focusOutEvent(QFocusEvent* event)
{
    ShowFocus(*event);
    QWidget::focusOutEvent(event);
}

QSize LevelMeter::sizeHint() const
{
    const int across = std::max(kUsualAcross, minimumSizeHint().width());
    const QSize upright(across, kUsualLength);
    return m_orientation == Qt::Vertical ? upright : upright.transposed();
}

QSize LevelMeter::minimumSizeHint() const
{
    const int across =
        2 * kMargin + m_channels * (kLeastBar + kMargin) +
        (m_isScaleVisible ? QFontMetrics(ScaledFont(font(), kNumberSize)).height() * 2 : 0);
    const QSize upright(across, kLeastLength);
    return m_orientation == Qt::Vertical ? upright : upright.transposed();
}

MeterLayout LevelMeter::LayOut() const
{
    const QRectF area = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    MeterLayout layout(area, m_orientation == Qt::Vertical, m_channels, m_minimum, m_maximum);
    if (m_isScaleVisible)
        layout.AddNumbers(QFontMetrics(ScaledFont(font(), kNumberSize)));
    return layout;
}

void LevelMeter::PaintChannel(QPainter& painter, const MeterLayout& layout, int channel) const
{
    constexpr double grooveShade = 0.10;
    constexpr int opaque = 0xff;
    const QColor groove = Mixed(palette(), grooveShade);
    painter.fillRect(layout.Bar(channel, 0, layout.Along(m_maximum)), groove);
    PaintBar(painter, layout, channel, Peak(channel), palette(), kPeakAlpha);
    PaintBar(painter, layout, channel, std::min(Rms(channel), Peak(channel)), palette(), opaque);
    PaintHeldLine(painter, layout, channel, HeldPeak(channel), palette());
    painter.fillRect(layout.Mark(channel), m_levels[channel].isClipped ? QColor(kClipped) : groove);
}

void LevelMeter::PaintScale(QPainter& painter, const MeterLayout& layout) const
{
    constexpr double numberShade = 0.65;
    constexpr double tickShade = 0.35;
    painter.setFont(ScaledFont(font(), kNumberSize));
    painter.setLayoutDirection(Qt::LeftToRight); // the minus goes before the number everywhere
    const QFontMetrics metrics(painter.font());
    painter.setPen(Mixed(palette(), numberShade));
    for (const int value : layout.Values(metrics)) {
        painter.fillRect(layout.Tick(value), Mixed(palette(), tickShade));
        painter.drawText(layout.Number(value, metrics), Qt::AlignCenter | Qt::TextDontClip,
                         QString::number(value));
    }
}

void LevelMeter::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const MeterLayout layout = LayOut();
    for (int channel = 0; channel < m_channels; ++channel)
        PaintChannel(painter, layout, channel);
    if (!layout.numbers.isEmpty())
        PaintScale(painter, layout);
    if (m_showsFocus) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), kFocusLine));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}
