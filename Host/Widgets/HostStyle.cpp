// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/HostStyle.h"

#include "CommonLib/externalapi/PixelRatio.h"

#include <QApplication>

#include <algorithm>
#include <iterator>

namespace {

struct Pair
{
    QRgb dark;
    QRgb light;
};

// White stays: it stands on what is filled with the accent.
constexpr Pair kPairs[] = {
    {0x1b1d20, 0xffffff}, // sunken
    {0x1f2124, 0xf5f6f8}, // every other row
    {0x202225, 0xe3e6e9}, // a strip on it
    {0x232529, 0xeceef0}, // window
    {0x26282c, 0xe3e6e9}, // pointed at, disabled
    {0x2b4059, 0xcfe3f8}, // has the keyboard
    {0x2c2f34, 0xf9fafb}, // raised
    {0x2f3237, 0xd3d8dd}, // an edge on a level
    {0x33373c, 0xd3d8dd}, // a border, disabled
    {0x363a40, 0xdde1e6}, // raised and pointed at
    {0x3d4b5b, 0xb9cfe6}, // the accent, disabled
    {0x41464d, 0xb4bac1}, // border
    {0x4da3ff, 0x1f78d1}, // accent
    {0x5f656d, 0x9aa1a9}, // disabled text
    {0x636363, 0x9a9a9a}, // a play head, disabled
    {0x6c7178, 0x8a9098}, // a scale
    {0x9299a1, 0x5d646c}, // quiet text
    {0xb4b8bd, 0x43494f}, // text on a scale
    {0xd5d8dc, 0x1e2124}, // text
    {0xf2f4f6, 0x0f1113}, // a title
    {0xff8f7a, 0xb3261e}, // a complaint
};

/// What the host's own widgets need beside the library's sheet.
constexpr char kOwnRules[] = R"(
#Host_SmallButton { padding: 0; }
#Host_SectionTitle, #Host_SectionTitle:checked {
    background-color: #2c2f34; border: none; color: #d5d8dc;
    font-weight: bold; padding: 5px 6px; text-align: left;
}
#Host_SectionTitle:focus { border: 1px solid #4da3ff; }
#Host_Complaint { color: #ff8f7a; }
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

/// White where there is no accent behind it.
constexpr char kLightRules[] = R"(
QAbstractItemView::item:selected { background-color: #cfe3f8; color: #0f1113; }
#CommonLib_ToolBarSlider_chunk:hover, #CommonLib_ToolBarSlider_chunk[keyboardFocus="true"] {
    background-color: #43494f;
}
#ImageTextButton_Text:hover { color: #0f1113; }
)";

bool s_isLight = false;

QString LightSheet(QString sheet)
{
    const auto name = [](QRgb rgb) { return QColor(rgb).name(); };
    // In two steps: a light colour of one may be the dark one of another.
    for (const Pair& pair : kPairs)
        sheet.replace(name(pair.dark), QStringLiteral("@%1").arg(pair.light, 6, 16, QChar('0')));
    return sheet.replace(QChar('@'), QChar('#')) + QLatin1String(kLightRules);
}

} // namespace

void HostStyle::Apply(bool isLight)
{
    s_isLight = isLight;
    const QString dark = gGetCommonLibStyles() + QLatin1String(kOwnRules);
    qApp->setStyleSheet(isLight ? LightSheet(dark) : dark);
}

bool HostStyle::IsLight()
{
    return s_isLight;
}

QColor HostStyle::Shown(const QColor& dark)
{
    if (!s_isLight)
        return dark;
    const auto pair =
        std::find_if(std::begin(kPairs), std::end(kPairs), [&dark](const Pair& candidate) {
            return candidate.dark == (dark.rgb() & RGB_MASK);
        });
    if (pair == std::end(kPairs))
        return dark;
    QColor light(pair->light);
    light.setAlpha(dark.alpha());
    return light;
}
