// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMenu>

/// All languages of the library, each in its own words. One that is chosen shows at once.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent);
};
