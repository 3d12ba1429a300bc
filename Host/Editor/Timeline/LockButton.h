// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractButton>

/// A padlock that is open or closed.
class LockButton : public QAbstractButton
{
public:
    explicit LockButton(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {20, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
