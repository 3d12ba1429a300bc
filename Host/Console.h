// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What the host prints: text that stays, and progress that on a terminal is written over.
class Console
{
public:
    Console();
    /// Clears a progress line that is still there.
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Prints \a text and ends the line; a progress line makes room for it.
    void Print(const QString& text = {});
    /// Shows \a text as progress: one line that each call replaces, or a plain line each when
    /// standard output is no terminal.
    void Progress(const QString& text);

private:
    void ClearProgress();

    const bool m_terminal;
    bool m_progressShown = false;
};
