// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Measures how long the event loop of a thread takes to answer.
///
/// A thread of the watch's own posts an event to the thread that the watch lives in, and the next
/// one some time after that was answered: what begins meanwhile is measured that much too short.
class LoopWatch : public QObject
{
    Q_OBJECT

public:
    explicit LoopWatch(std::chrono::milliseconds between, QObject* parent = nullptr);
    ~LoopWatch() override;

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// An event has waited so long.
    void Answered(double milliseconds);

private:
    void Ask();

    const std::chrono::milliseconds m_between;
    std::mutex m_mutex; ///< of what both threads use
    std::condition_variable m_changed;
    QElapsedTimer m_since; ///< when the event that waits was posted
    bool m_isAsked = false;
    bool m_isEnding = false;
    std::thread m_thread;
};
