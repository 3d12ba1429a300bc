// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/xml/EntityLengths_p.h"

#include <algorithm>
#include <array>

namespace {

constexpr qint64 kTooLong = kLargestXmlGrowth + 1;
/// Entities that name others deeper than this count as too long.
constexpr int kDeepestEntity = 1000;

struct Section
{
    QLatin1String begin;
    QLatin1String end;
};

// Where references are plain text.
const std::array<Section, 3> kSections = {{{QLatin1String("<!--"), QLatin1String("-->")},
                                           {QLatin1String("<![CDATA["), QLatin1String("]]>")},
                                           {QLatin1String("<?"), QLatin1String("?>")}}};

// Behind the section that begins there, or behind the one character.
int EndOfSection(QStringView text, int at)
{
    const QStringView rest = text.mid(at);
    for (const Section& section : kSections) {
        if (!rest.startsWith(section.begin))
            continue;
        const auto end = text.indexOf(section.end, at + section.begin.size());
        return int(end < 0 ? text.size() : end + section.end.size());
    }
    return at + 1;
}

} // namespace

EntityLengths::EntityLengths(const QXmlStreamEntityDeclarations& declarations)
{
    for (const QXmlStreamEntityDeclaration& declaration : declarations) {
        const QString name = declaration.name().toString();
        const QString value = declaration.value().toString();
        if (m_entities.contains(name))
            continue; // the first declaration counts
        m_entities.insert(name, {value});
        m_longestName = std::max<int>(m_longestName, name.size());
    }
    for (Entity& entity : m_entities)
        Measure(entity, 0);
}

// Calls \a visit with what may be the name of an entity: what stands between "&" and ";". Within an
// entity a section both begins and ends, or the reader fails.
template <typename Visit>
void EntityLengths::ForEachName(QStringView text, Visit visit) const
{
    for (int at = 0; at < text.size();) {
        const QChar character = text.at(at);
        if (character == '<') {
            at = EndOfSection(text, at);
            continue;
        }
        ++at;
        if (character != '&')
            continue;
        const auto length = text.mid(at, m_longestName + 1).indexOf(';');
        if (length > 0)
            visit(text.mid(at, length).toString());
    }
}

void EntityLengths::Measure(Entity& entity, int depth)
{
    if (entity.length >= 0)
        return;
    entity.length = kTooLong; // as long as it is being measured
    if (depth > kDeepestEntity)
        return;
    qint64 length = entity.value.size();
    ForEachName(entity.value, [&](const QString& name) {
        const auto named = m_entities.find(name);
        if (named == m_entities.end())
            return;
        Measure(*named, depth + 1);
        length = std::min(length + named->length, kTooLong);
    });
    entity.length = length;
}

qint64 EntityLengths::OfAll(QStringView content) const
{
    qint64 length = 0;
    ForEachName(content, [&](const QString& name) {
        const auto named = m_entities.find(name);
        if (named != m_entities.end())
            length = std::min(length + named->length, kTooLong);
    });
    return length;
}
