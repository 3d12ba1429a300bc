// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/xml/XmlDocument_p.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr int kIndent = 4;
const char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

bool IsReadable(const QByteArray& content)
{
    QDomDocument document;
    return ReadXmlDocument(document, content);
}

bool IsName(const QString& text)
{
    QXmlStreamReader reader('<' + text + "/>");
    reader.setNamespaceProcessing(false);
    return reader.readNextStartElement() && reader.qualifiedName() == text;
}

// False for control characters, for halves of pairs and for what is no character at all.
bool IsLegal(const QString& text, int at)
{
    const QChar character = text.at(at);
    if (character.isHighSurrogate())
        return at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return at > 0 && text.at(at - 1).isHighSurrogate();
    return character >= ' ' ? character.unicode() < 0xFFFE
                            : character == '\t' || character == '\n' || character == '\r';
}

QString Legal(const QString& text)
{
    QString legal;
    int copied = 0;
    for (int at = 0; at < text.size(); ++at) {
        if (IsLegal(text, at))
            continue;
        legal += text.midRef(copied, at - copied);
        copied = at + 1;
    }
    return copied == 0 ? text : legal + text.midRef(copied);
}

bool IsBlank(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return character == ' ' || character == '\t' || character == '\n' || character == '\r';
    });
}

// Whether a '>' that stands there would close a section; what comes before the text is not known.
bool ClosesSection(const QString& text, int at)
{
    const auto end = text.begin() + at;
    return std::all_of(end - std::min(at, 2), end, [](QChar before) { return before == ']'; });
}

QString Reference(uint character)
{
    return QStringLiteral("&#x%1;").arg(character, 0, 16);
}

// The character of which the unit there is the first.
QString CharacterAt(const QString& text, int at)
{
    return text.mid(at, text.at(at).isHighSurrogate() ? 2 : 1);
}

class Encoding
{
public:
    // As declared; UTF-8 when nothing known is.
    explicit Encoding(const QString& declaration)
    {
        static const QRegularExpression encoding(
            QStringLiteral("encoding\\s*=\\s*[\"']([^\"']*)[\"']"));
        m_codec = QTextCodec::codecForName(encoding.match(declaration).captured(1).toLatin1());
        if (!m_codec)
            m_codec = QTextCodec::codecForName("UTF-8");
        m_isUnicode = m_codec->name().startsWith("UTF-");
    }

    QTextCodec* Codec() const { return m_codec; }
    // With something else in place of what cannot be encoded.
    QString Nearest(const QString& text) const
    {
        return m_isUnicode ? text : Legal(m_codec->toUnicode(m_codec->fromUnicode(text)));
    }
    bool Has(const QString& text) const { return m_isUnicode || Nearest(text) == text; }

private:
    QTextCodec* m_codec;
    bool m_isUnicode;
};

QByteArray Encoded(const QString& text, const Encoding& encoding)
{
    QByteArray content;
    QTextStream stream(&content);
    stream.setCodec(encoding.Codec());
    stream << text;
    stream.flush();
    return content;
}

bool IsDeclaration(const QDomNode& node)
{
    return node.isProcessingInstruction() &&
           node.nodeName().compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0;
}

// The declaration that the document has, if any, unless it could not be read.
QString Declaration(const QDomDocument& document)
{
    const QDomNode first = document.firstChild();
    if (!IsDeclaration(first))
        return QString();
    const QString declaration = "<?xml " + first.nodeValue() + "?>";
    const Encoding encoding(declaration);
    // The reader takes the first of these characters for UTF-16.
    const bool isWide = encoding.Codec()->name().startsWith("UTF-32");
    return !isWide && IsReadable(Encoded(declaration + "<root/>", encoding))
               ? declaration
               : QString(kDeclaration);
}

// Whether the node is part of the text around it: white space must not come in between.
bool IsInline(const QDomNode& node)
{
    return node.isText() || node.isEntityReference();
}

class Writer
{
public:
    Writer(const QDomDocument& document, QIODevice& device)
        : m_document(document)
        , m_declaration(Declaration(document))
        , m_encoding(m_declaration)
        , m_stream(&device)
    {
        m_stream.setCodec(m_encoding.Codec());
    }

    void Write()
    {
        if (!m_declaration.isEmpty())
            m_stream << m_declaration << '\n';
        WriteType();
        const QDomElement root = m_document.documentElement();
        for (QDomNode node = m_document.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (!IsInline(node) && (!node.isElement() || node == root))
                WriteNode(node, 0);
        }
    }

private:
    void WriteType()
    {
        if (m_document.doctype().name().isEmpty())
            return;
        QTextStream stream(&m_type);
        m_document.doctype().save(stream, kIndent);
        stream.flush();
        if (Legal(m_type) != m_type || !m_encoding.Has(m_type) ||
            !IsReadable((m_type + "<root/>").toUtf8()))
            m_type.clear();
        m_stream << m_type;
    }

    void WriteNode(const QDomNode& node, int level)
    {
        switch (node.nodeType()) {
        case QDomNode::ElementNode:
            WriteElement(node.toElement(), level);
            break;
        case QDomNode::TextNode:
            WriteText(node.nodeValue());
            break;
        case QDomNode::CDATASectionNode:
            WriteSection(node.nodeValue());
            break;
        case QDomNode::EntityReferenceNode:
            WriteEntity(node.nodeName());
            break;
        case QDomNode::CommentNode:
            WriteComment(node, level);
            break;
        case QDomNode::ProcessingInstructionNode:
            WriteInstruction(node);
            break;
        default:
            break;
        }
    }

    void WriteElement(const QDomElement& element, int level)
    {
        if (level >= kDeepestXmlLevel)
            return;
        const QString name = Name(element.nodeName());
        Indent(element, level);
        m_stream << '<' << name;
        WriteAttributes(element);
        if (element.hasChildNodes()) {
            WriteChildren(element, level);
            m_stream << "</" << name << '>';
        } else {
            m_stream << "/>";
        }
        EndLine(element);
    }

    void WriteChildren(const QDomElement& element, int level)
    {
        m_stream << (IsInline(element.firstChild()) ? ">" : ">\n");
        for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
            WriteNode(child, level + 1);
        if (!IsInline(element.lastChild()))
            m_stream << QString(level * kIndent, ' ');
    }

    void WriteAttributes(const QDomElement& element)
    {
        QSet<QString> names;
        WriteNamespace(element, names);
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            const QDomNode attribute = attributes.item(i);
            WriteAttribute(attribute.nodeName(), attribute.nodeValue(), names);
            if (attribute.prefix() != element.prefix())
                WriteNamespace(attribute, names);
        }
    }

    void WriteNamespace(const QDomNode& node, QSet<QString>& names)
    {
        if (node.namespaceURI().isNull())
            return;
        const QString prefix = node.prefix();
        WriteAttribute(prefix.isEmpty() ? "xmlns" : "xmlns:" + prefix, node.namespaceURI(), names);
    }

    // Of several attributes whose names become the same only one can stay.
    void WriteAttribute(const QString& anyName, const QString& value, QSet<QString>& names)
    {
        const QString name = Name(anyName);
        if (names.contains(name))
            return;
        names += name;
        m_stream << ' ' << name << "=\"" << Escaped(Legal(value), true) << '"';
    }

    // The reader takes white space alone for layout unless a part of it is written by reference.
    void WriteText(const QString& anyText)
    {
        const QString text = Legal(anyText);
        if (!text.isEmpty() && IsBlank(text))
            m_stream << Reference(text.at(0).unicode()) << Escaped(text.mid(1), false);
        else
            m_stream << Escaped(text, false);
    }

    void WriteSection(const QString& anyText)
    {
        const QString text = Legal(anyText);
        if (text.contains("]]>") || text.contains('\r') || !m_encoding.Has(text))
            WriteText(text);
        else
            m_stream << "<![CDATA[" << text << "]]>";
    }

    void WriteEntity(const QString& name)
    {
        auto known = m_entities.constFind(name);
        if (known == m_entities.constEnd())
            known = m_entities.insert(name, ReadableReference(name));
        m_stream << *known;
    }

    // Empty when the document type gives the reader no meaning of it.
    QString ReadableReference(const QString& name) const
    {
        const QString reference = '&' + name + ';';
        const QString content = m_type + "<root>" + reference + "</root>";
        return m_encoding.Has(reference) && IsReadable(content.toUtf8()) ? reference : QString();
    }

    void WriteComment(const QDomNode& comment, int level)
    {
        QString text = m_encoding.Nearest(Legal(comment.nodeValue()));
        while (text.contains("--"))
            text.replace("--", "- -");
        Indent(comment, level);
        m_stream << "<!--" << text << (text.endsWith('-') ? " -->" : "-->");
        EndLine(comment);
    }

    void WriteInstruction(const QDomNode& instruction)
    {
        if (IsDeclaration(instruction))
            return;
        const QString target = Name(instruction.nodeName()).replace(':', '_');
        const QString data = m_encoding.Nearest(Legal(instruction.nodeValue()));
        m_stream << "<?" << target << ' ' << QString(data).replace("?>", "? >") << "?>";
        EndLine(instruction);
    }

    void Indent(const QDomNode& node, int level)
    {
        if (!IsInline(node.previousSibling()))
            m_stream << QString(level * kIndent, ' ');
    }

    void EndLine(const QDomNode& node)
    {
        if (!IsInline(node.nextSibling()))
            m_stream << '\n';
    }

    QString Name(const QString& text)
    {
        const auto known = m_names.constFind(text);
        if (known != m_names.constEnd())
            return *known;
        const bool isGood = m_encoding.Has(text) && IsName(text);
        return *m_names.insert(text, isGood ? text : MadeName(text));
    }

    QString MadeName(const QString& text) const
    {
        QString name;
        for (const QChar character : text) {
            const bool isGood = m_encoding.Has(character) && IsName(QString("_") + character);
            // Some may not come first.
            if (name.isEmpty() && isGood && !IsName(character))
                name += '_';
            name += isGood ? character : QChar('_');
        }
        return name.isEmpty() ? QString("_") : name;
    }

    // Of legal text.
    QString Escaped(const QString& text, bool isAttribute) const
    {
        QString escaped;
        escaped.reserve(text.size());
        for (int at = 0; at < text.size(); ++at) {
            const QChar character = text.at(at);
            if (character == '<')
                escaped += "&lt;";
            else if (character == '&')
                escaped += "&amp;";
            else if (character == '"' && isAttribute)
                escaped += "&quot;";
            else if (character == '>' && !isAttribute && ClosesSection(text, at))
                escaped += "&gt;";
            else if (character == '\r' || (character < ' ' && isAttribute))
                escaped += Reference(character.unicode());
            else
                escaped += character;
        }
        return m_encoding.Has(escaped) ? escaped : WithReferences(escaped);
    }

    QString WithReferences(const QString& text) const
    {
        QString result;
        for (int at = 0; at < text.size();) {
            const QString character = CharacterAt(text, at);
            at += character.size();
            result += m_encoding.Has(character) ? character : Reference(character.toUcs4().at(0));
        }
        return result;
    }

    const QDomDocument m_document;
    const QString m_declaration;
    const Encoding m_encoding;
    QTextStream m_stream;
    QString m_type;
    QHash<QString, QString> m_names;
    QHash<QString, QString> m_entities; // what stands for each; the document type is read for it
};

} // namespace

void WriteXmlDocument(const QDomDocument& document, QIODevice& device)
{
    Writer(document, device).Write();
}
