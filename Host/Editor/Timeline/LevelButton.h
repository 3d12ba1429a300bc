// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractButton>

/// A small sign that is on or off.
class LevelButton : public QAbstractButton
{
public:
    enum class Sign
    {
        Eye,        ///< crossed out when on
        Speaker,    ///< the same
        Headphones, ///< coloured when on
        Lock        ///< closed when on
    };

    explicit LevelButton(Sign sign, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {20, 20}; }

protected:
    /// Those with Ctrl are the head's.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Sign m_sign;
};
