// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/xml/XmlDocument_p.h"

#include "Com/AnyQt.h"
#include "CommonLib/xml/EntityLengths_p.h"

#include <QDomDocumentFragment>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

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

// What the reader takes for the encoding of content that has neither mark nor declaration.
const char* FirstCodec(const QByteArray& content)
{
    if (content.startsWith(QByteArray("<\0", 2)))
        return "UTF-16LE";
    return content.startsWith(QByteArray("\0<", 2)) ? "UTF-16BE" : "UTF-8";
}

// The content as the reader has it, which declares \a encoding or none; null when it is not encoded
// so.
QString Decoded(const QByteArray& content, const QString& encoding)
{
    std::optional<AnyQt::TextCodec> codec = AnyQt::TextCodec::Named(encoding.toLatin1());
    if (encoding.isEmpty()) {
        codec = AnyQt::TextCodec::Marked(content, *AnyQt::TextCodec::Named(FirstCodec(content)));
    }
    return codec ? codec->Decode(content).value_or(QString()) : QString();
}

// Qt's own builder drops blank sections.
class Builder
{
public:
    Builder(QDomDocument& document, const QByteArray& content)
        : m_document(document), m_reader(content), m_content(content)
    {
        m_reader.setNamespaceProcessing(false);
        // In the document type, which may refer to entities in what attributes are by default, each
        // reference counts as the longest, and so does what only looks like one.
        const qint64 references = content.count('%') + content.count('&');
        m_reader.setEntityExpansionLimit(static_cast<int>(kLargestXmlGrowth / (1 + references)));
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
            SetType(m_reader.text().toString());
            return AllowEntities();
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

    // False when what follows the document type refers to more than is allowed.
    bool AllowEntities()
    {
        const EntityLengths lengths(m_reader.entityDeclarations());
        m_reader.setEntityExpansionLimit(static_cast<int>(kLargestXmlGrowth));
        if (lengths.IsEmpty())
            return true;
        const QString text = Decoded(m_content, m_reader.documentEncoding().toString());
        const auto read = static_cast<int>(m_reader.characterOffset());
        return read <= text.size() &&
               lengths.OfAll(QStringView(text).mid(read)) <= kLargestXmlGrowth;
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
    const QByteArray m_content;
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
