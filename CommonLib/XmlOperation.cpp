// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/XmlOperation.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/system/RegularFile_p.h"
#include "CommonLib/xml/XmlDocument_p.h"

namespace {

/// Bytes; a text of Qt holds little less than 1 Gi characters.
constexpr qint64 kLargestFile = (qint64(1) << 30) - 1024;

/// Keeps what is written to it, as long as that is no more than a file may hold.
class FileContent final : public QIODevice
{
public:
    FileContent() { open(QIODevice::WriteOnly); }
    bool IsTooLarge() const { return m_isTooLarge; }
    const QByteArray& Bytes() const { return m_bytes; }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        m_isTooLarge = m_isTooLarge || m_bytes.size() + size > kLargestFile;
        if (m_isTooLarge)
            m_bytes.clear();
        else
            m_bytes.append(data, static_cast<int>(size));
        return size; // the stream would keep what is refused
    }

private:
    QByteArray m_bytes;
    bool m_isTooLarge = false;
};

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
    FileContent content;
    WriteXmlDocument(document, content);
    QFile file(path);
    if (!content.IsTooLarge() && OpenRegularFile(file, QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content.Bytes());
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
