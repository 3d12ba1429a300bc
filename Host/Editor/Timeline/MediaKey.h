// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>

/// What is kept of a stream of a file: of a kind of picture or step, one of many.
struct MediaKey
{
    QString path;
    std::uint32_t stream;
    int kind;
    int index;

    using Hash = decltype(qHash(QString(), 0)); ///< its size is Qt's choice

    friend bool operator==(const MediaKey& a, const MediaKey& b)
    {
        return a.index == b.index && a.kind == b.kind && a.stream == b.stream && a.path == b.path;
    }
    // NOLINTNEXTLINE(readability-identifier-naming): the name that Qt looks for
    friend Hash qHash(const MediaKey& key, Hash seed)
    {
        const Hash place = seed ^ (static_cast<uint>(key.index) * 31) ^
                           (static_cast<uint>(key.kind) << 20) ^ (key.stream << 28);
        return qHash(key.path, place);
    }
};
