// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Console.h"

#include "Host/Terminal_p.h"

#include <cstdio>

namespace {

const char kEraseLine[] = "\r\x1b[2K";

void Write(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

Console::Console() : m_terminal(StandardOutputIsTerminal()) {}

Console::~Console()
{
    ClearProgress();
}

void Console::Print(const QString& text)
{
    ClearProgress();
    Write(text + QLatin1Char('\n'));
}

void Console::Progress(const QString& text)
{
    if (!m_terminal) {
        Print(text);
        return;
    }
    ClearProgress();
    Write(text);
    m_progressShown = true;
}

void Console::ClearProgress()
{
    if (m_progressShown)
        Write(QString::fromLatin1(kEraseLine));
    m_progressShown = false;
}
