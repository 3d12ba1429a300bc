// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/PaletteLook_p.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace {

constexpr double kRadius = 4;
constexpr double kFocusLine = 2;
// How much of the text's colour a panel takes on.
constexpr double kRaised = 0.08;
constexpr double kHovered = 0.16;
constexpr double kPressed = 0.28;

QColor PanelColor(const QPalette& palette, const PaletteLook::Panel& panel)
{
    const auto shade = [&palette](double part) {
        return PaletteLook::Mixed(palette, QPalette::Button, QPalette::ButtonText, part);
    };
    if (panel.isPressed)
        return shade(kPressed);
    if (panel.isChecked)
        return palette.color(QPalette::Highlight);
    if (panel.isHovered)
        return shade(kHovered);
    return panel.isFlat ? QColor(Qt::transparent) : shade(kRaised);
}

} // namespace

bool PaletteLook::HasRule(const QWidget& widget)
{
    return widget.testAttribute(Qt::WA_StyleSheetTarget);
}

bool PaletteLook::HasSheet(const QWidget& widget)
{
    for (const QWidget* at = &widget; at; at = at->parentWidget()) {
        const QString sheet = at->styleSheet();
        if (!sheet.isEmpty() && sheet != QLatin1String(kButtonSheet) &&
            sheet != QLatin1String(kStateButtonSheet))
            return true;
    }
    return !qApp->styleSheet().isEmpty();
}

QColor PaletteLook::Mixed(const QPalette& palette, QPalette::ColorRole from, QPalette::ColorRole to,
                          double part)
{
    const QColor& a = palette.color(from);
    const QColor& b = palette.color(to);
    const auto mix = [part](double x, double y) { return x + (y - x) * part; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

bool PaletteLook::IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

void PaletteLook::PaintPanel(QPainter& painter, const QRect& area, const QPalette& palette,
                             const Panel& panel)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PanelColor(palette, panel));
    painter.drawRoundedRect(area, kRadius, kRadius);
    if (panel.isFocused) {
        // On the highlight itself it would not show.
        const auto role = panel.isChecked ? QPalette::ButtonText : QPalette::Highlight;
        constexpr double inset = kFocusLine / 2;
        painter.setPen(QPen(palette.color(role), kFocusLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset),
                                kRadius - inset, kRadius - inset);
    }
    painter.restore();
}
