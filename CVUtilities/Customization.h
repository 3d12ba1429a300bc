// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QPair>
#include <QString>

#include <optional>

class QXmlStreamReader;

/// The values of a customisation file: texts named by a group and a name within it.
class Customization
{
public:
    /// Longest file that is read, in bytes.
    static constexpr qint64 kLongestFile = qint64(4) * 1024 * 1024;

    /// Reads a file. Whatever was read before is forgotten, also when this fails: the path names no
    /// regular file, the file cannot be read, is longer than kLongestFile, is not well-formed XML,
    /// has another root element or an element within a value.
    bool Load(const QString& path);

    /// The value, without white space at its ends; nothing when there is none. Case counts.
    std::optional<QString> Value(const QString& group, const QString& name) const;

private:
    void ReadGroup(QXmlStreamReader& xml);

    QHash<QPair<QString, QString>, QString> m_values; ///< by group and name
};
