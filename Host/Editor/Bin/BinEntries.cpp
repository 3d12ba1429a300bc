// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinEntries.h"

#include "Com/WideText.h"
#include "Host/Editor/Model/Engine.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <vector>

namespace {

/// Text: an array of objects in JSON.
constexpr const wchar_t* kKey = L"kEditor_Bin";
constexpr int kShortest = 4096;
constexpr int kLongest = 1 << 26; // characters, of some hundred thousand files

/// A getter cuts what is longer than its buffer.
QString ReadText(INLEProperties& bag)
{
    for (int capacity = kShortest; capacity <= kLongest; capacity *= 4) {
        std::vector<wchar_t> buffer(std::size_t(capacity), L'\0');
        if (FAILED(bag.GetString(kKey, buffer.data(), capacity)))
            return {};
        QString text = FromWide(buffer.data());
        if (int(wcslen(buffer.data())) < capacity - 1)
            return text;
    }
    return {};
}

/// \a path as seen from \a folder; empty when it is not below it, or there is no folder.
QString Below(const QString& folder, const QString& path)
{
    const QString relative = folder.isEmpty() ? QString() : QDir(folder).relativeFilePath(path);
    const bool isBelow = QDir::isRelativePath(relative) && !relative.startsWith("../");
    return isBelow ? relative : QString();
}

QJsonObject ToJson(const BinEntry& entry, const QString& folder)
{
    QJsonObject object{{"path", entry.path}};
    const QString relative = Below(folder, entry.path);
    if (!relative.isEmpty())
        object["relative"] = relative;
    if (!entry.proxy.isEmpty())
        object["proxy"] = entry.proxy;
    if (NLERangeLength(entry.marks) > 0) {
        object["in"] = entry.marks.in;
        object["out"] = entry.marks.out;
    }
    return object;
}

/// What lies beside the project comes before what lies where it once lay; where it is in neither
/// place it is looked for beside the project, as clips look for it.
QString PathOf(const QJsonObject& object, const QString& folder)
{
    const QString relative = object["relative"].toString();
    QString path = object["path"].toString();
    if (folder.isEmpty() || relative.isEmpty())
        return path;
    const QString beside = QDir::cleanPath(QDir(folder).absoluteFilePath(relative));
    return QFileInfo::exists(beside) || !QFileInfo::exists(path) ? beside : path;
}

BinEntry FromJson(const QJsonObject& object, const QString& folder)
{
    return {
        PathOf(object, folder),
        object["proxy"].toString(),
        {object["in"].toInt(BinEntry::kNoMarks.in), object["out"].toInt(BinEntry::kNoMarks.out)}};
}

} // namespace

BinEntries ReadBinEntries(INLETimeline& project, const QString& folder)
{
    BinEntries entries;
    const NLEComPtr<INLEProperties> bag = BagOf(&project);
    if (!bag)
        return entries;
    const QJsonArray array = QJsonDocument::fromJson(ReadText(*bag).toUtf8()).array();
    for (const QJsonValue& value : array) {
        const BinEntry entry = FromJson(value.toObject(), folder);
        if (!entry.path.isEmpty())
            entries.append(entry);
    }
    return entries;
}

bool WriteBinEntries(INLETimeline& project, const BinEntries& entries, const QString& folder)
{
    const NLEComPtr<INLEProperties> bag = BagOf(&project);
    if (!bag)
        return false;
    QJsonArray array;
    for (const BinEntry& entry : entries)
        array.append(ToJson(entry, folder));
    const QByteArray text = QJsonDocument(array).toJson(QJsonDocument::Compact);
    return SUCCEEDED(bag->SetString(kKey, QString::fromUtf8(text).toStdWString().c_str()));
}
