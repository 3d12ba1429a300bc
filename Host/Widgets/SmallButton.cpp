// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/SmallButton.h"

#include <QToolButton>

namespace {

constexpr int kSide = 20; // pixels

} // namespace

QToolButton* MakeSmallButton(const QString& sign, const QString& name, const QString& owner,
                             QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setText(sign);
    button->setFixedSize(kSide, kSide);
    button->setObjectName(QStringLiteral("Host_SmallButton"));
    NameSmallButton(*button, name, owner);
    return button;
}

void NameSmallButton(QToolButton& button, const QString& name, const QString& owner)
{
    button.setToolTip(name);
    button.setAccessibleName(owner.isEmpty() ? name : QStringLiteral("%1: %2").arg(owner, name));
}
