// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/HostStyle.h"

#include "CommonLib/externalapi/LightLook.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Widgets/ScaledFont.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>

namespace {

/// What the host's own widgets need beside the library's sheet.
constexpr char kOwnRules[] = R"(
/* Those with a picture are as narrow as small windows need them. */
QToolButton { padding: 4px 6px; }
QToolBar QToolButton { padding: 4px 12px; }
QFileDialog QToolButton { padding: 2px; }
#Host_SmallButton { padding: 0; }
#Host_SectionTitle, #Host_SectionTitle:checked {
    background-color: #2c2f34; border: none; color: #d5d8dc;
    font-weight: bold; padding: 5px 6px; text-align: left;
}
#Host_SectionTitle:focus { border: 1px solid #4da3ff; }
#Host_Complaint { color: #ff8f7a; }
#Host_InPlace { background-color: transparent; border: none; padding: 0; }
#Host_InPlace:focus { background-color: #1b1d20; }
/* Those of Qt's own style are drawn too dark to be seen on a dark surface. */
QTreeView::indicator {
    width: 12px; height: 12px;
    background-color: #1b1d20; border: 1px solid #9299a1; border-radius: 3px;
}
QTreeView::indicator:checked { background-color: #4da3ff; border-color: #4da3ff; }
QTreeView::indicator:indeterminate {
    background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.35 #1b1d20,
        stop: 0.36 #4da3ff, stop: 0.64 #4da3ff, stop: 0.65 #1b1d20);
}
QTreeView::indicator:disabled { border-color: #5f656d; }
)";

enum class Look
{
    Palette, // until one is chosen
    Dark,
    Light
};
Look s_look = Look::Palette;

} // namespace

void HostStyle::Apply(bool isLight)
{
    s_look = isLight ? Look::Light : Look::Dark;
    const QString own = QLatin1String(kOwnRules);
    qApp->setStyleSheet(isLight ? GetCommonLibLightStyles() + ToLightStyles(own)
                                : gGetCommonLibStyles() + own);
}

bool HostStyle::IsLight()
{
    if (s_look != Look::Palette)
        return s_look == Look::Light;
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() >
           palette.color(QPalette::WindowText).lightness();
}

QColor HostStyle::Shown(const QColor& dark)
{
    return IsLight() ? ToLightColor(dark) : dark;
}

void HostStyle::MakeTitle(QLabel& label)
{
    constexpr double larger = 1.25;
    label.setObjectName(QStringLiteral("CommonLib_Title"));
    label.setFont(ScaledFont(label.font(), larger));
}
