// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelHeader.h"

#include "Host/Editor/Timeline/LockButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kEdge = 5; ///< pixels in which the lower edge is caught
constexpr int kMargin = 8;

const QColor kBackground(0x2c, 0x2f, 0x34);
const QColor kLine(0x41, 0x46, 0x4d);

} // namespace

LevelHeader::LevelHeader(int level, QWidget* parent)
    : QWidget(parent), m_level(level), m_name(new QLabel(this)), m_lock(new LockButton(this))
{
    setMouseTracking(true);
    m_name->setMinimumWidth(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, 1, kMargin, 1);
    layout->addWidget(m_name, 1);
    layout->addWidget(m_lock);
    connect(m_lock, &QAbstractButton::clicked, this, &LevelHeader::LockAsked);
    SetTexts();
}

void LevelHeader::SetTexts()
{
    const QString name = tr("Level %1").arg(m_level + 1);
    m_name->setText(name);
    setAccessibleName(name);
    m_lock->setToolTip(tr("Lock"));
    m_lock->setAccessibleName(tr("Lock %1").arg(name));
}

void LevelHeader::SetLocked(bool locked)
{
    m_lock->setChecked(locked);
}

void LevelHeader::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        SetTexts();
    QWidget::changeEvent(event);
}

void LevelHeader::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kBackground);
    painter.fillRect(0, height() - 1, width(), 1, kLine);
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
