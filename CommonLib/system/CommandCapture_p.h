// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QtGlobal>

/// A program started with its standard output and error on a pipe that nobody else writes to.
///
/// The program is not waited for, and destroying this object does not end it.
class CommandCapture
{
public:
    /// Starts the program; IsStarted() tells whether the system took it.
    explicit CommandCapture(const QString& commandLine);
    ~CommandCapture();
    Q_DISABLE_COPY_MOVE(CommandCapture)

    bool IsStarted() const { return m_pipe != kNoPipe; }

    /// Waits for output and reads at most \a size bytes of it. False at its end, which comes when
    /// the last process that holds the other end of the pipe is gone.
    bool Read(char* buffer, int size);

private:
    static constexpr qintptr kNoPipe = -1;
    qintptr m_pipe = kNoPipe;
};
