// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/ExportQueueView.h"

#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Widgets/SmallButton.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QTime>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kGap = 8;
constexpr int kBarWidth = 140;
constexpr int kAll = 100; // per cent

bool HasEnded(ExportQueue::State state)
{
    return state != ExportQueue::State::Waiting && state != ExportQueue::State::Running;
}

QString TimeText(int seconds)
{
    constexpr int hour = 3600;
    return QTime(0, 0).addSecs(seconds).toString(seconds < hour ? "m:ss" : "h:mm:ss");
}

} // namespace

ExportQueueView::ExportQueueView(ExportQueue& queue, QWidget* parent)
    : QWidget(parent)
    , m_queue(queue)
    , m_column(new QVBoxLayout(this))
    , m_empty(new QLabel(tr("No films yet"), this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_empty->setObjectName(QStringLiteral("CommonLib_Hint"));
    m_column->addWidget(m_empty);
    m_column->addStretch();
    connect(&queue, &ExportQueue::Added, this, &ExportQueueView::AddRow);
    connect(&queue, &ExportQueue::Changed, this, &ExportQueueView::Show);
    connect(&queue, &ExportQueue::Removed, this, &ExportQueueView::RemoveRow);
    for (const ExportQueue::Job& job : queue.Jobs())
        AddRow(job.number);
}

void ExportQueueView::AddRow(int number)
{
    auto* widget = new QWidget(this);
    auto* grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setColumnStretch(0, 1);
    const QString file = QFileInfo(m_queue.Find(number)->order.path).fileName();
    auto* name = new QLabel(file, widget);
    auto* bar = new QProgressBar(widget);
    bar->setFixedWidth(kBarWidth);
    bar->setRange(0, kAll);
    bar->setAccessibleName(file);
    auto* button = MakeSmallButton(QStringLiteral("×"), QString(), file, widget);
    auto* state = new QLabel(widget);
    state->setObjectName(QStringLiteral("CommonLib_Hint"));
    state->setWordWrap(true);
    grid->addWidget(name, 0, 0);
    grid->addWidget(bar, 0, 1);
    grid->addWidget(button, 0, 2);
    grid->addWidget(state, 1, 0, 1, 3);
    connect(button, &QToolButton::clicked, this, [this, number] { Press(number); });
    m_column->insertWidget(m_column->count() - 1, widget);
    m_rows.insert(number, {widget, bar, state, button});
    m_empty->hide();
    Show(number);
}

void ExportQueueView::RemoveRow(int number)
{
    const Row row = m_rows.take(number);
    row.widget->hide();
    row.widget->deleteLater(); // its button may be what was clicked
    m_empty->setVisible(m_rows.isEmpty());
}

QString ExportQueueView::StateText(int number) const
{
    const ExportQueue::Job& job = *m_queue.Find(number);
    switch (job.state) {
    case ExportQueue::State::Waiting:
        return tr("Waiting");
    case ExportQueue::State::Running:
        return job.secondsLeft < 0 ? tr("Being written")
                                   : tr("%1 left").arg(TimeText(job.secondsLeft));
    case ExportQueue::State::Done:
        return tr("Written");
    case ExportQueue::State::Cancelled:
        return tr("Cancelled");
    case ExportQueue::State::Failed:
        return job.reason;
    }
    return {};
}

void ExportQueueView::Show(int number)
{
    const ExportQueue::Job& job = *m_queue.Find(number);
    const Row& row = m_rows[number];
    row.bar->setValue(job.state == ExportQueue::State::Done ? kAll : job.percent);
    row.state->setText(StateText(number));
    const QString action = HasEnded(job.state) ? tr("Take from the list") : tr("Cancel");
    NameSmallButton(*row.button, action, row.bar->accessibleName());
}

void ExportQueueView::Press(int number)
{
    if (HasEnded(m_queue.Find(number)->state))
        m_queue.Remove(number);
    else
        m_queue.Cancel(number);
}
