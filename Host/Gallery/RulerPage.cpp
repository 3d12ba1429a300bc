// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/RulerPage.h"

#include "CommonLib/TimelineRuler.h"
#include "Host/Gallery/ClipStrip.h"

#include <QVBoxLayout>

namespace {

constexpr int kTotalFrames = 9000; // six minutes at 25 frames per second
constexpr float kZoom = 330;
constexpr int kPlayHead = 800;
constexpr int kStripHeight = 56;

// What the ruler is called for screen readers.
[[maybe_unused]] const char* const kRulerName = QT_TRANSLATE_NOOP("TimelineRuler", "Ruler");

QVector<ClipStrip::Clip> SampleClips()
{
    return {
        {0, 374, QT_TRANSLATE_NOOP("ClipStrip", "Opening"), QColor(0x2f, 0x6b, 0x8f)},
        {375, 1349, QT_TRANSLATE_NOOP("ClipStrip", "Harbour at dawn"), QColor(0x3d, 0x7a, 0x5c)},
        {1350, 1849, QT_TRANSLATE_NOOP("ClipStrip", "Interview, part 1"), QColor(0x7a, 0x55, 0x8f)},
        {1900, 3399, QT_TRANSLATE_NOOP("ClipStrip", "Market"), QColor(0x3d, 0x7a, 0x5c)},
        {3400, 5999, QT_TRANSLATE_NOOP("ClipStrip", "Interview, part 2"), QColor(0x7a, 0x55, 0x8f)},
        {6000, 8999, QT_TRANSLATE_NOOP("ClipStrip", "Night drive"), QColor(0x2f, 0x6b, 0x8f)}};
}

} // namespace

RulerPage::RulerPage(QWidget* parent) : QWidget(parent), m_ruler(new TimelineRuler(this))
{
    auto* strip = new ClipStrip(*m_ruler, SampleClips(), this);
    strip->setMinimumHeight(kStripHeight);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_ruler);
    layout->addWidget(strip);
    layout->addStretch(1);

    m_ruler->SetTotalFrames(kTotalFrames);
    m_ruler->SetZoom(kZoom);
    m_ruler->SetCurrentFrames(kPlayHead);
    m_ruler->SetCursorEnable(true);
    const auto follow = [strip] { strip->update(); };
    connect(m_ruler, &TimelineRuler::StartFramesChanged, strip, follow);
    connect(m_ruler, &TimelineRuler::FramesChanged, strip, follow);
    connect(m_ruler, &TimelineRuler::ZoomChanged, strip, follow);
    connect(m_ruler, &TimelineRuler::OffsetFramesChanged, strip, follow);
}
