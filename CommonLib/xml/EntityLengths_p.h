// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QXmlStreamReader>

/// Characters that all references to entities of one document together may stand for.
constexpr qint64 kLargestXmlGrowth = qint64(16) << 20;

/// How much text references to the entities that a document declares stand for, those within
/// entities included. What lies beyond kLargestXmlGrowth, and entities that name themselves, counts
/// as more than that.
class EntityLengths
{
public:
    explicit EntityLengths(const QXmlStreamEntityDeclarations& declarations);

    bool IsEmpty() const { return m_entities.isEmpty(); }
    /// Characters of all references in \a content, which begins behind the document type.
    qint64 OfAll(QStringView content) const;

private:
    struct Entity
    {
        QString value;
        qint64 length = -1; // not known yet
    };

    void Measure(Entity& entity, int depth);
    template <typename Visit>
    void ForEachName(QStringView text, Visit visit) const;

    QHash<QString, Entity> m_entities;
    int m_longestName = 0;
};
