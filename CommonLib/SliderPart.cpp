// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/SliderPart_p.h"

#include "CommonLib/PaletteLook_p.h"

#include <QPainter>
#include <QVariant>

#include <algorithm>

namespace {

constexpr double kGrooveShade = 0.45;  // of the text's colour
constexpr double kHoverShade = 0.25;   // of the window's
constexpr double kDisabledShade = 0.5; // of the highlight's
constexpr double kGrooveRadius = 1;
constexpr double kChunkRadius = 6;
constexpr int kChunkInset = 1; // as that of the library's sheet
constexpr int kFocusLine = 3;

void Fill(QPainter& painter, const QRect& area, double radius, const QColor& color)
{
    painter.setBrush(color);
    painter.drawRoundedRect(area, radius, radius);
}

} // namespace

SliderPart::SliderPart(Kind kind, const QWidget* slider, QWidget* parent, const QString& name)
    : QWidget(parent), m_kind(kind), m_slider(slider)
{
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover, kind == Kind::Chunk);
}

// A sheet may draw some parts only, and leave out the others on purpose.
bool SliderPart::IsSliderStyled() const
{
    const QObjectList& children = m_slider->children();
    return std::any_of(children.begin(), children.end(), [](const QObject* child) {
        const auto* part = dynamic_cast<const SliderPart*>(child);
        return part && part->m_kind != Kind::Background && PaletteLook::HasRule(*part);
    });
}

void SliderPart::paintEvent(QPaintEvent*)
{
    if (PaletteLook::HasRule(*this) || IsSliderStyled())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_kind == Kind::Groove)
        Fill(painter, rect(), kGrooveRadius,
             PaletteLook::Mixed(palette(), QPalette::Window, QPalette::WindowText, kGrooveShade));
    else if (m_kind == Kind::Highlight)
        Fill(painter, rect(), kGrooveRadius,
             PaletteLook::Mixed(palette(), QPalette::Window, QPalette::Highlight,
                                isEnabled() ? 1 : kDisabledShade));
    else if (m_kind == Kind::Chunk)
        PaintChunk(painter);
}

void SliderPart::PaintChunk(QPainter& painter) const
{
    const QRect chunk = rect().adjusted(kChunkInset, kChunkInset, -kChunkInset, -kChunkInset);
    const double radius = qMin(kChunkRadius, qMin(chunk.width(), chunk.height()) / 2.0);
    const QColor color = PaletteLook::Mixed(palette(), QPalette::WindowText, QPalette::Window,
                                            isEnabled() && underMouse() ? kHoverShade : 0);
    if (!property(kKeyboardFocus).toBool())
        return Fill(painter, chunk, radius, color);
    Fill(painter, chunk, radius, palette().color(QPalette::Highlight));
    Fill(painter, chunk.adjusted(kFocusLine, kFocusLine, -kFocusLine, -kFocusLine),
         qMax(radius - kFocusLine, 0.0), color);
}
