// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/MagicLabel.h"

#include "CommonLib/GlobalUtils.h"

MagicLabel::MagicLabel(QWidget* parent) : MagicLabel(QString(), parent) {}

MagicLabel::MagicLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    if (!gIsArgLang())
        return;
    Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;
    // In a mirrored layout Qt takes "right" for the far end of a line, which is the left.
    if (layoutDirection() == Qt::RightToLeft)
        alignment |= Qt::AlignAbsolute;
    setAlignment(alignment);
}
