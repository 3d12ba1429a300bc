// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CVUtilities/Customization.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

/// The content of a regular file; nothing when it cannot be read or is too long.
std::optional<QByteArray> ReadRegularFile(const QString& path, qint64 longest)
{
    // Opening anything else might wait for ever.
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > longest || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // It may have grown since.
    QByteArray content = file.read(longest + 1);
    if (content.size() > longest || file.error() != QFileDevice::NoError)
        return std::nullopt;
    return content;
}

} // namespace

bool Customization::Load(const QString& path)
{
    m_values.clear();
    const std::optional<QByteArray> content = ReadRegularFile(path, kLongestFile);
    if (!content)
        return false;
    QXmlStreamReader xml(*content);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("Customization"))
        return false;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("Group"))
            ReadGroup(xml);
        else
            xml.skipCurrentElement();
    }
    // What follows the root element has to be well-formed, too.
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        m_values.clear();
    return !xml.hasError();
}

void Customization::ReadGroup(QXmlStreamReader& xml)
{
    const QString group = xml.attributes().value(QLatin1String("name")).toString();
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("Value")) {
            xml.skipCurrentElement();
            continue;
        }
        const QString name = xml.attributes().value(QLatin1String("name")).toString();
        m_values.insert({group, name}, xml.readElementText().trimmed());
    }
}

std::optional<QString> Customization::Value(const QString& group, const QString& name) const
{
    const auto found = m_values.constFind({group, name});
    return found == m_values.constEnd() ? std::nullopt : std::optional<QString>(*found);
}
