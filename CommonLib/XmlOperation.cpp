// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/XmlOperation.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/system/RegularFile_p.h"
#include "CommonLib/xml/XmlDocument_p.h"

namespace {

constexpr qint64 kLargestFile = qint64(1) << 30;

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
    if (!OpenRegularFile(file, mode))
        return false;
    const bool isRead = file.isReadable() && file.size() <= kLargestFile &&
                        ReadXmlDocument(document, file.readAll());
    if (!isRead)
        document.clear();
    return isRead;
}

void XmlOperation::SaveXmlContent2File(const QDomDocument& document, const QString& path)
{
    QFile file(path);
    if (OpenRegularFile(file, QIODevice::WriteOnly | QIODevice::Truncate))
        WriteXmlDocument(document, file);
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
    // The index moves on although the list shrinks under it. Kept: see docs/compatibility.md.
    for (int i = 0; i < children.length(); ++i) {
        const QDomNode child = children.item(i);
        if (child.isText())
            element.removeChild(child);
    }
    element.appendChild(document.createTextNode(text));
}
