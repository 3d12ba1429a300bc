// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/KeyFrameBar.h"

#include "Host/Widgets/SmallButton.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QToolButton>

#include <utility>

namespace {

constexpr int kGap = 2;

} // namespace

KeyFrameBar::KeyFrameBar(std::shared_ptr<KeyFrames> keys, const QString& title, QWidget* parent)
    : QWidget(parent), m_keys(std::move(keys)), m_title(title)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    // Time runs from left to right in every language.
    row->setDirection(isRightToLeft() ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
    m_previous = MakeSmallButton(QStringLiteral("◂"), tr("Previous key frame"), title, this);
    m_diamond = MakeSmallButton(QStringLiteral("◇"), tr("Key frame"), title, parent);
    m_diamond->setCheckable(true);
    m_next = MakeSmallButton(QStringLiteral("▸"), tr("Next key frame"), title, this);
    m_interpolation = new QComboBox(this);
    AddInterpolations();
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_interpolation);
    row->addStretch();
    connect(m_previous, &QToolButton::clicked, this,
            [this] { Q_EMIT SeekWanted(m_keys->Before(m_playHead).value_or(m_playHead)); });
    connect(m_next, &QToolButton::clicked, this,
            [this] { Q_EMIT SeekWanted(m_keys->Behind(m_playHead).value_or(m_playHead)); });
    connect(m_diamond, &QToolButton::clicked, this, &KeyFrameBar::Toggle);
}

void KeyFrameBar::AddInterpolations()
{
    // By NLEParameterInterpolation.
    m_interpolation->addItems({tr("Hold"), tr("Linear"), tr("Smooth")});
    m_interpolation->setToolTip(tr("To the next key frame"));
    m_interpolation->setAccessibleName(
        QStringLiteral("%1: %2").arg(m_title, m_interpolation->toolTip()));
    m_interpolation->setFocusPolicy(Qt::StrongFocus);
    connect(m_interpolation, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT ChangeWanted(m_keys->Interpolate(m_playHead, index)); });
}

QWidget* KeyFrameBar::Diamond() const
{
    return m_diamond;
}

void KeyFrameBar::Toggle()
{
    Q_EMIT ChangeWanted(m_keys->Toggle(m_playHead));
}

void KeyFrameBar::Show(int playHead)
{
    m_playHead = playHead;
    setVisible(m_keys->IsAnimated());
    const auto interpolation = m_keys->Interpolation(playHead);
    const bool isSet = m_keys->IsAt(playHead);
    m_previous->setEnabled(bool(m_keys->Before(playHead)));
    m_next->setEnabled(bool(m_keys->Behind(playHead)));
    m_diamond->setEnabled(m_keys->IsWithin(playHead));
    m_diamond->setChecked(isSet);
    m_diamond->setText(isSet ? QStringLiteral("◆") : QStringLiteral("◇"));
    m_interpolation->setVisible(m_keys->HasInterpolations());
    m_interpolation->setEnabled(bool(interpolation));
    m_interpolation->setCurrentIndex(interpolation.value_or(NLEInterpolation_Linear));
}
