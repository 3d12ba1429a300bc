// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What a time of ours stands beside, measured in the same run.
struct Peer
{
    enum class Kind
    {
        Other, ///< other software that does the same
        Bare,  ///< what the work takes at least, without what is ours about it
        Ours   ///< ours under other conditions: with fewer clips, a shorter file, without a cache
    };
    Kind kind;
    QString name;
    double seconds;
};

inline Peer Other(const QString& name, double seconds = 0)
{
    return {Peer::Kind::Other, name, seconds};
}
inline Peer Bare(const QString& name, double seconds = 0)
{
    return {Peer::Kind::Bare, name, seconds};
}
inline Peer Ours(const QString& name, double seconds = 0)
{
    return {Peer::Kind::Ours, name, seconds};
}

/// Prints the time of \a what beside that of \a peer, and their ratio: ours by theirs, so less is
/// better. Where COMMONLIB_BENCHMARK_ROWS names a file, the figures are added to it as well, for
/// scripts/benchmark. A time that is not above 0 was not measured: then it complains instead.
void Report(const QString& what, double seconds, const Peer& peer);
