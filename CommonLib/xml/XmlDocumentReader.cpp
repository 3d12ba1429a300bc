// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/xml/XmlDocument_p.h"

#include <QDomDocumentFragment>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

/// Characters that all references to entities together may expand to.
constexpr qint64 kLargestGrowth = qint64(16) << 20;
/// Attributes that elements get by default. They are not read, but finding them takes time.
constexpr int kMostDefaults = 2'000'000;
constexpr int kLongestDeclaration = 256; // bytes

// Version 1.1 and later differ hardly, but the reader knows 1.0 only.
void TakeForVersion10(QByteArray& content)
{
    static const QRegularExpression later(
        QStringLiteral("^\\W*<\\?xml\\s+version\\s*=\\s*[\"']1\\.([1-9])[\"']"));
    QByteArray head = content.left(kLongestDeclaration);
    head.replace('\0', ""); // characters may be two bytes wide
    const QRegularExpressionMatch match = later.match(QString::fromLatin1(head));
    if (match.hasMatch())
        content[content.indexOf(match.captured(1).at(0).toLatin1(), content.indexOf('.'))] = '0';
}

bool IsPredefined(const char* reference)
{
    constexpr std::array<const char*, 6> starts = {"&amp;",  "&lt;",   "&gt;",
                                                   "&quot;", "&apos;", "&#"};
    return std::any_of(starts.begin(), starts.end(), [reference](const char* start) {
        return std::strncmp(reference, start, std::strlen(start)) == 0;
    });
}

// References, at most, to entities that the document declares itself.
qint64 CountReferences(const QByteArray& content)
{
    qint64 count = 0;
    for (int at = content.indexOf('&'); at >= 0; at = content.indexOf('&', at + 1))
        count += IsPredefined(content.constData() + at) ? 0 : 1;
    return count;
}

// How long any entity may become so that all references stay within what is allowed.
int LongestEntity(qint64 references)
{
    return static_cast<int>(kLargestGrowth / (1 + references));
}

// Qt's own builder drops blank sections.
class Builder
{
public:
    Builder(QDomDocument& document, const QByteArray& content)
        : m_document(document)
        , m_reader(content)
        , m_longestEntity(LongestEntity(CountReferences(content)))
    {
        m_reader.setNamespaceProcessing(false);
        // Parameter entities are referred to in the prolog only.
        m_reader.setEntityExpansionLimit(
            std::min(m_longestEntity, LongestEntity(content.count('%'))));
    }

    bool Build()
    {
        while (m_document.hasChildNodes())
            m_document.removeChild(m_document.firstChild());
        SetType(QString());
        while (!m_reader.atEnd()) {
            if (!Add(m_reader.readNext()))
                return false;
        }
        return !m_reader.hasError();
    }

private:
    bool Add(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartDocument:
            AddDeclaration();
            break;
        case QXmlStreamReader::DTD:
            m_reader.setEntityExpansionLimit(m_longestEntity);
            SetType(m_reader.text().toString());
            break;
        case QXmlStreamReader::StartElement:
            return AddElement();
        case QXmlStreamReader::EndElement:
            m_parent = m_parent.parentNode();
            --m_level;
            break;
        case QXmlStreamReader::Characters:
            AddCharacters();
            break;
        case QXmlStreamReader::Comment:
            m_parent.appendChild(m_document.createComment(m_reader.text().toString()));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            m_parent.appendChild(m_document.createProcessingInstruction(
                m_reader.processingInstructionTarget().toString(),
                m_reader.processingInstructionData().toString()));
            break;
        case QXmlStreamReader::EntityReference:
            m_parent.appendChild(m_document.createEntityReference(m_reader.name().toString()));
            break;
        default:
            break;
        }
        return true;
    }

    void AddDeclaration()
    {
        if (m_reader.documentVersion().isEmpty())
            return;
        QString data = QStringLiteral("version='%1'").arg(m_reader.documentVersion());
        if (!m_reader.documentEncoding().isEmpty())
            data += QStringLiteral(" encoding='%1'").arg(m_reader.documentEncoding());
        if (m_reader.isStandaloneDocument())
            data += QStringLiteral(" standalone='yes'");
        m_document.appendChild(m_document.createProcessingInstruction("xml", data));
    }

    // A document gets its type only together with all of its content.
    void SetType(const QString& declaration)
    {
        QDomDocumentFragment prolog = m_document.createDocumentFragment();
        while (m_document.hasChildNodes())
            prolog.appendChild(m_document.firstChild());
        QXmlStreamReader reader(declaration + "<root/>");
        reader.setEntityExpansionLimit(m_reader.entityExpansionLimit());
        m_document.setContent(&reader, false);
        m_document.removeChild(m_document.documentElement());
        m_document.appendChild(prolog);
        m_parent = m_document;
    }

    bool AddElement()
    {
        QDomElement element = m_document.createElement(m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (attribute.isDefault())
                ++m_defaults;
            else
                element.setAttribute(attribute.qualifiedName().toString(),
                                     attribute.value().toString());
        }
        m_parent = m_parent.appendChild(element);
        return ++m_level <= kDeepestXmlLevel && m_defaults <= kMostDefaults;
    }

    // White space counts as layout unless something shows that it is meant.
    void AddCharacters()
    {
        const QString text = m_reader.text().toString();
        if (m_reader.isCDATA())
            m_parent.appendChild(m_document.createCDATASection(text));
        else if (!m_reader.isWhitespace())
            m_parent.appendChild(m_document.createTextNode(text));
    }

    QDomDocument& m_document;
    QXmlStreamReader m_reader;
    const int m_longestEntity;
    QDomNode m_parent;
    int m_level = 0;
    int m_defaults = 0;
};

} // namespace

bool ReadXmlDocument(QDomDocument& document, QByteArray content)
{
    TakeForVersion10(content);
    return Builder(document, content).Build();
}
