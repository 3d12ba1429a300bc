// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class LockButton;
class QLabel;

/// The head of a level beside its clips: its name, its lock, and a lower edge that can be dragged.
class LevelHeader : public QWidget
{
    Q_OBJECT

public:
    explicit LevelHeader(int level, QWidget* parent = nullptr);

    void SetLocked(bool locked);

Q_SIGNALS:
    void LockAsked(bool locked);
    void HeightAsked(int pixels);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void SetTexts();
    bool IsAtEdge(int y) const;

    const int m_level;
    QLabel* m_name;
    LockButton* m_lock;
    int m_heldBelow =
        -1; ///< pixels from the pointer to the lower edge in a drag; -1: there is none
};
