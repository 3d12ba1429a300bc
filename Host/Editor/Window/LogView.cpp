// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/LogView.h"

#include "Host/Widgets/KeepTranslated.h"

#include <QFile>
#include <QTimerEvent>

namespace {

constexpr int kMostLines = 2000;
constexpr qint64 kMostBytes = qint64(256) * 1024; // that are read of what was there before
constexpr int kInterval = 1000;                   // milliseconds

} // namespace

LogView::LogView(const QString& path, QWidget* parent) : QPlainTextEdit(parent), m_path(path)
{
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setLayoutDirection(Qt::LeftToRight);
    setMaximumBlockCount(kMostLines);
    KeepTranslated(this, [this] { setAccessibleName(tr("Log")); });
}

void LogView::showEvent(QShowEvent* event)
{
    QPlainTextEdit::showEvent(event);
    ReadOn();
    m_timer.start(kInterval, this);
}

void LogView::hideEvent(QHideEvent* event)
{
    QPlainTextEdit::hideEvent(event);
    m_timer.stop();
}

void LogView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        ReadOn();
    else
        QPlainTextEdit::timerEvent(event);
}

void LogView::ReadOn()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    if (file.size() < m_end)
        m_end = 0; // the log has begun a new file
    file.seek(qMax(m_end, file.size() - kMostBytes));
    const QByteArray lines = file.readAll();
    m_end = file.pos();
    if (!lines.isEmpty())
        appendPlainText(QString::fromUtf8(lines).remove('\r').trimmed());
}
