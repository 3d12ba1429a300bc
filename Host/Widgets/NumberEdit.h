// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QWidget>

class IDragValueChangedHelper;
class QDoubleSpinBox;
class ToolBarSlider;

/// A number that is dragged, typed, stepped by keys or moved with a slider.
///
/// A drag is enclosed by Began() and Ended(), so that it can be one step of an undo history; keys,
/// wheel and typing have Changed() alone. The wheel counts while the number has the focus, so that
/// it scrolls a list of numbers elsewhere.
class NumberEdit : public QWidget
{
    Q_OBJECT

public:
    /// What the number can be, and how it is written.
    struct Scale
    {
        double lowest = 0;
        double highest = 100;
        double step = 1;  ///< of a drag and of the keys; Shift and Ctrl make it ten times and a
                          ///< tenth
        int decimals = 0; ///< that are shown; the number is rounded to them
        QString suffix;   ///< with a blank where the unit has one before it
        bool hasSlider = false;
    };

    explicit NumberEdit(const Scale& scale, QWidget* parent = nullptr);

    double Value() const;
    /// Shows \a value, limited to the range, and emits nothing. While the user drags nothing
    /// happens.
    void SetValue(double value);
    /// What the number is called by assistive programs.
    void SetTitle(const QString& title);

Q_SIGNALS:
    void Began();
    void Changed(double value);
    void Ended();
    /// A number that no drag goes on to change: after Changed() without one, and after Ended().
    void Settled(double value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeBox(const Scale& scale);
    void MakeDrag();
    void MakeSlider(const Scale& scale);
    void Begin();
    void End();
    void Follow(double value);

    const Scale m_scale;
    QDoubleSpinBox* m_box;
    IDragValueChangedHelper* m_drag = nullptr; ///< null before the pointer has come
    ToolBarSlider* m_slider = nullptr;         ///< null when there is none
    bool m_isHeld = false;
    bool m_isSetting = false;
};
