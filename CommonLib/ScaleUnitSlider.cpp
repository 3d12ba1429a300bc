// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ScaleUnitSlider.h"

#include "CommonLib/BaseButton.h"
#include "CommonLib/NumberConversion_p.h"
#include "CommonLib/ScreenPixels_p.h"
#include "CommonLib/ToolBarSlider.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QVariant>

#include <climits>
#include <utility>

namespace {

constexpr int kDefaultSteps = 10;
constexpr int kSmallestStep = 10;
constexpr int kLargestStep = 100;
constexpr int kSpacing = 4;
constexpr QSize kUsualSize(200, 20);
constexpr double kArm = 0.5;     // length of a sign as a share of its button
constexpr double kStroke = 0.08; // and its thickness

enum class Sign
{
    Minus,
    Plus
};

// A button with a sign that is drawn to whole pixels of the screen, so that it is sharp at any
// scale.
class SignButton : public BaseButton
{
public:
    SignButton(Sign sign, const QString& name, QWidget* parent)
        : BaseButton(static_cast<int>(sign), name, parent), m_sign(sign)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        BaseButton::paintEvent(event);
        QPainter painter(this);
        const QRect button = CountInScreenPixels(painter, rect());
        // A stroke as odd or even as the button lies in its middle.
        const int side = qMin(button.width(), button.height());
        int stroke = qMax(1, qRound(side * kStroke));
        stroke += (side - stroke) % 2;
        int arm = qRound(side * kArm);
        arm += (arm - stroke) % 2;
        const auto bar = [&](int length, int thickness) {
            return QRect(button.x() + (button.width() - length) / 2,
                         button.y() + (button.height() - thickness) / 2, length, thickness);
        };
        const QColor color = palette().color(QPalette::ButtonText);
        painter.fillRect(bar(arm, stroke), color);
        if (m_sign == Sign::Plus)
            painter.fillRect(bar(stroke, arm), color);
    }

private:
    Sign m_sign;
};

} // namespace

ScaleUnitSlider::ScaleUnitSlider(QWidget* parent)
    : QWidget(parent)
    , m_subButton(
          new SignButton(Sign::Minus, QStringLiteral("CommonLib_ScaleUnitSlider_Sub"), this))
{
    // In the order of the tab key.
    m_slider = new ToolBarSlider(this, Qt::Horizontal);
    m_addButton = new SignButton(Sign::Plus, QStringLiteral("CommonLib_ScaleUnitSlider_Add"), this);
    setObjectName(QStringLiteral("CommonLib_ScaleUnitSlider"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusProxy(m_slider);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_slider->SetLeftToRight(layoutDirection() == Qt::LeftToRight);
    NameButtons();

    connect(m_slider, &ToolBarSlider::valueChanged, this,
            [this](double value) { Q_EMIT valueChanged(static_cast<float>(value)); });
    connect(m_slider, &ToolBarSlider::startValueChanged, this, &ScaleUnitSlider::startValueChanged);
    connect(m_slider, &ToolBarSlider::endValueChanged, this, &ScaleUnitSlider::endValueChanged);
    connect(m_slider, &ToolBarSlider::ValueShown, this, &ScaleUnitSlider::ValueShown);
    connect(m_slider, &ToolBarSlider::RangeChanged, this, &ScaleUnitSlider::RangeChanged);
    connect(m_slider, &ToolBarSlider::PressedChanged, this, &ScaleUnitSlider::PressedChanged);
    // By the keyboard, too, but not while the mouse holds the slider.
    connect(m_subButton, &BaseButton::Clicked, this,
            [this] { ButtonPressDown() ? void() : Sub(); });
    connect(m_addButton, &BaseButton::Clicked, this,
            [this] { ButtonPressDown() ? void() : Add(); });
}

void ScaleUnitSlider::setRange(float min, float max)
{
    m_slider->setRange(min, max);
}

QPointF ScaleUnitSlider::getRange() const
{
    return m_slider->getRange();
}

float ScaleUnitSlider::Minimum() const
{
    return static_cast<float>(getRange().x());
}

float ScaleUnitSlider::Maximum() const
{
    return static_cast<float>(getRange().y());
}

void ScaleUnitSlider::SetMinimum(float minimum)
{
    setRange(minimum, Maximum());
}

void ScaleUnitSlider::SetMaximum(float maximum)
{
    setRange(Minimum(), maximum);
}

void ScaleUnitSlider::setValue(float value)
{
    m_slider->setValue(value, false);
}

float ScaleUnitSlider::value() const
{
    return m_slider->value();
}

void ScaleUnitSlider::setDuration(int duration)
{
    const int before = std::exchange(m_duration, duration);
    m_slider->setDuration(static_cast<float>(duration));
    if (duration != before)
        Q_EMIT SettingsChanged();
}

int ScaleUnitSlider::duration() const
{
    return m_duration;
}

void ScaleUnitSlider::SetAddSubStep(int count)
{
    if (std::exchange(m_addSubStep, count) != count)
        Q_EMIT SettingsChanged();
}

int ScaleUnitSlider::GetAddSubStep() const
{
    return m_addSubStep;
}

void ScaleUnitSlider::SetChunkHeight(int height)
{
    const int before = ChunkHeight();
    m_slider->SetChunkHeight(height);
    updateGeometry();
    if (ChunkHeight() != before)
        Q_EMIT SettingsChanged();
}

int ScaleUnitSlider::ChunkHeight() const
{
    return m_slider->property("chunkSize").toSize().height();
}

void ScaleUnitSlider::SetGrooveHeight(int height)
{
    const int before = GrooveHeight();
    m_slider->SetGrooveHeight(height);
    updateGeometry();
    if (GrooveHeight() != before)
        Q_EMIT SettingsChanged();
}

int ScaleUnitSlider::GrooveHeight() const
{
    return m_slider->property("grooveHeight").toInt();
}

bool ScaleUnitSlider::ButtonPressDown() const
{
    return m_slider->ButtonPressDown();
}

BaseButton* ScaleUnitSlider::GetZoomInButton() const
{
    return m_addButton;
}

BaseButton* ScaleUnitSlider::GetZoomOutButton() const
{
    return m_subButton;
}

void ScaleUnitSlider::Add()
{
    ChangeBy(Step());
}

void ScaleUnitSlider::Sub()
{
    ChangeBy(-Step());
}

int ScaleUnitSlider::Step() const
{
    const QPointF range = getRange();
    const double span = range.y() - range.x();
    const int length = Truncated<int>(span).value_or(span < 0 ? INT_MIN : INT_MAX);
    const int count = m_addSubStep < 1 ? kDefaultSteps : m_addSubStep;
    return qBound(kSmallestStep, length / count, kLargestStep);
}

void ScaleUnitSlider::ChangeBy(int step)
{
    const QPointer<ScaleUnitSlider> self(this);
    setValue(value() + static_cast<float>(step));
    if (!self)
        return;
    Q_EMIT startValueChanged();
    if (!self)
        return;
    const bool wasDown = ButtonPressDown();
    m_slider->SetButtonPressDown(true);
    if (!self)
        return;
    Q_EMIT valueChanged(value());
    if (!self)
        return;
    m_slider->SetButtonPressDown(wasDown);
    if (self)
        Q_EMIT endValueChanged();
}

QSize ScaleUnitSlider::sizeHint() const
{
    return kUsualSize.expandedTo(minimumSizeHint());
}

QSize ScaleUnitSlider::minimumSizeHint() const
{
    const QSize slider = m_slider->minimumSizeHint();
    return {slider.width() + 2 * (slider.height() + kSpacing), slider.height()};
}

void ScaleUnitSlider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
}

void ScaleUnitSlider::LayOut()
{
    const int side = qMin(height(), width() / 2);
    const int room = qMax(width() - 2 * (side + kSpacing), 0);
    const auto place = [this](QWidget* widget, const QRect& where) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
    };
    place(m_subButton, QRect(0, (height() - side) / 2, side, side));
    place(m_slider, QRect(side + kSpacing, 0, room, height()));
    place(m_addButton, QRect(width() - side, (height() - side) / 2, side, side));
}

void ScaleUnitSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        m_slider->SetLeftToRight(layoutDirection() == Qt::LeftToRight);
        LayOut();
    } else if (event->type() == QEvent::LanguageChange) {
        NameButtons();
    }
    QWidget::changeEvent(event);
}

void ScaleUnitSlider::NameButtons()
{
    m_subButton->setAccessibleName(tr("Zoom out"));
    m_addButton->setAccessibleName(tr("Zoom in"));
}

void ScaleUnitSlider::keyPressEvent(QKeyEvent* event)
{
    if (ButtonPressDown())
        return; // of the mouse
    switch (event->key()) {
    case Qt::Key_Plus:
        return Add();
    case Qt::Key_Minus:
        return Sub();
    default:
        QWidget::keyPressEvent(event);
    }
}
