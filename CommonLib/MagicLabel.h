// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QLabel>

/// Label that is aligned to the right when gIsArgLang() is true as it is made: the interface is
/// written from right to left. A change of that flag later does not reach it.
class COMMONLIB_EXPORT MagicLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MagicLabel(QWidget* parent); ///< as QLabel
    MagicLabel(const QString& text, QWidget* parent);
};
