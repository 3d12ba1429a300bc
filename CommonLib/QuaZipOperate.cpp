// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QuaZipOperate.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/system/FolderEntries_p.h"
#include "CommonLib/system/MoveOver_p.h"

#include <JlCompress.h>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>
#include <QUuid>
#include <quazip.h>
#include <quazipfile.h>

#include <limits>
#include <optional>

namespace {

constexpr quint64 kLargestSmallSize = quint64(1) << 30;
constexpr quint64 kLongestLinkTarget = 4096;
// A file is unpacked under this name and then moved to its own.
const QLatin1String kHalf(".unpacking.half");
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

// Whether a link that stands \a depth folders below the root leads to somewhere below the root.
bool IsInner(const QString& linkTarget, int depth)
{
    const QStringList parts = Parts(linkTarget);
    return !IsAbsolute(parts) && ClimbsFirst(parts) && DepthAfter(parts, depth).has_value();
}

class Extractor
{
public:
    Extractor(QuaZip& zip, const QString& target)
        : m_zip(zip), m_target(QDir::cleanPath(QFileInfo(target).absoluteFilePath()))
    {
    }

    // False for a broken archive, and for one that finds no room.
    bool LookThrough()
    {
        quint64 total = 0;
        for (bool more = m_zip.goToFirstFile(); more; more = m_zip.goToNextFile()) {
            QuaZipFileInfo64 info;
            // The library never unpacks more of an entry than is stated here.
            if (!m_zip.getCurrentFileInfo(&info) ||
                info.uncompressedSize > std::numeric_limits<quint64>::max() - total)
                return false;
            total += info.uncompressedSize;
            LeaveName(info.name);
        }
        return m_zip.getZipError() == UNZ_OK && Fits(total);
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
        if (size <= kLargestSmallSize)
            return true;
        QString existing = m_target;
        while (!QFileInfo::exists(existing) && !QDir(existing).isRoot())
            existing = QFileInfo(existing).absolutePath();
        const QStorageInfo volume(existing);
        return !volume.isValid() || static_cast<quint64>(volume.bytesAvailable()) >= size;
    }

    void LeaveName(const QString& name)
    {
        if (!name.contains(kHalf, Qt::CaseInsensitive))
            return;
        for (const QString& part : Parts(name)) {
            if (part.size() >= m_half.size())
                m_half = '.' + part;
        }
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
        if (isFolder || info.isSymbolicLink() ? !Unpack(path) : !UnpackFile(path, info))
            return false;
        m_extracted += path;
        m_clearFolders += relative.left(qMax(0, relative.lastIndexOf('/')));
        return true;
    }

    bool Unpack(const QString& path)
    {
        // Names no entry: the library then takes the current one.
        return JlCompress::extractFile(&m_zip, QString(), path);
    }

    // In one step over what is there, so that none is ever cut short.
    bool UnpackFile(const QString& path, const QuaZipFileInfo64& info)
    {
        const QFileInfo there(path);
        if (there.exists() && !there.isWritable())
            return false;
        const QString half = there.path() + '/' + m_half;
        QFile::remove(half); // of a process that was killed
        if (Unpack(half) && IsWhole(half, info) && MoveOver(half, path))
            return true;
        QFile::remove(half);
        return false;
    }

    // The library does not hear that the last that was gathered for the file cannot be written.
    static bool IsWhole(const QString& path, const QuaZipFileInfo64& info)
    {
        return static_cast<quint64>(QFileInfo(path).size()) == info.uncompressedSize;
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
        return IsInner(QFile::decodeName(file.readAll()), relative.count('/'));
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
    QString m_half = kHalf; // no entry's name
};

// What there is to pack.
class Survey
{
public:
    // False when the library would pass over something, or when a link leads back to a folder that
    // holds it: the library would follow it forever.
    bool Visit(const QString& folder)
    {
        const QString realPath = QFileInfo(folder).canonicalFilePath();
        if (m_holders.contains(realPath))
            return false;
        m_holders += realPath;
        const std::optional<int> count = CountEntries(folder);
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        const QFileInfoList entries = QDir(folder).entryInfoList(all, QDir::NoSort);
        if (!count || *count > entries.size())
            return false;
        for (const QFileInfo& entry : entries) {
            if (!entry.isHidden() && !(entry.isDir() ? Visit(entry.filePath()) : AddFile(entry)))
                return false;
        }
        m_holders.removeLast();
        return true;
    }

    bool NeedsLargeFormat() const { return m_size >= kLargestPlainSize; }

private:
    // False for broken links, pipes and the like, and for links that would not be unpacked again.
    bool AddFile(const QFileInfo& file)
    {
        m_size += file.size();
        // The target as the library packs it.
        return file.isFile() &&
               (!file.isSymbolicLink() ||
                IsInner(file.dir().relativeFilePath(file.symLinkTarget()), m_holders.size() - 1));
    }

    qint64 m_size = 0;
    QStringList m_holders; // from the root down
};

// The path of a new empty file; empty when there cannot be one. Its name does not depend on the
// archive's, so it fits whatever the file system allows and is nobody else's. A QTemporaryFile
// would stay closed to other users.
QString NewHiddenFile(const QString& folder)
{
    QFile file(folder + "/." + QUuid::createUuid().toString(QUuid::WithoutBraces) + ".part");
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) ? file.fileName() : QString();
}

bool Pack(const QString& archivePath, const QString& folder, bool needsLargeFormat)
{
    QuaZip zip(archivePath);
    zip.setUtf8Enabled(true);
    zip.setZip64Enabled(needsLargeFormat);
    if (!zip.open(QuaZip::mdCreate))
        return false;
    const bool isPacked = JlCompress::compressSubDir(&zip, folder, folder, true, QDir::Filters());
    zip.close();
    return isPacked && zip.getZipError() == ZIP_OK;
}

} // namespace

bool QuaZipOperate::CompressDir(const QString& archivePath, const QString& folder)
{
    Survey survey;
    // Whole: the library takes the names of entries wrongly below a name like "C:folder".
    const QString root = QFileInfo(folder).absoluteFilePath();
    if (!QFileInfo(folder).isDir() || !survey.Visit(root))
        return false;
    const QFileInfo archive(QDir::cleanPath(QFileInfo(archivePath).absoluteFilePath()));
    QDir().mkpath(archive.absolutePath());
    FileOperation::RemoveFile(archive.filePath());
    // The archive may lie inside of the folder, or be reached from it by a link: hidden entries are
    // not packed, so while it grows it stays out of its own sight. Absolute, because the library
    // leaves out the file that it writes by comparing absolute paths.
    const QString growing = NewHiddenFile(archive.absolutePath());
    if (growing.isEmpty())
        return false;
    if (Pack(growing, root, survey.NeedsLargeFormat()) &&
        QFile::rename(growing, archive.filePath()))
        return true;
    QFile::remove(growing);
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
    return extractor.LookThrough() ? extractor.Extract() : QStringList();
}
