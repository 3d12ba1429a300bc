// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelHeader.h"

#include "EngineApi/INLELevels.h"
#include "Host/Editor/Timeline/LevelButton.h"
#include "Host/Editor/Timeline/LevelState.h"
#include "Host/Widgets/HostStyle.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kEdge = 5; ///< pixels in which the lower edge is caught
constexpr int kMargin = 6;
constexpr int kTwoRows = 48; ///< height from which the buttons stand below the name
constexpr int kKeyStep = 10; ///< pixels that a key makes a level taller

const QColor kBackground(0x2c, 0x2f, 0x34);
const QColor kLine(0x41, 0x46, 0x4d);

} // namespace

LevelHeader::LevelHeader(int level, QWidget* parent)
    : QWidget(parent), m_level(level), m_name(new QLineEdit(this))
{
    using Sign = LevelButton::Sign;
    setMouseTracking(true);
    m_switches = {
        {new LevelButton(Sign::Eye, this), NLELevel_Hidden, QT_TR_NOOP("Hide")},
        {new LevelButton(Sign::Speaker, this), NLELevel_Muted, QT_TR_NOOP("Mute")},
        {new LevelButton(Sign::Headphones, this), NLELevel_Solo, QT_TR_NOOP("Solo")},
    };
    m_lock = new LevelButton(Sign::Lock, this); // last for the tab key
    m_name->setMinimumWidth(1);
    m_name->setObjectName(QStringLiteral("Host_InPlace"));
    m_name->installEventFilter(this);
    m_layout = new QBoxLayout(QBoxLayout::LeftToRight, this);
    m_layout->setContentsMargins(kMargin, 1, kMargin, 1);
    m_layout->setSpacing(2);
    m_layout->addWidget(m_name, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    m_layout->addLayout(buttons);
    for (const Switch& one : qAsConst(m_switches)) {
        buttons->addWidget(one.button);
        connect(one.button, &QAbstractButton::clicked, this,
                [this, flag = one.flag](bool on) { Q_EMIT FlagAsked(flag, on); });
    }
    buttons->addStretch();
    buttons->addWidget(m_lock);
    connect(m_lock, &QAbstractButton::clicked, this, &LevelHeader::LockAsked);
    connect(m_name, &QLineEdit::editingFinished, this, &LevelHeader::AskName);
    SetTexts();
}

void LevelHeader::SetTexts()
{
    const QString preset = tr("Level %1").arg(locale().toString(m_level + 1));
    const QString name = m_given.isEmpty() ? preset : m_given;
    const auto call = [&name](QWidget* widget, const QString& title) {
        widget->setToolTip(title);
        widget->setAccessibleName(QStringLiteral("%1: %2").arg(name, title));
    };
    setAccessibleName(name);
    m_name->setPlaceholderText(preset);
    call(m_name, tr("Name"));
    for (const Switch& one : qAsConst(m_switches))
        call(one.button, tr(one.title));
    call(m_lock, tr("Lock"));
}

void LevelHeader::SetState(const LevelState& state)
{
    for (const Switch& one : qAsConst(m_switches))
        one.button->setChecked((state.flags & one.flag) != 0);
    m_lock->setChecked(state.isLocked);
    // What is being typed is not disturbed by other steps.
    if (m_given != state.name || !m_name->isModified())
        ShowName(state.name);
    m_given = state.name;
    SetTexts();
}

void LevelHeader::ShowName(const QString& name)
{
    m_name->setText(name);
    m_name->setCursorPosition(0); // of a long one the beginning shows
}

void LevelHeader::AskName()
{
    if (m_name->text() != m_given)
        Q_EMIT NameAsked(m_name->text());
    m_name->setModified(false);
}

bool LevelHeader::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_name && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        ShowName(m_given);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void LevelHeader::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        SetTexts();
    QWidget::changeEvent(event);
}

void LevelHeader::keyPressEvent(QKeyEvent* event)
{
    const bool isUp = event->key() == Qt::Key_Up;
    if (event->modifiers() == Qt::ControlModifier && (isUp || event->key() == Qt::Key_Down))
        Q_EMIT HeightAsked(height() + (isUp ? -kKeyStep : kKeyStep));
    else
        QWidget::keyPressEvent(event);
}

void LevelHeader::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_layout->setDirection(height() < kTwoRows ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void LevelHeader::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), HostStyle::Shown(kBackground));
    painter.fillRect(0, height() - 1, width(), 1, HostStyle::Shown(kLine));
}

bool LevelHeader::IsAtEdge(int y) const
{
    return y >= height() - kEdge;
}

void LevelHeader::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsAtEdge(event->y()))
        m_heldBelow = height() - event->y();
}

void LevelHeader::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(m_heldBelow >= 0 || IsAtEdge(event->y()) ? Qt::SizeVerCursor : Qt::ArrowCursor);
    if (m_heldBelow >= 0)
        Q_EMIT HeightAsked(event->y() + m_heldBelow);
}

void LevelHeader::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_heldBelow = -1;
}
