// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>

/// The actions of a window that have keys, in the order in which they were made.
class ShortcutList : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutList(QWidget* window);
};
