// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QPlainTextEdit>

/// The last lines of a log file, which it follows while it can be seen.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogView(const QString& path, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void ReadOn();

    const QString m_path;
    qint64 m_end = 0; ///< of what was read
    QBasicTimer m_timer;
};
