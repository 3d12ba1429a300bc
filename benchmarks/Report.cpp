// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/Report.h"

#include <QFile>
#include <QStringList>

#include <cstdio>

namespace {

const char* Name(Peer::Kind kind)
{
    switch (kind) {
    case Peer::Kind::Other:
        return "other";
    case Peer::Kind::Bare:
        return "bare";
    case Peer::Kind::Ours:
        break;
    }
    return "ours";
}

/// In the unit that leaves one to three digits before the point.
QString Text(double seconds)
{
    const char* const units[] = {"s", "ms", "us"};
    for (const char* unit : units) {
        if (seconds >= 1)
            return QStringLiteral("%1 %2").arg(seconds, 0, 'f', 2).arg(unit);
        seconds *= 1000;
    }
    return QStringLiteral("%1 ns").arg(seconds, 0, 'f', 2);
}

/// As scripts/benchmark reads it: fields that tabulators part.
void AddRow(const QString& what, double seconds, const Peer& peer)
{
    QFile file(qEnvironmentVariable("COMMONLIB_BENCHMARK_ROWS"));
    if (file.fileName().isEmpty())
        return;
    const QStringList fields = {Name(peer.kind), what, QString::number(seconds), peer.name,
                                QString::number(peer.seconds)};
    if (!file.open(QIODevice::Append) || file.write(fields.join('\t').toUtf8() + '\n') < 0)
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(file.fileName()));
}

} // namespace

void Report(const QString& what, double seconds, const Peer& peer)
{
    if (seconds <= 0 || peer.seconds <= 0) {
        std::fprintf(stderr, "%s beside %s was not measured\n", qPrintable(what),
                     qPrintable(peer.name));
        return;
    }
    std::printf("%-50s %10s  %-36s %10s  ratio %.3g\n", qPrintable(what), qPrintable(Text(seconds)),
                qPrintable(peer.name), qPrintable(Text(peer.seconds)), seconds / peer.seconds);
    std::fflush(stdout);
    AddRow(what, seconds, peer);
}
