// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/LightLook.h"

#include "CommonLib/externalapi/PixelRatio.h"

#include <QRegularExpression>

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

// White where there is no accent behind it.
constexpr char kLightRules[] = R"(
QAbstractItemView::item:selected { background-color: #cfe3f8; color: #0f1113; }
#CommonLib_ToolBarSlider_chunk:hover, #CommonLib_ToolBarSlider_chunk[keyboardFocus="true"] {
    background-color: #43494f;
}
#ImageTextButton_Text:hover { color: #0f1113; }
)";

} // namespace

QString GetCommonLibLightStyles()
{
    return ToLightStyles(gGetCommonLibStyles()) + QLatin1String(kLightRules);
}

QColor ToLightColor(const QColor& dark)
{
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

QString ToLightStyles(const QString& dark)
{
    static const QRegularExpression color(QStringLiteral("#[0-9a-fA-F]{6}\\b"));
    QString light;
    int end = 0; // of what has been taken over
    for (auto matches = color.globalMatch(dark); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        light += dark.mid(end, match.capturedStart() - end);
        light += ToLightColor(QColor(match.captured())).name();
        end = match.capturedEnd();
    }
    return light + dark.mid(end);
}
