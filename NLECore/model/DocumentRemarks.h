// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <QMap>
#include <QString>

#include <vector>

namespace nle {

/// What a document held that the node made of it lacks.
struct DocumentRemark
{
    NLEDocumentRemark code;
    QString text;
    int times; ///< how often the document had it

    /// The text, with how often where that is more than once.
    QString Told() const
    {
        return times == 1 ? text : QStringLiteral("%1 (%2 times)").arg(text).arg(times);
    }
};

/// A list of remarks, each once.
class DocumentRemarks
{
public:
    /// From kMost different remarks on, the list only says that there are more.
    static constexpr int kMost = 500;

    void Add(NLEDocumentRemark code, const QString& text)
    {
        const bool isFull = int(m_all.size()) >= kMost && !m_places.contains(text);
        const QString& kept = isFull ? QStringLiteral("more that was left out") : text;
        const auto place = m_places.constFind(kept);
        if (place != m_places.constEnd()) {
            ++m_all[size_t(*place)].times;
            return;
        }
        m_places.insert(kept, int(m_all.size()));
        m_all.push_back({isFull ? NLERemark_Structure : code, kept, 1});
    }
    const std::vector<DocumentRemark>& All() const { return m_all; }

private:
    std::vector<DocumentRemark> m_all;
    QMap<QString, int> m_places; ///< by text
};

} // namespace nle
