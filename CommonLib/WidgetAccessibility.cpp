// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WidgetAccessibility_p.h"

#include "CommonLib/BaseButton.h"
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/NumberConversion_p.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/SliderSteps_p.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/ToolBarSlider.h"
#include "CommonLib/ruler/TimelineViewRuler_p.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMap>
#include <QPointer>

#include <optional>

// The text that the widget was given, else \a fallback.
static QString NameOr(const QWidget& widget, const QString& fallback)
{
    return widget.accessibleName().isEmpty() ? fallback : widget.accessibleName();
}

// As the user does.
static void PressKey(QWidget& widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
}

// A button, or a tab, that can be pressed.
class PressAccessible : public QAccessibleWidget
{
public:
    PressAccessible(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QStringList actionNames() const override
    {
        return widget()->isEnabled() ? QStringList{pressAction()} + QAccessibleWidget::actionNames()
                                     : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (widget()->isEnabled())
            Press();
    }

protected:
    virtual void Press() = 0;
};

class BaseButtonAccessible : public PressAccessible
{
public:
    explicit BaseButtonAccessible(BaseButton* button)
        : PressAccessible(button, QAccessible::Button), m_button(button)
    {
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        // The shortest path to a name, as most buttons show no more than an image.
        for (const QString& name : {m_button->text(), m_button->toolTip()}) {
            if (!name.isEmpty())
                return NameOr(*m_button, name);
        }
        return NameOr(*m_button, m_button->objectName());
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_button->isCheckable();
        state.checked = m_button->isChecked();
        state.pressed = m_button->isDown();
        return state;
    }

protected:
    void Press() override
    {
        if (auto* states = qobject_cast<BaseStateButton*>(m_button))
            states->ClickCurrentButton();
        else
            m_button->click();
    }

private:
    BaseButton* m_button;
};

class ImageTextButton2Accessible : public PressAccessible
{
public:
    explicit ImageTextButton2Accessible(ImageTextButton2* tab)
        : PressAccessible(tab, QAccessible::PageTab), m_tab(tab)
    {
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? NameOr(*m_tab, m_tab->GetText())
                                         : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_tab->GetButtonState() == ImageTextButton2::Selected;
        return state;
    }

protected:
    void Press() override { PressKey(*m_tab, Qt::Key_Space); }

private:
    ImageTextButton2* m_tab;
};

class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SliderAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString()
                                          : QAccessibleWidget::text(kind);
    }
};

// Also that of a ScaleUnitSlider, which shows the value of the slider within it.
class ToolBarSliderAccessible : public SliderAccessible
{
public:
    ToolBarSliderAccessible(QWidget* widget, ToolBarSlider* slider)
        : SliderAccessible(widget), m_slider(slider)
    {
    }
    QVariant currentValue() const override { return m_slider->value(); }
    void setCurrentValue(const QVariant& value) override
    {
        const QPointer<ToolBarSlider> slider(m_slider);
        const float before = slider->value();
        if (slider->isEnabled())
            slider->setValue(value.toFloat(), false);
        if (!slider || slider->value() == before)
            return;
        Q_EMIT slider->startValueChanged();
        if (slider)
            Q_EMIT slider->valueChanged(slider->value());
        if (slider)
            Q_EMIT slider->endValueChanged();
    }
    QVariant maximumValue() const override
    {
        return qMax(m_slider->getRange().x(), m_slider->getRange().y());
    }
    QVariant minimumValue() const override
    {
        return qMin(m_slider->getRange().x(), m_slider->getRange().y());
    }
    QVariant minimumStepSize() const override
    {
        const QPointF range = m_slider->getRange();
        return qAbs(range.y() - range.x()) / kStepsPerRange;
    }

private:
    ToolBarSlider* m_slider;
};

class PureSliderAccessible : public SliderAccessible
{
public:
    explicit PureSliderAccessible(PureSlider* slider) : SliderAccessible(slider), m_slider(slider)
    {
    }
    QVariant currentValue() const override { return m_slider->GetValue(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (m_slider->isEnabled())
            m_slider->SetValue(value.toInt());
    }
    QVariant maximumValue() const override { return Range().second; }
    QVariant minimumValue() const override { return Range().first; }
    QVariant minimumStepSize() const override { return 1; }

private:
    QPair<int, int> Range() const
    {
        QPair<int, int> range;
        m_slider->GetRange(&range.first, &range.second);
        return range;
    }

    PureSlider* m_slider;
};

// Both of the ruler and of the view within it, which has the focus.
class RulerAccessible : public SliderAccessible
{
public:
    RulerAccessible(QWidget* widget, const TimelineRuler* ruler, TimelineViewRuler* view)
        : SliderAccessible(widget), m_ruler(ruler), m_view(view)
    {
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return NameOr(*m_ruler, TimelineRuler::tr("Ruler"));
        if (kind == QAccessible::Value)
            return gFrame2String(m_ruler->CurrentFrames(), m_ruler->FPS());
        return SliderAccessible::text(kind);
    }
    QVariant currentValue() const override { return m_ruler->CurrentFrames(); }
    void setCurrentValue(const QVariant& value) override
    {
        const std::optional<int> frame = Truncated<int>(value.toDouble());
        if (frame && m_ruler->isEnabled())
            m_view->StepTo(*frame);
    }
    QVariant maximumValue() const override { return m_view->LastFrame(); }
    QVariant minimumValue() const override { return m_view->FirstFrame(); }
    QVariant minimumStepSize() const override { return 1; }

    QStringList actionNames() const override
    {
        QStringList names = m_ruler->isEnabled() ? Keys().keys() : QStringList();
        return names + SliderAccessible::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (!Keys().contains(name))
            SliderAccessible::doAction(name);
        else if (m_ruler->isEnabled())
            PressKey(*m_view, Keys().value(name));
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        return Keys().contains(name) ? QStringList(QKeySequence(Keys().value(name)).toString())
                                     : SliderAccessible::keyBindingsForAction(name);
    }

private:
    // A frame and a large tick forth and back.
    static QMap<QString, Qt::Key> Keys()
    {
        return {{increaseAction(), Qt::Key_Right},
                {decreaseAction(), Qt::Key_Left},
                {nextPageAction(), Qt::Key_PageDown},
                {previousPageAction(), Qt::Key_PageUp}};
    }

    const TimelineRuler* m_ruler;
    TimelineViewRuler* m_view;
};

// Qt asks for each class of an object's line in turn.
static QAccessibleInterface* MakeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("BaseButton"))
        return new BaseButtonAccessible(static_cast<BaseButton*>(object));
    if (className == QLatin1String("ImageTextButton2"))
        return new ImageTextButton2Accessible(static_cast<ImageTextButton2*>(object));
    if (className == QLatin1String("PureSlider"))
        return new PureSliderAccessible(static_cast<PureSlider*>(object));
    if (className == QLatin1String("ToolBarSlider")) {
        auto* slider = static_cast<ToolBarSlider*>(object);
        return new ToolBarSliderAccessible(slider, slider);
    }
    if (className == QLatin1String("ScaleUnitSlider")) {
        auto* slider = static_cast<ScaleUnitSlider*>(object);
        return new ToolBarSliderAccessible(slider, slider->findChild<ToolBarSlider*>());
    }
    if (className == QLatin1String("TimelineRuler")) {
        auto* ruler = static_cast<TimelineRuler*>(object);
        return new RulerAccessible(ruler, ruler, ruler->findChild<TimelineViewRuler*>());
    }
    if (className == QLatin1String("TimelineViewRuler")) {
        auto* view = static_cast<TimelineViewRuler*>(object);
        return new RulerAccessible(view, static_cast<TimelineRuler*>(view->parentWidget()), view);
    }
    return nullptr;
}

// With every application object, together with which Qt forgets it.
static void InstallWidgetAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}
Q_COREAPP_STARTUP_FUNCTION(InstallWidgetAccessibility)

bool ShowsKeyboardFocus(const QFocusEvent& event, bool shows)
{
    switch (event.reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return event.gotFocus();
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        return shows;
    default:
        return false;
    }
}

void NotifyAccessibleValue(QWidget* widget, double value)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}
