// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PropertySection.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kGap = 6;

} // namespace

PropertySection::PropertySection(const QString& title, Make make, bool isOpen, QWidget* parent)
    : QWidget(parent), m_title(new QPushButton(this)), m_make(std::move(make))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    m_title->setAccessibleName(title);
    m_title->setCheckable(true);
    m_title->setChecked(isOpen);
    m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_title->setObjectName(QStringLiteral("Host_SectionTitle"));
    column->addWidget(m_title);
    Fold(isOpen);
    connect(m_title, &QPushButton::toggled, this, [this](bool isOpened) {
        Fold(isOpened);
        Q_EMIT Folded(isOpened);
    });
}

void PropertySection::Fold(bool isOpen)
{
    const QString sign = isOpen            ? QStringLiteral("▾")
                         : isRightToLeft() ? QStringLiteral("◂")
                                           : QStringLiteral("▸");
    m_title->setText(QStringLiteral("%1  %2").arg(sign, m_title->accessibleName()));
    if (m_content)
        return m_content->setVisible(isOpen);
    if (!isOpen)
        return;
    m_content = m_make(this);
    layout()->addWidget(m_content); // which shows it
}
