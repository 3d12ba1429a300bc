// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/SliderPage.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int kRowHeight = 22;
constexpr int kBarHeight = 12;
constexpr int kCaptionWidth = 150;
constexpr int kValueWidth = 80;
constexpr int kSectionGap = 14;
constexpr int kUprightWidth = 44;
constexpr float kFps = 25;

// What the zoom bar calls its buttons, for screen readers.
const char* const kZoomButtons[] = {QT_TRANSLATE_NOOP("ScaleUnitSlider", "Zoom out"),
                                    QT_TRANSLATE_NOOP("ScaleUnitSlider", "Zoom in")};

// A label of a text in the page's translation context.
QLabel* Text(const char* text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    KeepTranslated(label, [label, text] { label->setText(SliderPage::tr(text)); });
    return label;
}

QLabel* Heading(const char* text, QWidget* parent)
{
    QLabel* label = Text(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

// A row of caption, slider and value; gives the label of the value.
QLabel* AddRow(QGridLayout& grid, const char* caption, QWidget* slider)
{
    const int row = grid.rowCount();
    auto* value = new QLabel(slider->parentWidget());
    value->setMinimumWidth(kValueWidth);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(Text(caption, slider->parentWidget()), row, 0);
    grid.addWidget(slider, row, 1, Qt::AlignVCenter);
    grid.addWidget(value, row, 2);
    grid.setRowMinimumHeight(row, kRowHeight);
    KeepTranslated(slider,
                   [slider, caption] { slider->setAccessibleName(SliderPage::tr(caption)); });
    return value;
}

void AddHeading(QGridLayout& grid, QWidget* parent, const char* text)
{
    const int row = grid.rowCount();
    grid.setRowMinimumHeight(row, row > 1 ? kSectionGap : 0);
    grid.addWidget(Heading(text, parent), row + 1, 0, 1, 2);
}

} // namespace

SliderPage::SliderPage(QWidget* parent) : QWidget(parent)
{
    Q_UNUSED(kZoomButtons)
    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(0, kCaptionWidth);
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(2);
    AddSeekBars(*grid);
    AddZoomBars(*grid);
    AddBars(*grid);
    grid->setRowStretch(grid->rowCount(), 1);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * kSectionGap);
    layout->addLayout(grid, 1);
    layout->addWidget(MakeUprightBars());
}

void SliderPage::AddSeekBars(QGridLayout& grid)
{
    AddHeading(grid, this, QT_TR_NOOP("Seek bar"));
    const auto add = [&](const char* caption, float value) {
        auto* slider = new ToolBarSlider(this, Qt::Horizontal);
        slider->setRange(0, 1500);
        slider->setValue(value, false);
        QLabel* label = AddRow(grid, caption, slider);
        const auto show = [label, slider] {
            label->setText(gFrame2String(static_cast<int>(slider->value()), kFps));
        };
        connect(slider, &ToolBarSlider::valueChanged, label, show);
        show();
        return slider;
    };
    add(QT_TR_NOOP("Normal"), 500);
    ToolBarSlider* thick = add(QT_TR_NOOP("Other chunk and groove"), 900);
    thick->SetChunkSize(8, 18);
    thick->SetGrooveHeight(6);
    thick->SetGroomHighlight("background-color: #e0a43a; border-radius: 1px;");
    add(QT_TR_NOOP("From right to left"), 500)->SetLeftToRight(false);
    add(QT_TR_NOOP("Empty range"), 0)->setRange(0, 0);
    add(QT_TR_NOOP("Disabled"), 700)->setEnabled(false);
}

void SliderPage::AddZoomBars(QGridLayout& grid)
{
    AddHeading(grid, this, QT_TR_NOOP("Zoom bar"));
    const auto add = [&](const char* caption, float value) {
        auto* slider = new ScaleUnitSlider(this);
        slider->setRange(10, 400);
        slider->setValue(value);
        QLabel* label = AddRow(grid, caption, slider);
        const auto show = [label, slider] {
            label->setText(tr("%1 %").arg(qRound(slider->value())));
        };
        connect(slider, &ScaleUnitSlider::valueChanged, label, show);
        KeepTranslated(label, show);
        return slider;
    };
    add(QT_TR_NOOP("Normal"), 100);
    add(QT_TR_NOOP("Mirrored layout"), 100)->setLayoutDirection(Qt::RightToLeft);
    add(QT_TR_NOOP("Disabled"), 200)->setEnabled(false);
}

void SliderPage::AddBars(QGridLayout& grid)
{
    AddHeading(grid, this, QT_TR_NOOP("Bar"));
    const auto add = [&](const char* caption, int value) {
        auto* slider = new PureSlider(this);
        slider->setFixedHeight(kBarHeight);
        slider->SetValue(value);
        QLabel* label = AddRow(grid, caption, slider);
        const auto show = [label, slider] { label->setText(QString::number(slider->GetValue())); };
        connect(slider, &PureSlider::sigValueChanged, label, show);
        show();
        return slider;
    };
    add(QT_TR_NOOP("Normal"), 40);
    PureSlider* level = add(QT_TR_NOOP("Other colours"), 75);
    level->SetSubpageColor(QColor(0x4f, 0xb0, 0x6d));
    level->SetBorderColor(QColor(0x2f, 0x6b, 0x45));
    add(QT_TR_NOOP("Disabled"), 60)->setEnabled(false);
}

QWidget* SliderPage::MakeUprightBars()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(Heading(QT_TR_NOOP("Upright"), box), 0, 0, 1, 3);
    const float values[] = {25, 60, 60};
    for (int i = 0; i < 3; ++i) {
        auto* slider = new ToolBarSlider(box, Qt::Vertical);
        // Turned round, the highlight rises to the value; hung from the top, it falls to it.
        slider->setRange(i == 0 ? 0 : 100, i == 0 ? 100 : 0);
        slider->SetBottomToTop(i != 0);
        slider->setValue(values[i], false);
        slider->setEnabled(i != 2);
        auto* label = new QLabel(box);
        label->setAlignment(Qt::AlignCenter);
        const auto show = [label, slider] { label->setNum(qRound(slider->value())); };
        connect(slider, &ToolBarSlider::valueChanged, label, show);
        show();
        grid->addWidget(slider, 1, i, Qt::AlignHCenter);
        grid->addWidget(label, 2, i);
        grid->setColumnMinimumWidth(i, kUprightWidth);
    }
    grid->setRowStretch(1, 1);
    return box;
}
