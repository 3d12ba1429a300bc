// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QWidget>

class ExportQueue;
class QLabel;
class QProgressBar;
class QToolButton;
class QVBoxLayout;

/// The films of a queue: how far each is, how long it still takes, why it failed, and a way to end
/// it or to take it from the list.
class ExportQueueView : public QWidget
{
    Q_OBJECT

public:
    /// \a queue must outlive it.
    explicit ExportQueueView(ExportQueue& queue, QWidget* parent = nullptr);

private:
    struct Row
    {
        QWidget* widget;
        QProgressBar* bar;
        QLabel* state;
        QToolButton* button; ///< ends, or removes what has ended
    };

    void AddRow(int number);
    void RemoveRow(int number);
    void Show(int number);
    void Press(int number);
    QString StateText(int number) const;

    ExportQueue& m_queue;
    QVBoxLayout* m_column;
    QLabel* m_empty;
    QHash<int, Row> m_rows;
};
