// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/XmlOperation.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/XmlDocument_p.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QXmlStreamReader>

namespace {

constexpr int kIndent = 4;
constexpr int kDeepestLevel = 1000;
constexpr int kLongestEntity = 1024;
constexpr qint64 kLargestFileWithEntities = qint64(128) * 1024;

// Whether the content may be built into a document: that works recursively and expands entities
// with few limits, so depth and growth are judged by a reader that does neither.
bool IsSafeXml(QIODevice& device)
{
    QXmlStreamReader reader(&device);
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(kLongestEntity);
    int level = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++level > kDeepestLevel)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --level;
            break;
        case QXmlStreamReader::DTD:
            // Many short entities in a long file multiply its size just as well.
            if (!reader.entityDeclarations().isEmpty() && device.size() > kLargestFileWithEntities)
                return false;
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

// A pipe would block and a device may have no end.
bool IsSpecialFile(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

} // namespace

QDomDocument NewXmlDocument(const QString& rootName)
{
    QDomDocument document;
    document.appendChild(
        document.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    document.appendChild(document.createElement(rootName));
    return document;
}

void XmlOperation::CreateXmlFile(const QString& path, const QString& rootName)
{
    if (!FileOperation::IsFileExist(path))
        SaveXmlContent2File(NewXmlDocument(rootName), path);
}

bool XmlOperation::OpenXmlFile(QDomDocument& document, const QString& path,
                               QIODevice::OpenMode mode)
{
    QFile file(path);
    if (IsSpecialFile(path) || !file.open(mode))
        return false;
    const bool isRead =
        file.isReadable() && IsSafeXml(file) && file.seek(0) && document.setContent(&file, false);
    if (!isRead)
        document.clear();
    return isRead;
}

void XmlOperation::SaveXmlContent2File(const QDomDocument& document, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    document.save(stream, kIndent, QDomNode::EncodingFromDocument);
}

QDomElement XmlOperation::AddXmlElement(QDomDocument& document, QDomElement parent,
                                        const QString& name, const QString& text)
{
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
    return element;
}

QDomElement XmlOperation::GetChildElement(const QDomElement& element, const QString& name)
{
    return element.elementsByTagName(name).item(0).toElement();
}

void XmlOperation::SetElemmentText(QDomDocument& document, QDomElement element, const QString& text)
{
    const QDomNodeList children = element.childNodes();
    // The index moves on although the list shrinks under it: this is intended.
    for (int i = 0; i < children.length(); ++i) {
        const QDomNode child = children.item(i);
        if (child.isText())
            element.removeChild(child);
    }
    element.appendChild(document.createTextNode(text));
}
