// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QPushButton>

/// Shows a colour over a checkerboard, and asks for another one when it is pressed.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    /// Without \a hasAlpha colours are opaque.
    explicit ColorButton(bool hasAlpha, QWidget* parent = nullptr);

    QColor Color() const { return m_color; }
    /// Emits nothing.
    void SetColor(const QColor& color);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The dialog opens: Changed() until Ended() follows what is looked at in it.
    void Began();
    void Changed(const QColor& color);
    void Ended();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Ask();

    QColor m_color = Qt::black;
    const bool m_hasAlpha;
};
