// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelHeaders.h"

#include "Host/Editor/Timeline/LevelHeader.h"
#include "Host/Editor/Timeline/LevelLayout.h"
#include "Host/Editor/Timeline/TimelineGeometry.h"
#include "Host/Editor/Timeline/TimelineModel.h"

#include <QApplication>
#include <QTimerEvent>

#include <algorithm>

LevelHeaders::LevelHeaders(const LevelLayout& levels, const TimelineModel& model, QWidget* parent)
    : QWidget(parent), m_levels(levels), m_model(model), m_area(new QWidget(this))
{
    setFixedWidth(kWidth);
    connect(&model, &TimelineModel::LevelsChanged, this, &LevelHeaders::SetStates);
}

LevelHeader* LevelHeaders::Make(int level)
{
    auto* header = new LevelHeader(level, m_area);
    header->SetState(m_model.StateOf(level));
    // As it is, should something be refused.
    const auto reset = [this, header, level] { header->SetState(m_model.StateOf(level)); };
    connect(header, &LevelHeader::LockAsked, this, [=](bool locked) {
        Q_EMIT LockAsked(level, locked);
        reset();
    });
    connect(header, &LevelHeader::FlagAsked, this, [=](int flag, bool on) {
        Q_EMIT FlagAsked(level, flag, on);
        reset();
    });
    connect(header, &LevelHeader::NameAsked, this, [=](const QString& name) {
        Q_EMIT NameAsked(level, name);
        reset();
    });
    connect(header, &LevelHeader::HeightAsked, this,
            [this, level](int pixels) { Q_EMIT HeightAsked(level, pixels); });
    return header;
}

void LevelHeaders::SetStates()
{
    for (int level = 0; level < m_headers.size(); ++level)
        m_headers[level]->SetState(m_model.StateOf(level));
}

void LevelHeaders::Arrange(int scrolled)
{
    m_scrolled = scrolled;
    constexpr int strip = TimelineGeometry::kStripHeight;
    m_area->setGeometry(0, strip, width(), height() - strip);
    while (m_headers.size() > m_levels.Count()) {
        // It may be what was just clicked.
        LevelHeader* gone = m_headers.takeLast();
        gone->hide();
        gone->deleteLater();
    }
    while (m_headers.size() < m_levels.Count() && !isVisible())
        m_headers << Make(m_headers.size());
    if (m_headers.size() < m_levels.Count())
        m_makes.start(0, this);
    PlaceHeads();
}

void LevelHeaders::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_makes.timerId())
        return QWidget::timerEvent(event);
    if (m_headers.size() < m_levels.Count())
        m_headers << Make(m_headers.size());
    else
        m_makes.stop();
    PlaceHeads();
}

/// The tab key goes to heads out of sight, too.
bool LevelHeaders::focusNextPrevChild(bool isNext)
{
    const bool isMoved = QWidget::focusNextPrevChild(isNext);
    for (const LevelHeader* head : qAsConst(m_headers)) {
        if (!head->isAncestorOf(QApplication::focusWidget()))
            continue;
        const int above = std::min(0, head->y());
        const int below = std::max(0, head->geometry().bottom() + 1 - m_area->height());
        if (above + below != 0)
            Q_EMIT ScrollAsked(above < 0 ? above : below);
        break;
    }
    return isMoved;
}

void LevelHeaders::PlaceHeads()
{
    for (int level = 0; level < m_headers.size(); ++level) {
        m_headers[level]->setGeometry(0, m_levels.Top(level) - m_scrolled, width(),
                                      m_levels.Height(level));
        m_headers[level]->show();
    }
}

void LevelHeaders::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange(m_scrolled);
}
