// SPDX-License-Identifier: LGPL-2.1-or-later
// XML documents: what was read and written can be read again.
#include "CommonLib/XmlOperation.h"
#include "Fuzz.h"

#include <QDomDocument>
#include <QIODevice>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path =
        fuzz::Write("document.xml", QByteArray(reinterpret_cast<const char*>(data), int(size)));
    QDomDocument document;
    if (!XmlOperation::OpenXmlFile(document, path, QIODevice::ReadOnly))
        return 0;
    QDomElement root = document.documentElement();
    XmlOperation::SetElemmentText(document, root, QStringLiteral("\x01 ]]> <&"));
    XmlOperation::GetChildElement(root, QStringLiteral("a"));
    XmlOperation::SaveXmlContent2File(document, path);
    QDomDocument again;
    fuzz::Require(XmlOperation::OpenXmlFile(again, path, QIODevice::ReadOnly),
                  "a document that was written can be read");
    return 0;
}
