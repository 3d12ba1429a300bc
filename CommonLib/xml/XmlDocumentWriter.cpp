// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/xml/XmlDocument_p.h"

#include "Com/AnyQt.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr int kIndent = 4;
constexpr int kPiece = 65536; // characters that are encoded at once, or more
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
        legal.append(text.constData() + copied, at - copied);
        copied = at + 1;
    }
    return copied == 0 ? text : legal + text.mid(copied);
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
        : m_codec(Codec(declaration)), m_isUnicode(m_codec.Name().startsWith("UTF-"))
    {
    }

    // The reader takes the first of its characters for UTF-16.
    bool IsTooWide() const { return m_codec.Name().startsWith("UTF-32"); }
    QByteArray Encode(const QString& text) const { return m_codec.Encode(text); }
    // With something else in place of what cannot be encoded.
    QString Nearest(const QString& text) const
    {
        return m_isUnicode ? text : Legal(m_codec.Decode(m_codec.Encode(text)).value_or(QString()));
    }
    bool Has(const QString& text) const { return m_isUnicode || Nearest(text) == text; }

private:
    static AnyQt::TextCodec Codec(const QString& declaration)
    {
        static const QRegularExpression encoding(
            QStringLiteral("encoding\\s*=\\s*[\"']([^\"']*)[\"']"));
        const QByteArray name = encoding.match(declaration).captured(1).toLatin1();
        const auto codec = AnyQt::TextCodec::Named(name);
        return codec ? *codec : *AnyQt::TextCodec::Named("UTF-8");
    }

    AnyQt::TextCodec m_codec;
    bool m_isUnicode;
};

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
    return !encoding.IsTooWide() && IsReadable(encoding.Encode(declaration + "<root/>"))
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
        : m_device(device)
        , m_document(document)
        , m_declaration(Declaration(document))
        , m_encoding(m_declaration)
        , m_stream(&m_text)
    {
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
        WriteOut();
    }

private:
    // What there is of the text; it ends with a tag, so that no encoding goes on across it.
    void WriteOut()
    {
        m_stream.flush();
        m_device.write(m_encoding.Encode(m_text));
        m_text.clear();
    }

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
        if (m_text.size() >= kPiece)
            WriteOut();
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

    QIODevice& m_device;
    const QDomDocument m_document;
    const QString m_declaration;
    const Encoding m_encoding;
    QString m_text;       // not written out yet
    QTextStream m_stream; // into m_text
    QString m_type;
    QHash<QString, QString> m_names;
    QHash<QString, QString> m_entities; // what stands for each; the document type is read for it
};

} // namespace

void WriteXmlDocument(const QDomDocument& document, QIODevice& device)
{
    Writer(document, device).Write();
}
