// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Designer/WidgetTable.h"

#include "CommonLib/BaseStateButton.h"
#include "CommonLib/BaseWidget.h"
#include "CommonLib/ImageTextButton.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/MagicLabel.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/ToolBarSlider.h"

namespace {

template <typename Widget>
QWidget* Make(QWidget* parent)
{
    return new Widget(parent);
}

QString Text(const char* name, const char* text)
{
    return QStringLiteral("<property name=\"%1\"><string>%2</string></property>").arg(name, text);
}

QString Number(const char* name, int number)
{
    return QStringLiteral("<property name=\"%1\"><number>%2</number></property>")
        .arg(name)
        .arg(number);
}

} // namespace

const QVector<WidgetEntry>& WidgetTable()
{
    static const QVector<WidgetEntry> table{
        {&BaseButton::staticMetaObject, "Push button with a number",
         "A push button without a border that tells its number when it is clicked.", QSize(90, 28),
         Text("text", "Button"), false, Make<BaseButton>},
        {&BaseStateButton::staticMetaObject, "Button of several states, such as play and pause",
         "A stack of buttons of which one shows; a click shows the next. Give the object names of "
         "the states, one a line.",
         QSize(90, 32),
         "<property name=\"stateNames\"><stringlist notr=\"true\">"
         "<string>Play</string><string>Pause</string></stringlist></property>",
         false, Make<BaseStateButton>},
        {&BaseWidget::staticMetaObject, "Widget with a styled background",
         "A widget for what lies in it, told of a change of the language.", QSize(200, 150),
         QString(), true, Make<BaseWidget>},
        {&ImageTextButton::staticMetaObject, "Square image with a text beside, above or below it",
         "imageAlign: 0 image left, 1 on top, 2 right, 3 below.", QSize(140, 32),
         Text("text", "Text") +
             "<property name=\"minimumSize\"><size><width>90</width><height>32</height></size>"
             "</property>",
         false, Make<ImageTextButton>},
        {&ImageTextButton2::staticMetaObject, "Tab: an image above a text, normal or selected",
         "A tab that a press selects. Whoever shows several sets the others back to normal.",
         QSize(72, 72), Text("text", "Tab"), false, Make<ImageTextButton2>},
        {&MagicLabel::staticMetaObject, "Label at the right for languages from right to left",
         "A label that is aligned to the right where the interface is written from right to left.",
         QSize(90, 20), Text("text", "Label"), false, Make<MagicLabel>},
        {&PureSlider::staticMetaObject, "Bar for a whole number, filled up to its value",
         "A bar that the mouse, the wheel and the keys fill.", QSize(160, 12), Number("value", 40),
         false, Make<PureSlider>},
        {&ScaleUnitSlider::staticMetaObject, "Zoom bar: a slider between a minus and a plus button",
         "addSubStep: into how many steps the buttons divide the range; 0 for ten.", QSize(200, 20),
         QString(), false, Make<ScaleUnitSlider>},
        {&TimelineRuler::staticMetaObject,
         "Time ruler above a timeline: ticks, timecode, play head",
         "zoom: 0 for single frames to 780 for hours. Give totalFrames the timeline's length.",
         QSize(400, 28), Number("totalFrames", 15000), false, Make<TimelineRuler>},
        {&ToolBarSlider::staticMetaObject, "Seek bar or fader with a fractional value",
         "A slider of background, groove and chunk, which style sheets draw.", QSize(160, 20),
         QString(), false, Make<ToolBarSlider>},
    };
    return table;
}
