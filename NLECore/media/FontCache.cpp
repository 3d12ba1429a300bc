// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FontCache.h"
#include "NLECore/media/WholeFile.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <iterator>

namespace nle {

namespace {

/// Longer than any that is written for a machine's fonts, in bytes.
constexpr qint64 kLongestFile = qint64(64) * 1024 * 1024;

const QString kRoot = QStringLiteral("FontCache");
const QString kFont = QStringLiteral("Font");
const QString kFile = QStringLiteral("file");
const QString kSize = QStringLiteral("size");
const QString kModified = QStringLiteral("modified");
const QString kFamily = QStringLiteral("Family");

/// XML has no place for control characters, and one would spoil the whole file.
bool FitsXml(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control || character.unicode() >= 0xfffe;
    });
}

qint64 Modified(const QFileInfo& file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

} // namespace

void FontCache::Open(const QString& path)
{
    m_path = path;
    m_entries.clear();
    m_changed = false;
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLongestFile || !file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&file);
    if (xml.readNextStartElement() && xml.name() == kRoot) {
        while (xml.readNextStartElement())
            ReadEntry(xml);
    }
    if (xml.hasError())
        m_entries.clear();
}

void FontCache::ReadEntry(QXmlStreamReader& xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    Entry entry;
    entry.size = attributes.value(kSize).toLongLong();
    entry.modified = attributes.value(kModified).toLongLong();
    while (xml.readNextStartElement())
        entry.families.append(xml.readElementText(QXmlStreamReader::SkipChildElements));
    m_entries.insert(attributes.value(kFile).toString(), entry);
}

void FontCache::Save()
{
    const QFileInfo place(m_path);
    // A file of another kind is not ours to replace.
    if (!m_changed || m_path.isEmpty() || (place.exists() && !place.isFile()))
        return;
    WholeFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(kRoot);
    for (auto entry = m_entries.constBegin(); entry != m_entries.constEnd(); ++entry) {
        if (!FitsXml(entry.key() + entry->families.join(QString())))
            continue;
        xml.writeStartElement(kFont);
        xml.writeAttribute(kFile, entry.key());
        xml.writeAttribute(kSize, QString::number(entry->size));
        xml.writeAttribute(kModified, QString::number(entry->modified));
        for (const QString& family : entry->families)
            xml.writeTextElement(kFamily, family);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    // On a full disk the file stays as it was.
    if (!xml.hasError() && file.Commit())
        m_changed = false;
}

std::optional<QStringList> FontCache::Find(const QFileInfo& file) const
{
    const auto found = m_entries.constFind(file.absoluteFilePath());
    if (found == m_entries.constEnd() || found->size != file.size() ||
        found->modified != Modified(file))
        return std::nullopt;
    return found->families;
}

void FontCache::Put(const QFileInfo& file, const QStringList& families)
{
    m_entries.insert(file.absoluteFilePath(), {file.size(), Modified(file), families});
    m_changed = true;
}

void FontCache::Prune(const QString& folder, const QFileInfoList& present)
{
    QSet<QString> paths;
    for (const QFileInfo& file : present)
        paths.insert(file.absoluteFilePath());
    const QString prefix = folder.endsWith('/') ? folder : folder + '/';
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        const bool gone = entry.key().startsWith(prefix) && !paths.contains(entry.key());
        entry = gone ? m_entries.erase(entry) : std::next(entry);
        m_changed = m_changed || gone;
    }
}

} // namespace nle
