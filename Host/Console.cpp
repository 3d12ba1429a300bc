// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Console.h"

#include "Host/Terminal_p.h"

#include <cstdio>

namespace {

const char eraseLine[] = "\r\x1b[2K";

void write(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

Console::Console() : m_terminal(StandardOutputIsTerminal()) {}

Console::~Console()
{
    clearProgress();
}

void Console::print(const QString& text)
{
    clearProgress();
    write(text + QLatin1Char('\n'));
}

void Console::progress(const QString& text)
{
    if (!m_terminal) {
        print(text);
        return;
    }
    clearProgress();
    write(text);
    m_progressShown = true;
}

void Console::clearProgress()
{
    if (m_progressShown)
        write(QString::fromLatin1(eraseLine));
    m_progressShown = false;
}
