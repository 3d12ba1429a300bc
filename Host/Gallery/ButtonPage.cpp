// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/ButtonPage.h"

#include "Com/AnyQt.h"
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/ImageTextButton.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/MagicLabel.h"
#include "Host/Widgets/KeepTranslated.h"
#include "Host/Widgets/Symbols.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace {

constexpr int kIcon = 18;
constexpr int kSquare = 32;
constexpr QSize kWide(148, 32); // an ImageTextButton beside, and above or below its text
constexpr QSize kTall(72, 96);
constexpr int kTextHeight = kTall.height() - kTall.width();
constexpr int kTextMargin = 12;
constexpr int kTabIcon = 26;
constexpr int kCaptionWidth = 110;
constexpr int kRowGap = 22;
constexpr int kColumnGap = 16;
const QColor kLine(0xd5, 0xd8, 0xdc);
const QColor kQuiet(0x92, 0x99, 0xa1);
const QColor kAccent(0x4d, 0xa3, 0xff);

QHBoxLayout* MakeRow(QWidget* box)
{
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    return layout;
}

// Gives the button its size, or more where its text needs it. An image above or below the text is
// as high as the button is wide.
void FitText(QWidget* button, const QString& text, QSize size)
{
    button->ensurePolished();
    const QFontMetrics metrics = button->fontMetrics();
    const int higher = std::max(0, metrics.height() - kTextHeight);
    const int beside = size == kWide ? kWide.height() + higher : 0;
    const int wanted = metrics.horizontalAdvance(text) + 2 * kTextMargin + beside;
    const int growth = std::max(0, wanted - size.width());
    button->setFixedSize(size + QSize(growth, (size == kTall ? growth : 0) + higher));
}

} // namespace

ButtonPage::ButtonPage(QWidget* parent) : QWidget(parent), m_told(new QLabel(this))
{
    AnyQt::UseFineIcons();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnMinimumWidth(0, kCaptionWidth);
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(kRowGap);
    grid->setHorizontalSpacing(kColumnGap);
    const auto add = [&](const char* caption, QWidget* row) {
        auto* label = new QLabel(this);
        KeepTranslated(label, [label, caption] { label->setText(tr(caption)); });
        grid->addWidget(label, grid->rowCount(), 0);
        grid->addWidget(row, grid->rowCount() - 1, 1);
    };
    add(QT_TR_NOOP("Buttons"), MakeButtons());
    add(QT_TR_NOOP("Several states"), MakeStates());
    add(QT_TR_NOOP("Image and text"), MakeImagesAndTexts());
    add(QT_TR_NOOP("Tabs"), MakeTabs());
    add(QT_TR_NOOP("Labels"), MakeLabels());
    add(QT_TR_NOOP("Last signal"), m_told);
    grid->setRowStretch(grid->rowCount(), 1);
    m_tell = [] { return tr("none yet"); };
    KeepTranslated(m_told, [this] { m_told->setText(m_tell()); });
}

void ButtonPage::Tell(std::function<QString()> text)
{
    m_tell = std::move(text);
    m_told->setText(m_tell());
}

QWidget* ButtonPage::MakeButtons()
{
    auto* box = new QWidget(this);
    QHBoxLayout* layout = MakeRow(box);
    const auto add = [&](int id, const char* text) {
        auto* button = new BaseButton(id, QStringLiteral("Gallery_Button%1").arg(id), box);
        if (text)
            KeepTranslated(button, [button, text] { button->setText(tr(text)); });
        connect(button, &BaseButton::Pressed, this,
                [this](int k) { Tell([k] { return tr("Pressed %1").arg(k); }); });
        connect(button, &BaseButton::Clicked, this, [this](int k, QPoint p) {
            Tell([k, p] { return tr("Clicked %1 at (%2, %3)").arg(k).arg(p.x()).arg(p.y()); });
        });
        connect(button, &BaseButton::sigEnter, this,
                [this](int k) { Tell([k] { return tr("Entered %1").arg(k); }); });
        connect(button, &BaseButton::sigLeave, this,
                [this](int k) { Tell([k] { return tr("Left %1").arg(k); }); });
        layout->addWidget(button);
        return button;
    };
    add(1, QT_TR_NOOP("Normal"));
    add(2, QT_TR_NOOP("With icon"))->setIcon(SymbolIcon(Symbol::Import, kLine));
    BaseButton* icon = add(3, nullptr);
    icon->setIcon(SymbolIcon(Symbol::Star, kLine));
    icon->setFixedWidth(kSquare);
    KeepTranslated(icon, [icon] { icon->setToolTip(tr("Favourite")); });
    BaseButton* checked = add(4, QT_TR_NOOP("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    BaseButton* disabled = add(5, QT_TR_NOOP("Disabled"));
    disabled->setIcon(SymbolIcon(Symbol::Import, kLine));
    disabled->SetEnabled(false);
    layout->addStretch(1);
    return box;
}

QWidget* ButtonPage::MakeStates()
{
    auto* box = new QWidget(this);
    QHBoxLayout* layout = MakeRow(box);
    const auto add = [&](int id, const QVector<Symbol>& symbols) {
        auto* button = new BaseStateButton(id, QStringLiteral("Gallery_States%1").arg(id), box);
        button->setFixedSize(kSquare, kSquare);
        for (int i = 0; i < symbols.size(); ++i) {
            button->AddButton(id + i, QStringLiteral("Gallery_State%1").arg(id + i));
            BaseButton* state = button->GetButton(id + i);
            state->setIcon(SymbolIcon(symbols.at(i), kLine));
            state->setIconSize(QSize(kIcon, kIcon));
        }
        connect(button, &BaseButton::Clicked, this, [this, button](int k) {
            Tell([k, shown = button->CurrentButtonId()] {
                return tr("Clicked %1, shows %2").arg(k).arg(shown);
            });
        });
        layout->addWidget(button);
        return button;
    };
    add(10, {Symbol::Play, Symbol::Pause});
    add(20, {Symbol::Play, Symbol::Pause, Symbol::Stop})->SetCurrentButtonId(21);
    add(30, {Symbol::Stop, Symbol::Play})->SetEnabled(false);
    layout->addStretch(1);
    return box;
}

QWidget* ButtonPage::MakeImagesAndTexts()
{
    auto* box = new QWidget(this);
    QHBoxLayout* layout = MakeRow(box);
    const auto add = [&](int align, const char* text, const QSize& size) {
        auto* button =
            new ImageTextButton(40 + align, QStringLiteral("Gallery_Image%1").arg(align), box);
        KeepTranslated(button, [button, text, size] {
            button->SetText(tr(text));
            FitText(button, tr(text), size);
        });
        button->SetImageAlign(align);
        button->SetImageWidth(kIcon);
        button->findChild<BaseButton*>()->setIcon(SymbolIcon(Symbol::Film, kLine));
        connect(button, &ImageTextButton::Clicked, this,
                [this](int k) { Tell([k] { return tr("Clicked %1").arg(k); }); });
        layout->addWidget(button);
        return button;
    };
    add(0, QT_TR_NOOP("Image left"), kWide);
    add(1, QT_TR_NOOP("On top"), kTall);
    add(2, QT_TR_NOOP("Image right"), kWide);
    add(3, QT_TR_NOOP("Below"), kTall);
    add(0, QT_TR_NOOP("Disabled"), kWide)->setEnabled(false);
    layout->addStretch(1);
    return box;
}

QWidget* ButtonPage::MakeTabs()
{
    auto* box = new QWidget(this);
    QHBoxLayout* layout = MakeRow(box);
    const struct
    {
        Symbol symbol;
        const char* text;
    } tabs[] = {{Symbol::Film, QT_TR_NOOP("Media")},
                {Symbol::Music, QT_TR_NOOP("Audio")},
                {Symbol::Title, QT_TR_NOOP("Titles")},
                {Symbol::Star, QT_TR_NOOP("Effects")}};
    for (const auto& row : tabs) {
        auto* tab = new ImageTextButton2(50 + layout->count(), QStringLiteral("Gallery_Tab"), box);
        tab->SetNormalImage(SymbolPixmap(row.symbol, kQuiet, kTabIcon, devicePixelRatioF()));
        tab->SetSelectedImage(SymbolPixmap(row.symbol, kAccent, kTabIcon, devicePixelRatioF()));
        KeepTranslated(tab, [tab, text = row.text] {
            tab->SetText(tr(text));
            tab->ensurePolished();
            tab->setFixedSize(tab->sizeHint());
        });
        connect(tab, &ImageTextButton2::sigSelected, this, [this, box](int id) {
            for (ImageTextButton2* other : box->findChildren<ImageTextButton2*>()) {
                if (other->GetId() != id)
                    other->SetButtonState(ImageTextButton2::Normal);
            }
            Tell([id] { return tr("Selected %1").arg(id); });
        });
        layout->addWidget(tab);
    }
    box->findChild<ImageTextButton2*>()->SetButtonState(ImageTextButton2::Selected);
    layout->addStretch(1);
    return box;
}

QWidget* ButtonPage::MakeLabels()
{
    auto* box = new QWidget(this);
    QHBoxLayout* layout = MakeRow(box);
    const bool before = gIsArgLang();
    for (const bool rightToLeft : {false, true}) {
        gSetArgLang(rightToLeft);
        auto* label = new MagicLabel(box);
        KeepTranslated(label, [label, rightToLeft] {
            label->setText(rightToLeft ? tr("for a language from right to left")
                                       : tr("for a language from left to right"));
        });
        layout->addWidget(label, 1);
    }
    gSetArgLang(before);
    return box;
}
