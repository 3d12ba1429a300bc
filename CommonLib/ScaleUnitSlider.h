// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QPointF>
#include <QWidget>

class BaseButton;
class ToolBarSlider;

/// Zoom bar: a horizontal ToolBarSlider between a button with a minus and one with a plus sign.
///
/// Object names: "CommonLib_ScaleUnitSlider", the buttons "CommonLib_ScaleUnitSlider_Sub" and
/// "CommonLib_ScaleUnitSlider_Add", which draw their signs in the colour of their text. In a layout
/// from right to left all of it is mirrored. The keys + and - do what the buttons do.
class COMMONLIB_EXPORT ScaleUnitSlider : public QWidget
{
    Q_OBJECT
    // The range first: forms set properties in this order.
    Q_PROPERTY(float minimum READ Minimum WRITE SetMinimum NOTIFY RangeChanged)
    Q_PROPERTY(float maximum READ Maximum WRITE SetMaximum NOTIFY RangeChanged)
    Q_PROPERTY(float value READ value WRITE setValue NOTIFY ValueShown USER true)
    Q_PROPERTY(int addSubStep READ GetAddSubStep WRITE SetAddSubStep NOTIFY SettingsChanged)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY SettingsChanged)
    Q_PROPERTY(int chunkHeight READ ChunkHeight WRITE SetChunkHeight NOTIFY SettingsChanged)
    Q_PROPERTY(int grooveHeight READ GrooveHeight WRITE SetGrooveHeight NOTIFY SettingsChanged)
    Q_PROPERTY(bool pressed READ ButtonPressDown NOTIFY PressedChanged)

public:
    explicit ScaleUnitSlider(QWidget* parent); ///< with the presets

    /// Range and value as those of ToolBarSlider.
    void setRange(float min, float max);
    QPointF getRange() const;
    void setValue(float value);
    float value() const;
    /// A duration that the host keeps with the slider; 0 by default.
    void setDuration(int duration);
    int duration() const;
    /// Into how many steps Add() and Sub() divide the range; below 1, as it is by default, ten. A
    /// step is a whole number of 10 to 100.
    void SetAddSubStep(int count);
    int GetAddSubStep() const;
    /// Pixels, as those of ToolBarSlider.
    void SetChunkHeight(int height);
    void SetGrooveHeight(int height);
    /// Whether a mouse button is down on the slider, or a button is changing the value.
    bool ButtonPressDown() const;
    /// The plus button and the minus button; owned by the slider.
    BaseButton* GetZoomInButton() const;
    BaseButton* GetZoomOutButton() const;

    /// A step up or down, as the buttons do: emits all three signals, also where the range ends.
    void Add();
    void Sub();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void valueChanged(float value); ///< by the user; a setValue() is silent
    /// Around all changes of the value by one press, drag or key.
    void startValueChanged();
    void endValueChanged();
    /// Whenever the property \a value has changed, by the user or by a call. Comes before
    /// valueChanged() of the same change.
    void ValueShown(float value);
    /// Whenever the property of that name has changed.
    void RangeChanged(float minimum, float maximum);
    void PressedChanged(bool pressed);
    /// One of the other properties has changed.
    void SettingsChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int Step() const;
    void ChangeBy(int step);
    void LayOut();
    void NameButtons();
    float Minimum() const;
    float Maximum() const;
    void SetMinimum(float minimum);
    void SetMaximum(float maximum);
    int ChunkHeight() const;
    int GrooveHeight() const;

    ToolBarSlider* m_slider;
    BaseButton* m_subButton;
    BaseButton* m_addButton;
    int m_addSubStep = 0;
    int m_duration = 0;
};
