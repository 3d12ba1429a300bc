// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QuaZipOperate.h"

#include "CommonLib/FileOperation.h"

#include <JlCompress.h>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>
#include <quazip.h>
#include <quazipfile.h>

#include <limits>
#include <optional>

namespace {

constexpr quint64 kLargestHarmlessSize = quint64(1) << 30;
constexpr quint64 kLargestHarmlessRatio = 200;
constexpr quint64 kLongestLinkTarget = 4096;
// From here on sizes and offsets need the format's 64-bit fields. Left room for headers.
constexpr qint64 kLargestPlainSize = qint64(0xF0000000);

// The parts of a name of an archive's entry, or of a link's target.
QStringList Parts(const QString& name)
{
    QString text = name;
    if (QDir::separator() == '\\')
        text.replace('\\', '/');
    return text.split('/');
}

// Names that reach a drive, a stream or a device instead of a file.
bool IsSpecialOnWindows(const QString& part)
{
    static const QRegularExpression special(
        QStringLiteral(":|^(con|prn|aux|nul|com[0-9]|lpt[0-9])[ ]*([.]|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return special.match(part).hasMatch();
}

bool IsSpecialPart(const QString& part)
{
    return part.contains(QChar(0)) || (QDir::separator() == '\\' && IsSpecialOnWindows(part));
}

// How deep below the target the parts lead when they start at \a depth; nothing when they leave it
// on the way.
std::optional<int> DepthAfter(const QStringList& parts, int depth)
{
    for (const QString& part : parts) {
        if (IsSpecialPart(part))
            return std::nullopt;
        if (part == "..")
            --depth;
        else if (!part.isEmpty() && part != ".")
            ++depth;
        if (depth < 0)
            return std::nullopt;
    }
    return depth;
}

bool IsAbsolute(const QStringList& parts)
{
    return parts.size() > 1 && parts.first().isEmpty();
}

// Whether steps up come first only. After a step down they would start from wherever that step,
// when it is a link itself, has led.
bool ClimbsFirst(const QStringList& parts)
{
    bool hasDescended = false;
    for (const QString& part : parts) {
        if (part == ".." && hasDescended)
            return false;
        hasDescended = hasDescended || part != "..";
    }
    return true;
}

class Extractor
{
public:
    Extractor(QuaZip& zip, const QString& target)
        : m_zip(zip), m_target(QDir::cleanPath(QFileInfo(target).absoluteFilePath()))
    {
    }

    // False for a broken archive or a bomb.
    bool IsHarmless() const
    {
        const quint64 archiveSize = static_cast<quint64>(QFileInfo(m_zip.getZipName()).size());
        quint64 total = 0;
        for (bool more = m_zip.goToFirstFile(); more; more = m_zip.goToNextFile()) {
            QuaZipFileInfo64 info;
            // The library never unpacks more of an entry than is stated here.
            if (!m_zip.getCurrentFileInfo(&info) ||
                info.uncompressedSize > std::numeric_limits<quint64>::max() - total)
                return false;
            total += info.uncompressedSize;
        }
        const bool isBomb =
            total > kLargestHarmlessSize && total / kLargestHarmlessRatio > archiveSize;
        return m_zip.getZipError() == UNZ_OK && !isBomb && Fits(total);
    }

    QStringList Extract()
    {
        for (bool more = m_zip.goToFirstFile(); more; more = m_zip.goToNextFile()) {
            if (!ExtractCurrent())
                return Undo();
        }
        return m_zip.getZipError() == UNZ_OK ? m_extracted : Undo();
    }

private:
    bool Fits(quint64 size) const
    {
        // Not asked for small archives: the question costs more than they do.
        if (size <= kLargestHarmlessSize)
            return true;
        QString existing = m_target;
        while (!QFileInfo::exists(existing) && !QDir(existing).isRoot())
            existing = QFileInfo(existing).absolutePath();
        const QStorageInfo volume(existing);
        return !volume.isValid() || static_cast<quint64>(volume.bytesAvailable()) >= size;
    }

    // False when the entry cannot be unpacked; true, too, when it is left out.
    bool ExtractCurrent()
    {
        QuaZipFileInfo64 info;
        if (!m_zip.getCurrentFileInfo(&info))
            return false;
        const QStringList parts = Parts(info.name);
        if (IsAbsolute(parts) || DepthAfter(parts, 0).value_or(0) == 0)
            return true;
        const QString relative = QDir::cleanPath(parts.join('/'));
        if (!IsWayClear(relative) || (info.isSymbolicLink() && !IsInnerLink(relative, info)))
            return true;
        const bool isFolder = info.name.endsWith('/');
        const QString path = m_target + '/' + relative + (isFolder ? "/" : "");
        // Names no entry: the library then takes the current one.
        if (!JlCompress::extractFile(&m_zip, QString(), path))
            return false;
        m_extracted += path;
        m_clearFolders += relative.left(qMax(0, relative.lastIndexOf('/')));
        return true;
    }

    // Whether no link or special file stands on the way to, or in place of, the entry.
    bool IsWayClear(const QString& relative)
    {
        const QFileInfo self(m_target + '/' + relative);
        if (IsLink(self) || (self.exists() && !self.isFile() && !self.isDir()))
            return false;
        for (int end = relative.lastIndexOf('/'); end > 0;
             end = relative.lastIndexOf('/', end - 1)) {
            const QString folder = relative.left(end);
            // Unpacked into before, so it is a folder and stays one.
            if (m_clearFolders.contains(folder))
                return true;
            if (IsLink(QFileInfo(m_target + '/' + folder)))
                return false;
        }
        return true;
    }

    bool IsInnerLink(const QString& relative, const QuaZipFileInfo64& info)
    {
        if (info.uncompressedSize > kLongestLinkTarget)
            return false;
        QuaZipFile file(&m_zip);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        const QStringList parts = Parts(QFile::decodeName(file.readAll()));
        return !IsAbsolute(parts) && ClimbsFirst(parts) &&
               DepthAfter(parts, relative.count('/')).has_value();
    }

    static bool IsLink(const QFileInfo& info) { return info.isSymbolicLink() || info.isJunction(); }

    QStringList Undo() const
    {
        for (const QString& path : m_extracted)
            QFile::remove(path);
        return QStringList();
    }

    QuaZip& m_zip;
    const QString m_target;
    QSet<QString> m_clearFolders;
    QStringList m_extracted;
};

// What there is to pack.
class Survey
{
public:
    // False when a link leads back to a folder that holds it: the library would follow it forever.
    bool Visit(const QString& folder)
    {
        const QString realPath = QFileInfo(folder).canonicalFilePath();
        if (m_holders.contains(realPath))
            return false;
        m_holders += realPath;
        const auto filters = QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot;
        const QFileInfoList entries = QDir(folder).entryInfoList(filters, QDir::NoSort);
        for (const QFileInfo& entry : entries) {
            if (!entry.isDir())
                m_size += entry.size();
            else if (!Visit(entry.filePath()))
                return false;
        }
        m_holders.removeLast();
        return true;
    }

    bool NeedsLargeFormat() const { return m_size >= kLargestPlainSize; }

private:
    qint64 m_size = 0;
    QStringList m_holders;
};

bool Pack(const QString& archivePath, const QString& folder)
{
    Survey survey;
    if (!survey.Visit(folder))
        return false;
    QuaZip zip(archivePath);
    zip.setUtf8Enabled(true);
    zip.setZip64Enabled(survey.NeedsLargeFormat());
    if (!zip.open(QuaZip::mdCreate))
        return false;
    const bool isPacked = JlCompress::compressSubDir(&zip, folder, folder, true, QDir::Filters());
    zip.close();
    return isPacked && zip.getZipError() == ZIP_OK;
}

} // namespace

bool QuaZipOperate::CompressDir(const QString& archivePath, const QString& folder)
{
    if (!QFileInfo(folder).isDir())
        return false;
    const QFileInfo archive(QDir::cleanPath(QFileInfo(archivePath).absoluteFilePath()));
    QDir().mkpath(archive.absolutePath());
    FileOperation::RemoveFile(archive.filePath());
    // The archive may lie inside of the folder, or be reached from it by a link: hidden entries are
    // not packed, so while it grows it stays out of its own sight. Absolute, because the library
    // leaves out the file that it writes by comparing absolute paths.
    const QString growing =
        archive.absolutePath() + QStringLiteral("/.%1.part").arg(archive.fileName());
    if (Pack(growing, folder) && QFile::rename(growing, archive.filePath()))
        return true;
    FileOperation::RemoveFile(growing);
    return false;
}

QStringList QuaZipOperate::ExtractDir(const QString& archivePath, const QString& targetFolder)
{
    if (!QFileInfo(archivePath).isFile())
        return QStringList();
    QuaZip zip(archivePath);
    zip.setFileNameCodec("UTF-8");
    if (!zip.open(QuaZip::mdUnzip))
        return QStringList();
    Extractor extractor(zip, targetFolder);
    return extractor.IsHarmless() ? extractor.Extract() : QStringList();
}
