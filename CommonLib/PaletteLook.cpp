// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/PaletteLook_p.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

namespace {

constexpr double kRadius = 4;
constexpr double kFocusLine = 2;
// How much of the text's colour a panel takes on.
constexpr double kRaised = 0.08;
constexpr double kHovered = 0.16;
constexpr double kPressed = 0.28;
constexpr double kChecked = 0.4; // of the highlight

QColor PanelColor(const QPalette& palette, const PaletteLook::Panel& panel)
{
    const auto shade = [&palette](double part) {
        return PaletteLook::Mixed(palette, QPalette::Button, QPalette::ButtonText, part);
    };
    if (panel.isPressed)
        return shade(kPressed);
    if (panel.isChecked)
        return PaletteLook::Mixed(palette, QPalette::Button, QPalette::Highlight, kChecked);
    if (panel.isHovered)
        return shade(kHovered);
    return panel.isFlat ? QColor(Qt::transparent) : shade(kRaised);
}

class PanelBelow : public QObject
{
public:
    PanelBelow(QWidget& widget, std::function<std::optional<PaletteLook::Panel>()> panel)
        : QObject(&widget), m_widget(widget), m_panel(std::move(panel))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || watched != &m_widget)
            return false;
        if (const auto panel = m_panel()) {
            QPainter painter(&m_widget);
            PaletteLook::PaintPanel(painter, m_widget.rect(), m_widget.palette(), *panel);
        }
        return false;
    }

private:
    QWidget& m_widget;
    std::function<std::optional<PaletteLook::Panel>()> m_panel;
};

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
        constexpr double inset = kFocusLine / 2;
        painter.setPen(QPen(palette.color(QPalette::Highlight), kFocusLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset),
                                kRadius - inset, kRadius - inset);
    }
    painter.restore();
}

void PaletteLook::PaintBelow(QWidget& widget, std::function<std::optional<Panel>()> panel)
{
    new PanelBelow(widget, std::move(panel));
}
