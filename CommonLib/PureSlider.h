// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QColor>
#include <QWidget>

#include <optional>

struct SliderSteps;

/// Bar for a whole number, filled up to its value. It draws itself in three colours, which are
/// properties for style sheets; a colour that the host sets wins.
///
/// Mouse presses and moves go on to the parent widget after the bar has followed them.
class COMMONLIB_EXPORT PureSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor borderColor READ BorderColor WRITE StyleBorder NOTIFY ColorsChanged)
    Q_PROPERTY(QColor subpageColor READ SubpageColor WRITE StyleSubpage NOTIFY ColorsChanged)
    Q_PROPERTY(QColor addpageColor READ AddpageColor WRITE StyleAddpage NOTIFY ColorsChanged)
    // A bound that is set alone takes the other one along, so that they may come in this order.
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum NOTIFY RangeChanged)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum NOTIFY RangeChanged)
    Q_PROPERTY(int value READ GetValue WRITE SetValue NOTIFY sigValueChanged USER true)

public:
    explicit PureSlider(QWidget* parent); ///< with the presets

    /// 0 to 100 by default, and when \a min is not below \a max. The value stays until it is
    /// set again; meanwhile it shows at the nearer end.
    void SetRange(int min, int max);
    /// A null pointer is left alone.
    void GetRange(int* min, int* max) const;
    /// Sets the value, limited to the range, and reports a change.
    void SetValue(int value);
    int GetValue() const;

    /// Gray by default.
    void SetBorderColor(const QColor& color);
    /// Colour of the filled part; red by default.
    void SetSubpageColor(const QColor& color);
    /// Colour of the rest; white by default.
    void SetAddpageColor(const QColor& color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void sigValueChanged(int value);             ///< by the user or by SetValue()
    void RangeChanged(int minimum, int maximum); ///< a bound has changed
    /// A colour has changed. A style sheet that sets one sets more of the slider afterwards: a slot
    /// takes deleteLater() to delete it.
    void ColorsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void FollowMouse(QMouseEvent* event, int x);
    struct PartColor
    {
        QColor styled;               // preset, or from a style sheet
        std::optional<QColor> fixed; // from the host; wins
        QColor Shown() const { return fixed.value_or(styled); }
    };
    void Style(PartColor& part, const QColor& color);
    void Fix(PartColor& part, const QColor& color);
    QColor BorderColor() const { return m_border.Shown(); }
    QColor SubpageColor() const { return m_subpage.Shown(); }
    QColor AddpageColor() const { return m_addpage.Shown(); }
    void StyleBorder(const QColor& color) { Style(m_border, color); }
    void StyleSubpage(const QColor& color) { Style(m_subpage, color); }
    void StyleAddpage(const QColor& color) { Style(m_addpage, color); }
    SliderSteps Steps() const;
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }
    void SetMinimum(int minimum);
    void SetMaximum(int maximum);

    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 100;
    PartColor m_border = {Qt::gray, {}};
    PartColor m_subpage = {Qt::red, {}};
    PartColor m_addpage = {Qt::white, {}};
    double m_wheelRest = 0; // part of a step that the wheel has turned
    bool m_keyboardFocus = false;
};
