// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

/// What a ToolBarSlider is made of. A sheet draws it; where one draws neither groove nor chunk, it
/// draws itself in the palette's colours.
class SliderPart : public QWidget
{
public:
    enum class Kind
    {
        Background,
        Groove,
        Highlight,
        Chunk
    };
    /// \a slider is or holds \a parent, which owns the part.
    SliderPart(Kind kind, const QWidget* slider, QWidget* parent, const QString& name);

    /// True while the keyboard has brought the focus; a property of the chunk for sheets.
    static constexpr const char* kKeyboardFocus = "keyboardFocus";

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool IsSliderStyled() const;
    void PaintChunk(QPainter& painter) const;

    Kind m_kind;
    const QWidget* m_slider;
};
