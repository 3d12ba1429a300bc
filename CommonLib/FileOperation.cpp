// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/FileOperation.h"

#include "Com/AnyQt.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/system/RegularFile_p.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr qint64 kHashBlockSize = 10240;

bool IsSameFile(const QString& left, const QString& right)
{
    const QFileInfo leftInfo(left);
    const QFileInfo rightInfo(right);
    // A link to the other is a file of its own, unless both are named by the same link.
    if (rightInfo.isSymLink() && leftInfo.absoluteFilePath() != rightInfo.absoluteFilePath())
        return false;
    return leftInfo.exists() && rightInfo.exists() && leftInfo == rightInfo;
}

QString ReadAll(const QString& path, bool utf8, QIODevice::OpenMode mode)
{
    QFile file(path);
    if (!OpenRegularFile(file, QIODevice::ReadOnly | mode))
        return QString();
    QTextStream stream(&file);
    AnyQt::SetEncoding(stream, utf8);
    return stream.readAll();
}

void WriteAll(const QString& path, const QString& text, bool utf8, QIODevice::OpenMode mode)
{
    QFile file(path);
    if (!OpenRegularFile(file, QIODevice::WriteOnly | QIODevice::Truncate | mode))
        return;
    QTextStream stream(&file);
    AnyQt::SetEncoding(stream, utf8);
    stream << text;
}

} // namespace

bool FileOperation::IsFileExist(const QString& path)
{
    return QFile::exists(path);
}

bool FileOperation::IsFileExist(const QStringList& paths)
{
    return std::all_of(paths.begin(), paths.end(),
                       [](const QString& path) { return IsFileExist(path); });
}

void FileOperation::CreateNewFile(const QString& path)
{
    if (IsFileExist(path))
        return;
    QFile file(path);
    file.open(QIODevice::WriteOnly);
}

bool FileOperation::DeleteFileW(const QString& path)
{
    return !IsFileExist(path) || QFile::remove(path);
}

bool FileOperation::RemoveFile(const QString& path)
{
    return DeleteFileW(path);
}

bool FileOperation::CopyOneFile(const QString& source, const QString& target)
{
    // Removing the target would remove the source.
    if (IsSameFile(source, target))
        return false;
    if (IsFileExist(target))
        QFile::remove(target);
    return QFileInfo(source).isFile() && QFile::copy(source, target);
}

bool FileOperation::CopyFileW(const QString& source, const QString& folder)
{
    return CopyOneFile(source, PathOperation::Slash(folder) + GetFileName(source));
}

bool FileOperation::CopyFiles(const QStringList& sources, const QString& folder)
{
    return std::all_of(sources.begin(), sources.end(),
                       [&folder](const QString& source) { return CopyFileW(source, folder); });
}

QString FileOperation::GetFileName(const QString& path)
{
    return QFileInfo(path).fileName();
}

QString FileOperation::GetFileBaseName(const QString& path)
{
    return QFileInfo(path).baseName();
}

QString FileOperation::GetFileSuffixName(const QString& path)
{
    return QFileInfo(path).suffix();
}

QString FileOperation::GetFileDir(const QString& path)
{
    const QString folder = QFileInfo(path).path();
    return folder.endsWith('/') ? folder : folder + '/';
}

QString FileOperation::MakeFileName(const QString& path, const QString& addition)
{
    return GetFileBaseName(path) + addition + '.' + GetFileSuffixName(path);
}

QString FileOperation::AppendFileNameSuffix(const QString& path, const QString& addition)
{
    return PathOperation::Slash(QFileInfo(path).absolutePath()) + MakeFileName(path, addition);
}

QString FileOperation::RepalceSuffixName(const QString& path, const QString& suffix)
{
    return PathOperation::Slash(PathOperation::ExtractFilePath(path)) + GetFileBaseName(path) +
           suffix;
}

QString FileOperation::ReadFile(const QString& path, bool utf8)
{
    return ReadAll(path, utf8, QIODevice::NotOpen);
}

QString FileOperation::ReadTextFile(const QString& path, bool utf8)
{
    return ReadAll(path, utf8, QIODevice::Text);
}

void FileOperation::WriteFile(const QString& path, const QString& text, bool utf8)
{
    WriteAll(path, text, utf8, QIODevice::NotOpen);
}

bool FileOperation::WriteTextFile(const QString& path, const QString& text, bool utf8)
{
    WriteAll(path, text, utf8, QIODevice::Text);
    return IsFileExist(path);
}

QString FileOperation::CalcFileMD5(const QString& path)
{
    QFile file(path);
    qint64 remaining = file.size();
    // The pieces are large enough that the file's own buffer would only copy them once more.
    if (!OpenRegularFile(file, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return QString();
    QCryptographicHash hash(QCryptographicHash::Md5);
    char block[kHashBlockSize];
    while (remaining >= 1) {
        const qint64 read = file.read(block, std::min(remaining, kHashBlockSize));
        if (read < 1)
            break;
        hash.addData(block, static_cast<int>(read));
        remaining -= read;
    }
    return QString::fromLatin1(hash.result().toHex());
}
