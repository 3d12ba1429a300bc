// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QDoubleSpinBox;
class QFormLayout;
class QLabel;

/// Numbers that change by dragging on them; a click edits them as text.
class DragPage : public QWidget
{
    Q_OBJECT

public:
    explicit DragPage(QWidget* parent = nullptr);

private:
    /// What a field of the page is like.
    struct Field
    {
        const char* label; ///< in the page's translation context
        double min;
        double max;
        double value;
        double step;
        int decimals;
        const char* suffix;
        bool loop;
    };

    QDoubleSpinBox* AddField(QFormLayout& form, const Field& field);
    void Tell(const char* what, double value);
    void ShowTold();

    QLabel* m_told;
    const char* m_toldText = nullptr; ///< in the page's translation context; null before any signal
    double m_toldValue = 0;
};
